// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/export/export_lens.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>

#include "files/atomic_file.h"
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

std::optional<LensPicture> PictureFor(const SampledLens& lens, LensFormat format,
                                      double sensorWidth, double sensorHeight) {
    std::optional<LensPicture> picture = PictureOf(lens);
    const bool inMillimetres = lens.unit == SampledLens::Unit::Millimetres;
    if ((picture && picture->pixelsPerMillimetre) || !(std::min(sensorWidth, sensorHeight) > 0.0) ||
        (!picture && !inMillimetres) || (!lens.centre && format != LensFormat::Lensfun)) {
        return picture;
    }
    constexpr double anyScale = 100.0;  // pixels per millimetre
    const PixelSize size = lens.centre ? lens.centre->size
                                       : PixelSize{static_cast<int>(sensorWidth * anyScale),
                                                   static_cast<int>(sensorHeight * anyScale)};
    const double scale = std::max(size.width, size.height) / std::max(sensorWidth, sensorHeight);
    return LensPicture{size, inMillimetres ? scale : picture->pixelsPerUnit, scale};
}

std::optional<LensFormat> LensFormatOf(const QString& path) {
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == u"json") {
        return LensFormat::Json;
    }
    if (ending == u"yaml" || ending == u"yml") {
        return LensFormat::OpenCv;
    }
    return ending == u"xml" ? std::optional(LensFormat::Lensfun) : std::nullopt;
}

LensExport ExportLensTo(const QString& path, const SampledLens& lens, double sensorWidth,
                        double sensorHeight) {
    const std::optional<LensFormat> format = LensFormatOf(path);
    LensExport result;
    if (!format) {
        result.reason = ReasonCode::NoLensEnding;
    } else {
        result = ExportLens(lens, *format, PictureFor(lens, *format, sensorWidth, sensorHeight));
    }
    if (result.reason.isEmpty()) {
        result.reason = WriteWholeFile(path, result.bytes).reason;
    }
    if (!result.reason.isEmpty()) {
        result.reason = Reason(ReasonCode::Of, path, result.reason);
    }
    return result;
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
