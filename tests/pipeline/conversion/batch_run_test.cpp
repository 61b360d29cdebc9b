// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_run.h"

#include <gtest/gtest.h>

#include <QDir>
#include <chrono>
#include <new>
#include <thread>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "base/run_time_error.h"
#include "pipeline/conversion/batch_checks.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/picture_settings.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::FisheyePhoto;
using testing::Text;

// Writes down all that it hears and asks to stop after a number of photos.
class Listener : public BatchObserver, public RenderProgress {
  public:
    explicit Listener(QStringList& log) : log_(log) {}
    void Naming(const QString& path) override { log_ += Text("name ") + path; }
    RenderProgress& Progress() override { return *this; }
    void Done(int done, int queued) override {
        log_ += BatchProgressText(done, queued);
        --stopAfter;
    }
    bool StopAsked() override { return stopAfter == 0; }
    void Begin(float /*maximum*/) override { log_ += Text("begin"); }
    void Advance(float /*value*/) override {}
    void End() override { log_ += Text("end"); }
    int stopAfter = -1;

  private:
    QStringList& log_;
};

// A run without files: loading gives a small portrait, saving only notes the name.
class FakeRun : public ::testing::Test {
  protected:
    BatchSummary Go() { return RunBatch(queue, choices, listener, ports); }
    LoadedPicture Load(const QString& path) {
        log += Text("load ") + path;
        return {LoadOutcome::Loaded, testing::PositionPicture({6, 9}), {}, {6, 9}};
    }
    SaveResult Save(const OutputEncoding& encoding, const QString& path) {
        log += Text("save %1 as %2 with %3").arg(path, ToText(encoding.type)).arg(encoding.quality);
        return {true, {}};
    }

    QStringList log;
    Listener listener{log};
    RecordArray<ImageRecord> queue;
    BatchChoices choices{Text("/out"), {}, OutputType::Jpeg, 83};
    ConversionPorts ports{[this](const QString& path) { return Load(path); },
                          [this](const OutputEncoding& encoding, const Bitmap*,
                                 const QString& path) { return Save(encoding, path); }};
};

TEST_F(FakeRun, TakesEachEntryFromLoadingToSavingBeforeTheNext) {
    queue.Append(FisheyePhoto(Text("/in"), Text("a.jpg")));
    queue.Append(FisheyePhoto(Text("/in"), Text("b.jpg"), Projection::Rectilinear));
    queue(2).RotateY = -5.0F;
    queue(2).NameSuffix = Text("Morph0007");
    choices.additions.texts[Projection::Rectilinear] = Text("flat");
    const BatchSummary summary = Go();
    EXPECT_EQ(log.join(u'\n'),
              Text("load /in/a.jpg\nname /out/a.Varnel.JPG\nbegin\nend\n"
                   "save /out/a.Varnel.JPG as JPEG with 83\n1 of 2 images\n"
                   "load /in/b.jpg\nname /out/b.flat_Morph0007_hAOV090_LR-5.JPG\nbegin\nend\n"
                   "save /out/b.flat_Morph0007_hAOV090_LR-5.JPG as JPEG with 83\n2 of 2 images"));
    EXPECT_EQ(summary.written.size(), 2);
    EXPECT_FALSE(summary.Stopped());
}

TEST_F(FakeRun, ChoicesSayWhetherMetadataSettingsAndFullColourAreWritten) {
    queue.Append(FisheyePhoto(Text("/in"), Text("a.jpg")));
    ports.load = [](const QString&) {
        LoadedPicture photo{LoadOutcome::Loaded, testing::PositionPicture({6, 9}), {}, {6, 9}};
        photo.bitmap->metadata.comments["Comment"] = "a street";
        return photo;
    };
    QString saved;
    ports.save = [&saved](const OutputEncoding& encoding, const Bitmap* bitmap, const QString&) {
        saved += Text(" %1:%2:%3:%4")
                     .arg(bitmap->metadata.comments.size())
                     .arg(bitmap->metadata.settings.value(Text("Ratio"), Text("none")))
                     .arg(encoding.quality)
                     .arg(encoding.chroma444);
        return SaveResult{true, {}};
    };
    Go();
    choices.chroma444 = true;
    choices.writeMetadata = choices.writeSettings = false;
    Go();
    EXPECT_EQ(saved, Text(" 1:125:83:0 0:none:83:1"));
}

TEST_F(FakeRun, LoadingSetsTheSizeAndNothingElse) {
    queue.Append(FisheyePhoto(Text("/in"), Text("a.jpg")));
    ImageRecord expected = queue(1);
    expected.Width = 6;
    expected.Height = 9;
    expected.Landscape = false;
    Go();
    EXPECT_EQ(queue(1), expected);
}

#ifdef __GLIBC__
TEST_F(FakeRun, MemoryHoldsOnePhotoHoweverLongTheQueue) {
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<qint64>(info.uordblks + info.hblkhd);
    };
    const PixelSize size{100, 60};
    const qint64 photo = 3 * 100 * 60;
    QList<qint64> atLoad;
    ports.load = [&](const QString&) {
        log.clear();
        atLoad.append(inUse());
        return LoadedPicture{LoadOutcome::Loaded, testing::PositionPicture(size), {}};
    };
    // Encoding takes room of its own; the source must have made place for it.
    ports.save = [&](const OutputEncoding&, const Bitmap*, const QString&) {
        EXPECT_LT(inUse() - atLoad.last(), photo * 3 / 2);
        return SaveResult{true, {}};
    };
    for (int n = 0; n < 1000; ++n) {
        queue.Append(FisheyePhoto(Text("/in"), Text("%1.jpg").arg(n)));
    }
    EXPECT_EQ(Go().written.size(), 1000);
    if (atLoad.last() == 0) {
        GTEST_SKIP() << "memory is not counted in this build";
    }
    EXPECT_LT(atLoad.last() - atLoad.first(), 20 * photo) << "the names of the files and no more";
}
#endif

TEST_F(FakeRun, StopDuringTheThirdOfTenFinishesIt) {
    for (int n = 1; n <= 10; ++n) {
        queue.Append(FisheyePhoto(Text("/in"), Text("%1.jpg").arg(n)));
    }
    listener.stopAfter = 3;
    const BatchSummary summary = Go();
    EXPECT_EQ(summary.written.join(u' '),
              Text("/out/1.Varnel.JPG /out/2.Varnel.JPG /out/3.Varnel.JPG"));
    EXPECT_EQ(log.last(), Text("3 of 10 images"));
    EXPECT_TRUE(summary.Stopped());
    EXPECT_EQ(SummaryText(summary),
              Text("3 of 10 images written into /out\nStopped after 3 of 10 images\n"));
    // Asked during the last one, Stop takes nothing away.
    queue.Resize(3);
    listener.stopAfter = 3;
    EXPECT_FALSE(Go().Stopped());
}

// Everything that an observer hears of a run with failures among its entries, when Stop is asked
// for after some of them.
TEST_F(FakeRun, OverlappingWorkIsHeardAsIfOneCameAfterTheOther) {
    for (int n = 1; n <= 9; ++n) {
        queue.Append(
            FisheyePhoto(Text("/in"), Text("%1.jpg").arg(n), static_cast<Projection>(n % 4)));
    }
    queue.Append(queue(9));  // the same name twice, and the same photo
    queue(4).EffectVarnel = 1e30F;
    const auto load = [](const QString& path) {
        return path.contains(u'5') || path.contains(u'6')
                   ? LoadedPicture::Refused(ReasonCode::CannotBeOpened)
                   : LoadedPicture{
                         LoadOutcome::Loaded, testing::PositionPicture({6, 9}), {}, {6, 9}};
    };
    const auto save = [](const OutputEncoding&, const Bitmap* bitmap, const QString& path) {
        const bool fails = path.contains(u'7');
        std::this_thread::sleep_for(std::chrono::milliseconds(path.size() % 3));
        return SaveResult{!fails && SizeOf(bitmap).width == 6,
                          fails ? Reason(ReasonCode::Words, Text("full")) : Reason()};
    };
    for (int stopAfter = -1; stopAfter <= 10; ++stopAfter) {
        QStringList heard[2];
        QString summaries[2];
        QStringList ahead;
        for (const bool overlaps : {false, true}) {
            ConversionPorts both{load, save};
            if (overlaps) {
                both.readAhead = [&](const QString& path) {
                    ahead.append(path);
                    return true;
                };
                both.aheadAtMost = 3;
            }
            Listener other(heard[overlaps]);
            other.stopAfter = stopAfter;
            RecordArray<ImageRecord> entries = queue;
            summaries[overlaps] = SummaryText(RunBatch(entries, choices, other, both));
        }
        EXPECT_EQ(heard[0], heard[1]) << stopAfter;
        EXPECT_EQ(summaries[0], summaries[1]);
        if (stopAfter < 0) {
            EXPECT_EQ(ahead.size(), 8);  // all but the first, each once
        }
    }
}

TEST_F(FakeRun, EveryKindOfFailureIsNotedAndTheRunGoesOn) {
    const char* const names[] = {"unreadable", "memory", "library", "name", "number", "disk", "ok"};
    for (const char* name : names) {
        queue.Append(FisheyePhoto(Text("/in"), Text(name) + Text(".jpg")));
    }
    queue(4).EffectVarnel = 1e30F;  // no whole number for a tag
    queue(5).Ratio = 0.0F;
    ports.load = [this](const QString& path) {
        if (path.contains(u"unreadable")) {
            return LoadedPicture::Refused(ReasonCode::CannotBeOpened);
        }
        if (path.contains(u"memory")) {
            throw std::bad_alloc();
        }
        if (path.contains(u"library")) {
            throw std::runtime_error("the library's own words");
        }
        return Load(path);
    };
    ports.save = [](const OutputEncoding&, const Bitmap*, const QString& path) {
        return path.contains(u"disk") ? SaveResult{false, {ReasonCode::Words, Text("disk full")}}
                                      : SaveResult{true, {}};
    };
    const BatchSummary summary = Go();
    EXPECT_EQ(summary.written, QStringList{Text("/out/ok.Varnel.JPG")});
    EXPECT_EQ(log.filter(Text("of 7 images")).size(), 7);
    ASSERT_EQ(summary.failures.size(), 6U);
    const char* const reasons[] = {
        "it cannot be opened",     "there is not enough memory",
        "the library's own words", "Overflow: the effect",
        "Division by zero: ",      "could not write /out/disk.Varnel.JPG: disk full"};
    for (std::size_t n = 0; n < summary.failures.size(); ++n) {
        EXPECT_EQ(summary.failures[n].file, Text("/in/%1.jpg").arg(Text(names[n])));
        EXPECT_TRUE(summary.failures[n].reason.startsWith(Text(reasons[n])))
            << summary.failures[n].reason.toStdString();
    }
}

TEST_F(FakeRun, OfTwoWithOneNameTheLaterStaysAndIsTold) {
    for (const char* name : {"a.jpg", "b.jpg", "c.nef", "a.tif", "a.bmp", "c.jpg"}) {
        queue.Append(FisheyePhoto(Text("/in"), Text(name)));
    }
    EXPECT_EQ(CollidingNames(queue, choices), 2);  // the run looks for pairs itself
    const BatchSummary summary = Go();
    EXPECT_EQ(summary.written.size(), 6);
    EXPECT_EQ(summary.written.value(5), Text("/out/c.jpg.Varnel.JPG"));
    EXPECT_EQ(summary.replaced, QStringList{Text("/out/a.Varnel.JPG")});
    EXPECT_EQ(SummaryText(summary),
              Text("6 of 6 images written into /out\n\n1 file was replaced by a "
                   "later image of the same name:\n"
                   "  /out/a.Varnel.JPG\n"));
}

TEST(SummaryText, WhatSeveralFilesAreWithoutStandsOnceWithTheFirst) {
    BatchSummary summary;
    summary.folder = Text("/out");
    summary.queued = summary.done = 4;
    summary.notes = {{Text("50%1"), ReasonCode::IptcTooLong},
                     {Text("b"), {ReasonCode::TypeHoldsNoMetadata, Text("BMP")}},
                     {Text("c"), ReasonCode::IptcTooLong},
                     {Text("d"), ReasonCode::IptcTooLong}};
    EXPECT_EQ(SummaryText(summary),
              Text("0 of 4 images written into /out\n\n4 files do not hold everything:\n"
                   "  50%1 and 2 more: written without its IPTC: too long for a JPEG file\n"
                   "  b: BMP files hold no metadata\n"));
}

// Runs with real files, read from "in" and written into "out".
class RealRun : public ::testing::Test {
  protected:
    RealRun() {
        QDir(files.Path({})).mkdir(Text("in"));
        QDir(files.Path({})).mkdir(Text("out"));
    }
    QString In(const QString& name) const { return files.Path(Text("in/") + name); }
    QString Out(const QString& name) const { return files.Path(Text("out/") + name); }
    QStringList OutNames() const { return QDir(Out({})).entryList(QDir::Files); }
    void Queue(const QString& name, Projection projection = Projection::Varnel) {
        queue.Append(FisheyePhoto(files.Path(Text("in")), name, projection));
    }
    BatchSummary Go() {
        QStringList log;
        Listener listener(log);
        ReadingWait wait;
        PrefetchingReader feed(testing::Reader(), 1, wait);
        return RunBatch(queue, choices, listener, PortsFor(feed));
    }
    // What a conversion of that entry alone writes.
    QByteArray Single(ImageRecord entry) const {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = testing::LoadPicture(SourcePath(entry)).bitmap;
        TakeSize({SizeOf(bitmaps.FullSourceBitmap.get())}, entry);
        SilentProgress silent;
        RenderContext context{bitmaps};
        Render(ProjectionFromIndex(entry.Projection), entry, SizeKind::Large, silent, context);
        NoteSettings(bitmaps.ResultBitmap.get(), entry, choices.writeSettings,
                     BatchPath(entry, choices));
        const QString path = files.Path(Text("single"));
        SaveBitmap(EncodingOf(choices), bitmaps.ResultBitmap.get(), path);
        return testing::Contents(path);
    }

    testing::PictureFolder files;
    RecordArray<ImageRecord> queue;
    BatchChoices choices{files.Path(Text("out")), {}, OutputType::Png, 90};
};

TEST_F(RealRun, GoodPhotosAmongBadOnesComeOutAsIfConvertedAlone) {
    const QString whole = files.Picture(Text("in/a.jpg"), OutputType::Jpeg, {300, 200});
    files.Picture(Text("in/b.tif"), OutputType::Tiff, {40, 60});
    files.Picture(Text("in/c.png"), OutputType::Png);
    files.Cut(Text("in/cut.jpg"), whole, 60);
    files.Text(Text("in/text.jpg"));
    files.Empty(Text("in/empty.png"));
    const std::pair<const char*, Projection> names[] = {
        {"text.jpg", Projection::Varnel},   {"a.jpg", Projection::Varnel},
        {"cut.jpg", Projection::Horizon},   {"b.tif", Projection::Rectilinear},
        {"gone.bmp", Projection::Varnel},   {"c.png", Projection::Equidistance},
        {"empty.png", Projection::Horizon}, {"a.jpg", Projection::Horizon}};
    for (const auto& [name, projection] : names) {
        Queue(Text(name), projection);
    }
    const BatchSummary summary = Go();
    const std::pair<const char*, int> good[] = {{"a.Varnel.PNG", 2},
                                                {"cut.Horizon.PNG", 3},
                                                {"b.Rectilinear_hAOV090.PNG", 4},
                                                {"c.Equidistance.PNG", 6},
                                                {"a.Horizon.PNG", 8}};
    for (const auto& [name, entry] : good) {
        EXPECT_EQ(testing::Contents(Out(Text(name))), Single(queue(entry))) << name;
    }
    EXPECT_EQ(OutNames().size(), 5);
    ASSERT_EQ(summary.failures.size(), 3U);
    EXPECT_EQ(summary.failures[0].file, In(Text("text.jpg")));
    EXPECT_EQ(summary.failures[1].reason, Text("there is no such file"));
    EXPECT_EQ(summary.failures[2].file, In(Text("empty.png")));
    ASSERT_EQ(summary.damaged.size(), 1U);
    EXPECT_EQ(summary.damaged[0].file, In(Text("cut.jpg")));
    EXPECT_TRUE(SummaryText(summary).startsWith(
        Text("5 of 8 images written into %1\n\n3 images failed:\n").arg(choices.folder)));
}

TEST_F(RealRun, AHalfPictureReplacesOnlyAnotherOfItsOwnRun) {
    files.Cut(Text("in/cut.jpg"), files.Picture(Text("in/a.jpg"), OutputType::Jpeg, {300, 200}),
              60);
    files.Picture(Text("in/cut.bmp"), OutputType::Bmp);
    const QString older = files.Text(Text("out/cut.Varnel.PNG"));
    Queue(Text("cut.jpg"));                       // the older file stays
    Queue(Text("cut.jpg"), Projection::Horizon);  // written
    Queue(Text("cut.jpg"), Projection::Horizon);  // replaces the half picture
    Queue(Text("cut.bmp"), Projection::Horizon);  // a whole one replaces it again
    Queue(Text("cut.jpg"), Projection::Horizon);  // and stays
    const BatchSummary summary = Go();
    EXPECT_EQ(testing::Contents(older), Text("this is no picture\n").toUtf8());
    EXPECT_EQ(testing::Contents(Out(Text("cut.Horizon.PNG"))), Single(queue(4)));
    EXPECT_EQ(summary.written.size(), 3);
    EXPECT_EQ(summary.replaced, QStringList{Out(Text("cut.Horizon.PNG"))});
    ASSERT_EQ(summary.failures.size(), 2U);
    EXPECT_TRUE(summary.failures[0].reason.contains(Text("does not replace the older ") + older));
}

TEST_F(RealRun, NoPhotoOfTheQueueIsReplaced) {
    files.Picture(Text("in/a.jpg"), OutputType::Jpeg);
    files.Picture(Text("in/b.Varnel.PNG"), OutputType::Png);
    files.Picture(Text("in/b.jpg"), OutputType::Jpeg);
    ASSERT_TRUE(QFile::link(In(Text("a.jpg")), Out(Text("a.Varnel.PNG"))));
    ASSERT_TRUE(QFile::link(In(Text("b.Varnel.PNG")), Out(Text("b.Varnel.PNG"))));
    const QByteArray before =
        testing::Contents(In(Text("a.jpg"))) + testing::Contents(In(Text("b.Varnel.PNG")));
    for (const char* name : {"a.jpg", "b.jpg", "b.Varnel.PNG"}) {
        Queue(Text(name));
    }
    const BatchSummary summary = Go();
    EXPECT_EQ(testing::Contents(In(Text("a.jpg"))) + testing::Contents(In(Text("b.Varnel.PNG"))),
              before);
    ASSERT_EQ(summary.failures.size(), 2U);
    EXPECT_TRUE(summary.failures[0].reason.endsWith(Text("is the photo itself")));
    EXPECT_TRUE(summary.failures[1].reason.endsWith(Text("is one of the queued photos")));
    EXPECT_EQ(summary.written, QStringList{Out(Text("b.Varnel.Varnel.PNG"))});
}

}  // namespace
}  // namespace varnel
