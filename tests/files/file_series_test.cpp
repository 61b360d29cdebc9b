// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <cerrno>
#include <chrono>
#include <future>
#include <vector>

#include "base/error_text.h"
#include "files/file_series.h"
#include "files/noting_operations.h"
#include "files/temp_names.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::NamesIn;
using testing::WriteFile;

// What was done to names, in order: "r" for a renaming, the folder's last letter for its sync.
struct Log {
    QString done;
    int failAt = 0;  // the renaming or sync that fails, from 1 on
    int count = 0;
};

class LoggingSteps : public FileOperations {
  public:
    explicit LoggingSteps(Log& log) : log_(log) {}
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return Does(u'r') ? FileOperations::Rename(name, newName) : -1;
    }
    int SyncFolder(const QByteArray& folder) override {
        return Does(QChar::fromLatin1(folder.back())) ? FileOperations::SyncFolder(folder) : -1;
    }

  private:
    bool Does(QChar what) {
        log_.done += what;
        errno = EIO;
        return ++log_.count != log_.failAt;
    }
    Log& log_;
};

// Whether each file is written at once or begun and waited for.
class Series : public ::testing::TestWithParam<bool> {
  protected:
    Series() {
        QDir(folders_.path()).mkdir(QStringLiteral("a"));
        QDir(folders_.path()).mkdir(QStringLiteral("b"));
    }
    QString Path(const char* name) const { return folders_.filePath(QString::fromUtf8(name)); }
    bool Write(const char* name) {
        return (GetParam() ? series_.Begin(Path(name), "newer").get()
                           : series_.Write(Path(name), "newer"))
            .ok;
    }

    const QTemporaryDir folders_;
    Log log_;
    FileSeries series_{std::make_shared<LoggingSteps>(log_)};
};

TEST_P(Series, SyncsAFolderAfterSixteenFilesOnLeavingItAndAtTheEnd) {
    const QString sixteen(16, u'r');
    for (int n = 0; n < 34; ++n) {
        ASSERT_TRUE(Write(QByteArray("a/" + QByteArray::number(n)).constData()));
    }
    EXPECT_EQ(log_.done, sixteen + u'a' + sixteen + QStringLiteral("arr"));
    log_.done.clear();
    EXPECT_TRUE(Write("b/0") && Write("b/0") && Write("a/0"));
    EXPECT_EQ(log_.done, QStringLiteral("arrbr"));
    EXPECT_TRUE(series_.Finish().ok);
    EXPECT_TRUE(series_.Finish().ok);  // has nothing to do
    EXPECT_EQ(log_.done, QStringLiteral("arrbra"));
    EXPECT_EQ(NamesIn(Path("a")).size(), 34);  // nothing hidden
}

TEST_P(Series, TellsAtTheEndOfTheFirstFolderWhoseNamesMayNotLast) {
    log_.failAt = 3;
    EXPECT_TRUE(Write("a/0") && Write("a/1") && Write("b/0"));
    const WriteResult end = series_.Finish();
    EXPECT_FALSE(end.ok);
    EXPECT_EQ(ErrorText(end.reason),
              Path("a") + QStringLiteral(": Input/output error (while syncing the folder)"));
    EXPECT_EQ(Contents(Path("a/1")), "newer");
    EXPECT_TRUE(series_.Finish().ok);  // told once
}

TEST_P(Series, AFailedFileCostsNeitherTheOneBeforeNorTheOneAfter) {
    WriteFile(Path("a/1"), "older");
    log_.failAt = 2;
    EXPECT_TRUE(Write("a/0"));
    EXPECT_FALSE(Write("a/1"));
    EXPECT_EQ(log_.done, QStringLiteral("rra"));
    EXPECT_FALSE(Write("none/0"));
    EXPECT_TRUE(Write("a/2"));
    EXPECT_TRUE(series_.Finish().ok);
    EXPECT_EQ(Contents(Path("a/1")), "older");
    EXPECT_EQ(NamesIn(Path("a")).join(u' '), QStringLiteral("0 1 2"));
}

TEST_P(Series, RemovesStraysOnEnteringAFolderAndAfterAFailure) {
    const QString stray = QFile::decodeName(TempName(QFile::encodeName(Path("a")), 7));
    for (const bool failed : {false, true}) {
        WriteFile(stray, "half of");
        log_.failAt = failed ? log_.count + 1 : 0;
        EXPECT_NE(Write("a/0"), failed);
        EXPECT_TRUE(Write("a/1"));
        EXPECT_FALSE(QFile::exists(stray));
    }
}

TEST_P(Series, AFileInPiecesMayBeginAnew) {
    EXPECT_TRUE(series_.Write(Path("a/1"), [](FileSink& sink) {
        EXPECT_TRUE(sink.Begin() && sink.Append("a long first attempt") && sink.PutAtStart("A"));
        EXPECT_TRUE(sink.Begin() && sink.Append("newe") && sink.Append("r") &&
                    sink.PutAtStart("N"));
        return Reason();
    }));
    EXPECT_TRUE(series_.Write(Path("a/2"), [](FileSink&) { return Reason(); }));
    EXPECT_EQ(Contents(Path("a/1")), "Newer");
    EXPECT_EQ(NamesIn(Path("a")).join(u' '), QStringLiteral("1 2"));
}

// It does not cost the older file and leaves nothing of the new one; what is thrown passes.
TEST_P(Series, AFileInPiecesThatIsNotWholeIsNone) {
    WriteFile(Path("a/1"), "older");
    const WriteResult result = series_.Write(Path("a/1"), [](FileSink& sink) {
        EXPECT_TRUE(sink.Begin() && sink.Append("half of"));
        return Reason(ReasonCode::CannotBeEncoded);
    });
    EXPECT_EQ(result.reason, Reason(ReasonCode::CannotBeEncoded));
    EXPECT_FALSE(result.ok);
    EXPECT_THROW(series_.Write(Path("a/1"),
                               [](FileSink& sink) -> Reason {
                                   EXPECT_TRUE(sink.Begin() && sink.Append("half of"));
                                   throw std::bad_alloc();
                               }),
                 std::bad_alloc);
    EXPECT_EQ(Contents(Path("a/1")), "older");
    EXPECT_EQ(NamesIn(Path("a")).join(u' '), QStringLiteral("1"));
}

INSTANTIATE_TEST_SUITE_P(, Series, ::testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Begun" : "Written"; });

// Syncing a file waits until that is allowed; the sync of one of them fails.
class GatedSteps : public FileOperations {
  public:
    GatedSteps(std::shared_future<void> gate, int failAt) : gate_(std::move(gate)), left_(failAt) {}
    int Sync(int file) override {
        gate_.wait();
        errno = EIO;
        return --left_ == 0 ? -1 : FileOperations::Sync(file);
    }

  private:
    std::shared_future<void> gate_;
    int left_;
};

TEST(BegunFiles, KeepNobodyWaitingAndGetTheirNamesInOrderOnceTheyAreSynced) {
    const QTemporaryDir folder;
    std::promise<void> open;
    const auto path = [&](int n) { return folder.filePath(QString::number(n)); };
    WriteFile(path(1), "older");
    std::vector<std::future<WriteResult>> files;
    {
        FileSeries series(std::make_shared<FileOperations>(),
                          std::make_shared<GatedSteps>(open.get_future().share(), 2));
        for (int n = 0; n < 4; ++n) {
            files.push_back(series.Begin(path(n), "newer " + QByteArray::number(n)));
        }
        EXPECT_FALSE(series.Begin(folder.path(), "x").get().ok) << "is a folder";
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("1")))
            << "before they are synced";
        EXPECT_EQ(files[0].wait_for(std::chrono::seconds(0)), std::future_status::timeout);
        open.set_value();
        EXPECT_TRUE(files[3].get().ok);  // the last: so all are done
        EXPECT_TRUE(files[0].get().ok && files[2].get().ok);
        const WriteResult failed = files[1].get();
        EXPECT_FALSE(failed.ok);
        EXPECT_EQ(ErrorText(failed.reason), QStringLiteral("Input/output error (while syncing)"));
        files.clear();
        files.push_back(series.Begin(path(9), "last"));
    }
    EXPECT_EQ(Contents(path(1)), "older");
    EXPECT_EQ(Contents(path(3)), "newer 3");
    EXPECT_EQ(Contents(path(9)), "last") << "the series' end waits for it";
    EXPECT_EQ(NamesIn(folder.path()).join(u' '), QStringLiteral("0 1 2 3 9"));
}

// "s" and "r" for each sync and renaming; the first sync tells that it is there and waits.
class GroupSteps : public FileOperations {
  public:
    int Sync(int file) override {
        done += 's';
        if (done.size() == 1) {
            there.set_value();
            open.get_future().wait();
        }
        return FileOperations::Sync(file);
    }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        done += 'r';
        return FileOperations::Rename(name, newName);
    }
    QByteArray done;
    std::promise<void> there;
    std::promise<void> open;
};

TEST(BegunFiles, ThatCameMeanwhileAreAllSyncedBeforeTheFirstIsRenamed) {
    const QTemporaryDir folder;
    const auto steps = std::make_shared<GroupSteps>();
    FileSeries series(std::make_shared<FileOperations>(), steps);
    std::vector<std::future<WriteResult>> files;
    const auto begin = [&](int n) {
        files.push_back(series.Begin(folder.filePath(QString::number(n)), "x"));
    };
    begin(0);
    series.Hurry();
    steps->there.get_future().wait();
    for (int n = 1; n <= FileSeries::filesTogether; ++n) {
        begin(n);
    }
    steps->open.set_value();
    for (auto& file : files) {
        EXPECT_TRUE(file.get().ok);
    }
    EXPECT_EQ(steps->done, "sr" + QByteArray(FileSeries::filesTogether, 's') +
                               QByteArray(FileSeries::filesTogether, 'r'));
    EXPECT_EQ(NamesIn(folder.path()).size(), FileSeries::filesTogether + 1);
}

TEST(UnfinishedFiles, AllAreRemovedWhenTheProgramIsEnded) {
    const QTemporaryDir folder;
    std::promise<void> open;
    UnfinishedFile unfinished;
    class Steps : public NotingOperations {
      public:
        Steps(UnfinishedFile& noted, std::shared_future<void> gate)
            : NotingOperations(noted), gate_(std::move(gate)) {}
        int Sync(int /*file*/) override {
            gate_.wait();
            return 0;
        }
        int Rename(const QByteArray& /*name*/, const QByteArray& /*newName*/) override {
            return 0;  // would wait for ever: the program is ended
        }
        int Remove(const QByteArray& /*name*/) override { return 0; }

      private:
        std::shared_future<void> gate_;
    };
    FileSeries series(std::make_shared<Steps>(unfinished, open.get_future().share()));
    const auto hidden = [&] { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); };
    std::vector<std::future<WriteResult>> files;
    for (int n = 0; n < 3; ++n) {
        files.push_back(series.Begin(folder.filePath(QString::number(n)), "half"));
    }
    EXPECT_EQ(hidden().size(), 3);
    unfinished.RemoveForEver();
    EXPECT_EQ(hidden(), QStringList());
    open.set_value();
}

}  // namespace
}  // namespace varnel
