// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The decoder as a process: dying, hanging, lying, and leaving nothing behind.

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <csignal>
#include <thread>

#include "base/error_text.h"
#include "decoder/process/decoder_reader.h"
#include "decoder/process/protocol.h"
#include "decoder/process/sandbox.h"
#include "tests/support/files.h"
#include "tests/support/seeds/described_files.h"
#include "tests/support/seeds/seed_files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::PictureFolder;
using testing::Text;

QByteArray ProcessStatus(pid_t id) {
    return testing::Contents(Text("/proc/%1/status").arg(id));
}

TEST(DecoderReader, PixelsAndMetadataComeAcrossAndMemoryIsUsedAgain) {
    const PictureFolder folder;
    BitmapHandle photo = testing::PositionPicture({300, 200});
    photo->metadata.comments["Comment"] = "Küste";
    photo->metadata.photo.xmp =
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/"
        "elements/1.1/' dc:source='a lake'/></rdf:RDF>";
    photo->metadata.dotsPerMetreX = 11811;
    ASSERT_TRUE(SaveBitmap({OutputType::Jpeg, 90}, photo.get(), folder.Path(Text("a"))));
    const BitmapHandle direct = TakeOver(LibraryBitmap(FreeImage_Load(
        FIF_JPEG, QFile::encodeName(folder.Path(Text("a"))).constData(), JPEG_ACCURATE)));
    DecoderReader reader({});
    for (int round = 0; round < 3; ++round) {
        const LoadedPicture picture = ReadPicture(reader, {folder.Path(Text("a"))});
        ASSERT_TRUE(picture.bitmap) << ErrorText(picture.reason).toStdString();
        const Bitmap* const bitmap = picture.bitmap.get();
        EXPECT_TRUE(testing::SamePixels(bitmap, direct.get()));
        EXPECT_EQ(PackAttributes(bitmap->metadata), PackAttributes(direct->metadata));
        EXPECT_EQ(bitmap->metadata.comments.value("Comment"), "Küste");
        EXPECT_EQ(bitmap->metadata.dotsPerMetreX, 11811U);
        EXPECT_TRUE(bitmap->metadata.photo.xmp.contains("a lake"));
        EXPECT_TRUE(bitmap->metadata.photo.notes.isEmpty());
    }
}

TEST(DecoderReader, DeepPicturesComeAcrossWhenTheyAreWanted) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("deep"));
    testing::WriteFile(path, testing::Seed("tiff/deflate-alpha-16"));
    DecoderReader reader({});
    const LoadedPicture eight = ReadPicture(reader, {path});
    const LoadedPicture own = ReadPicture(reader, {.path = path, .depth = ReadDepth::Own});
    ASSERT_TRUE(eight.bitmap && own.bitmap) << ErrorText(own.reason).toStdString();
    EXPECT_EQ(own.bitmap->Format(), PixelFormat::Bgra16);
    for (int x = 0; x < own.size.width; ++x) {
        EXPECT_NEAR(testing::PixelAt(own.bitmap.get(), x, 9).green,
                    testing::PixelAt(eight.bitmap.get(), x, 9).green, 1);
    }
    const ReadRequest small{
        .path = path, .kind = ReadKind::Small, .box = {20, 20}, .depth = ReadDepth::Own};
    EXPECT_EQ(ReadPicture(reader, small).bitmap->Format(), PixelFormat::Bgr8);
}

TEST(DecoderReader, PicturesStayWhenTheReaderIsGone) {
    const PictureFolder folder;
    folder.Picture(Text("a"), OutputType::Png);
    folder.Picture(Text("b"), OutputType::Png, {90, 20});
    auto reader = std::make_unique<DecoderReader>(ReaderOptions{});
    const LoadedPicture a = ReadPicture(*reader, {folder.Path(Text("a"))});
    const LoadedPicture b = ReadPicture(*reader, {folder.Path(Text("b"))});
    reader.reset();
    EXPECT_EQ(testing::PixelAt(a.bitmap.get(), 50, 30).blue, 50);
    EXPECT_EQ(testing::PixelAt(b.bitmap.get(), 80, 10).blue, 80);
}

TEST(DecoderReader, KilledAtRandomMomentsItIsReplacedAndThePhotoComes) {
    const PictureFolder folder;
    const QString path = folder.Picture(Text("a.jpg"), OutputType::Jpeg, {900, 600});
    DecoderReader reader({});
    const LoadedPicture whole = ReadPicture(reader, {path});
    ASSERT_TRUE(whole.bitmap);
    for (int n = 0; n < 100; ++n) {
        const pid_t victim = reader.ProcessId();
        reader.Begin({path});
        usleep(static_cast<useconds_t>(n * 137 % 10'000));
        if (reader.ProcessId() == victim) {
            kill(victim, SIGKILL);
        }
        while (!reader.Wait(50)) {
        }
        const LoadedPicture picture = reader.Take();
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded)
            << n << ErrorText(picture.reason).toStdString();
        EXPECT_TRUE(testing::SamePixels(picture.bitmap.get(), whole.bitmap.get()));
    }
}

// In place of the decoder: something that does not do as it should.
QString Impostor(const PictureFolder& folder, const char* script) {
    QString path = folder.Path(Text("impostor"));
    testing::WriteFile(path, QByteArray("#!/bin/sh\n") + script);
    QFile::setPermissions(path, QFile::Permissions(0x7700));
    return path;
}

TEST(DecoderReader, SaysWhatBecameOfADecoderThatDoesNotAnswer) {
    const PictureFolder folder;
    const QString photo = folder.Picture(Text("a.png"), OutputType::Png);
    const struct {
        QString program;
        const char* reason;
    } rows[] = {
        {Impostor(folder, "exec sleep 60\n"), "took too long (more than 1 seconds)"},
        {folder.Path(Text("none")), "the decoder could not be started ("},
    };
    for (const auto& row : rows) {
        DecoderReader reader({.program = row.program, .secondsPerPhoto = 1});
        QElapsedTimer timer;
        timer.start();
        const LoadedPicture picture = ReadPicture(reader, {photo});
        EXPECT_EQ(picture.outcome, LoadOutcome::NotLoaded);
        const QString reason = ErrorText(picture.reason);
        EXPECT_TRUE(reason.startsWith(Text(row.reason))) << reason.toStdString();
        EXPECT_LT(timer.elapsed(), 20'000);
    }
    const struct {
        const char* script;
        const char* reason;
    } dying[] = {
        {"sleep 0.3\nkill -SEGV $$\n", "damaged: the decoder died of it (signal 11)"},
        {"sleep 0.3\nkill -SYS $$\n", "damaged: the decoder tried something forbidden"},
        {"sleep 0.3\nkill -XCPU $$\n", "took too long (more than 30 seconds)"},
        {"sleep 0.3\nexit 0\n", "damaged: the decoder gave up on it"},
        {"sleep 0.3\nprintf x >&3\nexec sleep 5\n", "damaged: the decoder gave up on it"},
    };
    for (const auto& row : dying) {
        DecoderReader reader({.program = Impostor(folder, row.script)});
        EXPECT_EQ(ErrorText(ReadPicture(reader, {photo}).reason).toStdString(), row.reason);
    }
}

TEST(DecoderReader, CanBeCancelledAndGoesOnWithTheNextPhoto) {
    const PictureFolder folder;
    const QString photo = folder.Picture(Text("a.jpg"), OutputType::Jpeg, {2000, 1500});
    DecoderReader reader({});
    const LoadedPicture given = ReadPicture(reader, {photo}, [] { return false; });
    EXPECT_TRUE(given.bitmap || given.reason.Is(ReasonCode::Cancelled));
    reader.Begin({photo});
    reader.Cancel();
    EXPECT_TRUE(ReadPicture(reader, {photo}).bitmap);
}

TEST(DecoderReader, LeavesNoProcessBehindAndEndsWithItsParent) {
    pid_t left = 0;
    {
        DecoderReader reader({});
        left = reader.ProcessId();
        EXPECT_EQ(kill(left, 0), 0);
    }
    EXPECT_NE(kill(left, 0), 0);
    // A parent that is killed cannot clean up.
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t parent = fork();
    if (parent == 0) {
        DecoderReader reader({});
        const pid_t id = reader.ProcessId();
        (void)!write(ends[1], &id, sizeof id);
        pause();
    }
    pid_t orphan = 0;
    ASSERT_EQ(read(ends[0], &orphan, sizeof orphan), static_cast<ssize_t>(sizeof orphan));
    while (!ProcessStatus(orphan).contains("NoNewPrivs:\t1")) {  // it has begun
        sched_yield();
    }
    kill(parent, SIGKILL);
    waitpid(parent, nullptr, 0);
    // Gone, or dead and waiting for whoever inherited it.
    for (int n = 0; n < 100 && !ProcessStatus(orphan).isEmpty() &&
                    !ProcessStatus(orphan).contains("State:\tZ");
         ++n) {
        usleep(50'000);
    }
    EXPECT_TRUE(ProcessStatus(orphan).isEmpty() || ProcessStatus(orphan).contains("State:\tZ"));
    close(ends[0]);
    close(ends[1]);
}

TEST(DecoderReader, TellsOfWhatItMayNotDoAndGoesOn) {
    const PictureFolder folder;
    DecoderReader reader({.program = QStringLiteral(VARNEL_DYING_DECODER)});
    testing::WriteFile(folder.Path(Text("a")), "forbidden at once");
    testing::WriteFile(folder.Path(Text("b")), "sound");
    if (!sanitized && prctl(PR_GET_SECCOMP) >= 0) {
        EXPECT_EQ(ReadPicture(reader, {folder.Path(Text("a"))}).reason,
                  Reason(ReasonCode::DecoderTriedForbiddenCall, SYS_socket));
    }
    EXPECT_TRUE(ReadPicture(reader, {folder.Path(Text("b"))}).bitmap);
}

// The lens's name comes from a table; on the way to it the user's accounts are asked for, again and
// again and at last in ways of their own.
TEST(DecoderReader, OneProcessNamesManyLenses) {
    const PictureFolder folder;
    const QString photo = folder.Path(Text("photo.jpg"));
    testing::WriteFile(photo, testing::DescribedJpeg(testing::SoundBlocks(false)));
    DecoderReader reader({});
    const pid_t first = reader.ProcessId();
    for (int n = 0; n < 150; ++n) {
        const LoadedPicture facts = ReadPicture(reader, {.path = photo, .kind = ReadKind::Facts});
        ASSERT_TRUE(facts.facts.notes.isEmpty()) << n;
        ASSERT_TRUE(facts.facts.origin.LensModel.contains(Text("mm"))) << n;
    }
    EXPECT_EQ(reader.ProcessId(), first);
}

QString ProgramOf(const DecoderReader& reader) {
    return QFileInfo(QFile::symLinkTarget(Text("/proc/%1/exe").arg(reader.ProcessId()))).fileName();
}

TEST(DecoderReader, OrdinaryJpegsHaveADecoderOfTheirOwnUntilTheFirstOtherPhoto) {
    const PictureFolder folder;
    const QString jpeg = folder.Path(Text("photo"));
    testing::WriteFile(jpeg, testing::Seed("jpeg/described"));
    // To the last byte that is looked at a JPEG as any other.
    QByteArray arithmetic = testing::Seed("jpeg/444");
    arithmetic[arithmetic.indexOf("\xFF\xC0") + 1] = '\xC9';
    const struct {
        const char* name;
        QByteArray file;
        ReadRequest request;
        const char* program;
    } rows[] = {
        {"whole", testing::Seed("jpeg/progressive"), {}, "varnel-jpeg-decoder"},
        {"size",
         testing::Seed("jpeg/grey"),
         {.path = {}, .kind = ReadKind::Size},
         "varnel-jpeg-decoder"},
        {"facts",
         testing::Seed("jpeg/444"),
         {.path = {}, .kind = ReadKind::Facts},
         "varnel-jpeg-decoder"},
        {"small",
         testing::Seed("jpeg/444"),
         {.path = {}, .kind = ReadKind::Small, .box = {9, 9}},
         "varnel-decoder"},
        {"arithmetic", arithmetic, {}, "varnel-decoder"},
        {"another type", testing::Seed("png/colour2-8"), {}, "varnel-decoder"},
        {"no photo", "GIF", {}, "varnel-decoder"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ReadRequest request = row.request;
        request.path = folder.Path(Text(row.name));
        testing::WriteFile(request.path, row.file);
        DecoderReader reader({});
        EXPECT_EQ(ReadPicture(reader, {jpeg}).outcome, LoadOutcome::Loaded);
        EXPECT_EQ(ProgramOf(reader), Text("varnel-jpeg-decoder"));
        const LoadedPicture first = ReadPicture(reader, request);
        EXPECT_EQ(ProgramOf(reader), Text(row.program));
        EXPECT_EQ(ReadPicture(reader, {jpeg}).outcome, LoadOutcome::Loaded);
        EXPECT_EQ(ProgramOf(reader), Text(row.program)) << "for good";
        const LoadedPicture again = ReadPicture(reader, request);
        EXPECT_EQ(first.reason, again.reason);
        EXPECT_EQ(first.size.width, again.size.width);
    }
}

class DecoderWalls : public ::testing::TestWithParam<OutputType> {};

INSTANTIATE_TEST_SUITE_P(EachDecoder, DecoderWalls,
                         ::testing::Values(OutputType::Jpeg, OutputType::Png));

TEST_P(DecoderWalls, ThereAreNoRightsNoSecretsAndLimitsThatStay) {
    const PictureFolder folder;
    qputenv("VARNEL_SECRET", "a password");
    DecoderReader reader({});
    const QString photo = folder.Picture(Text("a"), GetParam());
    ASSERT_TRUE(ReadPicture(reader, {photo}).bitmap);
    qunsetenv("VARNEL_SECRET");
    EXPECT_TRUE(ProcessStatus(reader.ProcessId()).contains("NoNewPrivs:\t1"));
    const auto has = [&](const char* limit) {
        return QString::fromUtf8(testing::Contents(Text("/proc/%1/limits").arg(reader.ProcessId())))
            .contains(QRegularExpression(Text(limit)));
    };
    EXPECT_TRUE(has("Max core file size +0 "));
    if (!sanitized) {
        EXPECT_TRUE(ProcessStatus(reader.ProcessId()).contains("CapEff:\t0000000000000000"));
        EXPECT_TRUE(has("Max address space +\\d+ +\\d+ "));
        EXPECT_TRUE(has("Max file size +\\d+ +\\d+ "));
        EXPECT_FALSE(testing::Contents(Text("/proc/%1/environ").arg(reader.ProcessId()))
                         .contains("a password"));
    }
}

TEST(DecoderReader, AFileThatIsReplacedOrCutMeanwhileGivesOneOrTheOther) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("a.jpg"));
    const QByteArray one =
        testing::Contents(folder.Picture(Text("one"), OutputType::Jpeg, {900, 600}));
    const QByteArray two =
        testing::Contents(folder.Picture(Text("two"), OutputType::Jpeg, {600, 900}));
    testing::WriteFile(path, one);
    DecoderReader reader({});
    for (int n = 0; n < 30; ++n) {
        reader.Begin({path});
        usleep(static_cast<useconds_t>(n * 211 % 6000));
        if (n % 3 == 0) {
            QFile::resize(path, one.size() / 2);
        } else {
            testing::WriteFile(path + u'n', n % 2 == 0 ? one : two);
            ASSERT_EQ(rename(QFile::encodeName(path + u'n'), QFile::encodeName(path)), 0);
        }
        while (!reader.Wait(50)) {
        }
        const LoadedPicture picture = reader.Take();
        EXPECT_EQ(picture.reason.isEmpty(), picture.outcome == LoadOutcome::Loaded);
        if (picture.bitmap) {
            const PixelSize size = SizeOf(picture.bitmap.get());
            EXPECT_EQ(size.width * size.height, 900 * 600);
        }
    }
}

}  // namespace
}  // namespace varnel
