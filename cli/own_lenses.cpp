// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/own_lenses.h"

#include <QFileInfo>
#include <algorithm>
#include <memory>
#include <utility>

#include "base/error_text.h"
#include "cli/report/json_line.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/export/export_lens.h"
#include "gear/lens/import/import_lenses.h"
#include "gear/lens/import/lensfun_data.h"
#include "gear/lens/lens_folder.h"

namespace varnel {

namespace {

QString LensLine(const QString& model, bool json) {
    const QString brand = ownLensBrand;
    return json ? QString::fromUtf8(JsonLine({{u"brand", brand}, {u"model", model}}))
                : brand + u'/' + model;
}

// The first few.
QString NamesOf(const QList<SampledLens>& lenses) {
    constexpr qsizetype most = 5;
    QStringList names;
    for (const SampledLens& lens : lenses.first(std::min(most, lenses.size()))) {
        names.append(lens.name);
    }
    if (lenses.size() > most) {
        names.append(QStringLiteral("..."));
    }
    return names.join(QStringLiteral(", "));
}

}  // namespace

QString TakeLensFile(Options& options) {
    if (options.lensFile.isEmpty()) {
        return {};
    }
    const ImportedLenses imported = ImportLenses(options.lensFile);
    if (imported.lenses.isEmpty()) {
        return ErrorText(imported.reason);
    }
    if (imported.lenses.size() > 1) {
        return QStringLiteral(
                   "%1 has %2 lenses (%3); take them over with --import-lens and name "
                   "one with --lens")
            .arg(options.lensFile)
            .arg(imported.lenses.size())
            .arg(NamesOf(imported.lenses));
    }
    options.curve = std::make_shared<const SampledLens>(imported.lenses.first());
    return {};
}

std::variant<QStringList, QString> ImportOwnLenses(const Options& options, SettingsStore& store) {
    if (store.Path().isEmpty()) {
        return QStringLiteral("these settings have no folder for lenses");
    }
    const TakenLenses taken = TakeLenses(options.lensFile, LensFolder::Beside(store.Path()));
    if (taken.names.isEmpty()) {
        return ErrorText(taken.reason);
    }
    QStringList lines;
    for (const QString& name : taken.names) {
        lines.append(LensLine(name, options.json));
    }
    return lines;
}

std::variant<QStringList, QString> ExportOwnLens(const Options& options,
                                                 const SettingsStore& store) {
    Options given = options;
    if (const QString error = TakeLensFile(given); !error.isEmpty()) {
        return error;
    }
    const LensReference lens = given.curve ? given.curve : CurveOf(store, *options.lens);
    if (!lens) {
        return QStringLiteral(
                   "there is no lens \"%1/%2\" with a curve; --list-lenses \"%3\" lists "
                   "yours")
            .arg(options.lens->brand, options.lens->model, ownLensBrand);
    }
    if (QFileInfo::exists(options.exportLens) && !options.force) {
        return options.exportLens + QStringLiteral(": the file exists; --force replaces it");
    }
    const std::optional<CameraRow> camera =
        options.camera ? FindCamera(options.camera->brand, options.camera->model) : std::nullopt;
    if (options.camera && !camera) {
        return QStringLiteral("unknown camera \"%1/%2\"; --list-cameras shows all")
            .arg(options.camera->brand, options.camera->model);
    }
    const auto [width, height] =
        camera ? std::pair<double, double>(camera->sensorWidth, camera->sensorHeight)
               : std::pair(0.0, 0.0);
    const LensExport exported = ExportLensTo(options.exportLens, *lens, width, height);
    if (!exported.reason.isEmpty()) {
        return ErrorText(exported.reason);
    }
    return QStringList{
        options.json ? QString::fromUtf8(JsonLine({{u"lens_file", options.exportLens},
                                                   {u"largest_error_px", exported.largestError},
                                                   {u"mean_error_px", exported.meanError}}))
                     : options.exportLens};
}

bool IsCurveBrand(const QString& brand) {
    return brand == ownLensBrand || brand == lensfunBrand;
}

QStringList CurveModels(const SettingsStore& store, const QString& brand) {
    QStringList names;
    if (brand == lensfunBrand) {
        for (const SampledLens& lens : LensfunFisheyes(LensfunFolders())) {
            names.append(lens.name);
        }
    } else if (!store.Path().isEmpty()) {
        for (const LensFolder::Entry& entry : LensFolder::Beside(store.Path()).List().entries) {
            names.append(entry.lens->name);
        }
    }
    return names;
}

LensReference CurveOf(const SettingsStore& store, const CatalogueName& lens) {
    if (lens.brand == ownLensBrand && !store.Path().isEmpty()) {
        return LensFolder::Beside(store.Path()).Find(lens.model);
    }
    if (lens.brand == lensfunBrand) {
        for (const SampledLens& fisheye : LensfunFisheyes(LensfunFolders())) {
            if (fisheye.name == lens.model) {
                return std::make_shared<const SampledLens>(fisheye);
            }
        }
    }
    return {};
}

}  // namespace varnel
