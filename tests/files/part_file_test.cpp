// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/part_file.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cerrno>

#include "base/error_text.h"
#include "files/file_operations.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::NamesIn;
using testing::WriteFile;

// Step n fails.
class OneFails : public FileOperations {
  public:
    explicit OneFails(int n) : n_(n) {}
    int Create(const QByteArray& name, unsigned permissions) override {
        return Fails() ? -1 : FileOperations::Create(name, permissions);
    }
    qint64 Write(int file, const char* bytes, qint64 length) override {
        return Fails() ? -1 : FileOperations::Write(file, bytes, std::min<qint64>(length, 4));
    }
    int Sync(int file) override { return Fails() ? -1 : FileOperations::Sync(file); }
    int Close(int file) override {
        const int closed = FileOperations::Close(file);
        return Fails() ? -1 : closed;
    }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return Fails() ? -1 : FileOperations::Rename(name, newName);
    }

  private:
    bool Fails() {
        errno = ENOSPC;
        return ++count_ == n_;
    }
    int n_;
    int count_ = 0;
};

Reason WriteIt(const QString& path, FileOperations& operations) {
    PartFile file(operations);
    Reason error = file.Open(path);
    error = error.isEmpty() ? file.Write("....new contents") : error;
    error = error.isEmpty() ? file.MoveTo(0) : error;
    error = error.isEmpty() ? file.Write("all ") : error;
    return error.isEmpty() ? file.Finish() : error;
}

TEST(PartFile, IsWholeOrTheOlderOneWhateverStepFails) {
    for (int n = 1;; ++n) {
        const QTemporaryDir folder;
        const QString target = folder.filePath(QStringLiteral("target"));
        WriteFile(target, "older");
        OneFails operations(n);
        const Reason error = WriteIt(target, operations);
        EXPECT_EQ(NamesIn(folder.path()), QStringList{QStringLiteral("target")}) << n;
        EXPECT_EQ(Contents(target), error.isEmpty() ? "all new contents" : "older") << n;
        if (error.isEmpty()) {
            EXPECT_EQ(n, 10);  // creating, five pieces, syncing, closing, renaming
            return;
        }
        EXPECT_TRUE(error.IsBy(ENOSPC)) << ErrorText(error).toStdString();
    }
}

TEST(PartFile, IsKeptWhenAsked) {
    const QTemporaryDir folder;
    FileOperations operations;
    {
        PartFile file(operations);
        ASSERT_TRUE(file.Open(folder.filePath(QStringLiteral("target"))).isEmpty());
        file.Keep();
        file.Write("some");
        EXPECT_EQ(file.Length(), 4);
        EXPECT_EQ(file.Place(), 4);
    }
    EXPECT_EQ(NamesIn(folder.path()), QStringList{QStringLiteral("target.part")});
}

TEST(PartFile, LinksAndFoldersOfItsNameAreNotItsOwn) {
    const QTemporaryDir folder;
    FileOperations operations;
    WriteFile(folder.filePath(QStringLiteral("other")), "other");
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("other")),
                            folder.filePath(QStringLiteral("target.part"))));
    EXPECT_TRUE(WriteIt(folder.filePath(QStringLiteral("target")), operations).IsBy(EEXIST));
    EXPECT_EQ(Contents(folder.filePath(QStringLiteral("other"))), "other");
}

}  // namespace
}  // namespace varnel
