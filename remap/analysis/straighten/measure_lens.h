// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A lens measured from photos that it took. Throws std::bad_alloc, and RunTimeError for a guess
// whose knots are no curve.
#pragma once

#include <QDate>
#include <optional>

#include "remap/analysis/circle_finder.h"
#include "remap/analysis/straighten/colour_estimate.h"
#include "remap/analysis/straighten/lens_solver.h"

namespace varnel {

struct MeasuredPhoto {
    const Bitmap* bitmap = nullptr;  // 24 bits
    QString name;
};

struct MeasureOptions {
    QString lensName;
    QDate date;
    // What is measured has to be better than it; none: than a typical fisheye, 180 degrees across
    // the circle or, without a circle, the diagonal. Both are tried as the start.
    std::optional<LensView> present = {};
    std::optional<ImageCircle> circle = {};          // as circle_finder.h has it
    bool findCircle = true;                          // looks for it where it is not given
    bool circleAtNinety = false;                     // the circle is known to lie at 90 degrees
    std::optional<double> pixelsPerMillimetre = {};  // on the sensor; none: radii of the circle
    std::optional<double> focalMillimetres = {};     // needs pixelsPerMillimetre
    std::vector<EdgeTrace> edges = {};               // none: they are found
    bool colour = false;                             // estimate the colour shifts as well
    StopCheck stop = {};
};

enum class MeasureError { None, NoPhoto, SizesDiffer, TooFewEdges, Stopped };

struct Measurement {
    MeasureError error = MeasureError::None;  // but for None and TooFewEdges the rest is of no use
    std::optional<LensView> start;            // what it began with
    SampledLens lens;
    double pixelsPerUnit = 0.0;         // of the lens's radii on the photos
    std::optional<FoundCircle> circle;  // when it was looked for
    std::vector<EdgeTrace> edges;       // in the order of the results
    std::optional<SolvedLens> solved;
    std::optional<ColourEstimates> colour;  // in pixels
};

// Up to four photos of one size, held alike, of one lens at one setting.
Measurement MeasureLens(const std::vector<MeasuredPhoto>& photos, const MeasureOptions& options);

// The lens of a result. Its unit is the millimetre, where there are pixels per millimetre;
// otherwise pixelsPerUnit is the radius of the circle.
SampledLens ToSampledLens(const LensView& view, double reach, double pixelsPerUnit, PixelSize size);

// How far from the axis edges are looked for, as EdgeSearch has it. Throws nothing.
double ReachOf(const std::optional<ImageCircle>& circle);

// A typical fisheye for a photo: see MeasureOptions.
LensView TypicalFisheye(PixelSize size, const std::optional<ImageCircle>& circle);

}  // namespace varnel
