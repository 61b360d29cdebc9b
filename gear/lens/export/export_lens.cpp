// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/export/export_lens.h"

#include <algorithm>
#include <cmath>

#include "gear/lens/lens_file.h"

namespace varnel {

std::optional<LensPicture> PictureOf(const SampledLens& lens) {
    if (!lens.centre || !lens.pixelsPerUnit) {
        return std::nullopt;
    }
    LensPicture picture{lens.centre->size, *lens.pixelsPerUnit, {}};
    if (lens.unit == SampledLens::Unit::Millimetres) {
        picture.pixelsPerMillimetre = lens.pixelsPerUnit;
    }
    return picture;
}

LensExport ExportLens(const SampledLens& lens, LensFormat format,
                      const std::optional<LensPicture>& picture) {
    LensExport result;
    if (format == LensFormat::Json) {
        result.bytes = LensBytes(lens);
        return result;
    }
    const bool lensfun = format == LensFormat::Lensfun;
    if (!picture || picture->size.width < 1 || picture->size.height < 1 ||
        !(picture->pixelsPerUnit > 0.0)) {
        result.reason = Reason(ReasonCode::KeyMissing, QStringLiteral("px_per_unit"));
    } else if (lensfun && !(picture->pixelsPerMillimetre.value_or(0.0) > 0.0)) {
        result.reason = Reason(ReasonCode::KeyMissing, QStringLiteral("px_per_mm"));
    } else {
        result = lensfun ? LensfunExport(lens, *picture) : OpenCvExport(lens, *picture);
    }
    return result;
}

void MeasureFit(const LensSpline& spline, double pixelsPerUnit,
                const std::function<double(double)>& fit, LensExport& result) {
    constexpr int steps = 1000;
    double sum = 0.0;
    result.largestError = 0.0;
    for (int n = 1; n <= steps; ++n) {
        const double angle = spline.FieldLimit() * n / steps;
        const double error = std::abs(fit(angle) - pixelsPerUnit * spline.RadiusAt(angle));
        result.largestError = std::max(result.largestError, error);
        sum += error * error;
    }
    result.meanError = std::sqrt(sum / steps);
}

}  // namespace varnel
