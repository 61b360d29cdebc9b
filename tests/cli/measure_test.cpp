// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A lens measured by the command line.

#include <gtest/gtest.h>

#include <QFileInfo>
#include <sstream>

#include "cli/convert.h"
#include "gear/lens/lens_file.h"
#include "tests/support/files.h"
#include "tests/support/room_shot.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

QString RoomPhoto(const testing::PictureFolder& files) {
    const BitmapHandle picture = testing::RoomShot();
    QString photo = files.Path(Q("room.png"));
    SaveBitmap(OutputType::Png, picture.get(), photo);
    return photo;
}

class MeasureCommand : public ::testing::Test {
  protected:
    int Run(const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return RunConvert(QStringList{Q("varnel-convert"), Q("--measure-lens"), lens_} + arguments,
                          store_, {out_, err_, false});
    }
    bool ErrorHas(const char* text) const { return err_.str().find(text) != std::string::npos; }

    bool OutHas(const char* text) const { return out_.str().find(text) != std::string::npos; }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
    const QString lens_ = files_.Path(Q("mine.json"));
};

TEST_F(MeasureCommand, WritesTheLensOfAPhoto) {
    const QString photo = RoomPhoto(files_);
    EXPECT_EQ(Run({photo}), exitAllWritten) << err_.str();
    EXPECT_NE(out_.str().find("angles not fixed"), std::string::npos);
    const LensReading read = ReadLensFile(lens_);
    ASSERT_TRUE(read.lens);
    EXPECT_EQ(read.lens->name, Q("mine"));
    EXPECT_EQ(read.lens->origin.photos, QStringList{Q("room.png")});
    ASSERT_TRUE(read.lens->centre);
    EXPECT_NEAR(read.lens->centre->x, 600.5, 2.0);
    ASSERT_TRUE(read.lens->pixelsPerUnit);
    EXPECT_NEAR(*read.lens->pixelsPerUnit, 550.0, 6.0) << "the circle's radius";
    EXPECT_EQ(Run({photo}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("--force"));
    EXPECT_EQ(Run({Q("--focal=8"), Q("--force"), photo}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("size of the sensor"));
    // It is as good as can be told, as is said of it when it is the start.
    EXPECT_EQ(Run({Q("--lens-file"), lens_, Q("--force"), photo}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("no better lens")) << err_.str();
    EXPECT_EQ(Run({Q("--lens-file"), photo, Q("--force"), photo}), exitSomeFailed);
    std::atomic<int> stop = 15;
    EXPECT_EQ(RunConvert({Q("varnel-convert"), Q("--measure-lens"), lens_, Q("--force"), photo},
                         store_, {.out = out_, .err = err_, .bar = false, .stop = &stop}),
              exitStopped + 15);
}

TEST_F(MeasureCommand, StraightensThePhotosThatTellOfTheirLens) {
    const QString photo = RoomPhoto(files_);
    const auto convert = [&](const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return RunConvert(QStringList{Q("varnel-convert"), Q("--json"), Q("--straighten"),
                                      Q("--force"), Q("--type=bmp")} +
                              arguments,
                          store_, {out_, err_, false});
    };
    EXPECT_EQ(convert({Q("--gear=guess"), photo}), exitAllWritten) << err_.str();
    EXPECT_TRUE(OutHas("\"gear_source\":\"measured\"")) << out_.str();
    EXPECT_TRUE(OutHas("My lenses measured from room.png"));
    EXPECT_TRUE(OutHas("\"uncertain\":[\"curve\"]")) << "angles not fixed";
    EXPECT_TRUE(ErrorHas("expected bend"));
    const QString plain = files_.Picture(Q("plain.bmp"), OutputType::Bmp);
    EXPECT_EQ(convert({Q("--gear=guess"), plain}), exitAllWritten);
    EXPECT_TRUE(OutHas("\"gear_source\":\"guess\""));
    EXPECT_TRUE(ErrorHas("too few straight edges"));
}

TEST_F(MeasureCommand, WritesNothingWhenSomethingIsWrong) {
    const QString plain = files_.Picture(Q("plain.bmp"), OutputType::Bmp);
    EXPECT_EQ(Run({plain}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("too few straight edges")) << err_.str();
    EXPECT_EQ(Run({files_.Path(Q("none.jpg"))}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("none.jpg"));
    EXPECT_EQ(Run({}), exitUsage);
    EXPECT_EQ(Run({Q("--focal=0"), plain}), exitUsage);
    EXPECT_FALSE(QFileInfo::exists(lens_));
}

}  // namespace
}  // namespace varnel
