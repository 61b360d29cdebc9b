// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where lenses come from: the catalogue, files, curves, photos.

#include <QFileInfo>
#include <numbers>
#include <span>

#include "base/error_text.h"
#include "decoder/process/picture_reader.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/from_photo/photo_gear.h"
#include "gear/lens/import/import_lenses.h"
#include "library/curve_through.h"
#include "library/guard.h"
#include "library/lens.h"
#include "library/names.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/projection/lens_spline.h"

namespace varnel {

namespace {

struct Name {
    QString brand, model;
};

Name Split(const QString& text) {
    const qsizetype slash = text.indexOf(u'/');
    return {text.left(slash), slash < 0 ? QString() : text.mid(slash + 1)};
}

ImportedLenses LensesOf(const char* path) {
    ImportedLenses found = ImportLenses(TextOf(path, "path"));
    if (found.lenses.isEmpty()) {
        throw CallError(VARNEL_NOT_READ, found.reason);
    }
    return found;
}

LensReference LensFromCurve(std::span<const double> degrees, std::span<const double> radii) {
    const CurveThrough curve(degrees, radii);
    const SampledCurve sampled =
        SampledFrom([&](double angle) { return curve.At(angle); }, curve.Limit());
    if (!sampled.reason.isEmpty()) {
        throw CallError(VARNEL_BAD_ARGUMENT, sampled.reason);
    }
    SampledLens lens;
    lens.name = QStringLiteral("curve");
    lens.unit = SampledLens::Unit::CircleRadii;
    lens.knots = sampled.knots;
    for (LensKnot& knot : lens.knots) {
        knot.radius /= radii.back();
    }
    return std::make_shared<const SampledLens>(lens);
}

}  // namespace

GearNames CameraNamed(const char* camera) {
    if (camera == nullptr) {
        return {};
    }
    const QString text = TextOf(camera, "camera");
    const auto [brand, model] = Split(text);
    if (!FindCamera(brand, model)) {
        throw CallError(
            VARNEL_NOT_FOUND,
            NotAmong(CameraNames(), QStringLiteral("the catalogue has no camera"), text));
    }
    return {brand, model, {}, {}};
}

std::unique_ptr<varnel_lens> NewLens(const GearNames& names, const LensReference& curve) {
    auto lens = std::make_unique<varnel_lens>();
    lens->names = names;
    lens->curve = curve;
    const QString model =
        curve ? curve->name : QStringLiteral("%1 %2").arg(names.lensBrand, names.lensModel);
    lens->name =
        (names.cameraModel.isEmpty()
             ? model
             : QStringLiteral("%1 %2 + %3").arg(names.cameraBrand, names.cameraModel, model))
            .toStdString();
    return lens;
}

}  // namespace varnel

varnel_status varnel_lens_from_catalogue(const char* lens, const char* camera, varnel_lens** out,
                                         varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_lens*& place = varnel::Place(out, "out");
        const QString text = varnel::TextOf(lens, "lens");
        varnel::GearNames names = varnel::CameraNamed(camera);
        const auto [brand, model] = varnel::Split(text);
        if (!varnel::FindLens(brand, model)) {
            throw varnel::CallError(
                VARNEL_NOT_FOUND,
                varnel::NotAmong(varnel::LensNames(), QStringLiteral("the catalogue has no lens"),
                                 text));
        }
        names.lensBrand = brand;
        names.lensModel = model;
        place = varnel::NewLens(names).release();
    });
}

varnel_status varnel_lens_from_file(const char* path, size_t number, const char* camera,
                                    varnel_lens** out, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_lens*& place = varnel::Place(out, "out");
        const varnel::GearNames names = varnel::CameraNamed(camera);
        const QList<varnel::SampledLens> lenses = varnel::LensesOf(path).lenses;
        if (number >= static_cast<size_t>(lenses.size())) {
            throw varnel::CallError(VARNEL_NOT_FOUND, QStringLiteral("%1: it has %2 lenses")
                                                          .arg(QString::fromUtf8(path))
                                                          .arg(lenses.size()));
        }
        place = varnel::NewLens(names, std::make_shared<const varnel::SampledLens>(
                                           lenses[static_cast<qsizetype>(number)]))
                    .release();
    });
}

varnel_status varnel_list_lenses_of_file(const char* path, varnel_names** names,
                                         varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_names*& place = varnel::Place(names, "names");
        QStringList found;
        for (const varnel::SampledLens& lens : varnel::LensesOf(path).lenses) {
            found.append(lens.name);
        }
        place = varnel::NewNames(found);
    });
}

varnel_status varnel_lens_from_curve(const double* degrees, const double* radii, size_t count,
                                     varnel_lens** out, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_lens*& place = varnel::Place(out, "out");
        place =
            varnel::NewLens({}, varnel::LensFromCurve({varnel::Given(degrees, "degrees"), count},
                                                      {varnel::Given(radii, "radii"), count}))
                .release();
    });
}

varnel_status varnel_lens_of_photo(const char* path, varnel_lens** out, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_lens*& place = varnel::Place(out, "out");
        const QString file = varnel::TextOf(path, "path");
        const auto reader = varnel::NewPictureReader();
        const varnel::PhotoFacts facts = varnel::PhotoLoader(*reader).Facts(file);
        if (!facts.error.isEmpty()) {
            throw varnel::CallError(VARNEL_NOT_READ, QStringLiteral("%1: %2").arg(
                                                         file, varnel::ErrorText(facts.error)));
        }
        const varnel::PhotoGear gear =
            varnel::GearOfPhoto(facts.metadata.origin, varnel::GearTable());
        if (!gear.IsWhole()) {
            throw varnel::CallError(VARNEL_NOT_FOUND,
                                    QStringLiteral("%1: %2").arg(file, gear.said));
        }
        place = varnel::NewLens(gear.names).release();
    });
}
