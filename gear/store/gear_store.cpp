// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/store/gear_store.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/lens_folder.h"
#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

// The stored numbers that give a picture; the editor's sliders span less. Any other number comes
// from damage or a typing error, and the catalogue's is used: the remap divides by the ratio and by
// the angle.
struct UsableRange {
    float least;
    float most;
    bool Holds(float number) const { return number >= least && number <= most; }
};
constexpr UsableRange usableOfset{-1000.0F, 1000.0F};  // thousandths: one picture's width or height
constexpr UsableRange usableRatio{1.0F, 1000.0F};      // percent of the image circle's diameter
constexpr UsableRange usableAov{1.0F, 360.0F};         // degrees
constexpr UsableRange usableOwn{1e-3F, 1e3F};          // millimetres, or no unit

int ReadGearCount(const SettingsStore& store) {
    const int count = ReadWhole(store, setting::Gear, setting::NumGear, 1);
    return count < 0 ? 1 : std::min(count, setting::mostGears);
}

// The gear's version as stored; 0, which every release wrote first, for anything else.
std::int16_t ReadVersion(const SettingsStore& store, int n) {
    using Limits = std::numeric_limits<std::int16_t>;
    const int version =
        ReadWhole(store, setting::Gear, setting::ItemKey(setting::GearLensDataVersion, n), 0);
    return static_cast<std::int16_t>(std::clamp<int>(version, Limits::min(), Limits::max()));
}

void ReadNames(const SettingsStore& store, int n, GearRecord& gear) {
    const auto read = [&](QLatin1StringView name, QString& text) {
        text = store.Get(setting::Gear, setting::ItemKey(name, n), text);
    };
    read(setting::GearName, gear.GearName);
    read(setting::GearCameraBrand, gear.CameraBrand);
    read(setting::GearCameraModel, gear.CameraModel);
    read(setting::GearLensBrand, gear.LensBrand);
    read(setting::GearLensModel, gear.LensModel);
}

void ReadAdjustments(const SettingsStore& store, int n, GearRecord& gear) {
    const auto read = [&](QLatin1StringView name, const UsableRange& range, float& number) {
        const float stored = ReadFloat(store, setting::Gear, setting::ItemKey(name, n), number);
        number = range.Holds(stored) ? stored : number;
    };
    read(setting::GearOfsetX, usableOfset, gear.OfsetX);
    read(setting::GearOfsetY, usableOfset, gear.OfsetY);
    read(setting::GearRatio, usableRatio, gear.GearRatio);
    gear.LensFieldAngle = 180.0F;
    read(setting::HorizontalAov, usableAov, gear.hAOV);
    // Intended: the vertical angle is written but never read back, the horizontal one is used for
    // both.
    read(setting::HorizontalAov, usableAov, gear.vAOV);
}

constexpr QStringView withOwnNumbers = u"2";  // of the key GearSetByHand

QString StoredSetByHand(const SettingsStore& store, int n) {
    return store.Get(setting::Gear, setting::ItemKey(setting::GearSetByHand, n), {});
}

// Settings of older releases have no such key; then numbers other than the catalogue's are the
// user's.
bool ReadSetByHand(const QString& stored, const GearRecord& gear) {
    return stored == u"1" || stored == withOwnNumbers ||
           (stored != u"0" && (HasOwnCircle(gear) || HasOwnAngle(gear)));
}

using OwnNumber = std::pair<QLatin1StringView, float OwnNumbers::*>;
constexpr OwnNumber ownNumbers[] = {{setting::GearSensorWidth, &OwnNumbers::SensorWidth},
                                    {setting::GearSensorHeight, &OwnNumbers::SensorHeight},
                                    {setting::GearLensScale, &OwnNumbers::LensMapScale},
                                    {setting::GearLensFactor, &OwnNumbers::LensMapFactor}};

// The other numbers were stored with these.
void ReadOwnNumbers(const SettingsStore& store, int n, GearRecord& gear) {
    for (const auto& [name, number] : ownNumbers) {
        const float stored = ReadFloat(store, setting::Gear, setting::ItemKey(name, n), 0.0F);
        gear.Own.*number = usableOwn.Holds(stored) ? stored : 0.0F;
    }
    GearRecord filled = gear;
    FillGearFromCatalogue(NamesOf(gear), filled);
    gear.SensorWidth = filled.SensorWidth;
    gear.SensorHeight = filled.SensorHeight;
    gear.LensMapScale = filled.LensMapScale;
    gear.LensMapFactor = filled.LensMapFactor;
}

// The user's own lenses by name, read once one is asked for.
class OwnLenses {
  public:
    explicit OwnLenses(const SettingsStore& store) : store_(store) {}
    LensReference Find(const QString& name) {
        if (!listing_) {
            listing_ = store_.Path().isEmpty() ? LensFolder::Listing()
                                               : LensFolder::Beside(store_.Path()).List();
        }
        for (const LensFolder::Entry& entry : listing_->entries) {
            if (entry.lens->name == name) {
                return entry.lens;
            }
        }
        return {};
    }

  private:
    const SettingsStore& store_;
    std::optional<LensFolder::Listing> listing_;
};

void ReadGear(const SettingsStore& store, OwnLenses& lenses, int n, GearRecord& gear) {
    ReadNames(store, n, gear);
    if (gear.LensBrand == ownLensBrand) {
        gear.Lens = lenses.Find(gear.LensModel);
    }
    FillGearFromCatalogue(NamesOf(gear), gear);
    // Adjustments that were made to older catalogue data are dropped.
    if (ReadVersion(store, n) >= gear.LensDataVersion) {
        ReadAdjustments(store, n, gear);
        const QString setByHand = StoredSetByHand(store, n);
        gear.SetByHand = ReadSetByHand(setByHand, gear);
        if (setByHand == withOwnNumbers) {
            ReadOwnNumbers(store, n, gear);
        }
    }
    // Of every gear that was stored, also of one that the user never touched.
    gear.UserAdjusted = true;
}

GearNames ReadOldNames(const SettingsStore& store) {
    const auto read = [&](const QString& key) {
        return store.Get(setting::General, key, QString());
    };
    GearNames names;
    names.cameraBrand = read(setting::OldCameraBrand);
    names.cameraModel = read(setting::OldCameraModel);
    names.lensBrand = read(setting::OldLensBrand);
    names.lensModel = read(setting::OldLensModel);
    return names;
}

bool IsEmpty(const GearNames& names) {
    return names.cameraBrand.isEmpty() && names.cameraModel.isEmpty() &&
           names.lensBrand.isEmpty() && names.lensModel.isEmpty();
}

GearLoad AskForFirstGear(SettingsStore& store, GearTable& table, GearPrompt& prompt) {
    while (table(0).GearName.isEmpty()) {
        prompt.Explain(NoGearText());
        table(0) = GearRecord();
        if (!prompt.DefineGear(table)) {
            table.Resize(0);
            return GearLoad::QuitWanted;
        }
    }
    table(1) = table(0);
    table.DefaultGearName = table(1).GearName;
    SaveGear(store, table);
    return GearLoad::Loaded;
}

void TakeOverOldGear(const GearNames& names, SettingsStore& store, GearTable& table) {
    table(1).GearName = BuiltGearName(names);
    table.DefaultGearName = table(1).GearName;
    FillGearFromCatalogue(names, table(1));
    SaveGear(store, table);
}

}  // namespace

QString NoGearText() {
    return QCoreApplication::translate("GearStore",
                                       "Please define at least one camera + lens combination ...");
}

GearLoad LoadGear(SettingsStore& store, GearTable& table, GearPrompt& prompt) {
    const GearRecord proposed = table(0);
    table = GearTable();
    table(0) = proposed;
    table.DefaultGearName = store.Get(setting::Gear, setting::DefaultGearName, QString());
    if (table.DefaultGearName.isEmpty()) {
        const GearNames oldNames = ReadOldNames(store);
        table.Resize(1);
        if (IsEmpty(oldNames)) {
            return AskForFirstGear(store, table, prompt);
        }
        TakeOverOldGear(oldNames, store, table);
        return GearLoad::Loaded;
    }
    table.Resize(ReadGearCount(store));
    OwnLenses lenses(store);
    for (int n = 1; n <= table.UpperBound(); ++n) {
        ReadGear(store, lenses, n, table(n));
    }
    return GearLoad::Loaded;
}

QString LackingLensText(const GearTable& table) {
    QStringList lines;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        if (LacksLens(table(n))) {
            lines.append(QCoreApplication::translate(
                             "GearStore",
                             "The gear \"%1\" needs the lens \"%2\" of \"My lenses\", which is "
                             "not there.")
                             .arg(table(n).GearName, table(n).LensModel));
        }
    }
    return lines.join(u' ');
}

void SaveGear(SettingsStore& store, GearTable& table) {
    if (table.UpperBound() == 1) {
        table.DefaultGearName = table(1).GearName;
    }
    store.Save(setting::Gear, setting::NumGear, QString::number(table.UpperBound()));
    store.Save(setting::Gear, setting::DefaultGearName, table.DefaultGearName);
    for (int n = 1; n <= table.UpperBound(); ++n) {
        const GearRecord& gear = table(n);
        const auto save = [&](QLatin1StringView name, const QString& text) {
            store.Save(setting::Gear, setting::ItemKey(name, n), text);
        };
        save(setting::GearName, gear.GearName);
        save(setting::GearCameraBrand, gear.CameraBrand);
        save(setting::GearCameraModel, gear.CameraModel);
        save(setting::GearLensBrand, gear.LensBrand);
        save(setting::GearLensModel, gear.LensModel);
        save(setting::GearLensDataVersion, QString::number(gear.LensDataVersion));
        save(setting::GearOfsetX, FloatText(gear.OfsetX));
        save(setting::GearOfsetY, FloatText(gear.OfsetY));
        save(setting::GearRatio, FloatText(gear.GearRatio));
        save(setting::HorizontalAov, FloatText(gear.hAOV));
        save(setting::VerticalAov, FloatText(gear.vAOV));
        if (gear.Own == OwnNumbers()) {
            save(setting::GearSetByHand, QString::number(gear.SetByHand ? 1 : 0));
            continue;
        }
        save(setting::GearSetByHand, withOwnNumbers.toString());
        for (const auto& [key, number] : ownNumbers) {
            save(key, FloatText(gear.Own.*number));
        }
    }
}

void RenameStoredLens(SettingsStore& store, const QString& name, const QString& newName) {
    for (int n = 1; n <= ReadGearCount(store); ++n) {
        const auto get = [&](QLatin1StringView key) {
            return store.Get(setting::Gear, setting::ItemKey(key, n), {});
        };
        if (get(setting::GearLensBrand) == ownLensBrand && get(setting::GearLensModel) == name) {
            store.Save(setting::Gear, setting::ItemKey(setting::GearLensModel, n), newName);
        }
    }
}

}  // namespace varnel
