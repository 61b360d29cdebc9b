// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Damaged and hostile files of every type. That this program lives to the end is the first thing
// that is tested here.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <fstream>
#include <iostream>

#include "base/error_text.h"
#include "tests/support/files.h"
#include "tests/support/seeds/bomb_files.h"
#include "tests/support/seeds/damage_tally.h"

namespace varnel {
namespace {

using testing::BombFile;
using testing::SeedFile;

constexpr int secondsPerPhoto = 5;

bool HasProfile(const LoadedPicture& picture) {
    return picture.bitmap->metadata.colourProfile == testing::ColourProfile();
}

TEST(SeedFiles, SoundOnesLoadInTheirSizeOrAreRefusedWithAReason) {
    testing::DamageTrial trial(secondsPerPhoto);
    for (const SeedFile& seed : testing::SeedFiles()) {
        const LoadedPicture picture = trial.Read(seed.bytes);
        if (seed.loads) {
            EXPECT_EQ(picture.outcome, LoadOutcome::Loaded) << seed.name;
        }
        EXPECT_EQ(picture.reason.isEmpty(), picture.outcome == LoadOutcome::Loaded)
            << seed.name << ": " << ErrorText(picture.reason).toStdString();
        if (picture.bitmap) {
            EXPECT_EQ(picture.size.width, seed.size.width) << seed.name;
            EXPECT_EQ(picture.size.height, seed.size.height) << seed.name;
            const bool described = seed.name.find("described") != std::string::npos;
            EXPECT_EQ(HasProfile(picture), described) << seed.name;
        }
    }
}

// Part 0 to 3 of 2,000 files, each with a reader of its own.
class DamagedFiles : public ::testing::TestWithParam<int> {};

TEST_P(DamagedFiles, GetAnAnswerInTimeAndLeaveTheReaderSound) {
    constexpr int files = 500;
    testing::DamageTrial trial(secondsPerPhoto);
    const QByteArray& good = testing::SeedFiles().front().bytes;
    const LoadedPicture first = trial.Read(good);
    ASSERT_EQ(first.outcome, LoadOutcome::Loaded) << ErrorText(first.reason).toStdString();
    for (int i = 0; i < files; ++i) {
        const auto file = testing::MakeDamagedFile(testing::SeedFiles(), 1, GetParam() * files + i);
        const QString error = trial.Try(file);
        EXPECT_TRUE(error.isEmpty())
            << i << " of " << file.seed.name << ": " << error.toStdString();
    }
    std::cout << trial.Tally().Table();
    const LoadedPicture last = trial.Read(good);
    ASSERT_EQ(last.outcome, LoadOutcome::Loaded) << ErrorText(last.reason).toStdString();
    EXPECT_TRUE(testing::SamePixels(last.bitmap.get(), first.bitmap.get()));
}

INSTANTIATE_TEST_SUITE_P(Part, DamagedFiles, ::testing::Range(0, 4));

// Bytes of this process's memory at its highest since the last call.
std::int64_t HighestMemory() {
    std::int64_t kilobytes = 0;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:") {
            status >> kilobytes;
        }
    }
    std::ofstream("/proc/self/clear_refs") << 5;
    return kilobytes * 1024;
}

// Sides that are too long for any picture, and some that only a small machine's memory refuses.
class Bombs : public ::testing::TestWithParam<int> {};

TEST_P(Bombs, AreRefusedAtOnceAndTakeNoMemory) {
    const int side = GetParam();
    const std::unique_ptr<PictureReader> reader =
        NewPictureReader({.program = {},
                          .secondsPerPhoto = secondsPerPhoto,
                          .memory = side <= 32767 ? std::uint64_t{4} << 30 : 0});
    const testing::PictureFolder folder;
    const std::vector<BombFile> bombs = testing::BombFiles(side);
    HighestMemory();
    const std::int64_t before = HighestMemory();
    for (const BombFile& bomb : bombs) {
        const QString path = folder.Path(QStringLiteral("photo"));
        testing::WriteFile(path, bomb.bytes);
        // Others may find something else wrong first, or count a column more.
        const bool saysSize = bomb.name.starts_with("jpeg") || bomb.name.starts_with("png") ||
                              bomb.name.starts_with("bmp") || bomb.name == "tiff/big-endian";
        const std::string start =
            saysSize ? QStringLiteral("too large: %1 x %1 pixels").arg(side).toStdString() : "";
        for (const ReadKind kind : {ReadKind::Whole, ReadKind::Size, ReadKind::Small}) {
            QElapsedTimer timer;
            timer.start();
            const LoadedPicture picture = ReadPicture(*reader, {path, kind, {60, 60}});
            const std::string reason = ErrorText(picture.reason).toStdString();
            std::cout << bomb.name << ": " << timer.elapsed() << " ms, " << reason << '\n';
            EXPECT_EQ(picture.outcome, LoadOutcome::NotLoaded) << bomb.name;
            EXPECT_TRUE(!picture.reason.isEmpty() && reason.starts_with(start))
                << bomb.name << ": " << reason;
            EXPECT_LT(timer.elapsed(), 5000) << bomb.name;
        }
    }
    EXPECT_LT(HighestMemory() - before, 10'000'000);
}

INSTANTIATE_TEST_SUITE_P(Side, Bombs, ::testing::Values(32000, 60000, 65500));

}  // namespace
}  // namespace varnel
