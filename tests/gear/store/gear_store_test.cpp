// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/store/gear_store.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "gear/catalogue/gear_catalogue.h"

namespace varnel {
namespace {

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

// Notes every access in order: "?section/key" for a read, "section/key=text" for a write.
class RecordingStore : public MemoryStore {
  public:
    QString Get(const QString& section, const QString& key,
                const QString& fallback) const override {
        log.append(u'?' + section + u'/' + key);
        return MemoryStore::Get(section, key, fallback);
    }
    void Save(const QString& section, const QString& key, const QString& value) override {
        log.append(section + u'/' + key + u'=' + value);
        MemoryStore::Save(section, key, value);
    }
    void Put(const char* key, const char* value) {
        MemoryStore::Save(Text("Gear"), Text(key), Text(value));
    }
    QString GearText(const char* key) const {
        return MemoryStore::Get(Text("Gear"), Text(key), Text("(missing)"));
    }

    mutable QStringList log;
};

// Closes the editor empty-handed a number of times, then defines a gear or quits.
class FakePrompt : public GearPrompt {
  public:
    FakePrompt(int emptyTimes, bool quit) : emptyTimes_(emptyTimes), quit_(quit) {}
    void Explain(const QString& text) override { steps.append(text); }
    bool DefineGear(GearTable& table) override {
        EXPECT_EQ(table(0), GearRecord()) << "the scratch slot was not cleared";
        steps.append(Text("editor"));
        table(0).CameraBrand = Text("Canon");
        if (steps.count(Text("editor")) <= emptyTimes_) {
            return true;
        }
        table(0).GearName = quit_ ? QString() : Text("mine");
        return !quit_;
    }

    QStringList steps;

  private:
    int emptyTimes_;
    bool quit_;
};

// For loads that must not ask.
class NoPrompt : public GearPrompt {
  public:
    void Explain(const QString& /*text*/) override { ADD_FAILURE() << "asked for a gear"; }
    bool DefineGear(GearTable& /*table*/) override { return false; }
};

GearTable Load(SettingsStore& store) {
    NoPrompt prompt;
    GearTable table;
    EXPECT_EQ(LoadGear(store, table, prompt), GearLoad::Loaded);
    return table;
}

// One circular fisheye on a 17.3 mm sensor: 130.9048 x 95.8779 degrees, 75.87719 %.
void PutZuiko(RecordingStore& store, const char* defaultName = "Z") {
    store.Put("DefaultGearName", defaultName);
    store.Put("GearName1", "Z");
    store.Put("GearCameraBrand1", "Olympus");
    store.Put("GearCameraModel1", "E-3");
    store.Put("GearLensBrand1", "Olympus");
    store.Put("GearLensModel1", "Zuiko ED 8mm f/3.5");
}

TEST(SaveGear, WritesTheKeysInOrder) {
    GearTable table;
    table.Resize(2);
    FillGearFromCatalogue(
        {Text("Olympus"), Text("E-3"), Text("Olympus"), Text("Zuiko ED 8mm f/3.5")}, table(1));
    table(1).GearName = Text("one");
    table(1).OfsetX = -2.0F;
    table(1).SetByHand = true;
    table(2).GearName = Text("two");
    table(2).LensDataVersion = 1;
    table(2).OfsetY = 0.5F;
    table.DefaultGearName = Text("two");
    RecordingStore store;
    SaveGear(store, table);
    EXPECT_EQ(store.log.join(u'|'),
              Text("Gear/NumGear=2|Gear/DefaultGearName=two|"
                   "Gear/GearName1=one|Gear/GearCameraBrand1=Olympus|Gear/GearCameraModel1=E-3|"
                   "Gear/GearLensBrand1=Olympus|Gear/GearLensModel1=Zuiko ED 8mm f/3.5|"
                   "Gear/GearLensDataVersion1=0|Gear/GearOfsetX1=-2|Gear/GearOfsetY1=0|"
                   "Gear/GearRatio1=75.87719|Gear/hAOV1=130.9048|Gear/vAOV1=95.87793|"
                   "Gear/GearSetByHand1=1|"
                   "Gear/GearName2=two|Gear/GearCameraBrand2=|Gear/GearCameraModel2=|"
                   "Gear/GearLensBrand2=|Gear/GearLensModel2=|Gear/GearLensDataVersion2=1|"
                   "Gear/GearOfsetX2=0|Gear/GearOfsetY2=0.5|Gear/GearRatio2=0|Gear/hAOV2=0|"
                   "Gear/vAOV2=0|Gear/GearSetByHand2=0"));
}

TEST(SaveGear, MakesASingleGearTheDefault) {
    GearTable table;
    table.Resize(1);
    table(1).GearName = Text("only");
    table.DefaultGearName = Text("gone");
    RecordingStore store;
    SaveGear(store, table);
    EXPECT_EQ(table.DefaultGearName, Text("only"));
    EXPECT_EQ(store.GearText("DefaultGearName"), Text("only"));
}

TEST(LoadGear, ReadsTheKeysInOrderAndWritesNothing) {
    RecordingStore store;
    PutZuiko(store);
    Load(store);
    EXPECT_EQ(store.log.join(u'|'),
              Text("?Gear/DefaultGearName|?Gear/NumGear|?Gear/GearName1|?Gear/GearCameraBrand1|"
                   "?Gear/GearCameraModel1|?Gear/GearLensBrand1|?Gear/GearLensModel1|"
                   "?Gear/GearLensDataVersion1|?Gear/GearOfsetX1|?Gear/GearOfsetY1|"
                   "?Gear/GearRatio1|?Gear/hAOV1|?Gear/hAOV1|?Gear/GearSetByHand1"));
}

TEST(LoadGear, ReadsOneGearWithoutACountAndKeepsCatalogueValuesForMissingKeys) {
    RecordingStore store;
    PutZuiko(store);
    const GearTable table = Load(store);
    ASSERT_EQ(table.UpperBound(), 1);
    EXPECT_EQ(table.DefaultGearName, Text("Z"));
    EXPECT_EQ(table(1).GearName, Text("Z"));
    EXPECT_EQ(table(1).SensorWidth, 17.3F);
    EXPECT_NEAR(table(1).hAOV, 130.9048F, 1e-4F);
    EXPECT_NEAR(table(1).vAOV, 95.8779F, 1e-4F);
    EXPECT_NEAR(table(1).GearRatio, 75.8772F, 1e-4F);
    EXPECT_TRUE(table(1).UserAdjusted);
}

TEST(LoadGear, LimitsADamagedCount) {
    const struct {
        const char* text;
        int gears;
    } cases[] = {{"0", 0}, {"2", 2}, {"-4", 1}, {"many", 1}, {"", 1}, {"2000000000", 10000}};
    for (const auto& c : cases) {
        RecordingStore store;
        PutZuiko(store);
        store.Put("NumGear", c.text);
        EXPECT_EQ(Load(store).UpperBound(), c.gears) << c.text;
    }
}

TEST(LoadGear, AppliesStoredAdjustmentsAndTheHorizontalAngleTwice) {
    RecordingStore store;
    PutZuiko(store);
    store.Put("GearOfsetX1", "-4");
    store.Put("GearOfsetY1", "0,5");
    store.Put("GearRatio1", "80.25");
    store.Put("hAOV1", "118.125");
    store.Put("vAOV1", "77");
    const GearRecord gear = Load(store)(1);
    EXPECT_EQ(gear.OfsetX, -4.0F);
    EXPECT_EQ(gear.OfsetY, 0.5F);
    EXPECT_EQ(gear.GearRatio, 80.25F);
    EXPECT_EQ(gear.hAOV, 118.125F);
    EXPECT_EQ(gear.vAOV, 118.125F);
}

TEST(LoadGear, KnowsWhetherNumbersAreTheUsers) {
    const struct {
        const char *key, *text, *told;
        bool byHand;
    } cases[] = {
        {"GearRatio1", "75.87719", nullptr, false},  // as older releases stored the catalogue's
        {"hAOV1", "130.9048", nullptr, false},
        {"GearRatio1", "76", nullptr, true},
        {"hAOV1", "130", nullptr, true},
        {"GearOfsetY1", "0.5", nullptr, true},
        {"hAOV1", "130", "?", true},
        {"hAOV1", "130", "0", false},
        {"hAOV1", "130.9048", "1", true},
        {"GearLensDataVersion1", "-1", "1", false},
    };
    for (const auto& c : cases) {
        RecordingStore store;
        PutZuiko(store);
        store.Put(c.key, c.text);
        if (c.told != nullptr) {
            store.Put("GearSetByHand1", c.told);
        }
        GearTable table = Load(store);
        EXPECT_EQ(table(1).SetByHand, c.byHand) << c.key << c.text;
        SaveGear(store, table);
        EXPECT_EQ(Load(store)(1).SetByHand, c.byHand) << c.key << c.text;
    }
}

TEST(LoadGear, KeepsCatalogueValuesWhereTheStoredOneIsNoNumber) {
    RecordingStore store;
    PutZuiko(store);
    store.Put("GearRatio1", "wide");
    store.Put("hAOV1", "1.234,5");
    store.Put("GearLensDataVersion1", "?");
    const GearRecord gear = Load(store)(1);
    EXPECT_NEAR(gear.GearRatio, 75.8772F, 1e-4F);
    EXPECT_NEAR(gear.hAOV, 130.9048F, 1e-4F);
    EXPECT_NEAR(gear.vAOV, 95.8779F, 1e-4F);
}

// The remap divides by the ratio and by the angle.
TEST(LoadGear, KeepsCatalogueValuesWhereTheStoredOneIsOfNoUse) {
    const struct {
        const char* key;
        float GearRecord::*field;
        const char *usable, *useless;
    } cases[] = {
        {"GearRatio1", &GearRecord::GearRatio, "1 1000", "0 -80 0.99 1001"},
        {"hAOV1", &GearRecord::hAOV, "1 360", "0 -120 0.99 360.1"},
        {"hAOV1", &GearRecord::vAOV, "1 360", "0 -120 0.99 360.1"},
        {"GearOfsetX1", &GearRecord::OfsetX, "-1000 1000", "-1001 1001"},
        {"GearOfsetY1", &GearRecord::OfsetY, "-1000 0.5", "-1001 1001"},
    };
    for (const auto& c : cases) {
        RecordingStore store;
        PutZuiko(store);
        const float catalogue = Load(store)(1).*c.field;
        for (const QString& text : Text(c.usable).split(u' ')) {
            store.Put(c.key, qPrintable(text));
            EXPECT_EQ(Load(store)(1).*c.field, text.toFloat()) << c.key << text.toStdString();
        }
        for (const QString& text : (Text(c.useless) + Text(" 3e38 1e39 -inf nan")).split(u' ')) {
            store.Put(c.key, qPrintable(text));
            EXPECT_EQ(Load(store)(1).*c.field, catalogue) << c.key << text.toStdString();
        }
    }
}

TEST(LoadGear, DropsAdjustmentsMadeToOlderCatalogueData) {
    const struct {
        const char* version;
        bool applies;
    } cases[] = {{"0", false}, {"-1", false}, {"1", true}, {"2", true}, {"99999", true}};
    for (const auto& c : cases) {
        RecordingStore store;
        PutZuiko(store);
        store.Put("GearCameraBrand1", "Drones");
        store.Put("GearCameraModel1", "Parrot Bebop");
        store.Put("GearLensDataVersion1", c.version);
        store.Put("GearOfsetX1", "12");
        store.Put("hAOV1", "99");
        const GearRecord gear = Load(store)(1);
        EXPECT_EQ(gear.OfsetX, c.applies ? 12.0F : 0.0F) << c.version;
        EXPECT_EQ(gear.hAOV == 99.0F, c.applies) << c.version;
        EXPECT_EQ(gear.LensDataVersion, 1) << c.version;
        EXPECT_TRUE(gear.UserAdjusted) << c.version;
    }
}

// The field angle of a wider lens is lost once adjustments apply, without them it stays.
TEST(LoadGear, SetsTheFieldAngleWithTheAdjustments) {
    RecordingStore store;
    PutZuiko(store);
    store.Put("GearLensBrand1", "Entaniya");
    store.Put("GearLensModel1", "M12 280");
    EXPECT_EQ(Load(store)(1).LensFieldAngle, 180.0F);
    store.Put("GearLensDataVersion1", "-1");
    EXPECT_EQ(Load(store)(1).LensFieldAngle, 280.0F);
}

TEST(LoadGear, ReadsWhatWasSavedUnderAnotherLocale) {
    const QLocale before;
    for (const char* locale : {"de_DE", "ar_EG", "fa_IR", "C", "fr_FR", "de_CH"}) {
        RecordingStore store;
        PutZuiko(store);
        GearTable table = Load(store);
        table(1).OfsetX = -12.5F;
        table(1).GearRatio = 118.125F;
        QLocale::setDefault(QLocale(Text(locale)));
        SaveGear(store, table);
        QLocale::setDefault(QLocale::c());
        const GearRecord gear = Load(store)(1);
        EXPECT_EQ(gear.OfsetX, -12.5F) << locale;
        EXPECT_EQ(gear.GearRatio, 118.125F) << locale;
        EXPECT_NEAR(gear.hAOV, 130.9048F, 1e-4F) << locale;
        EXPECT_EQ(gear.vAOV, gear.hAOV) << locale;
    }
    QLocale::setDefault(before);
}

TEST(LoadGear, IgnoresTheKeysOfADeletedGear) {
    GearTable table;
    table.Resize(3);
    for (int n = 1; n <= 3; ++n) {
        table(n).GearName = QString::number(n);
    }
    table.DefaultGearName = Text("1");
    RecordingStore store;
    SaveGear(store, table);
    table.Remove(3);
    SaveGear(store, table);
    EXPECT_EQ(store.GearText("GearName3"), Text("3"));
    EXPECT_EQ(Load(store).UpperBound(), 2);
}

TEST(LoadGear, TakesOverTheGearOfAnOlderRelease) {
    RecordingStore store;
    const QString section = Text("setting");
    store.MemoryStore::Save(section, Text("CameraBrand"), Text("Olympus"));
    store.MemoryStore::Save(section, Text("CameraModel"), Text("E-3"));
    store.MemoryStore::Save(section, Text("LensBrand"), Text("Samyang"));
    store.MemoryStore::Save(section, Text("LensModel"), Text("7.5 mm f/3.5"));
    const GearTable table = Load(store);
    const QString name = Text("Olympus E-3 + Samyang 7.5 mm f/3.5");
    ASSERT_EQ(table.UpperBound(), 1);
    EXPECT_EQ(table.DefaultGearName, name);
    EXPECT_EQ(table(1).GearName, name);
    EXPECT_NEAR(table(1).hAOV, 136.5910F, 1e-4F);
    EXPECT_FALSE(table(1).UserAdjusted);
    EXPECT_EQ(store.log.mid(0, 7).join(u'|'),
              Text("?Gear/DefaultGearName|?setting/CameraBrand|?setting/CameraModel|"
                   "?setting/LensBrand|?setting/LensModel|Gear/NumGear=1|Gear/DefaultGearName=") +
                  name);
    EXPECT_EQ(store.GearText("GearLensModel1"), Text("7.5 mm f/3.5"));
}

TEST(LoadGear, TakesOverEvenOneOldNameAlone) {
    RecordingStore store;
    store.MemoryStore::Save(Text("setting"), Text("LensModel"), Text("8 mm"));
    EXPECT_EQ(Load(store)(1).GearName, Text("  +  8 mm"));
}

TEST(LoadGear, AsksUntilThereIsAGear) {
    RecordingStore store;
    GearTable table;
    table(0).CameraModel = Text("left over");
    FakePrompt prompt(2, false);
    EXPECT_EQ(LoadGear(store, table, prompt), GearLoad::Loaded);
    const QString round = Text("Please define at least one camera + lens combination ...|editor");
    EXPECT_EQ(prompt.steps.join(u'|'), round + u'|' + round + u'|' + round);
    ASSERT_EQ(table.UpperBound(), 1);
    EXPECT_EQ(table(1).GearName, Text("mine"));
    EXPECT_EQ(table(1).CameraBrand, Text("Canon"));
    EXPECT_EQ(table.DefaultGearName, Text("mine"));
    EXPECT_EQ(store.GearText("NumGear"), Text("1"));
    EXPECT_EQ(store.GearText("GearName1"), Text("mine"));
    EXPECT_EQ(Load(store)(1).GearName, Text("mine"));
}

TEST(LoadGear, QuitsFromThePromptWithoutSaving) {
    RecordingStore store;
    GearTable table;
    FakePrompt prompt(1, true);
    EXPECT_EQ(LoadGear(store, table, prompt), GearLoad::QuitWanted);
    EXPECT_EQ(table.UpperBound(), 0);
    EXPECT_EQ(prompt.steps.size(), 4);
    EXPECT_EQ(store.GearText("NumGear"), Text("(missing)"));
}

}  // namespace
}  // namespace varnel
