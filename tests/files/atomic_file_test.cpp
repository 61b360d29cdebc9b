// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <thread>
#include <utility>
#include <vector>

#include "base/error_text.h"
#include "files/file_operations.h"
#include "files/file_series.h"
#include "files/temp_names.h"
#include "tests/files/failing_steps.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::FailingSteps;
using testing::Fault;
using testing::NamesIn;
using testing::WriteFile;

const QByteArray older = "older";
const QByteArray newer = "newer contents";

class Folder {
  public:
    QString Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QByteArray Bytes(const char* name) const { return QFile::encodeName(Path(name)); }
    QStringList Names() const { return NamesIn(folder_.path()); }
    QByteArray Saving(int n) const { return TempName(Bytes("."), n); }

  private:
    QTemporaryDir folder_;
};

unsigned Permissions(const QByteArray& name) {
    struct stat file {};
    return ::lstat(name.constData(), &file) == 0 ? file.st_mode & 0777U : 0U;
}

// At once, or piece by piece and its start at last.
enum class Way { Whole, Pieces };

WriteResult WriteNewer(const QString& path, FailingSteps& steps, Way way) {
    if (way == Way::Whole) {
        return WriteWholeFile(path, newer, steps);
    }
    FileSeries series(std::make_unique<FailingSteps>(steps));
    WriteResult written = series.Write(path, [](FileSink& sink) {
        const bool ok = sink.Begin() && sink.Append("xxxxx ") && sink.Append(newer.sliced(6)) &&
                        sink.PutAtStart(newer.first(6));
        return ok ? Reason() : sink.Error();
    });
    const WriteResult lasting = series.Finish();
    // The folder's name stands in front of the reason.
    return !written || lasting ? written
                               : WriteResult{false,
                                             {ReasonCode::WhileSyncingFolder,
                                              Reason(ReasonCode::SystemError, ENOSPC)}};
}

// The reasons of all failures, n = 1 until clean.
QSet<QString> FailEveryStep(Fault fault, const QByteArray& before, Way way) {
    const bool lasting = fault == Fault::Lasting;
    QSet<QString> reasons;
    for (int n = 1;; ++n) {
        const Folder folder;
        if (!before.isEmpty()) {
            WriteFile(folder.Path("target"), before);
            ::chmod(folder.Bytes("target").constData(), 0640);
        }
        FailingSteps steps(n, fault);
        const WriteResult result = WriteNewer(folder.Path("target"), steps, way);
        const bool inPlace = result.ok || result.reason.Is(ReasonCode::WhileSyncingFolder);
        EXPECT_EQ(Contents(folder.Path("target")), inPlace ? newer : before) << n;
        EXPECT_NE(result.ok, !result.reason.isEmpty());
        // Where the hidden file could not be removed either the next save removes it.
        EXPECT_TRUE(!lasting || WriteWholeFile(folder.Path("target"), newer).ok);
        EXPECT_EQ(folder.Names().join(u' '),
                  inPlace || lasting || !before.isEmpty() ? QStringLiteral("target") : QString());
        if (steps.Count() < n) {
            EXPECT_TRUE(result.ok);
            EXPECT_GE(n, 9);
            return reasons;
        }
        reasons.insert(ErrorText(result.reason));
    }
}

TEST(WriteWholeFile, NoFailedStepIsASuccessOrCostsTheOlderFile) {
    QSet<QString> expected{{}};  // a file system without locks is no failure
    for (const char* doing : {"creating a temporary file", "writing", "setting its permissions",
                              "syncing", "closing", "renaming", "syncing the folder"}) {
        expected.insert(
            QStringLiteral("No space left on device (while %1)").arg(QLatin1StringView(doing)));
    }
    QSet<QString> withoutOlder = expected;
    withoutOlder.remove(QStringLiteral("No space left on device (while setting its permissions)"));
    const QSet<QString> none{QString()};
    for (const Way way : {Way::Whole, Way::Pieces}) {
        EXPECT_EQ(FailEveryStep(Fault::Once, older, way), expected);
        EXPECT_EQ(FailEveryStep(Fault::Lasting, older, way), expected - none);
        EXPECT_EQ(FailEveryStep(Fault::Once, {}, way), withoutOlder);
        EXPECT_EQ(FailEveryStep(Fault::Lasting, {}, way), withoutOlder - none);
    }
}

// Whether the child was killed rather than done.
bool KilledAtStep(int n, const QString& target) {
    const pid_t child = ::fork();
    if (child == 0) {
        FailingSteps steps(n, Fault::Kill);
        WriteWholeFile(target, newer, steps);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

TEST(WriteWholeFile, KilledAtAnyStepLeavesTheOlderOrTheNewerAndAStrayThatGoes) {
    const Folder folder;
    int strays = 0;
    int n = 1;
    for (; n == 1 || Contents(folder.Path("target")) == older; ++n) {
        WriteFile(folder.Path("target"), older);
        ASSERT_TRUE(KilledAtStep(n, folder.Path("target")));
        strays += static_cast<int>(folder.Names().size()) - 1;
        ASSERT_TRUE(WriteWholeFile(folder.Path("other"), newer).ok);
        EXPECT_EQ(folder.Names().join(u' '), QStringLiteral("other target")) << n;
        QFile::remove(folder.Path("other"));
    }
    EXPECT_EQ(Contents(folder.Path("target")), newer);  // killed before the folder was synced
    EXPECT_EQ(n, 11);      // created, locked, 3 writes, permissions, synced, closed, renamed
    EXPECT_EQ(strays, 8);  // all but before the creation and after the renaming
}

// Every step is interrupted once, writes take a byte, then two ...; what cannot be done is said.
class HesitantSteps : public FileOperations {
  public:
    qint64 Write(int file, const char* bytes, qint64 length) override {
        errno = EINTR;
        ++calls_;
        return calls_ % 2 != 0 ? -1
                               : FileOperations::Write(file, bytes, std::min(length, calls_ / 2));
    }
    int SetPermissions(int /*file*/, unsigned /*permissions*/) override { return Refuse(EPERM); }
    int Sync(int file) override {
        return std::exchange(synced_, true) ? FileOperations::Sync(file) : Refuse(EINTR);
    }
    int SyncFolder(const QByteArray& /*folder*/) override { return Refuse(EINVAL); }

  private:
    int Refuse(int error) {
        errno = error;
        return -1;
    }
    qint64 calls_ = 0;
    bool synced_ = false;
};

TEST(WriteWholeFile, GoesOnAfterInterruptionsAndWithoutWhatTheFileSystemHasNot) {
    const Folder folder;
    WriteFile(folder.Path("target"), older);
    HesitantSteps steps;
    const WriteResult result = WriteWholeFile(folder.Path("target"), newer, steps);
    EXPECT_TRUE(result.ok) << ErrorText(result.reason).toStdString();
    EXPECT_EQ(Contents(folder.Path("target")), newer);
    EXPECT_EQ(Permissions(folder.Bytes("target")), 0600U);  // less open than before, never more
}

TEST(WriteWholeFile, AWriteOfNothingIsAFailureAndNoEndlessLoop) {
    class : public FileOperations {
        qint64 Write(int, const char*, qint64) override { return 0; }
    } steps;
    const Folder folder;
    EXPECT_EQ(ErrorText(WriteWholeFile(folder.Path("target"), newer, steps).reason),
              QStringLiteral("Input/output error (while writing)"));
    EXPECT_TRUE(folder.Names().isEmpty());
    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), {}, steps).ok);  // an empty file is one
}

TEST(WriteWholeFile, KeepsThePermissionsOfAnOlderFile) {
    const Folder folder;
    const mode_t before = ::umask(027);
    EXPECT_TRUE(WriteWholeFile(folder.Path("new"), newer).ok);
    EXPECT_EQ(Permissions(folder.Bytes("new")), 0640U);  // 0666 without 027
    for (const unsigned permissions : {0600U, 0644U, 0666U, 0755U}) {
        ::chmod(folder.Bytes("new").constData(), permissions);
        EXPECT_TRUE(WriteWholeFile(folder.Path("new"), newer).ok);
        EXPECT_EQ(Permissions(folder.Bytes("new")), permissions);
    }
    ::umask(before);
}

TEST(WriteWholeFile, ReplacesTheFileThatALinkLeadsTo) {
    const Folder folder;
    QDir().mkdir(folder.Path("inner"));
    WriteFile(folder.Path("inner/file"), older);
    const char* const links[][2] = {{"inner/second", "file"},
                                    {"first", "inner/second"},
                                    {"dangling", "inner/made"},
                                    {"ring", "ring"}};
    for (const auto& [name, to] : links) {
        ASSERT_EQ(::symlink(to, folder.Bytes(name).constData()), 0);
    }
    EXPECT_TRUE(WriteWholeFile(folder.Path("first"), newer).ok);
    EXPECT_EQ(Contents(folder.Path("inner/file")), newer);
    EXPECT_TRUE(WriteWholeFile(folder.Path("dangling"), newer).ok);
    EXPECT_EQ(Contents(folder.Path("inner/made")), newer);
    EXPECT_TRUE(WriteWholeFile(folder.Path("ring"), newer).reason.IsBy(ELOOP));
    for (const auto& [name, to] : links) {
        EXPECT_TRUE(QFileInfo(folder.Path(name)).isSymLink());
    }
}

TEST(WriteWholeFile, RefusesWhatIsNoFileToReplace) {
    const Folder folder;
    QDir().mkdir(folder.Path("folder"));
    WriteFile(folder.Path("file"), older);
    ASSERT_EQ(::mkfifo(folder.Bytes("pipe").constData(), 0600), 0);
    const struct {
        QString path;
        const char* reason;
    } rows[] = {
        {folder.Path("folder"), "Is a directory"},
        {folder.Path("pipe"), "Not a regular file"},
        {folder.Path("file/x"), "Not a directory"},
        {folder.Path("none/x"), "No such file or directory (while creating a temporary file)"},
        {folder.Path("new/"), "No such file or directory (while creating a temporary file)"},
        {folder.Path("x") + QChar(0) + u'y', "Invalid argument"},
        {folder.Path(QByteArray(300, 'x')), "File name too long"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ErrorText(WriteWholeFile(row.path, newer).reason).toStdString(), row.reason);
    }
    EXPECT_EQ(folder.Names().join(u' '), QStringLiteral("file folder pipe"));
    EXPECT_TRUE(WriteWholeFile(folder.Path(QByteArray(255, 'x')), newer).ok);  // the longest name
}

TEST(WriteWholeFile, RefusesWhatIsWriteProtected) {
    const Folder folder;
    const uid_t user = ::geteuid();
    constexpr uid_t anybody = 65534;  // for root nothing is write-protected
    ASSERT_TRUE(user != 0 || (::chown(folder.Bytes(".").constData(), anybody, -1) == 0 &&
                              ::seteuid(anybody) == 0));
    WriteFile(folder.Path("file"), older);
    ::chmod(folder.Bytes("file").constData(), 0400);
    EXPECT_EQ(ErrorText(WriteWholeFile(folder.Path("file"), newer).reason),
              QStringLiteral("Permission denied"));
    ::chmod(folder.Bytes(".").constData(), 0500);
    EXPECT_EQ(ErrorText(WriteWholeFile(folder.Path("new"), newer).reason),
              QStringLiteral("Permission denied (while creating a temporary file)"));
    ::chmod(folder.Bytes(".").constData(), 0700);
    EXPECT_EQ(Contents(folder.Path("file")), older);
    EXPECT_EQ(folder.Names().size(), 1);
    ASSERT_EQ(::seteuid(user), 0);
}

TEST(Strays, AreRemovedUnlessSomebodyWritesThem) {
    const Folder folder;
    const auto path = [&](int n) { return QFile::decodeName(folder.Saving(n)); };
    WriteFile(folder.Path(".varnel-saving-mine"), older);
    WriteFile(folder.Path("precious"), older);
    for (const int n : {0, 1, 31}) {
        WriteFile(path(n), older);
    }
    QDir().mkdir(path(2));
    ASSERT_EQ(::symlink("precious", folder.Saving(3).constData()), 0);
    ASSERT_EQ(::mkfifo(folder.Saving(4).constData(), 0600), 0);
    QFile written(path(1));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    ASSERT_EQ(::flock(written.handle(), LOCK_EX), 0);

    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), newer).ok);
    EXPECT_EQ(folder.Names().join(u' '),
              QStringLiteral(".varnel-saving-1 .varnel-saving-2 .varnel-saving-3 .varnel-saving-4 "
                             ".varnel-saving-mine precious target"));
    EXPECT_EQ(Contents(path(1)), older);
    written.close();
    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), newer).ok);
    EXPECT_FALSE(QFile::exists(path(1)));
}

TEST(Strays, ThatCannotBeRemovedDoNotEndSaving) {
    const Folder folder;
    for (int n = 0; n < 32; ++n) {
        QDir().mkdir(QFile::decodeName(folder.Saving(n)));
    }
    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), newer).ok);
    EXPECT_EQ(folder.Names().size(), 33);
}

// What other processes do between two operations.
class DisturbedSteps : public FileOperations {
  public:
    explicit DisturbedSteps(const Folder& folder) : folder_(folder) {}
    enum { BeforeLock, BeforeRename, Replace } moment = BeforeLock;

    int Lock(int file) override {
        if (moment == BeforeLock && ++locks == 1) {
            RemoveStrays(folder_.Bytes("."));
        }
        return FileOperations::Lock(file);
    }
    int Close(int file) override {
        const int result = FileOperations::Close(file);
        if (moment == BeforeRename) {
            RemoveStrays(folder_.Bytes("."));
        } else if (moment == Replace) {
            QFile::remove(QFile::decodeName(folder_.Saving(0)));
            WriteFile(QFile::decodeName(folder_.Saving(0)), "half of another fi");
        }
        return result;
    }
    int locks = 0;

  private:
    const Folder& folder_;
};

TEST(WriteWholeFile, IsNotDisturbedByOthersThatRemoveStrays) {
    const Folder folder;
    DisturbedSteps steps(folder);
    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), older, steps).ok);
    EXPECT_EQ(steps.locks, 2);  // the first file was gone before it was locked
    steps.moment = DisturbedSteps::BeforeRename;
    EXPECT_TRUE(WriteWholeFile(folder.Path("target"), newer, steps).ok);
    EXPECT_EQ(Contents(folder.Path("target")), newer);
    steps.moment = DisturbedSteps::Replace;
    EXPECT_EQ(ErrorText(WriteWholeFile(folder.Path("target"), older, steps).reason),
              QStringLiteral("No such file or directory (while renaming)"));
    EXPECT_EQ(Contents(folder.Path("target")), newer);
}

TEST(WriteWholeFile, OfManyWritersAtATimeOneFileStaysWhole) {
    const Folder folder;
    WriteFile(folder.Path("target"), QByteArray(70000, 'z'));
    const auto isWhole = [&] {
        const QByteArray contents = Contents(folder.Path("target"));
        return contents.size() >= 70000 && contents.count(contents.front()) == contents.size();
    };
    std::vector<std::jthread> writers;
    std::vector<int> written(10, 0);
    for (int i = 0; i < 10; ++i) {
        writers.emplace_back([&, i] {
            const QByteArray bytes(100000 + 1000 * i, static_cast<char>('a' + i));
            for (int round = 0; round < 20; ++round) {
                written[i] += WriteWholeFile(folder.Path("target"), bytes).ok ? 1 : 0;
            }
        });
    }
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(isWhole());
    }
    writers.clear();  // waits for them
    EXPECT_EQ(written, std::vector<int>(10, 20));
    EXPECT_TRUE(isWhole());
    EXPECT_EQ(folder.Names().size(), 1);
}

}  // namespace
}  // namespace varnel
