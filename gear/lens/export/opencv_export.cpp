// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <numbers>

#include "gear/lens/export/export_lens.h"
#include "gear/lens/least_squares.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

QString Number(double number) {
    return QString::number(number, 'g', 17);
}

// The text of the file as it is written by hand: FileStorage reads it so.
QString Yaml(const SampledLens& lens, const LensPicture& picture,
             const std::vector<double>& factors, double error) {
    const double scaleX = lens.centre ? double(picture.size.width) / lens.centre->size.width : 1.0;
    const double scaleY =
        lens.centre ? double(picture.size.height) / lens.centre->size.height : 1.0;
    const double x = lens.centre ? lens.centre->x * scaleX : picture.size.width / 2.0;
    const double y = lens.centre ? lens.centre->y * scaleY : picture.size.height / 2.0;
    const QString focal = Number(factors[0]);
    QStringList powers;
    for (std::size_t n = 1; n < factors.size(); ++n) {
        powers.append(Number(factors[n] / factors[0]));
    }
    QString name = TidyLensName(lens.name);
    name.replace(u'"', u'\'').replace(u'\\', u'/');
    const double degrees = lens.FieldLimit() * 180.0 / std::numbers::pi;
    return QStringLiteral(
               "%YAML:1.0\n---\n# Fisheye model, from %1: off by at most %2 px up to %3 degrees.\n"
               "camera_name: \"%4\"\ndistortion_model: fisheye\n")
               .arg(TidyLensName(lens.origin.source), Number(std::round(error * 1e3) / 1e3),
                    QString::number(degrees, 'f', 1), name) +
           QStringLiteral(
               "image_width: %1\nimage_height: %2\n"
               "camera_matrix: !!opencv-matrix\n   rows: 3\n   cols: 3\n   dt: d\n"
               "   data: [ %3, 0., %4,\n       0., %3, %5,\n       0., 0., 1. ]\n")
               .arg(QString::number(picture.size.width), QString::number(picture.size.height),
                    focal, Number(x - 0.5), Number(picture.size.height - y - 0.5)) +
           QStringLiteral(
               "distortion_coefficients: !!opencv-matrix\n   rows: 4\n   cols: 1\n"
               "   dt: d\n   data: [ %1 ]\n")
               .arg(powers.join(QStringLiteral(",\n       ")));
}

}  // namespace

LensExport OpenCvExport(const SampledLens& lens, const LensPicture& picture) {
    const LensSpline spline(lens);
    const auto power = [](int term, double angle) { return std::pow(angle, 2 * term + 1); };
    const std::vector<double> factors = FitTerms(5, spline.FieldLimit(), power, [&](double angle) {
        return picture.pixelsPerUnit * spline.RadiusAt(angle);
    });
    LensExport result;
    if (!(factors[0] > 0.0)) {
        result.reason = ReasonCode::LensCurveUnsound;
        return result;
    }
    const auto fit = [&](double angle) {
        double sum = 0.0;
        for (int n = 0; n < 5; ++n) {
            sum += factors[static_cast<std::size_t>(n)] * power(n, angle);
        }
        return sum;
    };
    MeasureFit(spline, picture.pixelsPerUnit, fit, result);
    result.bytes = Yaml(lens, picture, factors, result.largestError).toUtf8();
    return result;
}

}  // namespace varnel
