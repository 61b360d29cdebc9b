// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_recovery.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <functional>
#include <random>

#include "base/error_text.h"
#include "gear/store/gear_store.h"
#include "state/settings/autosaving_store.h"
#include "state/settings/setting_names.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;
using testing::WriteFile;

constexpr int gearCount = 50;

class NoPrompt : public GearPrompt {
  public:
    void Explain(const QString& /*text*/) override {}
    bool DefineGear(GearTable& /*table*/) override { return false; }
};

class RecordedNotices : public Notices {
  public:
    void Tell(const QString& text, const QString& /*detail*/) override { texts.append(text); }
    QStringList texts;
};

GearTable Gears(int count, float ratio) {
    GearTable table;
    table.Resize(count);
    for (int n = 1; n <= count; ++n) {
        table(n).GearName = Text("Gear, \u201Cnumber\u201D %1").arg(n);
        table(n).CameraModel = Text("Model %1").arg(n);
        table(n).OfsetX = static_cast<float>(n);
        table(n).GearRatio = ratio;
        table(n).hAOV = 118.125F;
    }
    table.DefaultGearName = table(count).GearName;
    return table;
}

QStringList Texts(const Reasons& reasons) {
    QStringList texts;
    for (const Reason& reason : reasons) {
        texts.append(ErrorText(reason));
    }
    return texts;
}

class SettingsRecovery : public ::testing::Test {
  protected:
    std::unique_ptr<SettingsStore> Open() const { return OpenFileStore(path_, moment_); }
    void Save(int count, float ratio) const {
        GearTable table = Gears(count, ratio);
        const auto store = Open();
        SaveGear(*store, table);
        EXPECT_TRUE(store->Settle().isEmpty());
    }
    // Opens the settings anew; messages_ then holds the messages for the user.
    GearTable Load() {
        const auto store = Open();
        messages_ = Texts(store->Settle());
        GearTable table;
        NoPrompt prompt;
        LoadGear(*store, table, prompt);
        return table;
    }
    // The number of gears that are as they were saved, up to the first that is not.
    static int Good(const GearTable& table, float ratio) {
        const GearTable saved = Gears(gearCount, ratio);
        int n = 0;
        while (n < std::min(table.UpperBound(), gearCount) &&
               table(n + 1).GearName == saved(n + 1).GearName &&
               table(n + 1).OfsetX == saved(n + 1).OfsetX && table(n + 1).GearRatio == ratio &&
               table(n + 1).hAOV == saved(n + 1).hAOV) {
            ++n;
        }
        return n;
    }
    QStringList Damaged() const {
        return QDir(QFileInfo(path_).path()).entryList({Text("*.damaged-*")});
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(Text("Varnel/Varnel.conf"));
    QDateTime moment_{QDate(2026, 11, 21), QTime(10, 15, 30)};
    QStringList messages_;
};

struct Damage {
    const char* name;
    std::function<QByteArray(QByteArray)> spoil;
    int goodWithoutCopy;  // at least so many gears can be read all the same
};

Damage Cut(const char* name, double share, bool atLineEnd, int good) {
    return {name,
            [=](const QByteArray& bytes) {
                const auto length = static_cast<qsizetype>(share * double(bytes.size()));
                return bytes.first(atLineEnd ? bytes.lastIndexOf('\n', length) + 1 : length);
            },
            good};
}

QByteArray NoiseBytes(const QByteArray& bytes) {
    std::mt19937 random(20261121);
    QByteArray noise = bytes;
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() >> 24); });
    return noise;
}

QByteArray Utf16(const QByteArray& bytes) {
    const QString text = QChar(QChar::ByteOrderMark) + QString::fromUtf8(bytes);
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

const Damage damages[] = {
    Cut("cut in the first line", 0.003, false, 0),
    Cut("cut after the first line", 0.02, true, 0),
    Cut("cut at a third", 0.333, false, 15),
    Cut("cut at a line's end", 0.5, true, 23),
    Cut("cut near the end", 0.99, false, 49),
    {"the end mark alone is gone",
     [](const QByteArray& bytes) { return bytes.first(bytes.lastIndexOf(';')); }, 50},
    {"emptied", [](const QByteArray&) { return QByteArray(); }, 0},
    {"a hole of zeros",
     [](QByteArray bytes) { return bytes.replace(bytes.size() / 2, 512, QByteArray(512, '\0')); },
     23},
    {"lost bracket", [](QByteArray bytes) { return bytes.replace("[Gear]", "[Gear"); }, 50},
    {"lost title", [](QByteArray bytes) { return bytes.replace("[Gear]", ""); }, 50},
    {"another title", [](QByteArray bytes) { return bytes.replace("[Gear]", "[Goar]"); }, 50},
    {"lost count", [](QByteArray bytes) { return bytes.replace("NumGear=", "NumGear=#"); }, 50},
    {"stray first line", [](const QByteArray& bytes) { return "<html>\n" + bytes; }, 50},
    {"zeros", [](const QByteArray& bytes) { return QByteArray(bytes.size(), '\0'); }, 0},
    {"noise", &NoiseBytes, 0},
    {"UTF-16", &Utf16, 50},
    {"a gear's name is gone",
     [](QByteArray bytes) { return bytes.replace("GearName25=", "GearName99="); }, 24},
    {"the default's name is gone",
     [](QByteArray bytes) { return bytes.replace("DefaultGearName=", "Default="); }, 50},
};

TEST_F(SettingsRecovery, LosesNoGearAndSaysSoWhateverTheDamage) {
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.name);
        Save(gearCount, 80.25F);
        const QByteArray whole = Contents(path_);
        const QByteArray spoiled = damage.spoil(whole);
        ASSERT_NE(spoiled, whole);
        WriteFile(path_, spoiled);
        const GearTable table = Load();
        EXPECT_EQ(Good(table, 80.25F), gearCount);
        EXPECT_EQ(table.UpperBound(), gearCount);
        EXPECT_EQ(table.DefaultGearName, Gears(gearCount, 0).DefaultGearName);
        ASSERT_EQ(messages_.size(), 1);
        EXPECT_TRUE(messages_[0].startsWith(path_ + Text(": the settings were damaged (")))
            << messages_[0].toStdString();
        ASSERT_EQ(Damaged(), QStringList(Text("Varnel.conf.damaged-2026-11-21T10-15-30")));
        EXPECT_EQ(Contents(path_ + Text(".damaged-2026-11-21T10-15-30")), spoiled);
        EXPECT_EQ(Contents(path_), whole);
        EXPECT_EQ(Contents(CopyOf(path_)), whole);
        EXPECT_EQ(Good(Load(), 80.25F), gearCount);
        EXPECT_EQ(messages_, QStringList()) << "said twice";
        QDir(QFileInfo(path_).path()).removeRecursively();
    }
}

TEST_F(SettingsRecovery, SavesWhatCanBeReadWithoutACopy) {
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.name);
        Save(gearCount, 80.25F);
        const QByteArray spoiled = damage.spoil(Contents(path_));
        QFile::remove(CopyOf(path_));
        WriteFile(path_, spoiled);
        const GearTable table = Load();
        EXPECT_GE(Good(table, 80.25F), damage.goodWithoutCopy);
        ASSERT_EQ(messages_.size(), 1);
        EXPECT_TRUE(messages_[0].contains(Text("without a copy"))) << messages_[0].toStdString();
        ASSERT_EQ(Damaged().size(), 1);
        EXPECT_EQ(Contents(folder_.filePath(Text("Varnel/")) + Damaged()[0]), spoiled);
        for (int n = 1; n <= table.UpperBound(); ++n) {
            EXPECT_NE(table(n).GearName, QString()) << n;
        }
        EXPECT_EQ(Load().UpperBound(), table.UpperBound());
        EXPECT_EQ(messages_, QStringList()) << "said twice";
        QDir(QFileInfo(path_).path()).removeRecursively();
    }
}

TEST_F(SettingsRecovery, KnowsACutFileOfAnOlderReleaseByItsCopy) {
    {
        QSettings older(path_, QSettings::IniFormat);
        older.setValue(Text("Gear/DefaultGearName"), Text("mine"));
        older.setValue(Text("Gear/GearName1"), Text("mine"));
        older.setValue(Text("Gear/NumGear"), 1);
        older.setValue(Text("setting/FileType"), Text("PNG"));
    }
    const QByteArray whole = Contents(path_);
    EXPECT_EQ(Load().UpperBound(), 1);
    EXPECT_EQ(messages_, QStringList());
    EXPECT_EQ(Contents(path_), whole) << "reading wrote";
    EXPECT_EQ(Contents(CopyOf(path_)), whole);
    WriteFile(path_, whole.first(whole.indexOf("\n[setting]")));
    EXPECT_EQ(Load().UpperBound(), 1);
    EXPECT_EQ(messages_.size(), 1);
    EXPECT_EQ(Contents(path_), whole);
}

TEST_F(SettingsRecovery, NeitherReplacesAnotherDamagedFileNorAGoodCopy) {
    Save(gearCount, 80.25F);
    const QByteArray whole = Contents(path_);
    for (const char* const spoiled : {"one", "two", "three"}) {
        WriteFile(path_, spoiled);
        EXPECT_EQ(Good(Load(), 80.25F), gearCount);
    }
    EXPECT_EQ(Damaged().size(), 3);
    EXPECT_EQ(Contents(path_ + Text(".damaged-2026-11-21T10-15-30-2")), "two");
    // A run that is under way loses nothing either, and the copy may be damaged, too.
    const auto store = Open();
    store->Save(Text("setting"), Text("FileType"), Text("PNG"));
    WriteFile(path_, whole.first(1000));
    WriteFile(CopyOf(path_), "damaged");
    EXPECT_EQ(store->Settle().size(), 1);
    EXPECT_EQ(Good(Load(), 80.25F), gearCount);
    EXPECT_EQ(Open()->Get(Text("setting"), Text("FileType"), {}), Text("PNG"));
}

TEST_F(SettingsRecovery, TakesAMissingFileForAFirstRunAndLeavesTheCopy) {
    Save(2, 80.25F);
    const QByteArray copy = Contents(CopyOf(path_));
    QFile::remove(path_);
    EXPECT_EQ(Load().UpperBound(), 0);
    EXPECT_EQ(messages_, QStringList());
    Open()->Save(Text("Window"), Text("Geometry"), Text("x"));
    EXPECT_EQ(Contents(CopyOf(path_)), copy);
    Save(1, 90.0F);
    EXPECT_EQ(Contents(CopyOf(path_)), Contents(path_));
}

TEST_F(SettingsRecovery, WritesNoFileAndNoCopyToReadThem) {
    Save(2, 80.25F);
    const QDateTime before(QDate(2020, 1, 1), QTime(0, 0));
    for (const QString& name : {path_, CopyOf(path_)}) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(before, QFileDevice::FileModificationTime));
    }
    EXPECT_EQ(Load().UpperBound(), 2);
    for (const QString& name : {path_, CopyOf(path_)}) {
        EXPECT_EQ(QFileInfo(name).lastModified(), before) << name.toStdString();
    }
    EXPECT_EQ(QDir(QFileInfo(path_).path()).entryList(QDir::Files).size(), 2);
}

// Runs the work in a process of its own and ends it there; returns the process's number.
pid_t Forked(const std::function<int()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work());
    }
    return child;
}

TEST_F(SettingsRecovery, IsReadableAtWhateverMomentASavingRunIsKilled) {
    Save(gearCount, 50.0F);
    for (int moment = 0; moment < 20; ++moment) {
        const pid_t child = Forked([this] {
            for (int n = 0;; ++n) {
                Save(gearCount, n % 2 == 0 ? 80.25F : 50.0F);
            }
            return 0;
        });
        ::usleep(3000 + 1700 * static_cast<unsigned>(moment));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        const GearTable table = Load();
        EXPECT_EQ(std::max(Good(table, 50.0F), Good(table, 80.25F)), gearCount) << moment;
        EXPECT_EQ(messages_, QStringList()) << moment;
    }
    Save(gearCount, 60.0F);  // clears away what the killed ones left
    EXPECT_EQ(QDir(QFileInfo(path_).path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(SettingsRecovery, IsMendedAndToldByOneOfManyThatStartAtOnce) {
    Save(gearCount, 80.25F);
    for (int round = 0; round < 4; ++round) {
        WriteFile(path_, Contents(path_).first(1000 + round));
        std::vector<pid_t> children;
        for (int n = 0; n < 4; ++n) {
            children.push_back(Forked([this] {
                const GearTable table = Load();
                return Good(table, 80.25F) == gearCount ? static_cast<int>(messages_.size()) : 100;
            }));
        }
        int messages = 0;
        for (const pid_t child : children) {
            int status = 0;
            ::waitpid(child, &status, 0);
            messages += WEXITSTATUS(status);
        }
        EXPECT_EQ(messages, 1);
        EXPECT_EQ(Damaged().size(), round + 1);
    }
}

TEST_F(SettingsRecovery, SaysOnceThatNothingCanBeWrittenAndKeepsTheValuesForTheRun) {
    WriteFile(folder_.filePath(Text("file")), "x");
    QDir(folder_.path()).mkpath(Text("folder/Varnel.conf"));
    for (const char* const place : {"file/Varnel/Varnel.conf", "folder/Varnel.conf"}) {
        path_ = folder_.filePath(Text(place));
        const auto store = Open();
        const bool isThere = QFileInfo::exists(path_);
        EXPECT_EQ(store->Settle().size(), isThere ? 1 : 0) << place;  // cannot be read
        for (const char* const value : {"one", "two"}) {
            store->Save(Text("setting"), Text("FileType"), Text(value));
            const QStringList messages = Texts(store->Settle());
            EXPECT_EQ(store->Get(Text("setting"), Text("FileType"), {}), Text(value));
            ASSERT_EQ(messages.size(), value[0] == 'o' ? 1 : 0) << place;
            EXPECT_TRUE(messages.isEmpty() ||
                        messages[0].startsWith(path_ + Text(": the settings cannot be written (")))
                << messages[0].toStdString();
        }
    }
}

TEST_F(SettingsRecovery, UsesTheCopyWhereNothingCanBeSetAside) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "everything can be written";
    }
    Save(gearCount, 80.25F);
    WriteFile(path_, "damaged");
    const QString folder = QFileInfo(path_).path();
    QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(Good(Load(), 80.25F), gearCount);
    EXPECT_TRUE(messages_.value(0).contains(Text("could not be set aside")));
    QFile::setPermissions(folder,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TEST_F(SettingsRecovery, TellsOfASaveAMomentLater) {
    int argumentCount = 0;
    QCoreApplication application(argumentCount, nullptr);
    WriteFile(folder_.filePath(Text("Varnel")), "no folder");
    const auto user = Open();
    RecordedNotices notices;
    AutosavingStore store(*user, notices);
    store.Save(Text("a"), Text("b"), Text("c"));
    QCoreApplication::processEvents();
    EXPECT_EQ(notices.texts, QStringList());
    const QDeadlineTimer deadline(5000);
    while (notices.texts.isEmpty() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(notices.texts.size(), 1);
    QFile::remove(folder_.filePath(Text("Varnel")));
    EXPECT_TRUE(store.Settle().isEmpty());
    EXPECT_EQ(Open()->Get(Text("a"), Text("b"), {}), Text("c")) << "what failed is tried again";
}

}  // namespace
}  // namespace varnel
