// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/likeness.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "pipeline/batch_run.h"
#include "state/picture_settings.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Likenesses : public ::testing::Test {
  protected:
    void SetUp() override {
        QDir(files.Path({})).mkdir(Q("photos"));
        QDir(files.Path({})).mkdir(Q("results"));
        record.Folder = files.Path(Q("photos"));
        record.FileName = Q("a & b.jpg");
        record.RotateY = -7.3F;
        record.GearName = Q("Gear \"ä\" <写真>");
        record.FurtherSettings = {{Q("Softness"), Q("3")}};
        files.Picture(Q("photos/a & b.jpg"), FIF_JPEG);
    }
    // A picture that was made of the record.
    QString Result(const char* name, FREE_IMAGE_FORMAT format) {
        const BitmapHandle bitmap = testing::PositionPicture({60, 40});
        NoteSettings(bitmap.get(), record, true, files.Path(Q(name)));
        EXPECT_TRUE(SaveBitmap(format, bitmap.get(), files.Path(Q(name)), 0));
        return files.Path(Q(name));
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
        FREE_IMAGE_FORMAT format;
    } cases[] = {{"results/a.JPG", FIF_JPEG}, {"results/a.tif", FIF_TIFF}, {"a.png", FIF_PNG}};
    record.SettingsApplied = true;
    for (const auto& c : cases) {
        const QString other = files.Picture(Q("other.jpg"), FIF_JPEG);
        const AddedFiles added = Add({other, Result(c.name, c.format)});
        EXPECT_EQ(added.like, 2) << c.name;
        EXPECT_TRUE(added.missing.isEmpty() && added.notes.isEmpty()) << c.name;
        ImageRecord expected = record;
        expected.Landscape = false;  // known when the photo is loaded
        ASSERT_EQ(images.UpperBound(), 2);
        EXPECT_EQ(SourcePath(images(1)), other);
        EXPECT_TRUE(images(2) == expected) << c.name;
    }
}

TEST_F(Likenesses, APhotoThatWasMovedIsFoundBesideThePictureOrMissed) {
    const QString result = Result("results/r.jpg", FIF_JPEG);
    QFile::rename(SourcePath(record), files.Path(Q("results/a & b.jpg")));
    EXPECT_EQ(Add({result}).like, 1);
    EXPECT_EQ(images(1).Folder, files.Path(Q("results")));
    QFile::remove(files.Path(Q("results/a & b.jpg")));
    const AddedFiles added = Add({result});
    EXPECT_EQ(added.like, 0);
    EXPECT_EQ(added.missing, QStringList{Q("r.jpg: ") + SourcePath(record)});
    ImageRecord ordinary;
    ordinary.Folder = files.Path(Q("results"));
    ordinary.FileName = Q("r.jpg");
    EXPECT_TRUE(images(1) == ordinary);
    // Under its photo's name the picture is not its own photo.
    QFile::rename(result, files.Path(Q("results/a & b.jpg")));
    EXPECT_EQ(Add({files.Path(Q("results/a & b.jpg"))}).missing.size(), 1);
}

// (3, -5) on a photo turned clockwise is (-5, -3) on the photo as it is stored.
TEST_F(Likenesses, TheCentreComesAsThePhotoIsTurnedNowAndGapsAreFilled) {
    const struct {
        PictureSettings settings;
        float x, y;
    } cases[] = {
        {{{Q("Orientation"), Q("6")}}, -5, -3}, {{{Q("Orientation"), Q("1")}}, 3, -5}, {{}, 3, -5}};
    const QString picture = files.Path(Q("results/r.tif"));
    for (const auto& c : cases) {
        PictureSettings settings = c.settings;
        settings.insert({{Q("Source"), record.FileName},
                         {Q("SourceFolder"), Q("../photos")},
                         {Q("OfsetX"), Q("3")},
                         {Q("OfsetY"), Q("-5")},
                         {Q("InputAOV"), Q("150")}});
        const BitmapHandle bitmap = testing::PositionPicture({60, 40});
        SetSettings(bitmap.get(), settings);
        SaveBitmap(FIF_TIFF, bitmap.get(), picture, 0);
        ASSERT_EQ(Add({picture}).like, 1);
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
    const QString result = Result("results/r.png", FIF_PNG);
    PhotoLoader photos(testing::Reader(), &wait);
    const AddedFiles added = AppendFilesOrSources(images, {files.Path(Q("c.bmp")), result}, photos);
    EXPECT_EQ(added.like, 0);
    EXPECT_EQ(images.UpperBound(), 2);
    EXPECT_EQ(images(2).FileName, Q("r.png"));
}

TEST_F(Likenesses, EveryResultOfABatchCarriesTheSettingsOfItsOwnEntry) {
    class Silent : public BatchObserver {
      public:
        void Naming(const QString& /*path*/) override {}
        RenderProgress& Progress() override { return progress_; }
        void Done(int /*done*/, int /*queued*/) override {}
        bool StopAsked() override { return false; }

      private:
        SilentProgress progress_;
    } observer;
    RecordArray<ImageRecord> queue;
    queue.Append(record);
    queue.Append(record);
    queue(2).RotateY = 12.5F;
    queue(2).NameSuffix = Q("Morph0002");
    QStringList written;
    BatchPorts ports{.load = &testing::LoadPicture,
                     .save = [&](FREE_IMAGE_FORMAT, FIBITMAP* bitmap, const QString&, int) {
                         const PictureSettings settings = SettingsOf(bitmap);
                         written.append(settings.value(Q("RotateY"), Q("none")));
                         return SaveResult{true, {}};
                     }};
    BatchChoices choices{files.Path(Q("results")), {}, OutputType::Jpeg};
    RunBatch(queue, choices, observer, ports);
    choices.writeSettings = false;
    RunBatch(queue, choices, observer, ports);
    EXPECT_EQ(written.join(u' '), Q("-7.30000019 12.5 none none"));
}

}  // namespace
}  // namespace varnel
