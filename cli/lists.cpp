// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/lists.h"

#include "cli/choose_gear.h"
#include "gear/camera_catalogue.h"
#include "gear/lens_catalogue.h"

namespace varnel {

namespace {

template <class Models>
std::variant<QStringList, QString> CatalogueList(const QString& wanted, const QStringList& brands,
                                                 Models models) {
    QStringList lines;
    for (const QString& brand : brands) {
        if (!wanted.isEmpty() && brand != wanted) {
            continue;
        }
        for (const QString& model : models(brand)) {
            lines.append(brand + u'/' + model);
        }
    }
    if (lines.isEmpty()) {
        return QStringLiteral("unknown brand \"%1\"; there are %2")
            .arg(wanted, brands.join(QStringLiteral(", ")));
    }
    return lines;
}

std::variant<QStringList, QString> GearList(SettingsStore& store) {
    const GearTable table = StoredGears(store);
    QStringList names;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        names.append(table(n).GearName);
    }
    if (names.isEmpty()) {
        return QStringLiteral("no gear is defined");
    }
    return names;
}

}  // namespace

std::variant<QStringList, QString> ListFor(const Options& options, SettingsStore& store) {
    const QString brand = options.files.value(0);
    switch (options.command) {
        case Command::ListCameras:
            return CatalogueList(brand, FillCameraBrands(), &FillCameraModels);
        case Command::ListLenses:
            return CatalogueList(brand, FillLensBrands(), &FillLensModels);
        default:
            return GearList(store);
    }
}

}  // namespace varnel
