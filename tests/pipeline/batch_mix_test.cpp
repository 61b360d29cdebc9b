// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch of good photos with bad ones of every kind among them, against the same batch without.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <csignal>

#include "decoder/decoder_reader.h"
#include "pipeline/batch_run.h"
#include "tests/support/files.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

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
            ImageRecord entry = testing::FisheyeRecord();
            entry.Folder = files.Path(Q("in"));
            entry.FileName = name;
            queue.Append(entry);
        }
        const BatchChoices choices{files.Path(out), {}, OutputType::Bmp, 90};
        Quiet quiet;
        summary = RunBatch(
            queue, choices, quiet,
            {.load = [this](const QString& path) { return Load(path); },
             .save =
                 [](FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const QString& path, int flags) {
                     return path.contains(Q("full")) ? FullDisk(bitmap, path)
                                                     : SaveBitmap(format, bitmap, path, flags);
                 }});
        std::map<QString, QByteArray> outputs;
        for (const QString& name : QDir(files.Path(out)).entryList(QDir::Files | QDir::Hidden)) {
            outputs[name] = testing::Contents(files.Path(out) + u'/' + name);
        }
        return outputs;
    }
    // The file size limit stands for the disk's end.
    static SaveResult FullDisk(FIBITMAP* bitmap, const QString& path) {
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        signal(SIGXFSZ, SIG_IGN);
        const rlimit full{1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        const SaveResult saved = SaveBitmap(FIF_BMP, bitmap, path, 0);
        setrlimit(RLIMIT_FSIZE, &before);
        return saved;
    }
    LoadedPicture Load(const QString& path) {
        const bool hangs = path.contains(Q("hang"));
        DecoderReader& reader = hangs ? impatient_ : *reader_;
        // Stopped first, so that no answer is faster than the signal.
        const bool crashes = path.contains(Q("crash"));
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
        const QString path = files.Path(Q("in/") + name);
        if (kind == Q("cut")) {
            files.Cut(Q("in/") + name, files.Path(Q("in/good000.jpg")), 1);
        } else if (kind == Q("pipe")) {
            ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (kind == Q("wide")) {
            files.Picture(Q("in/") + name, FIF_PNG, {32768, 1});
        } else if (kind == Q("bomb")) {
            testing::WriteFile(path,
                               QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000"
                                                   "ea600802000000dcd1d4ec"));
        } else if (kind == Q("unreadable")) {
            QDir().mkpath(path);
        } else if (kind != Q("missing")) {
            QFile::copy(files.Path(Q("in/good000.jpg")), path);
        }
    }

    testing::PictureFolder files;
    BatchSummary summary;
    DecoderReader patient_{{}};
    DecoderReader impatient_{{.secondsPerPhoto = 1}};
    DecoderReader* reader_ = &patient_;
};

TEST_F(BatchMix, BadPhotosChangeNothingForTheGoodOnesAndAreAllNamed) {
    QDir().mkpath(files.Path(Q("in")));
    QStringList good;
    for (int n = 0; n < goodPhotos; ++n) {
        good.append(Q("good%1.jpg").arg(n, 3, 10, QChar(u'0')));
        files.Picture(Q("in/") + good.last(), FIF_JPEG, {60 + n, 40});
    }
    const auto alone = Run(good, Q("alone"));
    ASSERT_EQ(alone.size(), static_cast<std::size_t>(goodPhotos));
    QStringList mixed = good;
    QStringList bad;
    for (const char* kind :
         {"cut", "crash", "hang", "bomb", "missing", "unreadable", "pipe", "wide", "full"}) {
        // Hanging ones cost a second each.
        const int count = Q(kind) == Q("hang") ? 3 : badOfEachKind;
        for (int n = 0; n < count; ++n) {
            bad.append(Q(kind) + Q("%1.jpg").arg(n));
            MakeBad(Q(kind), bad.last());
            mixed.insert(static_cast<qsizetype>(bad.size()) * 7 % mixed.size(), bad.last());
        }
    }
    const auto among = Run(mixed, Q("among"));
    EXPECT_TRUE(among == alone);
    ASSERT_EQ(summary.failures.size(), static_cast<std::size_t>(bad.size()));
    for (const auto& failure : summary.failures) {
        EXPECT_TRUE(bad.removeOne(failure.file.section(u'/', -1))) << failure.file.toStdString();
        EXPECT_FALSE(failure.reason.isEmpty());
    }
}

TEST_F(BatchMix, AKilledRunLeavesWholeFilesAndTheNextOneMakesTheSameSet) {
    QDir().mkpath(files.Path(Q("in")));
    QStringList names;
    for (int n = 0; n < 20; ++n) {
        names.append(Q("%1.jpg").arg(n));
        files.Picture(Q("in/") + names.last(), FIF_JPEG, {300 + n, 200});
    }
    const auto whole = Run(names, Q("whole"));
    for (int moment = 1; moment <= 5; ++moment) {
        const pid_t run = fork();
        if (run == 0) {
            DecoderReader own({});  // two processes cannot talk to one decoder
            reader_ = &own;
            Run(names, Q("killed"));
            _exit(0);
        }
        usleep(static_cast<useconds_t>(moment) * 30'000);
        kill(run, SIGKILL);
        waitpid(run, nullptr, 0);
        const QDir out(files.Path(Q("killed")));
        for (const QString& name : out.entryList(QDir::Files)) {
            EXPECT_EQ(testing::Contents(out.filePath(name)), whole.at(name));
        }
    }
    EXPECT_TRUE(Run(names, Q("killed")) == whole);  // and no stray file among them
}

}  // namespace
}  // namespace varnel
