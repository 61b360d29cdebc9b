// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/calibration.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QStringList>
#include <cmath>

#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

using Numbers = QList<double>;

struct Calibration {
    QString name, source;
    QString model;          // as the file has it; empty where it says nothing
    Numbers focal, centre;  // x, y in pixels
    Numbers powers;         // k1 to k4
    Numbers size;           // width, height
};

// The first of some keys that is there, and what stands there.
struct Found {
    QString key;
    QJsonValue value;
};

Found Find(const QJsonObject& object, const QStringList& keys) {
    for (const QString& key : keys) {
        if (object.contains(key)) {
            return {key, object.value(key)};
        }
    }
    return {};
}

// Those of a list, of a list of lists or of a matrix with its "data"; none where others are among
// them.
Numbers NumbersIn(const QJsonValue& value) {
    Numbers numbers;
    const QJsonArray array = value.isObject()
                                 ? value.toObject().value(QStringLiteral("data")).toArray()
                                 : value.toArray();
    for (const auto& item : array) {
        const Numbers inner = item.isDouble() ? Numbers{item.toDouble()}
                              : item.isArray() && !item.toArray().at(0).isArray() ? NumbersIn(item)
                                                                                  : Numbers();
        if (inner.isEmpty()) {
            return {};
        }
        numbers += inner;
    }
    return numbers;
}

// The numbers under the first of the keys, or why they are of no use. Keys are told with a path.
Reason Take(const QJsonObject& object, const QString& path, const QStringList& keys,
            qsizetype count, Numbers& numbers) {
    const Found found = Find(object, keys);
    numbers = NumbersIn(found.value);
    if (found.key.isEmpty()) {
        return {ReasonCode::KeyMissing, path + keys.first()};
    }
    return numbers.size() == count ? Reason() : Reason(ReasonCode::KeyUnusable, path + found.key);
}

Reason TakeMatrix(const QJsonObject& object, const QString& path, Calibration& calibration) {
    Numbers matrix;
    Reason reason = Take(object, path,
                         {QStringLiteral("camera_matrix"), QStringLiteral("cameraMatrix"),
                          QStringLiteral("Camera_Matrix"), QStringLiteral("K")},
                         9, matrix);
    if (reason.isEmpty()) {
        calibration.focal = {matrix[0], matrix[4]};
        calibration.centre = {matrix[2], matrix[5]};
    }
    return reason;
}

Reason TakePowers(const QJsonObject& object, const QString& path, Calibration& calibration) {
    return Take(object, path,
                {QStringLiteral("distortion_coefficients"), QStringLiteral("distortion_coeffs"),
                 QStringLiteral("dist_coeffs"), QStringLiteral("distCoeffs"),
                 QStringLiteral("Distortion_Coefficients"), QStringLiteral("D")},
                4, calibration.powers);
}

Reason TakeSize(const QJsonObject& object, const QString& path, Calibration& calibration) {
    const QJsonValue width =
        Find(object, {QStringLiteral("image_width"), QStringLiteral("image_Width"),
                      QStringLiteral("width"), QStringLiteral("w")})
            .value;
    const QJsonValue height =
        Find(object, {QStringLiteral("image_height"), QStringLiteral("image_Height"),
                      QStringLiteral("height"), QStringLiteral("h")})
            .value;
    if (width.isDouble() && height.isDouble()) {
        calibration.size = {width.toDouble(), height.toDouble()};
        return {};
    }
    return Take(
        object, path,
        {QStringLiteral("image_size"), QStringLiteral("imageSize"), QStringLiteral("resolution")},
        2, calibration.size);
}

Reason FirstOf(const Reasons& reasons) {
    for (const Reason& reason : reasons) {
        if (!reason.isEmpty()) {
            return reason;
        }
    }
    return {};
}

// Whether the numbers are those of a camera, and its curve rises.
Reason MakeLens(const Calibration& from, SampledLens& lens) {
    const auto within = [](const Numbers& numbers, double least, double most) {
        return std::ranges::all_of(numbers, [&](double n) { return n >= least && n <= most; });
    };
    constexpr double most = 1e6;  // pixels
    if (!within(from.focal, 1.0, most) ||
        std::abs(from.focal[0] - from.focal[1]) > 0.02 * from.focal[0]) {
        return {ReasonCode::KeyUnusable, QStringLiteral("fx, fy")};
    }
    if (!within(from.size, 1.0, most)) {
        return {ReasonCode::KeyUnusable, QStringLiteral("width, height")};
    }
    if (!within(from.centre, -most, most)) {
        return {ReasonCode::KeyUnusable, QStringLiteral("cx, cy")};
    }
    lens.centre = {from.centre[0] + 0.5,
                   0.0,
                   {static_cast<int>(from.size[0]), static_cast<int>(from.size[1])}};
    lens.centre->y = lens.centre->size.height - (from.centre[1] + 0.5);
    LensFormula formula;
    const double focal = (from.focal[0] + from.focal[1]) / 2.0;
    formula.radius = [focal, k = from.powers](double a) {
        const double q = a * a;
        return focal * a * (1.0 + q * (k[0] + q * (k[1] + q * (k[2] + q * k[3]))));
    };
    MeasurePicture(*lens.centre, formula);
    return FillKnotsFromPixels(formula, lens);
}

void Add(const Calibration& calibration, const Reason& readingReason, ImportedLenses& imported) {
    static const QStringList known{QString(),
                                   QStringLiteral("fisheye"),
                                   QStringLiteral("equidistant"),
                                   QStringLiteral("opencv_fisheye"),
                                   QStringLiteral("kannala_brandt"),
                                   QStringLiteral("kannala_brandt4")};
    SampledLens lens;
    lens.name = TidyLensName(calibration.name);
    lens.origin.kind = LensOrigin::Kind::Imported;
    lens.origin.source = calibration.source;
    Reason reason = known.contains(calibration.model)
                        ? readingReason
                        : Reason(ReasonCode::ModelUnknown, TidyLensName(calibration.model));
    if (reason.isEmpty()) {
        reason = MakeLens(calibration, lens);
    }
    imported.Add(reason, std::move(lens));
}

QString BaseName(const QString& fileName) {
    return QFileInfo(fileName).completeBaseName();
}

QString TextAt(const QJsonObject& object, const QString& key) {
    return object.value(key).toString();
}

void AddOpenCv(const QJsonObject& root, const QString& fileName, ImportedLenses& imported) {
    Calibration calibration;
    calibration.name = TextAt(root, QStringLiteral("camera_name"));
    if (calibration.name.isEmpty()) {
        calibration.name = BaseName(fileName);
    }
    calibration.source = QStringLiteral("OpenCV calibration ") + QFileInfo(fileName).fileName();
    calibration.model = TextAt(root, QStringLiteral("distortion_model"));
    // OpenCV's own calibration program says by this which of its two models it has fitted.
    if (root.value(QStringLiteral("fisheye_model")).toDouble(1.0) == 0.0) {
        calibration.model = QStringLiteral("pinhole");
    }
    const Reason matrix = TakeMatrix(root, QString(), calibration);
    const Reason powers = TakePowers(root, QString(), calibration);
    if (matrix.Is(ReasonCode::KeyMissing) && powers.Is(ReasonCode::KeyMissing)) {
        imported.reason = ReasonCode::NoLensFile;
        return;
    }
    const Reason reason = FirstOf({matrix, powers, TakeSize(root, QString(), calibration)});
    Add(calibration, reason, imported);
}

void AddKalibr(const QString& camera, const QJsonObject& object, const QString& fileName,
               ImportedLenses& imported) {
    Calibration calibration;
    calibration.name = BaseName(fileName) + u' ' + camera;
    calibration.source = QStringLiteral("Kalibr calibration ") + QFileInfo(fileName).fileName();
    calibration.model = TextAt(object, QStringLiteral("distortion_model"));
    if (const QString model = TextAt(object, QStringLiteral("camera_model")); model != u"pinhole") {
        calibration.model = model;
    }
    const QString path = camera + u'.';
    Numbers intrinsics;
    const Reason reason =
        FirstOf({Take(object, path, {QStringLiteral("intrinsics")}, 4, intrinsics),
                 TakePowers(object, path, calibration), TakeSize(object, path, calibration)});
    if (reason.isEmpty()) {
        calibration.focal = intrinsics.first(2);
        calibration.centre = intrinsics.last(2);
    }
    Add(calibration, reason, imported);
}

void AddGyroflow(const QJsonObject& root, const QString& fileName, ImportedLenses& imported) {
    Calibration calibration;
    const QStringList names{
        TextAt(root, QStringLiteral("camera_brand")), TextAt(root, QStringLiteral("camera_model")),
        TextAt(root, QStringLiteral("lens_model")), TextAt(root, QStringLiteral("camera_setting"))};
    calibration.name = names.join(u' ').simplified();
    if (calibration.name.isEmpty()) {
        calibration.name = TextAt(root, QStringLiteral("name"));
    }
    if (calibration.name.isEmpty()) {
        calibration.name = BaseName(fileName);
    }
    calibration.source = QStringLiteral("Gyroflow lens profile ") + QFileInfo(fileName).fileName();
    if (const QString by = TextAt(root, QStringLiteral("calibrated_by")); !by.isEmpty()) {
        calibration.source += QStringLiteral(", calibrated by ") + TidyLensName(by);
    }
    calibration.model = TextAt(root, QStringLiteral("distortion_model"));
    const QString path = QStringLiteral("fisheye_params.");
    const QJsonObject fisheye = root.value(QStringLiteral("fisheye_params")).toObject();
    const QString dimension = QStringLiteral("calib_dimension");
    const Reason reason =
        FirstOf({TakeMatrix(fisheye, path, calibration), TakePowers(fisheye, path, calibration),
                 TakeSize(root.value(dimension).toObject(), dimension + u'.', calibration)});
    Add(calibration, reason, imported);
}

}  // namespace

ImportedLenses CalibrationLenses(const QJsonObject& root, const QString& fileName) {
    ImportedLenses imported;
    if (root.contains(QStringLiteral("fisheye_params"))) {
        AddGyroflow(root, fileName, imported);
        return imported;
    }
    constexpr qsizetype mostCameras = 100;
    qsizetype cameras = 0;
    for (auto entry = root.begin(); entry != root.end() && cameras < mostCameras; ++entry) {
        const QJsonObject object = entry.value().toObject();
        if (object.contains(QStringLiteral("camera_model"))) {
            AddKalibr(entry.key(), object, fileName, imported);
            ++cameras;
        }
    }
    if (cameras == 0) {
        AddOpenCv(root, fileName, imported);
    }
    return imported;
}

}  // namespace varnel
