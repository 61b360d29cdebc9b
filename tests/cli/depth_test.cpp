// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How deep results are, how TIFF is compressed, and photos given as raw file and as JPEG.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sstream>

#include "cli/convert.h"
#include "remap/image/ifd_reader.h"
#include "remap/image/pixel_access.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Depth : public ::testing::Test {
  protected:
    int Run(const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return RunConvert(QStringList{Q("varnel-convert"), Q("--json"), Q("--camera=Canon/EOS 5D"),
                                      Q("--lens=Sigma/EX 8 mm f:3.5")} +
                              arguments,
                          store_, {out_, err_, false, "varnel-convert"});
    }
    QList<QJsonObject> Lines() const {
        QList<QJsonObject> objects;
        for (const QByteArray& line : QByteArray::fromStdString(out_.str()).split('\n')) {
            if (!line.isEmpty()) {
                objects.append(QJsonDocument::fromJson(line).object());
            }
        }
        return objects;
    }
    bool Has(const QString& file, std::uint16_t tag) const {
        const QByteArray bytes = testing::Contents(file);
        const IfdReader reader(bytes);
        return reader.Directory(reader.First()).Find(tag) != nullptr;
    }
    // Of a TIFF file, by tag.
    std::uint64_t Number(const QString& file, std::uint16_t tag) const {
        const QByteArray bytes = testing::Contents(file);
        const IfdReader reader(bytes);
        const Ifd directory = reader.Directory(reader.First());
        return directory.Find(tag) == nullptr ? 0 : reader.Number(directory.Find(tag));
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

TEST_F(Depth, EachChoiceIsInTheFileAndInItsLine) {
    constexpr std::uint16_t compression = 259;
    constexpr std::uint16_t predictor = 317;
    const QString photo = files_.Picture(Q("a.png"), OutputType::Png);
    const struct {
        const char *options, *depth;
        unsigned compression, predictor;
    } rows[] = {{"", "8", 5, 2},
                {"--depth=8", "8", 5, 2},
                {"--depth=16", "16", 8, 2},
                {"--depth=FLOAT", "float", 8, 3},
                {"--depth=16 --tiff=lzw", "16", 5, 2},
                {"--depth=16 --tiff=zstd", "16", 50000, 2},
                {"--depth=float --tiff=none", "float", 1, 0},
                {"--tiff=deflate", "8", 8, 2},
                {"--compression=9", "8", 8, 2},
                {"--tiff=zstd --compression=1", "8", 50000, 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.options);
        const QString result = files_.Path(Q("result.tif"));
        EXPECT_EQ(Run(Q(row.options).split(u' ', Qt::SkipEmptyParts) +
                      QStringList{Q("--force"), Q("--output"), result, photo}),
                  exitAllWritten)
            << err_.str();
        EXPECT_EQ(Lines().at(0)[u"depth"].toString(), Q(row.depth));
        EXPECT_EQ(Number(result, compression), row.compression);
        EXPECT_EQ(Number(result, predictor), row.predictor);
    }
    store_.Save(Q("setting"), Q("TiffCompression"), Q("none"));
    EXPECT_EQ(Run({Q("--type=tiff"), photo}), exitAllWritten);
    EXPECT_EQ(Number(files_.Path(Q("a.Varnel.TIF")), compression), 1U);
}

// Of a photo of 8 bits, too: between its pixels lie levels that it does not have.
TEST_F(Depth, BlendsHaveTheBitsThatAreAskedFor) {
    const QString photo = files_.Picture(Q("a.png"), OutputType::Png);
    const QString result = files_.Path(Q("result.png"));
    for (const char* depth : {"16", "auto"}) {
        EXPECT_EQ(Run({Q("--force"), Q("--depth"), Q(depth), Q("--output"), result, photo}),
                  exitAllWritten)
            << err_.str();
        const LoadedPicture loaded =
            ReadPicture(testing::Reader(), {.path = result, .depth = ReadDepth::Own});
        ASSERT_TRUE(loaded.bitmap);
        int between = 0;
        if (loaded.bitmap->Format() == PixelFormat::Bgr16) {
            for (int y = 0; y < loaded.bitmap->Size().height; ++y) {
                for (std::size_t n = 0; n < loaded.bitmap->ScanLine(y).size() / 2; ++n) {
                    const auto level =
                        SampleAt<std::uint16_t>(loaded.bitmap->ScanLine(y).data(), n);
                    between += level % 257 == 0 ? 0 : 1;
                }
            }
        }
        EXPECT_EQ(between > 100, Q(depth) == Q("16")) << between;
    }
}

TEST_F(Depth, WhatATypeCannotHoldIsToldOnce) {
    QStringList photos;
    for (const char* name : {"a.png", "b.png", "c.png"}) {
        photos.append(files_.Picture(Q(name), OutputType::Png));
    }
    EXPECT_EQ(Run(QStringList{Q("--type=jpeg"), Q("--depth=16")} + photos), exitAllWritten);
    const QString said = QString::fromStdString(err_.str());
    EXPECT_EQ(said.count(u"a.Varnel.JPG: saved with 8 bits: JPEG holds no more"), 1);
    EXPECT_EQ(said.count(u"2 more: saved with 8 bits: JPEG holds no more"), 1);
    for (const QJsonObject& line : Lines()) {
        EXPECT_EQ(line[u"depth"].toString(), Q("8"));
        EXPECT_EQ(line[u"notes"].toArray().last().toString(),
                  Q("saved with 8 bits: JPEG holds no more"));
    }
    EXPECT_EQ(Run({Q("--force"), Q("--type=jpeg"), Q("--depth=8"), photos.first()}),
              exitAllWritten);
    EXPECT_EQ(err_.str(), "");
}

TEST_F(Depth, BothFilesOfAPairKeepTheirEndings) {
    const QStringList photos{files_.Picture(Q("a.cr2"), OutputType::Jpeg),
                             files_.Picture(Q("a.jpg"), OutputType::Jpeg),
                             files_.Picture(Q("b.jpg"), OutputType::Jpeg)};
    const struct {
        const char *option, *results, *said;
    } rows[] = {{"--raw-jpeg=both", "a.cr2.Varnel.TIF a.jpg.Varnel.TIF b.Varnel.TIF", ""},
                {"--raw-jpeg=RAW", "a.Varnel.TIF b.Varnel.TIF",
                 "varnel-convert: 1 JPEG left out, which the raw files stand for\n"},
                {"--raw-jpeg=jpeg", "a.Varnel.TIF b.Varnel.TIF",
                 "varnel-convert: 1 raw left out, which the JPEG files stand for\n"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Run(QStringList{Q(row.option), Q("--force"), Q("--type=tiff")} + photos),
                  exitAllWritten);
        QStringList results;
        for (const QJsonObject& line : Lines()) {
            results.append(QFileInfo(line[u"result"].toString()).fileName());
        }
        EXPECT_EQ(results.join(u' '), Q(row.results));
        EXPECT_EQ(err_.str(), row.said);
    }
}

TEST_F(Depth, RawPhotosAreDevelopedAsAsked) {
    constexpr std::uint16_t profile = 34675;
    const QString photo = files_.Path(Q("a.dng"));
    testing::WriteFile(photo, testing::RawPhoto(true, 1));
    const struct {
        const char* options;
        bool hasProfile;
        int width;
    } rows[] = {{"--raw-profile=srgb", false, 64},
                {"--raw-profile=Rec2020", true, 64},
                {"--raw-profile=adobe-rgb --raw-quick", true, 32}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.options);
        const QString result = files_.Path(Q("result.tif"));
        EXPECT_EQ(Run(Q(row.options).split(u' ') +
                      QStringList{Q("--force"), Q("--output"), result, photo}),
                  exitAllWritten)
            << err_.str();
        EXPECT_EQ(Lines().at(0)[u"depth"].toString(), Q("16"));
        EXPECT_EQ(Lines().at(0)[u"width"].toInt(), row.width);
        EXPECT_EQ(Has(result, profile), row.hasProfile);
    }
}

TEST_F(Depth, UnknownWordsAreRefused) {
    const struct {
        const char *option, *said;
    } rows[] = {{"--depth=12", "--depth needs auto, 8, 16 or float, not \"12\""},
                {"--tiff=zip", "--tiff needs auto, lzw, deflate, zstd or none, not \"zip\""},
                {"--compression=0", "--compression needs a whole number from 1 to 9, not \"0\""},
                {"--compression=10", "from 1 to 9, not \"10\""},
                {"--compression=best", "from 1 to 9, not \"best\""},
                {"--compression=9 --tiff=lzw", "--compression does not go with --tiff lzw"},
                {"--compression=9 --tiff=none", "--compression does not go with --tiff none"},
                {"--raw-jpeg=dng", "--raw-jpeg needs raw, jpeg or both, not \"dng\""},
                {"--raw-profile=p3", "--raw-profile needs srgb, adobe-rgb or rec2020"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Run(Q(row.option).split(u' ') + QStringList{Q("a")}), exitUsage);
        EXPECT_NE(err_.str().find(row.said), std::string::npos) << err_.str();
    }
}

}  // namespace
}  // namespace varnel
