// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch of good photos with bad ones of every kind among them, against the same batch without.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <csignal>

#include "decoder/process/decoder_reader.h"
#include "pipeline/conversion/batch_run.h"
#include "tests/support/files.h"
#include "tests/support/limits.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class Quiet : public BatchObserver {
  public:
    void Naming(const QString& /*path*/) override {}
    RenderProgress& Progress() override { return silent_; }
    void Done(int /*done*/, int /*queued*/) override {}
    bool StopAsked() override { return false; }

  private:
    SilentProgress silent_;
};

constexpr int goodPhotos = 100;
constexpr int badOfEachKind = 20;

class BatchMix : public ::testing::Test {
  protected:
    // The outputs by name. A photo's name says what is bad about it.
    std::map<QString, QByteArray> Run(const QStringList& names, const QString& out) {
        QDir().mkpath(files.Path(out));
        RecordArray<ImageRecord> queue;
        for (const QString& name : names) {
            queue.Append(testing::FisheyePhoto(files.Path(Text("in")), name));
        }
        const BatchChoices choices{files.Path(out), {}, OutputType::Bmp, 90};
        Quiet quiet;
        summary = RunBatch(
            queue, choices, quiet,
            {.load = [this](const QString& path) { return Load(path); },
             .save =
                 [](const OutputEncoding& encoding, const Bitmap* bitmap, const QString& path) {
                     return path.contains(Text("full")) ? FullDisk(bitmap, path)
                                                        : SaveBitmap(encoding, bitmap, path);
                 }});
        std::map<QString, QByteArray> outputs;
        for (const QString& name : QDir(files.Path(out)).entryList(QDir::Files | QDir::Hidden)) {
            outputs[name] = testing::Contents(files.Path(out) + u'/' + name);
        }
        return outputs;
    }
    // The file size limit stands for the disk's end.
    static SaveResult FullDisk(const Bitmap* bitmap, const QString& path) {
        const testing::FileSizeLimit full(1000);
        return SaveBitmap(OutputType::Bmp, bitmap, path);
    }
    LoadedPicture Load(const QString& path) {
        const bool hangs = path.contains(Text("hang"));
        DecoderReader& reader = hangs ? impatient_ : *reader_;
        // Stopped first, so that no answer is faster than the signal.
        const bool crashes = path.contains(Text("crash"));
        if (hangs || crashes) {
            kill(reader.ProcessId(), SIGSTOP);
        }
        reader.Begin({path});
        if (crashes) {
            kill(reader.ProcessId(), SIGSEGV);
            kill(reader.ProcessId(), SIGCONT);
        }
        while (!reader.Wait(50)) {
        }
        return reader.Take();
    }
    void MakeBad(const QString& kind, const QString& name) {
        const QString path = files.Path(Text("in/") + name);
        if (kind == Text("cut")) {
            files.Cut(Text("in/") + name, files.Path(Text("in/good000.jpg")), 1);
        } else if (kind == Text("pipe")) {
            ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (kind == Text("wide")) {
            files.Picture(Text("in/") + name, OutputType::Png, {32768, 1});
        } else if (kind == Text("bomb")) {
            testing::WriteFile(path,
                               QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000"
                                                   "ea600802000000dcd1d4ec"));
        } else if (kind == Text("unreadable")) {
            QDir().mkpath(path);
        } else if (kind != Text("missing")) {
            QFile::copy(files.Path(Text("in/good000.jpg")), path);
        }
    }

    testing::PictureFolder files;
    BatchSummary summary;
    DecoderReader patient_{{}};
    DecoderReader impatient_{{.secondsPerPhoto = 1}};
    DecoderReader* reader_ = &patient_;
};

TEST_F(BatchMix, BadPhotosChangeNothingForTheGoodOnesAndAreAllNamed) {
    QDir().mkpath(files.Path(Text("in")));
    QStringList good;
    for (int n = 0; n < goodPhotos; ++n) {
        good.append(Text("good%1.jpg").arg(n, 3, 10, QChar(u'0')));
        files.Picture(Text("in/") + good.last(), OutputType::Jpeg, {60 + n, 40});
    }
    const auto alone = Run(good, Text("alone"));
    ASSERT_EQ(alone.size(), static_cast<std::size_t>(goodPhotos));
    QStringList mixed = good;
    QStringList bad;
    for (const char* kind :
         {"cut", "crash", "hang", "bomb", "missing", "unreadable", "pipe", "wide", "full"}) {
        // Hanging ones cost a second each.
        const int count = Text(kind) == Text("hang") ? 3 : badOfEachKind;
        for (int n = 0; n < count; ++n) {
            bad.append(Text(kind) + Text("%1.jpg").arg(n));
            MakeBad(Text(kind), bad.last());
            mixed.insert(static_cast<qsizetype>(bad.size()) * 7 % mixed.size(), bad.last());
        }
    }
    const auto among = Run(mixed, Text("among"));
    EXPECT_TRUE(among == alone);
    ASSERT_EQ(summary.failures.size(), static_cast<std::size_t>(bad.size()));
    for (const auto& failure : summary.failures) {
        EXPECT_TRUE(bad.removeOne(failure.file.section(u'/', -1))) << failure.file.toStdString();
        EXPECT_FALSE(failure.reason.isEmpty());
    }
}

TEST_F(BatchMix, AKilledRunLeavesWholeFilesAndTheNextOneMakesTheSameSet) {
    QDir().mkpath(files.Path(Text("in")));
    QStringList names;
    for (int n = 0; n < 20; ++n) {
        names.append(Text("%1.jpg").arg(n));
        files.Picture(Text("in/") + names.last(), OutputType::Jpeg, {300 + n, 200});
    }
    const auto whole = Run(names, Text("whole"));
    for (int moment = 1; moment <= 5; ++moment) {
        const pid_t run = fork();
        if (run == 0) {
            DecoderReader own({});  // two processes cannot talk to one decoder
            reader_ = &own;
            Run(names, Text("killed"));
            _exit(0);
        }
        usleep(static_cast<useconds_t>(moment) * 30'000);
        kill(run, SIGKILL);
        waitpid(run, nullptr, 0);
        const QDir out(files.Path(Text("killed")));
        for (const QString& name : out.entryList(QDir::Files)) {
            EXPECT_EQ(testing::Contents(out.filePath(name)), whole.at(name));
        }
    }
    EXPECT_TRUE(Run(names, Text("killed")) == whole);  // and no stray file among them
}

}  // namespace
}  // namespace varnel
