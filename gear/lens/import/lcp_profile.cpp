// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/lcp_profile.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <map>

#include "gear/lens/import/xml_reading.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

using Values = std::map<QString, QString>;

// One calibration: at one focal length, focus distance and aperture.
struct Calibration {
    bool isFisheye = false;
    Values camera, model;
};

constexpr double fullFrameDiagonal = 43.266615305567875;  // mm

// A finite number within +-1e6; where it is missing or no number, the other one.
double NumberAt(const Values& values, const char* name, double otherwise) {
    const auto found = values.find(QLatin1String(name));
    bool good = false;
    const double number = found == values.end() ? 0.0 : found->second.toDouble(&good);
    return good && std::abs(number) <= 1e6 ? number : otherwise;
}

QString TextAt(const Values& values, const char* name) {
    const auto found = values.find(QLatin1String(name));
    return found == values.end() ? QString() : found->second;
}

// Attributes and elements of an item, whichever way the file writes them. Models within the fisheye
// model, as those of colour, are passed over.
Calibration ReadCalibration(XmlReading& xml) {
    Calibration calibration;
    const int item = xml.Depth();
    int fisheye = 0;  // depths of the models that are open, 0 for none
    int other = 0;
    while (xml.NextElementWithin(item)) {
        const int depth = xml.Depth();
        fisheye = depth <= fisheye ? 0 : fisheye;
        other = depth <= other ? 0 : other;
        const QString name = xml.Name();
        if (name == u"FisheyeModel" && other == 0) {
            calibration.isFisheye = true;
            fisheye = depth;
        } else if ((name.endsWith(u"Model") && name != u"Model") || name == u"AlternateLensIDs") {
            other = other == 0 ? depth : other;
        }
        if (other > 0) {
            continue;
        }
        Values& values = fisheye > 0 ? calibration.model : calibration.camera;
        for (const QXmlStreamAttribute& attribute : xml.Attributes()) {
            values[attribute.name().toString()] = attribute.value().toString();
        }
        if (const QString text = xml.Text(); !text.isEmpty()) {
            values[name] = text;
        }
    }
    return calibration;
}

QString NameOf(const Values& camera) {
    QString name = TextAt(camera, "LensPrettyName");
    if (name.isEmpty()) {
        name = TextAt(camera, "Lens");
    }
    const QString body = TextAt(camera, "CameraPrettyName");
    return TidyLensName(body.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, body));
}

Reason MakeLens(const Calibration& calibration, SampledLens& lens) {
    const Values& model = calibration.model;
    const double focal = NumberAt(model, "FocalLengthX", 0.0);
    if (!(focal > 0.0 && focal < 100.0)) {
        return {model.contains(QStringLiteral("FocalLengthX")) ? ReasonCode::KeyUnusable
                                                               : ReasonCode::KeyMissing,
                QStringLiteral("FocalLengthX")};
    }
    const double factor = NumberAt(calibration.camera, "SensorFormatFactor", 0.0);
    const int width = static_cast<int>(NumberAt(calibration.camera, "ImageWidth", 0.0));
    const int height = static_cast<int>(NumberAt(calibration.camera, "ImageLength", 0.0));
    if (width < 1 || height < 1) {
        return {ReasonCode::KeyMissing, QStringLiteral("ImageWidth, ImageLength")};
    }
    lens.centre = LensCentre{width * NumberAt(model, "ImageXCenter", 0.5),
                             height * (1.0 - NumberAt(model, "ImageYCenter", 0.5)),
                             {width, height}};
    LensFormula formula;
    MeasurePicture(*lens.centre, formula);
    const double pixels = focal * std::max(width, height);
    const double k1 = NumberAt(model, "RadialDistortParam1", 0.0);
    const double k2 = NumberAt(model, "RadialDistortParam2", 0.0);
    formula.radius = [=](double a) { return pixels * a * (1.0 + a * a * (k1 + a * a * k2)); };
    Reason reason = FillKnotsFromPixels(formula, lens);
    if (factor > 0.01 && reason.isEmpty()) {
        const double perMillimetre = std::hypot(width, height) * factor / fullFrameDiagonal;
        lens.unit = SampledLens::Unit::Millimetres;
        for (LensKnot& knot : lens.knots) {
            knot.radius *= *lens.pixelsPerUnit / perMillimetre;
        }
        lens.pixelsPerUnit = perMillimetre;
    }
    return reason;
}

// By name and focal length, the farthest focus.
std::map<std::pair<QString, double>, Calibration> Farthest(std::vector<Calibration> all) {
    std::map<std::pair<QString, double>, Calibration> chosen;
    const auto focus = [](const Calibration& calibration) {
        return NumberAt(calibration.camera, "FocusDistance", 0.0);
    };
    for (Calibration& calibration : all) {
        const std::pair key(NameOf(calibration.camera),
                            NumberAt(calibration.camera, "FocalLength", 0.0));
        const auto [place, isNew] = chosen.try_emplace(key, calibration);
        if (!isNew && focus(calibration) > focus(place->second)) {
            place->second = std::move(calibration);
        }
    }
    return chosen;
}

}  // namespace

ImportedLenses LcpLenses(const QByteArray& bytes, const QString& fileName) {
    XmlReading xml(bytes);
    std::vector<Calibration> fisheyes;
    while (xml.NextElement()) {
        if (xml.Name() == u"li") {
            Calibration calibration = ReadCalibration(xml);
            if (calibration.isFisheye) {
                fisheyes.push_back(std::move(calibration));
            }
        }
    }
    ImportedLenses imported;
    imported.reason = xml.Error();
    if (!imported.reason.isEmpty()) {
        return imported;
    }
    const auto chosen = Farthest(std::move(fisheyes));
    for (const auto& [key, calibration] : chosen) {
        SampledLens lens;
        const auto& [name, focal] = key;
        const bool several = std::ranges::count_if(chosen, [&name = name](const auto& entry) {
                                 return entry.first.first == name;
                             }) > 1;
        lens.name = name.isEmpty() ? TidyLensName(QFileInfo(fileName).completeBaseName()) : name;
        if (several) {
            lens.name += QStringLiteral(", %1 mm").arg(focal);
        }
        lens.origin.kind = LensOrigin::Kind::Imported;
        lens.origin.source = QStringLiteral("lens profile %1").arg(QFileInfo(fileName).fileName());
        const Reason reason = MakeLens(calibration, lens);
        imported.Add(reason, std::move(lens));
    }
    if (chosen.empty()) {
        imported.reason = ReasonCode::NoFisheye;
    }
    return imported;
}

}  // namespace varnel
