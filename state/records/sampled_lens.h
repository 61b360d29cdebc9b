// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A lens as a measured, published or imported curve: how far from the centre of the image circle a
// ray lands. Throws std::bad_alloc only.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>
#include <optional>
#include <utility>

#include "base/pixel_size.h"

namespace varnel {

inline constexpr int lensKnots = 16;

struct LensKnot {
    double angle = 0.0;   // radians from the optical axis; the first is 0
    double radius = 0.0;  // in the lens's unit; the first is 0
    bool operator==(const LensKnot&) const = default;
};

// What is added to the radius of one colour: first * a + third * a^3 + fifth * a^5 for an angle of
// a radians, in the lens's unit. Green is where the curve says.
struct ColourShift {
    double first = 0.0;
    double third = 0.0;
    double fifth = 0.0;

    double At(double angle) const {
        const double square = angle * angle;
        return angle * (first + square * (third + square * fifth));
    }
    bool operator==(const ColourShift&) const = default;
};

// The colours that a lens may put at different radii.
enum class LensColour { Green, Red, Blue };

// The optical axis on pictures of one size, in pixels from the left and from the bottom edge; the
// middle of the first pixel is at 0.5.
struct LensCentre {
    double x = 0.0;
    double y = 0.0;
    PixelSize size;
    bool operator==(const LensCentre& other) const {
        return x == other.x && y == other.y && size.width == other.size.width &&
               size.height == other.size.height;
    }
};

struct LensOrigin {
    enum class Kind { Published, Imported, Measured };
    Kind kind = Kind::Published;
    QDate date;                      // invalid where it is not known
    QStringList photos;              // names of the files that it was measured from
    QString source;                  // for people: the publication, the file and its licence
    std::optional<double> residual;  // of the measured edges, root mean square, in pixels
    bool operator==(const LensOrigin&) const = default;
};

struct SampledLens {
    enum class Unit { Millimetres, CircleRadii };

    QString name;
    Unit unit = Unit::Millimetres;
    // Angles and radii rise from knot to knot; between them a monotone cubic goes. The last angle
    // is the limit of the field.
    std::array<LensKnot, lensKnots> knots{};
    std::optional<LensCentre> centre;
    // On pictures of the centre's size, where it is known: of a curve in circle radii this is the
    // circle's radius in pixels.
    std::optional<double> pixelsPerUnit;
    std::optional<ColourShift> red, blue;
    LensOrigin origin;

    double FieldLimit() const { return knots.back().angle; }
    // What is added for a colour; none where the lens says nothing of it.
    std::optional<ColourShift> ShiftOf(LensColour colour) const {
        return colour == LensColour::Red ? red : colour == LensColour::Blue ? blue : std::nullopt;
    }
    bool operator==(const SampledLens&) const = default;
};

using SampledLensPointer = std::shared_ptr<const SampledLens>;

// The lens of a record, or none: shared, and compared by what it is.
class LensReference {
  public:
    LensReference() = default;
    LensReference(SampledLensPointer lens) : lens_(std::move(lens)) {}  // NOLINT: on purpose
    explicit operator bool() const { return lens_ != nullptr; }
    const SampledLens& operator*() const { return *lens_; }
    const SampledLens* operator->() const { return lens_.get(); }
    bool operator==(const LensReference& other) const {
        return lens_ == other.lens_ || (lens_ && other.lens_ && *lens_ == *other.lens_);
    }

  private:
    SampledLensPointer lens_;
};

}  // namespace varnel
