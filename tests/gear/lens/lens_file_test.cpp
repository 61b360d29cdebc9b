// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/lens_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>

#include "base/error_text.h"
#include "gear/lens/lens_folder.h"
#include "remap/projection/lens_spline.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

SampledLens Equisolid(const char* name) {
    SampledLens lens;
    lens.name = Text(name);
    lens.knots = SampledFrom([](double a) { return 20.0 * std::sin(a / 2.0); }, 1.7).knots;
    lens.origin.source = Text("a test");
    return lens;
}

SampledLens Measured() {
    SampledLens lens = Equisolid("Fischauge \"8 mm\"");
    lens.unit = SampledLens::Unit::CircleRadii;
    lens.centre = LensCentre{3000.123456789012, 1999.1 / 3.0, {6000, 4000}};
    lens.pixelsPerUnit = 2700.1;
    lens.red = ColourShift{1e-4 / 3.0, -2e-5, 0.0};
    lens.blue = ColourShift{-1e-4, 0.0, 1e-7};
    lens.origin = {LensOrigin::Kind::Measured,
                   QDate(2024, 2, 29),
                   {Text("a.jpg"), Text("b.jpg")},
                   QString(),
                   0.37};
    return lens;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(LensFile, ComesBackToTheBit) {
    for (const SampledLens& lens : {Equisolid("8 mm"), Measured()}) {
        const LensReading reading = LensFromBytes(LensBytes(lens));
        ASSERT_TRUE(reading.lens) << ErrorText(reading.reason).toStdString();
        EXPECT_EQ(*reading.lens, lens);
    }
}

TEST(LensFile, NamesTheLineOrTheKeyThatIsWrong) {
    const struct {
        const char *from, *to, *error;
    } rows[] = {
        {"\"varnel_lens_version\": 1", "\"varnel_lens_version\": 2",
         "made by a newer version of the program"},
        {"\"varnel_lens_version\": 1", "\"x\": 1", "\"varnel_lens_version\" is missing"},
        {"\"angles_rad\"", "\"angles_deg\"", "\"angles_rad\" is missing"},
        {"        1.7\n", "        \"1.7\"\n", "\"angles_rad\" has a value that cannot be used"},
        {"        1.7\n", "        1.7, 1.8\n", "\"angles_rad\" has a value that cannot be used"},
        {"        1.7\n", "        0.1\n", "the lens's curve is not made of 16 usable points"},
        {"\"picture_width_px\": 6000", "\"picture_width_px\": 1e300",
         "\"centre.picture_width_px\" has a value that cannot be used"},
        {"\"picture_width_px\": 6000", "\"picture_width_px\": 0.5",
         "\"centre.picture_width_px\" has a value that cannot be used"},
        {"\"measured\"", "\"dreamt\"", "\"origin.kind\" has a value that cannot be used"},
        {"2024-02-29", "2023-02-29", "\"origin.date\" has a value that cannot be used"},
        {"\"name\": \"", "\"name\": \" \", \"n\": \"", "\"name\" has a value that cannot be used"},
        {"{\n    \"angles_rad\": [", "{\n    \"angles_rad\": [,", "line 2: illegal value"},
    };
    const QByteArray good = LensBytes(Measured());
    for (const auto& row : rows) {
        QByteArray bytes = good;
        bytes.replace(row.from, row.to);
        ASSERT_NE(bytes, good) << row.from;
        const LensReading reading = LensFromBytes(bytes);
        EXPECT_FALSE(reading.lens) << row.to;
        EXPECT_EQ(ErrorText(reading.reason).toStdString(), row.error);
    }
}

TEST(LensFile, IsRefusedWhenLargeOrNoFile) {
    const QTemporaryDir folder;
    const auto reason = [](const QString& path) {
        return ErrorText(ReadLensFile(path).reason).toStdString();
    };
    const QString path = folder.filePath(Text("a.json"));
    EXPECT_EQ(reason(path), path.toStdString() + ": there is no such file");
    EXPECT_EQ(reason(folder.path()), folder.path().toStdString() + ": this is no regular file");
    Write(path, LensBytes(Measured()) + QByteArray(1 << 20, ' '));
    EXPECT_EQ(reason(path), path.toStdString() + ": larger than 1 MB");
    Write(path, "[1]");
    EXPECT_EQ(reason(path), path.toStdString() + ": this is no lens file of a known kind");
}

TEST(LensFolder, ListsAddsRenamesAndDeletes) {
    const QTemporaryDir parent;
    const LensFolder folder = LensFolder::Beside(parent.filePath(Text("settings.ini")));
    EXPECT_TRUE(folder.List().entries.empty());
    EXPECT_TRUE(folder.Add(Equisolid("../a/b")).isEmpty());
    EXPECT_TRUE(folder.Add(Equisolid("../a?b")).isEmpty());
    EXPECT_TRUE(folder.Add(Equisolid("Ähnlich\n8")).isEmpty());
    EXPECT_TRUE(folder.Add(Equisolid("../a/b")).Is(ReasonCode::LensNameTaken));
    EXPECT_TRUE(folder.Add(Equisolid(" ")).Is(ReasonCode::LensNameUnusable));
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files).join(u' ').toStdString(),
              "_a_b-2.json _a_b.json Ähnlich_8.json");
    Write(folder.Path() + Text("/bad.json"), "{");

    const LensFolder::Listing listing = folder.List();
    ASSERT_EQ(listing.entries.size(), 3U);
    EXPECT_EQ(listing.reasons.size(), 1);
    EXPECT_EQ(listing.entries[2].lens->name, Text("Ähnlich 8"));
    EXPECT_EQ(folder.FreeName(Text("../a/b")), Text("../a/b (2)"));

    EXPECT_TRUE(folder.Rename(Text("../a/b"), Text("../a?b")).Is(ReasonCode::LensNameTaken));
    EXPECT_TRUE(folder.Rename(Text("../a/b"), Text("mine")).isEmpty());
    ASSERT_TRUE(folder.Find(Text("mine")));
    EXPECT_EQ(folder.Find(Text("mine"))->knots, Equisolid("").knots);
    EXPECT_FALSE(folder.Find(Text("../a/b")));
    SampledLens other = Measured();
    other.name = Text("mine");
    EXPECT_TRUE(folder.Replace(other).isEmpty());
    EXPECT_EQ(*folder.Find(Text("mine")), other);
    EXPECT_TRUE(folder.Delete(Text("mine")).isEmpty());
    EXPECT_TRUE(folder.Delete(Text("mine")).Is(ReasonCode::NoSuchLens));
    EXPECT_EQ(folder.List().entries.size(), 2U);
}

}  // namespace
}  // namespace varnel
