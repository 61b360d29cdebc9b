// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/choose_gear.h"

#include <algorithm>
#include <utility>

#include "cli/options/nearest.h"
#include "cli/own_lenses.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/from_photo/photo_gear.h"
#include "gear/from_photo/photo_lens.h"
#include "gear/store/gear_store.h"

namespace varnel {

namespace {

// The command line asks no questions: a store without gears stays without.
class SilentPrompt : public GearPrompt {
  public:
    void Explain(const QString& /*text*/) override {}
    bool DefineGear(GearTable& /*table*/) override { return false; }
};

QString HowToGiveOne() {
    return QStringLiteral(
        "give --camera BRAND/MODEL with --lens BRAND/MODEL (--list-cameras and --list-lenses show "
        "them), or --gear auto for what each photo's EXIF tells");
}

// Photos of no fisheye are not to be guessed at.
QString NoGear(const QString& why, bool mayBeFisheye) {
    const QString guess =
        mayBeFisheye ? QStringLiteral(", or --gear guess for a typical fisheye") : QString();
    return QStringLiteral("no gear for it: %1; give --gear NAME or --camera with --lens%2")
        .arg(why, guess);
}

// As a shell takes it for one word.
QString Quoted(const QString& word) {
    return word.contains(u' ') ? u'"' + word + u'"' : word;
}

// Why the name is in no catalogue, and what is there.
QString Unknown(const QString& kind, const CatalogueName& name, const QStringList& brands,
                const QStringList& models) {
    const bool knownBrand = brands.contains(name.brand);
    const QString model = Nearest(name.model, models);
    const QString near = !knownBrand       ? Nearest(name.brand, brands)
                         : model.isEmpty() ? QString()
                                           : name.brand + u'/' + model;
    const QString list = kind == u"lens" ? QStringLiteral("--list-lenses %1shows all")
                                         : QStringLiteral("--list-cameras %1shows all");
    return AskIfMeant(QStringLiteral("unknown %1 \"%2/%3\"").arg(kind, name.brand, name.model),
                      near, list.arg(knownBrand ? Quoted(name.brand) + u' ' : QString()));
}

QString Lacking(const GearRecord& gear) {
    return QStringLiteral(
               "the gear \"%1\" needs the lens \"%2/%3\", whose file is not there; take it over "
               "again with --import-lens, or give --lens-file FILE")
        .arg(gear.GearName, gear.LensBrand, gear.LensModel);
}

std::variant<GearChoice, QString> FromCatalogues(const CatalogueName& camera,
                                                 const CatalogueName& lens,
                                                 const SettingsStore& store) {
    if (const QStringList models = FillCameraModels(camera.brand); !models.contains(camera.model)) {
        return Unknown(QStringLiteral("camera"), camera, FillCameraBrands(), models);
    }
    if (const LensReference curve = CurveOf(store, lens)) {
        GearRecord gear;
        FillGearFromCatalogue({camera.brand, camera.model, {}, {}}, gear);
        GiveLens(curve, gear);
        gear.LensBrand = lens.brand;
        gear.GearName = BuiltGearName(NamesOf(gear));
        return GearChoice{gear, {}};
    }
    if (IsCurveBrand(lens.brand)) {
        return Unknown(QStringLiteral("lens"), lens, {lens.brand}, CurveModels(store, lens.brand));
    }
    if (const QStringList models = FillLensModels(lens.brand); !models.contains(lens.model)) {
        return Unknown(QStringLiteral("lens"), lens, FillLensBrands(), models);
    }
    return GearChoice{BuiltGear({camera.brand, camera.model, lens.brand, lens.model}), {}};
}

}  // namespace

GearTable StoredGears(SettingsStore& store) {
    GearTable table;
    SilentPrompt silent;
    if (LoadGear(store, table, silent) != GearLoad::Loaded) {
        table.Resize(0);
    }
    return table;
}

QStringList NamesOfGears(const GearTable& table) {
    QStringList names;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        names.append(table(n).GearName);
    }
    return names;
}

std::optional<GearRecord> DefaultGear(const GearTable& table) {
    if (table.UpperBound() == 0) {
        return std::nullopt;
    }
    return table(std::max(table.Find(table.DefaultGearName), 1));
}

std::variant<GearChoice, QString> ChooseGear(const Options& options, SettingsStore& store) {
    if (options.camera && options.lens) {
        return FromCatalogues(*options.camera, *options.lens, store);
    }
    GearTable table = StoredGears(store);
    if (HasOnlyLens(options)) {
        return GearChoice{std::nullopt, std::move(table), true, true};
    }
    if (IsAutomatic(options.gear)) {
        GearChoice choice{std::nullopt, std::move(table), options.gear == guessGear};
        if (const auto byDefault = DefaultGear(choice.table);
            options.prefersDefaultGear && byDefault && !LacksLens(*byDefault)) {
            choice.insteadOfGuess = byDefault;
        }
        choice.advises = options.advises;
        return choice;
    }
    const std::optional<GearRecord> byDefault = DefaultGear(table);
    if (!byDefault) {
        return QStringLiteral("no gear is defined; ") + HowToGiveOne();
    }
    const int n = table.Find(options.gear.isEmpty() ? byDefault->GearName : options.gear);
    if (n == 0) {
        return AskIfMeant(QStringLiteral("there is no gear \"%1\"").arg(options.gear),
                          Nearest(options.gear, NamesOfGears(table)),
                          QStringLiteral("--list-gears lists yours; or ") + HowToGiveOne());
    }
    if (LacksLens(table(n))) {
        return Lacking(table(n));
    }
    return GearChoice{table(n), {}};
}

std::variant<std::optional<GearRecord>, QString> GearFor(const GearChoice& choice,
                                                         const CameraInfo& origin) {
    if (choice.forAll) {
        return choice.forAll;
    }
    const PhotoGear found = GearOfPhoto(origin, choice.table);
    if (found.gear > 0 && LacksLens(choice.table(found.gear))) {
        return Lacking(choice.table(found.gear));
    }
    if (std::optional<GearRecord> gear = CertainGear(found, choice.table)) {
        return gear;
    }
    const std::optional<GearRecord>& own = choice.insteadOfGuess;
    if (own && !NamesPlainLens(origin) &&
        (found.lack == GearLack::Origin || SpeaksFor(origin, *own))) {
        return own;
    }
    if (choice.anyLens || (choice.guesses && !NamesPlainLens(origin))) {
        return std::nullopt;
    }
    return choice.advises ? NoGear(found.said, !NamesPlainLens(origin))
                          : found.said;  // in the window's language
}

}  // namespace varnel
