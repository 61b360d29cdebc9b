// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <cerrno>

#include "base/error_text.h"
#include "files/atomic_file.h"
#include "files/file_operations.h"
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

class Series : public ::testing::Test {
  protected:
    Series() {
        QDir(folders_.path()).mkdir(QStringLiteral("a"));
        QDir(folders_.path()).mkdir(QStringLiteral("b"));
    }
    QString Path(const char* name) const { return folders_.filePath(QString::fromUtf8(name)); }
    bool Write(const char* name) { return series_.Write(Path(name), "newer").ok; }

    const QTemporaryDir folders_;
    Log log_;
    FileSeries series_{std::make_unique<LoggingSteps>(log_)};
};

TEST_F(Series, SyncsAFolderAfterSixteenFilesOnLeavingItAndAtTheEnd) {
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

TEST_F(Series, TellsAtTheEndOfTheFirstFolderWhoseNamesMayNotLast) {
    log_.failAt = 3;
    EXPECT_TRUE(Write("a/0") && Write("a/1") && Write("b/0"));
    const WriteResult end = series_.Finish();
    EXPECT_FALSE(end.ok);
    EXPECT_EQ(ErrorText(end.reason),
              Path("a") + QStringLiteral(": Input/output error (while syncing the folder)"));
    EXPECT_EQ(Contents(Path("a/1")), "newer");
    EXPECT_TRUE(series_.Finish().ok);  // told once
}

TEST_F(Series, AFailedFileCostsNeitherTheOneBeforeNorTheOneAfter) {
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

TEST_F(Series, RemovesStraysOnEnteringAFolderAndAfterAFailure) {
    const QString stray = QFile::decodeName(TempName(QFile::encodeName(Path("a")), 7));
    for (const bool failed : {false, true}) {
        WriteFile(stray, "half of");
        log_.failAt = failed ? log_.count + 1 : 0;
        EXPECT_NE(Write("a/0"), failed);
        EXPECT_TRUE(Write("a/1"));
        EXPECT_FALSE(QFile::exists(stray));
    }
}

TEST_F(Series, AFileInPiecesMayBeginAnew) {
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
TEST_F(Series, AFileInPiecesThatIsNotWholeIsNone) {
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

}  // namespace
}  // namespace varnel
