// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/settings_from_picture.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "state/adjustments/picture_settings.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class Likenesses : public ::testing::Test {
  protected:
    void SetUp() override {
        QDir(files.Path({})).mkdir(Text("photos"));
        QDir(files.Path({})).mkdir(Text("results"));
        record.Folder = files.Path(Text("photos"));
        record.FileName = Text("a & b.jpg");
        record.RotateY = -7.3F;
        record.GearName = Text("Gear \"ä\" <写真>");
        record.FurtherSettings = {{Text("Softness"), Text("3")}};
        files.Picture(Text("photos/a & b.jpg"), OutputType::Jpeg);
    }
    // A picture that was made of the record.
    QString Result(const char* name, OutputType type) {
        const BitmapHandle bitmap = testing::PositionPicture({60, 40});
        NoteSettings(bitmap.get(), record, true, files.Path(Text(name)));
        EXPECT_TRUE(SaveBitmap(type, bitmap.get(), files.Path(Text(name))));
        return files.Path(Text(name));
    }
    AddedFiles Add(const QStringList& paths) {
        images.Clear();
        PhotoLoader photos(testing::Reader());
        return AppendFilesOrSources(images, paths, photos);
    }

    testing::PictureFolder files;
    ImageRecord record = testing::FisheyeRecord();
    RecordArray<ImageRecord> images;
};

TEST_F(Likenesses, ThePhotoComesWithTheSettingsOfItsPictureFromEveryType) {
    const struct {
        const char* name;
        OutputType type;
    } cases[] = {{"results/a.JPG", OutputType::Jpeg},
                 {"results/a.tif", OutputType::Tiff},
                 {"a.png", OutputType::Png}};
    record.SettingsApplied = true;
    for (const auto& c : cases) {
        const QString other = files.Picture(Text("other.jpg"), OutputType::Jpeg);
        const AddedFiles added = Add({other, Result(c.name, c.type)});
        EXPECT_EQ(added.like.keys(), QList<int>{2}) << c.name;
        EXPECT_TRUE(added.missing.isEmpty() && added.notes.isEmpty()) << c.name;
        ImageRecord expected = record;
        expected.Landscape = false;  // known when the photo is loaded
        ASSERT_EQ(images.UpperBound(), 2);
        EXPECT_EQ(SourcePath(images(1)), other);
        EXPECT_TRUE(images(2) == expected) << c.name;
    }
}

TEST_F(Likenesses, APhotoThatWasMovedIsFoundBesideThePictureOrMissed) {
    const QString result = Result("results/r.jpg", OutputType::Jpeg);
    QFile::rename(SourcePath(record), files.Path(Text("results/a & b.jpg")));
    EXPECT_EQ(Add({result}).like.keys(), QList<int>{1});
    EXPECT_EQ(images(1).Folder, files.Path(Text("results")));
    QFile::remove(files.Path(Text("results/a & b.jpg")));
    const AddedFiles added = Add({result});
    EXPECT_EQ(added.like.keys(), QList<int>{});
    EXPECT_EQ(added.missing, QStringList{Text("r.jpg: ") + SourcePath(record)});
    ImageRecord ordinary;
    ordinary.Folder = files.Path(Text("results"));
    ordinary.FileName = Text("r.jpg");
    EXPECT_TRUE(images(1) == ordinary);
    // Under its photo's name the picture is not its own photo.
    QFile::rename(result, files.Path(Text("results/a & b.jpg")));
    EXPECT_EQ(Add({files.Path(Text("results/a & b.jpg"))}).missing.size(), 1);
}

// (3, -5) on a photo turned clockwise is (-5, -3) on the photo as it is stored.
TEST_F(Likenesses, TheCentreComesAsThePhotoIsTurnedNowAndGapsAreFilled) {
    const struct {
        PictureSettings settings;
        float x, y;
    } cases[] = {{{{Text("Orientation"), Text("6")}}, -5, -3},
                 {{{Text("Orientation"), Text("1")}}, 3, -5},
                 {{}, 3, -5}};
    const QString picture = files.Path(Text("results/r.tif"));
    for (const auto& c : cases) {
        PictureSettings settings = c.settings;
        settings.insert({{Text("Source"), record.FileName},
                         {Text("SourceFolder"), Text("../photos")},
                         {Text("OfsetX"), Text("3")},
                         {Text("OfsetY"), Text("-5")},
                         {Text("InputAOV"), Text("150")}});
        const BitmapHandle bitmap = testing::PositionPicture({60, 40});
        bitmap->metadata.settings = settings;
        SaveBitmap(OutputType::Tiff, bitmap.get(), picture);
        ASSERT_EQ(Add({picture}).like.keys(), QList<int>{1});
        const ImageRecord& image = images(1);
        EXPECT_EQ(SourcePath(image), SourcePath(record));
        EXPECT_EQ(image.Orientation, 1);
        EXPECT_EQ(image.OfsetX, c.x);
        EXPECT_EQ(image.OfsetY, c.y);
        EXPECT_EQ(image.EffectVarnel, 100.0F);
        EXPECT_EQ(image.OutputAOV, 130.0F);
    }
}

TEST_F(Likenesses, AfterGivingUpTheOtherFilesAreAddedAsTheyAre) {
    class OneTurn : public ReadingWait {
      public:
        bool Continue() override { return false; }
    } wait;
    const QString result = Result("results/r.png", OutputType::Png);
    PhotoLoader photos(testing::Reader(), &wait);
    const AddedFiles added =
        AppendFilesOrSources(images, {files.Path(Text("c.bmp")), result}, photos);
    EXPECT_EQ(added.like.keys(), QList<int>{});
    EXPECT_EQ(images.UpperBound(), 2);
    EXPECT_EQ(images(2).FileName, Text("r.png"));
}

}  // namespace
}  // namespace varnel
