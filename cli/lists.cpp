// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/lists.h"

#include "cli/choose_gear.h"
#include "cli/options/nearest.h"
#include "cli/own_lenses.h"
#include "cli/report/json_line.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/lens/import/lensfun_data.h"
#include "state/adjustments/presets.h"

namespace varnel {

namespace {

QString CatalogueLine(const QString& brand, const QString& model, bool json) {
    return json ? QString::fromUtf8(JsonLine({{u"brand", brand}, {u"model", model}}))
                : brand + u'/' + model;
}

template <class Models>
std::variant<QStringList, QString> CatalogueList(const Options& options, const QStringList& brands,
                                                 Models models) {
    const QString wanted = options.files.value(0);
    QStringList lines;
    for (const QString& brand : brands) {
        if (!wanted.isEmpty() && brand != wanted) {
            continue;
        }
        for (const QString& model : models(brand)) {
            lines.append(CatalogueLine(brand, model, options.json));
        }
    }
    if (lines.isEmpty()) {
        return AskIfMeant(QStringLiteral("unknown brand \"%1\"").arg(wanted),
                          Nearest(wanted, brands),
                          QStringLiteral("there are ") + brands.join(QStringLiteral(", ")));
    }
    return lines;
}

// Those of one's own too, if there are any, and lensfun's where they are asked for by name.
QStringList LensBrands(const Options& options, const SettingsStore& store) {
    QStringList brands = FillLensBrands();
    if (!CurveModels(store, ownLensBrand).isEmpty()) {
        brands.append(ownLensBrand);
    }
    if (options.files.value(0) == lensfunBrand) {
        brands.append(lensfunBrand);
    }
    return brands;
}

QString GearLine(const GearRecord& gear, bool isDefault) {
    return QString::fromUtf8(JsonLine({{u"gear", gear.GearName},
                                       {u"default", isDefault},
                                       {u"camera", gear.CameraBrand + u'/' + gear.CameraModel},
                                       {u"lens", gear.LensBrand + u'/' + gear.LensModel}}));
}

std::variant<QStringList, QString> GearList(SettingsStore& store, bool json) {
    const GearTable table = StoredGears(store);
    QStringList lines = NamesOfGears(table);
    if (lines.isEmpty()) {
        return QStringLiteral(
            "no gear is defined; define one in the window (varnel), or do without: give --camera "
            "with --lens, or --gear auto");
    }
    const QString byDefault = DefaultGear(table)->GearName;
    for (int n = 1; json && n <= table.UpperBound(); ++n) {
        lines[n - 1] = GearLine(table(n), n == table.Find(byDefault));
    }
    return lines;
}

QStringList PresetList(const SettingsStore& store, bool json) {
    QStringList lines = NamesOf(AllPresets(store));
    for (QString& line : lines) {
        line = json ? QString::fromUtf8(JsonLine({{u"preset", line}})) : line;
    }
    return lines;
}

}  // namespace

std::variant<QStringList, QString> ListFor(const Options& options, SettingsStore& store) {
    switch (options.command) {
        case Command::ListCameras:
            return CatalogueList(options, FillCameraBrands(), &FillCameraModels);
        case Command::ListLenses:
            return CatalogueList(options, LensBrands(options, store), [&](const QString& brand) {
                return IsCurveBrand(brand) ? CurveModels(store, brand) : FillLensModels(brand);
            });
        case Command::ListPresets:
            return PresetList(store, options.json);
        default:
            return GearList(store, options.json);
    }
}

}  // namespace varnel
