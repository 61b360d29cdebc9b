// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QXmlStreamWriter>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "gear/lens/export/export_lens.h"
#include "gear/lens/import/fisheye_design.h"
#include "gear/lens/least_squares.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

// In halves of the sensor's shorter side: how lensfun's numbers are meant stands in lensfun_data.h.
struct Fit {
    FisheyeDesign design = FisheyeDesign::Equidistant;
    double focal = 0.0;
    double a = 0.0, b = 0.0, c = 0.0;

    double At(double angle) const {
        const double r = focal * DesignRadius(design, angle);
        return r * (1.0 - a - b - c + r * (c + r * (b + r * a)));
    }
};

double Quartic(const std::vector<double>& factors, double p) {
    return p * (factors[0] + p * (factors[1] + p * (factors[2] + p * factors[3])));
}

// A quartic of the design's radius p with these factors is the ptlens formula whose ideal radius is
// 1 where the picture's is 1.
std::optional<Fit> FromQuartic(FisheyeDesign design, const std::vector<double>& factors,
                               double largest) {
    double low = 0.0;
    double high = largest;
    for (int n = 0; n < 30 && Quartic(factors, high) < 1.0; ++n) {
        high += largest / 10.0;
    }
    if (!(Quartic(factors, high) >= 1.0)) {
        return std::nullopt;
    }
    for (int n = 0; n < 60; ++n) {
        const double middle = (low + high) / 2.0;
        (Quartic(factors, middle) >= 1.0 ? high : low) = middle;
    }
    const double p = (low + high) / 2.0;
    return Fit{design, 1.0 / p, factors[3] * std::pow(p, 4), factors[2] * std::pow(p, 3),
               factors[1] * p * p};
}

std::optional<Fit> FitOf(FisheyeDesign design, const LensSpline& spline, double perUnit) {
    const double limit = spline.FieldLimit();
    const auto radius = [=](double angle) { return DesignRadius(design, angle); };
    if (RisesUpTo(radius, limit) < limit || radius(limit) > 100.0) {
        return std::nullopt;
    }
    const std::vector<double> factors = FitTerms(
        4, limit, [&](int term, double a) { return std::pow(radius(a), term + 1); },
        [&](double a) { return perUnit * spline.RadiusAt(a); });
    return FromQuartic(design, factors, radius(limit));
}

QString Number(double number) {
    return QString::number(number, 'g', 10);
}

void WriteColours(const SampledLens& lens, double perUnit, double focal, QXmlStreamWriter& xml) {
    if (!lens.red && !lens.blue) {
        return;
    }
    const LensSpline spline(lens);
    xml.writeEmptyElement(QStringLiteral("tca"));
    xml.writeAttribute(QStringLiteral("model"), QStringLiteral("poly3"));
    xml.writeAttribute(QStringLiteral("focal"), Number(focal));
    const std::pair<QChar, ColourShift> colours[] = {{u'r', lens.red.value_or(ColourShift())},
                                                     {u'b', lens.blue.value_or(ColourShift())}};
    for (const auto& [colour, shift] : colours) {
        const std::vector<double> factors = FitTerms(
            3, spline.FieldLimit(),
            [&](int term, double a) { return std::pow(perUnit * spline.RadiusAt(a), term + 1); },
            [&, &s = shift](double a) {
                return perUnit * a * (s.first + a * a * (s.third + a * a * s.fifth));
            });
        xml.writeAttribute(QString(u'v') + colour, Number(1.0 + factors[0]));
        xml.writeAttribute(QString(u'c') + colour, Number(factors[1]));
        xml.writeAttribute(QString(u'b') + colour, Number(factors[2]));
    }
}

QByteArray Xml(const SampledLens& lens, const LensPicture& picture, const Fit& fit,
               double largestError) {
    constexpr double fullFrameDiagonal = 43.266615305567875;  // mm
    const auto [shorter, longer] = std::minmax({picture.size.width, picture.size.height});
    const double unit = shorter / 2.0 / *picture.pixelsPerMillimetre;  // mm
    const double diagonal = std::hypot(shorter, longer) / *picture.pixelsPerMillimetre;
    const double focal = fit.focal * unit;
    const QString name = TidyLensName(lens.name);
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("lensdatabase"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
    QString comment =
        QStringLiteral(" From %1: off by at most %2 px up to %3 degrees. ")
            .arg(TidyLensName(lens.origin.source), QString::number(largestError, 'f', 3),
                 QString::number(lens.FieldLimit() * 180.0 / std::numbers::pi, 'f', 1));
    xml.writeComment(comment.replace(QStringLiteral("--"), QStringLiteral("- - ")));
    xml.writeStartElement(QStringLiteral("lens"));
    const auto element = [&](const char* key, const QString& text) {
        xml.writeTextElement(QLatin1String(key), text);
    };
    element("maker", name.section(u' ', 0, 0));
    element("model", name);
    element("mount", QStringLiteral("Generic"));
    xml.writeEmptyElement(QStringLiteral("focal"));
    xml.writeAttribute(QStringLiteral("value"), Number(focal));
    element("type", QLatin1String(LensfunType(fit.design)));
    element("cropfactor", Number(fullFrameDiagonal / diagonal));
    element("aspect-ratio", Number(double(longer) / shorter));
    xml.writeStartElement(QStringLiteral("calibration"));
    xml.writeEmptyElement(QStringLiteral("distortion"));
    xml.writeAttribute(QStringLiteral("model"), QStringLiteral("ptlens"));
    xml.writeAttribute(QStringLiteral("focal"), Number(focal));
    xml.writeAttribute(QStringLiteral("a"), Number(fit.a));
    xml.writeAttribute(QStringLiteral("b"), Number(fit.b));
    xml.writeAttribute(QStringLiteral("c"), Number(fit.c));
    WriteColours(lens, 2.0 * picture.pixelsPerUnit / shorter, focal, xml);
    xml.writeEndDocument();
    return bytes;
}

}  // namespace

LensExport LensfunExport(const SampledLens& lens, const LensPicture& picture) {
    const LensSpline spline(lens);
    const double half = std::min(picture.size.width, picture.size.height) / 2.0;
    std::optional<Fit> best;
    LensExport result;
    for (const FisheyeDesign design :
         {FisheyeDesign::Equidistant, FisheyeDesign::Equisolid, FisheyeDesign::Stereographic,
          FisheyeDesign::Orthographic, FisheyeDesign::Thoby}) {
        const std::optional<Fit> fit = FitOf(design, spline, picture.pixelsPerUnit / half);
        LensExport measured;
        if (fit) {
            MeasureFit(
                spline, picture.pixelsPerUnit, [&](double angle) { return half * fit->At(angle); },
                measured);
        }
        if (fit && (!best || measured.largestError < result.largestError)) {
            best = fit;
            result = measured;
        }
    }
    if (!best) {
        result.reason = ReasonCode::LensCurveUnsound;
        return result;
    }
    result.bytes = Xml(lens, picture, *best, result.largestError);
    return result;
}

}  // namespace varnel
