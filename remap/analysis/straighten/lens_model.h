// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Curves with few parameters near a guess of a lens, for the solver. Lengths in pixels, angles in
// radians. Throws std::bad_alloc.
#pragma once

#include <optional>

#include "remap/analysis/straighten/least_squares.h"
#include "remap/analysis/straighten/lens_view.h"

namespace varnel {

// What is known of a lens beside its edges.
struct LensConstraints {
    double centreDeviation = 30.0;  // how far the axis may be from the guess: one deviation
    double reach = 0.0;             // the curve is needed up to this radius; 0: to the last point
    std::optional<double> ninetyRadius =
        {};  // the radius at 90 degrees from the axis, to 0.3 percent
    std::optional<double> focalPixels = {};  // pixels per radian at the axis, to 2 percent
};

// The two-number forms of the lens formulas, and the guess itself with a scale and a bend.
enum class CurveForm { Guess, Sin, Tan };

// The guess has to outlive the model. Parameters are in deviations from the guess, all 0: the axis
// (2), the two numbers, and further terms of the fifth, seventh and ninth power.
class LensModel {
  public:
    LensModel(CurveForm form, int terms, const LensView& guess, const LensConstraints& known);

    std::size_t Parameters() const { return 4 + static_cast<std::size_t>(terms_); }
    int Terms() const { return terms_; }
    CurveForm Form() const { return form_; }
    LensView At(const Numbers& parameters) const;
    // Residuals, in deviations, of what is known beside the edges; curves that turn back cost.
    Numbers Priors(const Numbers& parameters, const LensView& lens) const;

  private:
    double TwoNumbers(double slope, double factor, double angle) const;

    CurveForm form_;
    int terms_;
    const LensView* guess_;
    LensConstraints known_;
    double limit_;
    double slope_ = 1.0;  // of the design, pixels per radian at the axis
    double factor_ = 0.0;
};

}  // namespace varnel
