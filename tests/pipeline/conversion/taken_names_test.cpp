// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/taken_names.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(TakenNames, KnowTheSameNameThroughOtherFoldersAndLetters) {
    const testing::PictureFolder files;
    ASSERT_TRUE(QDir(files.Path({})).mkdir(Text("in")));
    ASSERT_TRUE(QFile::link(files.Path(Text("in")), files.Path(Text("linked"))));
    TakenNames names;
    const struct {
        const char* result;
        const char* photo;
        const char* taken;  // by
    } rows[] = {{"in/a.jpg", "first", ""},
                {"in/a.jpg", "second", "first"},
                {"linked/a.jpg", "third", "first"},
                {"in/A.jpg", "fourth", ""},
                {"linked/A.jpg", "fifth", "fourth"},
                {"a.jpg", "sixth", ""},
                {"in/\xC3\xA4.jpg", "seventh", ""},
                {"in/\xC3\x84.jpg", "eighth", ""},
                {"in/../in/\xC3\xA4.jpg", "ninth", "seventh"}};
    for (const auto& row : rows) {
        EXPECT_EQ(names.Take(files.Path(Text(row.result)), Text(row.photo)), Text(row.taken))
            << row.photo;
    }
    // Existing files tell whether names in other letters are one.
    const QString one = files.Text(Text("in/one.tif"));
    ASSERT_TRUE(QFile::link(one, files.Path(Text("in/ONE.tif"))));
    EXPECT_TRUE(names.Take(one, Text("small")).isEmpty());
    EXPECT_EQ(names.Take(files.Path(Text("in/ONE.tif")), Text("capital")), Text("small"));
}

TEST(TakenNames, TellTheWriterOfAFileOnceItIsWritten) {
    const testing::PictureFolder files;
    const QString plain = files.Text(Text("plain"));
    const QString behind = files.Text(Text("behind"));
    const QString link = files.Path(Text("link"));
    ASSERT_TRUE(QFile::link(behind, link));
    const QString truePlain = QFileInfo(plain).canonicalFilePath();
    const QString trueBehind = QFileInfo(behind).canonicalFilePath();
    TakenNames names;
    names.Take(plain, Text("a"));
    names.Take(link, Text("b"));
    EXPECT_TRUE(names.WriterOf(truePlain).isEmpty());
    EXPECT_TRUE(names.WriterOf(trueBehind).isEmpty());
    names.NoteWritten(plain, Text("a"));
    names.NoteWritten(link, Text("b"));
    EXPECT_EQ(names.WriterOf(truePlain), Text("a"));
    EXPECT_EQ(names.WriterOf(trueBehind), Text("b"));
    EXPECT_TRUE(names.WriterOf(files.Path(Text("other"))).isEmpty());
}

}  // namespace
}  // namespace varnel
