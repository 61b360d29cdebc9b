// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_checks.h"

#include <gtest/gtest.h>

#include <QDir>

#include "pipeline/conversion/batch_summary.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::FisheyePhoto;
using testing::Text;

TEST(FolderError, TellsMissingUnwritableAndNoFolder) {
    const testing::PictureFolder files;
    EXPECT_EQ(FolderError(files.Path({})), QString());
    EXPECT_TRUE(QDir(files.Path({})).isEmpty(QDir::Files | QDir::Hidden));
    EXPECT_EQ(FolderError(Text("/no/such")), Text("The folder /no/such does not exist"));
    const QString file = files.Text(Text("file"));
    EXPECT_EQ(FolderError(file), file + Text(" is not a folder"));
#ifdef Q_OS_LINUX  // where not even root can make a file
    EXPECT_TRUE(FolderError(Text("/proc"))
                    .startsWith(Text("Nothing can be written into the folder /proc (")));
#endif
}

TEST(BatchChecks, CountNamesThatCollideOrLieThereAlready) {
    const testing::PictureFolder files;
    files.Text(Text("b.Varnel.TIF"));
    files.Text(Text("c.Varnel.TIF"));
    RecordArray<ImageRecord> queue;
    for (const char* name : {"a.jpg", "a.tif", "b.jpg", "c.jpg", "a.bmp", "c.png"}) {
        queue.Append(FisheyePhoto({}, Text(name)));
    }
    BatchChoices choices{files.Path({}) + u'/', {}, OutputType::Tiff, 90};
    EXPECT_EQ(CollidingNames(queue, choices), 2);
    EXPECT_EQ(ExistingNames(queue, choices), 2);
    queue(4).NameSuffix = Text("Morph0001");
    queue(3).EffectVarnel = 1e30F;  // has no name and counts for nothing
    EXPECT_EQ(CollidingNames(queue, choices), 1);
    EXPECT_EQ(ExistingNames(queue, choices), 1);
    choices.type = OutputType::Png;
    EXPECT_EQ(ExistingNames(queue, choices), 0);
    EXPECT_EQ(NamesText(0, 0), QString());
    EXPECT_EQ(NamesText(2, 1),
              Text("2 names collide: of the images of one name only the last one stays. "
                   "1 file in this folder will be replaced."));
}

TEST(BatchChecks, RawFilesWithTheirJpegsKeepTheirEndings) {
    RecordArray<ImageRecord> queue;
    for (const char* name : {"a.nef", "a.JPG", "b.nef", "c.jpg"}) {
        queue.Append(FisheyePhoto(Text("/in"), Text(name)));
    }
    BatchChoices choices{Text("/out"), {}, OutputType::Tiff, 90};
    EXPECT_EQ(CollidingNames(queue, choices), 1);
    choices.paired = PairedPhotos(queue);
    EXPECT_EQ(CollidingNames(queue, choices), 0);
    const char* const names[] = {"a.nef.Varnel.TIF", "a.JPG.Varnel.TIF", "b.Varnel.TIF",
                                 "c.Varnel.TIF"};
    for (int entry = 1; entry <= 4; ++entry) {
        EXPECT_EQ(BatchPath(queue(entry), choices), Text("/out/") + Text(names[entry - 1]));
    }
}

TEST(BatchChecks, WarnOnlyWhenTheSpaceIsShort) {
    RecordArray<ImageRecord> queue;
    queue.Append(FisheyePhoto({}, Text("a.jpg")));
    queue(1).Width = 6000;
    queue(1).Height = 4000;
    queue.Append(queue(1));
    // 48 million pixels; JPEG 90 is half way between 0.36 and 0.61 bytes a pixel.
    const std::pair<BatchChoices, qint64> rows[] = {
        {{{}, {}, OutputType::Bmp, 0}, 144'000'000},
        {{{}, {}, OutputType::Jpeg, 90}, 23'280'000},
        {{{}, {}, OutputType::Jpeg, 1}, 9'120'000},
        {{{}, {}, OutputType::Jpeg, 90, true}, 27'936'000},
        {{{}, {}, OutputType::Png, 90, true}, 96'000'000}};
    for (const auto& [choices, bytes] : rows) {
        EXPECT_EQ(ExpectedBytes(queue, choices), bytes);
    }
    EXPECT_EQ(SpaceWarning(144'000'000, 144'000'000), QString());
    EXPECT_EQ(SpaceWarning(144'000'000, -1), QString());
    EXPECT_EQ(SpaceWarning(144'000'000, 1'500'000),
              Text("The images may need up to 144.0 MB, but only 1.5 MB are free there."));
    EXPECT_GT(FreeBytes(QDir::tempPath()), 0);
    EXPECT_LT(FreeBytes(Text("/no/such")), 0);
}

TEST(TimeLeftText, WaitsForAPaceAndGetsCoarserWithTime) {
    const struct {
        double seconds, done;
        const char* text;
    } rows[] = {{2.0, 0.5, ""},
                {10.0, 0.0, ""},
                {10.0, 1.0, ""},
                {10.0, 0.5, "about 10 seconds left"},
                {11.0, 0.5, "about 15 seconds left"},
                {60.0, 0.5, "about 1 minute left"},
                {120.0, 0.5, "about 2 minutes left"},
                {600.0, 0.1, "about 1.5 hours left"}};
    for (const auto& row : rows) {
        EXPECT_EQ(TimeLeftText(row.seconds, row.done), Text(row.text)) << row.seconds;
    }
}

TEST(QueueLine, NamesFileProjectionAndFrame) {
    ImageRecord entry = FisheyePhoto({}, Text("IMG_1.jpg"), Projection::Rectilinear);
    EXPECT_EQ(QueueLine(entry), Text("IMG_1.jpg (Rectilinear)"));
    entry.NameSuffix = Text("Morph0012");
    EXPECT_EQ(QueueLine(entry), Text("IMG_1.jpg (Rectilinear, Morph 0012)"));
}

}  // namespace
}  // namespace varnel
