// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/choose_gear.h"

#include <algorithm>
#include <utility>

#include "gear/camera_catalogue.h"
#include "gear/gear_catalogue.h"
#include "gear/gear_store.h"
#include "gear/lens_catalogue.h"
#include "gear/photo_gear.h"

namespace varnel {

namespace {

// The command line asks nobody: a store without gears stays without.
class NobodyToAsk : public GearPrompt {
  public:
    void Explain(const QString& /*text*/) override {}
    bool DefineGear(GearTable& /*table*/) override { return false; }
};

QString HowToGiveOne() {
    return QStringLiteral(
        "give --camera BRAND/MODEL and --lens BRAND/MODEL (see --list-cameras and "
        "--list-lenses)");
}

GearRecord BuiltGear(const GearNames& names) {
    GearRecord gear;
    FillGearFromCatalogue(names, gear, {});
    gear.GearName = BuiltGearName(names);
    return gear;
}

std::variant<GearChoice, QString> FromCatalogues(const CatalogueName& camera,
                                                 const CatalogueName& lens) {
    if (!FillCameraModels(camera.brand).contains(camera.model)) {
        return QStringLiteral("unknown camera \"%1/%2\"; see --list-cameras")
            .arg(camera.brand, camera.model);
    }
    if (!FillLensModels(lens.brand).contains(lens.model)) {
        return QStringLiteral("unknown lens \"%1/%2\"; see --list-lenses")
            .arg(lens.brand, lens.model);
    }
    return GearChoice{BuiltGear({camera.brand, camera.model, lens.brand, lens.model}), {}};
}

}  // namespace

GearTable StoredGears(SettingsStore& store) {
    GearTable table;
    NobodyToAsk nobody;
    if (LoadGear(store, table, nobody) != GearLoad::Loaded) {
        table.Resize(0);
    }
    return table;
}

std::optional<GearRecord> DefaultGear(const GearTable& table) {
    if (table.UpperBound() == 0) {
        return std::nullopt;
    }
    return table(std::max(table.Find(table.DefaultGearName), 1));
}

std::variant<GearChoice, QString> ChooseGear(const Options& options, SettingsStore& store) {
    if (options.camera && options.lens) {
        return FromCatalogues(*options.camera, *options.lens);
    }
    GearTable table = StoredGears(store);
    if (options.gear == QStringLiteral("auto")) {
        return GearChoice{std::nullopt, std::move(table)};
    }
    const std::optional<GearRecord> byDefault = DefaultGear(table);
    if (!byDefault) {
        return QStringLiteral("no gear is defined; ") + HowToGiveOne();
    }
    if (options.gear.isEmpty()) {
        return GearChoice{byDefault, {}};
    }
    const int n = table.Find(options.gear);
    if (n == 0) {
        return QStringLiteral("there is no gear \"%1\"; see --list-gears or ").arg(options.gear) +
               HowToGiveOne();
    }
    return GearChoice{table(n), {}};
}

std::variant<GearRecord, QString> GearFor(const GearChoice& choice, const PhotoOrigin& origin) {
    if (choice.forAll) {
        return *choice.forAll;
    }
    const PhotoGear found = GearOfPhoto(origin, choice.table);
    if (found.gear > 0) {
        return choice.table(found.gear);
    }
    if (found.IsWhole()) {
        return BuiltGear(found.names);
    }
    return QStringLiteral("no gear for it: ") + found.said;
}

}  // namespace varnel
