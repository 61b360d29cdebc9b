// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A sampled lens in the forms that other programs read. Their formulas have fewer terms than the
// curve, so the fit's error is stated. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <optional>

#include "base/pixel_size.h"
#include "base/reason.h"
#include "remap/projection/lens_spline.h"
#include "state/records/sampled_lens.h"

namespace varnel {

enum class LensFormat { Json, OpenCv, Lensfun };

// The pictures that the lens is exported for.
struct LensPicture {
    PixelSize size;
    double pixelsPerUnit = 0.0;                 // of the lens's radii
    std::optional<double> pixelsPerMillimetre;  // on the sensor
};

// What the lens itself knows; nothing where it does not say how many pixels its unit has.
std::optional<LensPicture> PictureOf(const SampledLens& lens);

// The same, helped by what is known of the camera: the sides of its sensor in millimetres, or 0.
// For lensfun, which counts in millimetres, a picture of any size will do.
std::optional<LensPicture> PictureFor(const SampledLens& lens, LensFormat format,
                                      double sensorWidth, double sensorHeight);

// .json, .yaml or .yml, .xml; nothing for any other ending.
std::optional<LensFormat> LensFormatOf(const QString& path);

struct LensExport {
    QByteArray bytes;
    // Between the curve and the fit up to the limit of the field, in the picture's pixels.
    double largestError = 0.0;
    double meanError = 0.0;  // root mean square
    Reason reason;           // why there are no bytes
};

// JSON needs no picture and is exact. OpenCV's YAML takes a size and pixels per unit, lensfun's XML
// pixels per millimetre too. The lens is one that LensSpline takes.
LensExport ExportLens(const SampledLens& lens, LensFormat format,
                      const std::optional<LensPicture>& picture);

// Writes it to the file, whose ending tells the format. The sensor's sides as above. A reason names
// the file; an older one is replaced as a whole.
LensExport ExportLensTo(const QString& path, const SampledLens& lens, double sensorWidth,
                        double sensorHeight);

// r = f (a + k1 a^3 + k2 a^5 + k3 a^7 + k4 a^9), least squares.
LensExport OpenCvExport(const SampledLens& lens, const LensPicture& picture);
// The design and the ptlens terms that come nearest, and the colours.
LensExport LensfunExport(const SampledLens& lens, const LensPicture& picture);

// Fills in the errors of a fit, which gives pixels for an angle.
void MeasureFit(const LensSpline& spline, double pixelsPerUnit,
                const std::function<double(double angle)>& fit, LensExport& result);

}  // namespace varnel
