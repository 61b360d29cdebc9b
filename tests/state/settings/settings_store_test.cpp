// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/error_text.h"
#include "state/settings/general_settings.h"
#include "state/settings/setting_names.h"
#include "tests/support/contents.h"
#include "tests/support/limits.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// A settings folder of its own for each test.
class UserStoreTest : public ::testing::Test {
  protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8()); }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }
    std::unique_ptr<SettingsStore> Open() const { return OpenUserStore(QDateTime()); }
    QString FilePath() const { return folder_.filePath(QStringLiteral("Varnel/Varnel.conf")); }
    // With a gear, as whoever begins afresh is asked for one.
    static Reasons SaveThrice(SettingsStore& store) {
        Reasons told;
        for (const char* const value : {"1", "2", "3"}) {
            store.Save(setting::Gear, setting::DefaultGearName, Text("mine"));
            store.Save(setting::Gear, setting::ItemKey(setting::GearName, 1), Text("mine"));
            store.Save(setting::Gear, setting::NumGear, Text("1"));
            store.Save(Text("s"), Text("a"), Text(value));
            told += store.Settle();
        }
        return told;
    }
    void Write(const QByteArray& bytes) const {
        Folder().mkpath(Text("."));
        testing::WriteFile(FilePath(), bytes);
    }
    // What is in the file itself or in the one damaged file beside it.
    QByteArray Bytes(const char* ending) const {
        return testing::Contents(FilePath() + Text(ending));
    }
    qsizetype Damaged() const { return Folder().entryList({Text("*.damaged-*")}).size(); }
    QDir Folder() const { return QDir(folder_.filePath(Text("Varnel"))); }

  private:
    QTemporaryDir folder_;
};

TEST_F(UserStoreTest, WritesSectionsAsGroupsAndKeysAsTheyStand) {
    Open()->Save(setting::Gear, setting::ItemKey(setting::GearName, 12), Text("My gear"));
    QFile file(FilePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\n[Gear]\nGearName12=My gear\n"));
    EXPECT_EQ(file.permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther), 0);
}

TEST_F(UserStoreTest, ReadsBackATextAndTellsSectionsApart) {
    Open()->Save(Text("setting"), Text("Name"), Text("caf\u00E9, 50%"));
    Open()->Save(Text("Settings"), Text("Name"), Text("other"));
    const auto store = Open();
    EXPECT_EQ(store->Get(Text("setting"), Text("Name"), {}), Text("caf\u00E9, 50%"));
    EXPECT_EQ(store->Get(Text("Settings"), Text("Name"), {}), Text("other"));
    EXPECT_EQ(store->Get(Text("setting"), Text("Missing"), Text("fallback")), Text("fallback"));
}

TEST_F(UserStoreTest, KeepsTheKeysThatAnotherProcessSavesMeanwhile) {
    const auto first = Open();
    const auto second = Open();
    first->Save(Text("s"), Text("a"), Text("1"));
    first->Save(Text("s"), Text("b"), Text("1"));
    second->Save(Text("s"), Text("b"), Text("2"));
    second->Save(Text("s"), Text("c"), Text("2"));
    EXPECT_TRUE(first->Settle().isEmpty());
    EXPECT_TRUE(second->Settle().isEmpty());
    EXPECT_EQ(second->Get(Text("s"), Text("a"), {}), Text("1"));
    first->Save(Text("s"), Text("d"), Text("1"));
    first->Settle();
    const auto third = Open();
    for (const auto& [key, text] : {std::pair("a", "1"), {"b", "2"}, {"c", "2"}, {"d", "1"}}) {
        EXPECT_EQ(third->Get(Text("s"), Text(key), {}), Text(text)) << key;
    }
}

TEST_F(UserStoreTest, LeavesADamagedFileAloneUntilItCanBeSetAside) {
    const QByteArray damaged(20000, 'x');
    Write(damaged);
    std::unique_ptr<SettingsStore> store;
    {
        const testing::FileSizeLimit full(8000);
        store = Open();
        SaveThrice(*store);
        EXPECT_EQ(store->Get(Text("s"), Text("a"), {}), Text("3"));
        SaveThrice(*Open());  // and closes it
        EXPECT_EQ(Bytes(""), damaged);
        EXPECT_EQ(Damaged(), 0);
    }
    EXPECT_EQ(store->Settle().size(), 1) << "where it is kept now";
    EXPECT_EQ(Bytes(".damaged-"), damaged);
    EXPECT_EQ(Open()->Get(Text("s"), Text("a"), {}), Text("3"));
}

TEST_F(UserStoreTest, TellsOnceOfADamagedFileThatCannotBeSetAsideOrReplaced) {
    const struct {
        int damagedSize;
        int savedSize;  // of a value in the copy
        ReasonCode aside;
        int files;
    } cases[] = {{20000, 1, ReasonCode::SettingsDamaged, 0},
                 {100, 20000, ReasonCode::SettingsDamagedAndKept, 1}};
    for (const auto& c : cases) {
        SaveThrice(*Open());
        Open()->Save(Text("s"), Text("long"), QString(c.savedSize, u'x'));
        Write(QByteArray(c.damagedSize, 'x'));
        Reasons told;
        {
            const testing::FileSizeLimit full(8000);
            const auto store = Open();
            told = store->Settle();
            told += SaveThrice(*store);
        }
        ASSERT_EQ(told.size(), 2) << ErrorText(Joined(told)).toStdString();
        EXPECT_TRUE(told[0].Is(c.aside)) << ErrorText(told[0]).toStdString();
        EXPECT_TRUE(told[1].Is(ReasonCode::SettingsUnwritable)) << ErrorText(told[1]).toStdString();
        EXPECT_EQ(Damaged(), c.files);
        Folder().removeRecursively();
    }
}

TEST(LoadSettings, CutsLargeSidesAndReplacesUnusableValues) {
    const struct {
        const char* key;
        const char* text;
        GeneralSettings expected;
    } cases[] = {
        {"PreviewWidth", "640", {640, 300, Text("JPG"), 100}},
        {"PreviewWidth", "1000", {1000, 300, Text("JPG"), 100}},
        {"PreviewWidth", "1001", {1000, 300, Text("JPG"), 100}},
        {"PreviewWidth", "0", {400, 300, Text("JPG"), 100}},
        {"PreviewWidth", "99999999999", {400, 300, Text("JPG"), 100}},
        {"PreviewHeight", "5000", {400, 1000, Text("JPG"), 100}},
        {"PreviewHeight", "-3", {400, 300, Text("JPG"), 100}},
        {"PreviewHeight", "tall", {400, 300, Text("JPG"), 100}},
        {"FileType", "PNG", {400, 300, Text("PNG"), 100}},
        {"JPEGcompression", "0", {400, 300, Text("JPG"), 0}},
        {"JPEGcompression", "85", {400, 300, Text("JPG"), 85}},
        {"JPEGcompression", "101", {400, 300, Text("JPG"), 100}},
        {"JPEGcompression", "-1", {400, 300, Text("JPG"), 100}},
        {"JPEGcompression", "", {400, 300, Text("JPG"), 100}},
        {"JPEGchroma444", "1", {400, 300, Text("JPG"), 100, true}},
        {"JPEGchroma444", "2", {400, 300, Text("JPG"), 100, false}},
        {"AutoOrient", "0", {400, 300, Text("JPG"), 100, false, false}},
        {"AutoOrient", "", {400, 300, Text("JPG"), 100, false, true}},
        {"OfferGear", "0", {400, 300, Text("JPG"), 100, false, true, false}},
        {"OfferGear", "no", {400, 300, Text("JPG"), 100, false, true, true}},
        {"WriteMetadata", "0", {400, 300, Text("JPG"), 100, false, true, true, false}},
        {"WriteMetadata", "-1", {400, 300, Text("JPG"), 100, false, true, true, true}},
        {"WriteSettings", "0", {400, 300, Text("JPG"), 100, false, true, true, true, false}},
        {"WriteSettings", "1", {400, 300, Text("JPG"), 100, false, true, true, true, true}},
    };
    for (const auto& c : cases) {
        MemoryStore store;
        store.Save(Text("setting"), Text(c.key), Text(c.text));
        EXPECT_EQ(LoadSettings(store), c.expected) << c.key << '=' << c.text;
        EXPECT_EQ(store.Get(Text("setting"), Text(c.key), {}), Text(c.text)) << "rewritten";
    }
}

}  // namespace
}  // namespace varnel
