// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the batch and the command line do otherwise; what they have in common is tested through
// them.

#include "pipeline/conversion/conversion_run.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <future>

#include "tests/support/bitmaps.h"
#include "tests/support/contents.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Three photos without files. While a photo is converted the one before it is written for ever,
// until the run waits for that.
class ConversionRunTest : public ::testing::Test, public ConversionObserver, public SilentProgress {
  protected:
    void Begun(const Conversion& conversion) override {
        log.append(Text("begun %1").arg(conversion.photo));
        if (throws) {
            throw 1;
        }
    }
    RenderProgress& Progress() override { return *this; }
    void HandleEvents() override {
        if (ended == 0 && begunToRead == 2) {  // the first is being written, the second rendered
            stop = stopsMeanwhile;
            written.set_value();
            begunToRead = 0;
        }
    }
    void Ended(const Conversion& conversion, const ConversionOutcome& outcome) override {
        ++ended;
        log.append(Text(outcome.end == ConversionEnd::Written ? "written %1" : "failed %1")
                       .arg(conversion.photo));
    }
    bool StopAsked() override { return stop; }

    ConversionRunEnd Go() {
        ConversionTargets targets(plan.photos, {});
        return RunConversions(plan, targets, *this, ports);
    }

    QStringList log;
    std::promise<void> written;
    bool throws = false;
    bool stopsMeanwhile = false;
    bool stop = false;
    int ended = 0;
    int begunToRead = 0;
    ThreadRunner cores{3};
    ConversionPlan plan{
        .photos = {Text("/in/0"), Text("/in/1"), Text("/in/2")},
        .records =
            [this](qsizetype, const LoadedPicture&) {
                ++begunToRead;
                return ConversionRecords{{testing::FisheyeRecord()}};
            },
        .target = [this](const Conversion& what) { return plan.photos[what.photo] + Text(".tif"); },
        .output = {}};
    ConversionPorts ports{
        .load =
            [](const QString&) {
                return LoadedPicture{
                    LoadOutcome::Loaded, testing::PositionPicture({6, 9}), {}, {6, 9}};
            },
        .save =
            [this](const OutputEncoding&, const Bitmap*, const QString& path) {
                if (path.contains(u'0')) {
                    written.get_future().wait();
                }
                return SaveResult{true, {}};
            },
        .readAhead = [](const QString&) { return true; },
        .cores = &cores};
};

TEST_F(ConversionRunTest, TellsInOrderWhateverIsDoneAtTheSameTime) {
    EXPECT_FALSE(Go().stopped);
    EXPECT_EQ(log.join(u' '), Text("begun 0 written 0 begun 1 written 1 begun 2 written 2"));
}

TEST_F(ConversionRunTest, AskedToStopItDropsWhatWasBegunUnlessToldToFinishIt) {
    stopsMeanwhile = true;
    EXPECT_TRUE(Go().stopped);
    EXPECT_EQ(log.join(u' '), Text("begun 0 written 0"));
    log.clear();
    ended = begunToRead = 0;
    stop = false;
    written = {};
    plan.finishesBegun = true;
    EXPECT_TRUE(Go().stopped);
    EXPECT_EQ(log.join(u' '), Text("begun 0 written 0 begun 1 written 1"));
}

TEST_F(ConversionRunTest, NothingIsLeftWhenItIsAskedAfterTheLast) {
    plan.photos.resize(2);
    stopsMeanwhile = true;
    plan.finishesBegun = true;
    EXPECT_FALSE(Go().stopped);
    EXPECT_EQ(log.size(), 4);
}

TEST_F(ConversionRunTest, APhotoThatWasNotReadAheadIsReadWhenTheLastFileIsWritten) {
    written.set_value();
    ports.readAhead = [](const QString&) { return false; };
    int allRead = 0;
    ports.allRead = [&allRead] { ++allRead; };
    const auto load = ports.load;
    ports.load = [&](const QString& path) {
        log.append(Text("load ") + path.last(1));
        return load(path);
    };
    Go();
    EXPECT_EQ(log.join(u' '), Text("load 0 begun 0 written 0 load 1 begun 1 written 1 "
                                   "load 2 begun 2 written 2"));
    EXPECT_EQ(allRead, 1);
}

TEST_F(ConversionRunTest, APhotoThatIsGivenUpEndsItUntold) {
    written.set_value();
    const auto load = ports.load;
    ports.load = [&](const QString& path) {
        return path.contains(u'1') ? LoadedPicture::Refused(ReasonCode::Cancelled) : load(path);
    };
    EXPECT_TRUE(Go().stopped);
    EXPECT_EQ(log.join(u' '), Text("begun 0 written 0"));
}

// A photo that is drawn while it arrives: whatever comes of it in the end, files and log are as if
// it had been read before anything else.
class EarlyRunTest : public ConversionRunTest {
  protected:
    EarlyRunTest() {
        plan.photos = {folder.Path(Text("photo"))};
        plan.output.encoding = {OutputType::Jpeg, 90};
        plan.drawsByRows = true;
        plan.target = [this](const Conversion&) { return folder.Path(Text("result.jpg")); };
        ports.save = nullptr;
        ports.load = [this](const QString&) { return Picture(); };
    }
    LoadedPicture Picture() const {
        return {outcome,
                outcome == LoadOutcome::NotLoaded ? nullptr : testing::PositionPicture(size),
                outcome == LoadOutcome::Loaded ? Reason() : Reason(ReasonCode::FileCutShort), size};
    }
    void ArriveEarly() {
        ports.loadEarly = [this](const QString&) {
            LoadedPicture early{LoadOutcome::Loaded, NewBitmap(size), {}, size};
            arriving = early.arriving = std::make_shared<ArrivingPicture>(size.height);
            rows = std::make_unique<Bitmap>(*early.bitmap);
            return early;
        };
        ports.whole = [this](const QString&) {
            LoadedPicture whole = Picture();
            if (whole.bitmap) {
                std::copy_n(whole.bitmap->Bits(), whole.bitmap->Pitch() * size.height,
                            rows->Bits());
            }
            arriving->isSound = outcome == LoadOutcome::Loaded;
            arriving->rows.End();
            return whole;
        };
    }
    QByteArray Result() const { return testing::Contents(folder.Path(Text("result.jpg"))); }

    static constexpr PixelSize size{1500, 800};
    testing::PictureFolder folder;
    LoadOutcome outcome = LoadOutcome::Loaded;
    std::shared_ptr<ArrivingPicture> arriving;
    BitmapHandle rows;
};

TEST_F(EarlyRunTest, EndsAsIfThePhotoHadBeenThereFromTheBeginning) {
    const struct {
        const char* name;
        LoadOutcome outcome;
        bool hasOlderFile;
        int records;
        bool needsPixels;
    } rowsOfTable[] = {
        {"sound", LoadOutcome::Loaded, false, 1, false},
        {"over an older file", LoadOutcome::Loaded, true, 1, false},
        {"damaged", LoadOutcome::Damaged, false, 1, false},
        {"damaged, not over an older file", LoadOutcome::Damaged, true, 1, false},
        {"not loaded", LoadOutcome::NotLoaded, true, 1, false},
        {"two results", LoadOutcome::Loaded, false, 2, false},
        {"found on its pixels", LoadOutcome::Loaded, false, 1, true},
    };
    for (const auto& row : rowsOfTable) {
        SCOPED_TRACE(row.name);
        outcome = row.outcome;
        plan.records = [&row](qsizetype, const LoadedPicture& picture) {
            return ConversionRecords{
                std::vector(static_cast<std::size_t>(row.records), testing::FisheyeRecord()),
                {},
                row.needsPixels && picture.arriving != nullptr};
        };
        QByteArray files[2];
        QStringList logs[2];
        for (const int early : {0, 1}) {
            QFile::remove(folder.Path(Text("result.jpg")));
            if (row.hasOlderFile) {
                testing::WriteFile(folder.Path(Text("result.jpg")), "older");
            }
            ports.loadEarly = nullptr;
            if (early == 1) {
                ArriveEarly();
            }
            log.clear();
            Go();
            files[early] = Result();
            logs[early] = log;
        }
        EXPECT_EQ(files[1], files[0]);
        EXPECT_EQ(logs[1].join(u' ').toStdString(), logs[0].join(u' ').toStdString());
        EXPECT_EQ(QDir(QFileInfo(folder.Path(Text("x"))).path())
                      .entryList(QDir::Files | QDir::Hidden)
                      .size(),
                  files[0].isEmpty() ? 0 : 1);
    }
}

// Small files are begun several at a time: neither their order nor what is refused shows it.
TEST_F(ConversionRunTest, SmallFilesAreToldOfAndRefusedAsIfEachWereDoneBeforeTheNext) {
    plan.photos.clear();
    for (int n = 0; n < 12; ++n) {
        plan.photos.append(Text("/in/%1").arg(n));
    }
    plan.namesLastAtEnd = true;
    ports.save = nullptr;
    QString logs[2];
    QByteArray last[2];
    for (const bool overlaps : {false, true}) {
        const testing::PictureFolder files;
        ASSERT_TRUE(QFile::link(files.Path(Text("4.tif")), files.Path(Text("link"))));
        plan.target = [&](const Conversion& what) {
            return files.Path(what.photo == 5   ? Text("link")  // to the one before
                              : what.photo == 7 ? Text("none/7.tif")
                              : what.photo == 9 ? Text("8.tif")
                                                : Text("%1.tif").arg(what.photo));
        };
        ports.readAhead =
            overlaps ? [](const QString&) { return true; } : std::function<bool(const QString&)>();
        log.clear();
        ConversionTargets targets(plan.photos, {RepeatedName::LaterFails, ExistingFile::Replaced});
        EXPECT_FALSE(RunConversions(plan, targets, *this, ports).stopped);
        logs[overlaps ? 1 : 0] = log.join(u' ');
        last[overlaps ? 1 : 0] = testing::Contents(files.Path(Text("11.tif")));
        EXPECT_EQ(QDir(files.Path({})).entryList(QDir::Files | QDir::Hidden).size(), 10);
    }
    EXPECT_TRUE(logs[0].contains(Text("begun 5 failed 5 begun 6 written 6 begun 7 failed 7")));
    EXPECT_TRUE(logs[0].contains(Text("begun 9 failed 9")));
    EXPECT_EQ(logs[1], logs[0]);
    EXPECT_FALSE(last[0].isEmpty());
    EXPECT_EQ(last[1], last[0]);
}

// What is thrown past the run must not leave the worker waiting for a decision.
TEST_F(EarlyRunTest, EndsWhenTheObserverThrows) {
    ArriveEarly();
    throws = true;
    EXPECT_THROW(Go(), int);
    EXPECT_TRUE(Result().isEmpty());
}

TEST(ConversionTargets, RefuseByTheirRules) {
    const testing::PictureFolder files;
    const QString photo = files.Text(Text("a"));
    const QString other = files.Text(Text("b"));
    const QString older = files.Text(Text("older"));
    const QString fresh = files.Path(Text("new"));
    ConversionTargets replacing({photo, other}, {});
    EXPECT_FALSE(replacing.Take(photo, older) || replacing.Take(other, older));
    EXPECT_FALSE(replacing.Check(photo, older, false) || replacing.Check(photo, fresh, true));
    EXPECT_EQ(replacing.Check(photo, older, true).error, TargetError::DamagedPhoto);
    EXPECT_EQ(replacing.Check(photo, photo, false).error, TargetError::IsThePhoto);
    EXPECT_EQ(replacing.Check(photo, other, false).error, TargetError::IsPhotoOfRun);
    EXPECT_EQ(replacing.Check(photo, files.Path({}), false).error, TargetError::IsFolder);
    replacing.NoteWritten(photo, older, true);
    EXPECT_FALSE(replacing.Check(other, older, true)) << "another half picture";

    ConversionTargets keeping({photo, other}, {RepeatedName::LaterFails, ExistingFile::Kept});
    EXPECT_EQ(keeping.Check(photo, older, false).error, TargetError::Exists);
    EXPECT_FALSE(keeping.IsSkipped(older));
    EXPECT_FALSE(keeping.Take(photo, older));
    EXPECT_EQ(keeping.Take(other, older).error, TargetError::IsResultOfRun);
    EXPECT_EQ(keeping.Take(other, older).photo, photo);
    keeping.NoteWritten(photo, older, false);
    EXPECT_EQ(keeping.Check(other, older, false).error, TargetError::IsResultOfRun);

    const ConversionTargets skipping({photo}, {RepeatedName::LaterFails, ExistingFile::Skipped});
    EXPECT_TRUE(skipping.IsSkipped(older));
    EXPECT_FALSE(skipping.IsSkipped(fresh));
}

}  // namespace
}  // namespace varnel
