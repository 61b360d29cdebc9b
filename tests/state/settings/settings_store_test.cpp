// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_store.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <vector>

#include "base/error_text.h"
#include "state/settings/default_choices.h"
#include "state/settings/general_settings.h"
#include "state/settings/number_text.h"
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
        Reasons messages;
        for (const char* const value : {"1", "2", "3"}) {
            store.Save(setting::Gear, setting::DefaultGearName, Text("mine"));
            store.Save(setting::Gear, setting::ItemKey(setting::GearName, 1), Text("mine"));
            store.Save(setting::Gear, setting::NumGear, Text("1"));
            store.Save(Text("s"), Text("a"), Text(value));
            messages += store.Settle();
        }
        return messages;
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

TEST_F(UserStoreTest, LosesNoKeyOfManyProcessesThatSaveAtOnce) {
    constexpr int processes = 6;
    constexpr int saves = 15;
    const auto key = [](int process, int n) { return Text("key%1of%2").arg(n).arg(process); };
    std::vector<pid_t> children;
    for (int process = 0; process < processes; ++process) {
        children.push_back(::fork());
        if (children.back() == 0) {
            const auto store = Open();
            bool hasMessage = false;
            for (int n = 0; n < saves; ++n) {
                store->Save(Text("s"), key(process, n), Text("x"));
                hasMessage |= !store->Settle().isEmpty();
            }
            ::_exit(hasMessage ? 1 : 0);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0) << "a message, or a crash";
    }
    const auto store = Open();
    for (int n = 0; n < processes * saves; ++n) {
        const QString name = key(n / saves, n % saves);
        EXPECT_EQ(store->Get(Text("s"), name, {}), Text("x")) << name.toStdString();
    }
}

TEST_F(UserStoreTest, ReadsAFileEditedByHandAndKeepsKeysItDoesNotKnow) {
    const char* const lines[] = {"mine=\"a; b\"",
                                 "[Gear]",
                                 "gearratio1=50",
                                 "NumGear=1",
                                 "GearRatio1=107,5",
                                 "GearName1=  Gr\u00F6\u00DFe \"50%\"  ; of mine",
                                 "DefaultGearName=Gr\u00F6\u00DFe 50%",
                                 "GearLensModel1=",
                                 "[Of another program]",
                                 "%41 key=C:\\\\x, \"; \\\"y\\\" \""};
    const std::pair<const char*, const char*> values[] = {
        {"mine", "a; b"},
        {"Gear/gearratio1", "50"},
        {"Gear/GearRatio1", "107,5"},
        {"Gear/GearName1", "Gr\u00F6\u00DFe 50%"},
        {"Gear/GearLensModel1", ""},
        {"Of another program/A key", "C:\\x,; \"y\" "},
        {"setting/FileType", "PNG"}};
    const QString ratio = setting::ItemKey(setting::GearRatio, 1);
    for (const auto& [start, end] : {std::pair("", "\n"), {"\xEF\xBB\xBF", "\r\n"}}) {
        QByteArray file = start;
        for (const char* const line : lines) {
            file += QByteArray(line) + end;
        }
        Write(file);
        EXPECT_EQ(ReadFloat(*Open(), setting::Gear, ratio, 0.0F), 107.5F);
        EXPECT_EQ(Bytes(""), file) << "reading wrote";
        Open()->Save(Text("setting"), Text("FileType"), Text("PNG"));
        EXPECT_EQ(ReadFloat(*Open(), setting::Gear, ratio, 0.0F), 107.5F);
        EXPECT_TRUE(Open()->Settle().isEmpty());
        const QSettings release1(FilePath(), QSettings::IniFormat);
        for (const auto& [key, text] : values) {
            EXPECT_EQ(release1.value(Text(key), Text("(missing)")).toString(), Text(text)) << key;
        }
        Folder().removeRecursively();
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
        Reasons messages;
        {
            const testing::FileSizeLimit full(8000);
            const auto store = Open();
            messages = store->Settle();
            messages += SaveThrice(*store);
        }
        ASSERT_EQ(messages.size(), 2) << ErrorText(Joined(messages)).toStdString();
        EXPECT_TRUE(messages[0].Is(c.aside)) << ErrorText(messages[0]).toStdString();
        EXPECT_TRUE(messages[1].Is(ReasonCode::SettingsUnwritable))
            << ErrorText(messages[1]).toStdString();
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
        {"TakeGear", "0", {.TakeGear = false}},
        {"TakeGear", "2", {}},
        {"KeepDepth", "0", {.KeepDepth = false}},
        {"KeepDepth", "deep", {}},
        {"LessMemory", "1", {.LessMemory = true}},
        {"LessMemory", "less", {}},
        {"TiffCompression", "zstd", {.TiffCompression = Text("zstd")}},
        {"WriteMetadata", "0", {400, 300, Text("JPG"), 100, false, true, true, false}},
        {"WriteMetadata", "-1", {400, 300, Text("JPG"), 100, false, true, true, true}},
        {"FineSampling", "1", {.FineSampling = true}},
        {"FineSampling", "yes", {}},
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

TEST(BeginSettings, OnlyANewInstallationSavesByTheFineSampling) {
    MemoryStore fresh;
    BeginSettings(fresh);
    EXPECT_TRUE(LoadSettings(fresh).FineSampling);
    MemoryStore older;
    older.Save(Text("Revision"), Text("RevisionAge"), Text("0"));
    BeginSettings(older);
    EXPECT_FALSE(LoadSettings(older).FineSampling);
    MemoryStore chosen;
    chosen.Save(Text("setting"), Text("FineSampling"), Text("0"));
    BeginSettings(chosen);
    EXPECT_FALSE(LoadSettings(chosen).FineSampling);
}

}  // namespace
}  // namespace varnel
