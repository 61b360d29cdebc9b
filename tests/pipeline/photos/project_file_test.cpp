// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/project_file.h"

#include <gtest/gtest.h>

#include <QDir>

#include "state/adjustments/record_fields.h"
#include "tests/support/contents.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Every field, numbers bit by bit.
QStringList Fields(const ImageRecord& image) {
    QStringList texts;
    for (const QString& name : FieldNames()) {
        texts.append(name + u'=' + FieldText(image, name));
    }
    for (const auto& [name, value] : image.FurtherSettings.asKeyValueRange()) {
        texts.append(name + u'=' + value);
    }
    return texts;
}

RecordArray<ImageRecord> SomePhotos(const QString& folder) {
    RecordArray<ImageRecord> images;
    ImageRecord image = testing::FisheyeRecord();
    image.Folder = folder;
    image.FileName = Text("a.bmp");
    image.SettingsApplied = true;
    image.Width = 4000;
    image.Height = 3000;
    image.Orientation = 6;
    image.Projection = 1;
    image.OfsetX = 0.1F;
    image.RotateY = -0.0F;
    image.EffectRectilinear = 1.0F / 3.0F;
    image.FurtherSettings.insert(Text("Sparkle"), Text("a=b \\ ü"));
    images.Append(image);
    image = ImageRecord();  // never looked at
    image.Folder = folder + Text("/sub folder");
    image.FileName = Text(" =[Photo]\n\\ 日本\u2028 ");
    images.Append(image);
    image = testing::FisheyeRecord();
    image.Folder = Text("/elsewhere");
    image.FileName = Text("#c.jpg");
    image.NameSuffix = Text("Morph0001");
    image.GearName = Text("gear & \"more\"");
    images.Append(image);
    image.Folder = QString();  // the root
    images.Append(image);
    return images;
}

TEST(ProjectFile, ComesBackBitByBitWithWhateverLineEnds) {
    const testing::PictureFolder folder;
    folder.Picture(Text("a.bmp"), OutputType::Bmp);
    const QString here = QFileInfo(folder.Path(Text("a.bmp"))).absolutePath();
    const RecordArray<ImageRecord> images = SomePhotos(here);
    const QString path = folder.Path(Text("x.varnel"));
    ASSERT_TRUE(WriteProject(path, images));
    const QByteArray text = testing::Contents(path);
    EXPECT_TRUE(text.startsWith("Varnel project 1\n"));
    EXPECT_FALSE(text.contains(here.toUtf8()));
    EXPECT_TRUE(text.contains("SourceFolder=sub folder\n"));
    for (const char* const end : {"\n", "\r\n", "\r"}) {
        const ReadProject read =
            ProjectFromText("\xEF\xBB\xBF" + QByteArray(text).replace('\n', end), here);
        ASSERT_EQ(read.error, QString());
        EXPECT_EQ(read.notes, QStringList());
        EXPECT_EQ(read.missing.size(), 3);
        EXPECT_EQ(read.missing.value(2), Text("/#c.jpg"));
        ASSERT_EQ(read.images.UpperBound(), 4);
        for (int n = 1; n <= 4; ++n) {
            EXPECT_EQ(Fields(read.images(n)), Fields(images(n)));
        }
    }
    // Moved together with its photos.
    const ReadProject moved = ProjectFromText(text, Text("/moved"));
    EXPECT_EQ(moved.images(1).Folder, Text("/moved"));
    EXPECT_EQ(moved.images(3).Folder, Text("/elsewhere"));
}

TEST(ProjectFile, FilmsKeepTheirKeysAndPhotosHaveNoLineMore) {
    RecordArray<ImageRecord> images;
    ImageRecord film = testing::FisheyePhoto(Text("/p"), Text("a.mp4"));
    film.Film = FilmCourse{0.5, 12.25, {{1.0 / 3.0, KeyEase::Ease, {{Text("RotateY"), 0.1F}}}}};
    images.Append(film);
    film.Film = FilmCourse();
    images.Append(film);
    images.Append(testing::FisheyePhoto(Text("/p"), Text("a.jpg")));
    const QByteArray text = ProjectText(images, Text("/p"));
    const ReadProject read = ProjectFromText(text, Text("/p"));
    EXPECT_EQ(read.notes, QStringList());
    ASSERT_EQ(read.images.UpperBound(), 3);
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(read.images(n).Film, images(n).Film);
    }
    EXPECT_EQ(text.count("Film"), 4);
    QByteArray damaged = text;
    damaged.replace("\"ease\":\"ease\"", "\"ease\":\"odd\"");
    const ReadProject rest = ProjectFromText(damaged, Text("/p"));
    EXPECT_EQ(rest.notes, QStringList{Text("/p/a.mp4: the setting FilmKeys cannot be used")});
    EXPECT_EQ(rest.images(1).Film, (FilmCourse{0.5, 12.25, {}}));
}

TEST(ProjectFile, SaysWhatIsWrongWithADamagedOrNewerOne) {
    const QByteArray good = "Varnel project 1\nPhotos=1\n\n[Photo]\nSource=a.jpg\n\n[End]\n";
    ASSERT_EQ(ProjectFromText(good, Text("/p")).images.UpperBound(), 1);
    const struct {
        QByteArray part, instead;
        const char* error;
    } rows[] = {{"project 1", "project 2", "a newer version of Varnel wrote it"},
                {"project 1", "project 0", "it is damaged: line 1 cannot be read"},
                {"Varnel", "Barnel", "it is not a Varnel project"},
                {"Photos=1", "Photos=-1", "it is damaged: line 2 cannot be read"},
                {"Photos=1", "Photos=2", "it is damaged: it should hold 2 photos and holds 1"},
                {"[End]\n", "", "it is damaged: its end is missing"},
                {"Source", "nonsense", "it is damaged: line 7 cannot be read"},
                {"=a.jpg", "=a\\00zz.jpg", "it is damaged: line 5 cannot be read"},
                {"=a.jpg", "=../a.jpg", "it is damaged: line 5 cannot be read"},
                {"[Photo]", "[Phota]", "it is damaged: line 4 cannot be read"},
                {"a.jpg", "\xFF.jpg", "it is not a text file"}};
    for (const auto& row : rows) {
        const ReadProject read =
            ProjectFromText(QByteArray(good).replace(row.part, row.instead), Text("/p"));
        EXPECT_EQ(read.error, Text(row.error));
        EXPECT_TRUE(read.images.Empty());
    }
    EXPECT_FALSE(OpenProject(Text("/no/such.varnel")).error.isEmpty());
}

TEST(ProjectFile, EveryCutIsFoundOut) {
    const QByteArray text = ProjectText(SomePhotos(Text("/p")), Text("/p"));
    for (qsizetype length = 0; length < text.size() - 1; ++length) {
        EXPECT_NE(ProjectFromText(text.left(length), Text("/p")).error, QString()) << length;
    }
}

TEST(ProjectFile, RefusesHostileValuesAndKeepsTheRest) {
    const ReadProject read = ProjectFromText(
        "Varnel project 1\nPhotos=1\n[Photo]\nSource=a.jpg\nSourceFolder=/p\nRotateX=nan\n"
        "RotateY=1e30\nRotateZ=7\nWidth=-4\nHeight=40000\nOrientation=9\nNameSuffix=../x\n"
        "SettingsApplied=perhaps\nLater=kept\n[End]\n",
        Text("/p"));
    EXPECT_EQ(read.error, QString());
    EXPECT_EQ(read.notes.size(), 7);
    const ImageRecord& image = read.images(1);
    EXPECT_EQ(image.RotateX, 0.0F);
    EXPECT_EQ(image.RotateY, 0.0F);
    EXPECT_EQ(image.RotateZ, 7.0F);
    EXPECT_EQ(image.Width, 0);
    EXPECT_EQ(image.Orientation, 1);
    EXPECT_EQ(image.NameSuffix, QString());
    EXPECT_EQ(image.FurtherSettings.value(Text("Later")), Text("kept"));
}

TEST(RecentProjects, TheLatestComesFirstAndEightStay) {
    MemoryStore store;
    for (const char* const name : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "3"}) {
        NoteRecentProject(Text(name), store);
    }
    EXPECT_EQ(RecentProjects(store).join(u' '), Text("3 9 8 7 6 5 4 2"));
}

}  // namespace
}  // namespace varnel
