// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/add_images.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "state/settings/setting_names.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(FilesIn, MatchesWithoutRegardToCaseAndSorts) {
    const QTemporaryDir folder;
    for (const char* name : {"b.JPG", "a.jpg", "c.Tif", "d.png", "e.bmp", "f.DNG", "g.tiff",
                             "h.jpeg", "i.jpg.txt", "jpg", "K.jpg", ".hidden.jpg"}) {
        testing::WriteFile(folder.filePath(Text(name)), "x");
    }
    QDir(folder.path()).mkdir(Text("folder.jpg"));
    EXPECT_EQ(FilesIn(folder.path(), photoPatterns).join(u' '),
              Text("a.jpg b.JPG c.Tif d.png e.bmp f.DNG g.tiff h.jpeg K.jpg"));
    EXPECT_EQ(FilesIn(folder.path(), anyPattern).join(u' '),
              Text("a.jpg b.JPG c.Tif d.png e.bmp f.DNG g.tiff h.jpeg i.jpg.txt jpg K.jpg"));
    EXPECT_TRUE(FilesIn(folder.filePath(Text("gone")), anyPattern).isEmpty());
}

TEST(PhotosOf, TakesFoldersWithThoseInsideAsPeopleCountAndLeavesTheHidden) {
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    for (const char* const name : {"day/IMG10.JPEG", "day/img2.tiff", "day/notes.txt", "day/.x.jpg",
                                   "day/10/a.png", "day/9/deep/b.dng", "day/.thumbs/c.jpg"}) {
        dir.mkpath(QFileInfo(Text(name)).path());
        testing::WriteFile(folder.filePath(Text(name)), "x");
    }
    dir.mkpath(Text("empty"));
    QFile::link(folder.path(), folder.filePath(Text("day/loop")));
    const auto in = [&](const QStringList& names) {
        QStringList paths;
        for (const QString& name : names) {
            paths.append(folder.filePath(name));
        }
        return paths;
    };
    const auto always = [] { return true; };
    const DroppedPhotos found = PhotosOf(in({Text("x"), Text("day"), Text("empty")}), always);
    EXPECT_EQ(found.files, in({Text("x"), Text("day/img2.tiff"), Text("day/IMG10.JPEG"),
                               Text("day/9/deep/b.dng"), Text("day/10/a.png")}));
    EXPECT_EQ(found.without, in({Text("empty")}));
    EXPECT_FALSE(found.tooMany || found.givenUp);
    EXPECT_TRUE(PhotosOf(in({Text("day")}), [] { return false; }).givenUp);
}

TEST(ChooseStartPlace, IsTheLastFolderUnlessThereIsNothingInIt) {
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    dir.mkpath(Text("full/inner"));
    dir.mkpath(Text("empty"));
    testing::WriteFile(folder.filePath(Text("file")), "x");
    const QString full = folder.filePath(Text("full"));
    const struct {
        QString last;
        QString folder;
    } cases[] = {{full, full},
                 {full + u'/', full},
                 {folder.filePath(Text("empty")), QDir::rootPath()},
                 {folder.filePath(Text("gone")), QDir::rootPath()},
                 {folder.filePath(Text("file")), QDir::rootPath()},
                 {Text("relative"), QDir::rootPath()},
                 {QDir::rootPath(), QDir::rootPath()}};
    for (const auto& c : cases) {
        MemoryStore store;
        store.Save(setting::LastUsed, setting::LastDrive, Text("/media/card"));
        store.Save(setting::LastUsed, setting::LastPath, c.last);
        const StartPlace place = ChooseStartPlace(store, Text("/nowhere"));
        EXPECT_EQ(place.folder, c.folder) << c.last.toStdString();
        const bool kept = c.folder == full || c.last == QDir::rootPath();
        EXPECT_EQ(place.drive, kept ? Text("/media/card") : Text("/")) << c.last.toStdString();
    }
    EXPECT_EQ(ChooseStartPlace(MemoryStore(), full).folder, full) << "the first run";
    EXPECT_EQ(ChooseStartPlace(MemoryStore(), full).drive, full) << "the first run";
}

TEST(SaveStartPlace, IsFoundAgain) {
    MemoryStore store;
    SaveStartPlace(store, {Text("/mnt"), QDir::tempPath()});
    EXPECT_EQ(store.Get(Text("Settings"), Text("LastDrive"), {}), Text("/mnt"));
    EXPECT_EQ(store.Get(Text("Settings"), Text("LastPath"), {}), QDir::tempPath());
}

TEST(AppendImages, FillsFolderAndNameOnlyAndKeepsWhatIsThere) {
    RecordArray<ImageRecord> images;
    AppendImages(images, Text("/photos"), {Text("a.jpg"), Text("b.jpg")});
    AppendImages(images, Text("/photos/"), {Text("a.jpg")});
    AppendImages(images, Text("/"), {Text("r.png")});
    ASSERT_EQ(images.UpperBound(), 4);
    ImageRecord expected;
    expected.Folder = Text("/photos");
    expected.FileName = Text("a.jpg");
    EXPECT_EQ(images(1), expected);
    EXPECT_EQ(images(2).FileName, Text("b.jpg"));
    images(1).Projection = 2;
    EXPECT_EQ(images(3), expected) << "the same file again is a record of its own";
    EXPECT_EQ(images(4).Folder, Text(""));
    EXPECT_EQ(SourcePath(images(4)), Text("/r.png"));
}

TEST(AppendFiles, SplitsAbsolutePaths) {
    RecordArray<ImageRecord> images;
    AppendFiles(images, {Text("/a b/c.d/ä.JPG"), Text("/folder/"), Text("/r.png")});
    ASSERT_EQ(images.UpperBound(), 2);
    EXPECT_EQ(images(1).Folder, Text("/a b/c.d"));
    EXPECT_EQ(images(1).FileName, Text("ä.JPG"));
    EXPECT_EQ(images(2).Folder, Text(""));
    EXPECT_EQ(images(2).FileName, Text("r.png"));
}

}  // namespace
}  // namespace varnel
