// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/begun_turns.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <future>
#include <thread>

#include "files/file_operations.h"
#include "tests/support/bitmaps.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// The disk takes its time until the gate is opened.
class SlowDisk : public FileOperations {
  public:
    explicit SlowDisk(std::shared_future<void> gate) : gate_(std::move(gate)) {}
    int Sync(int file) override {
        gate_.wait();
        return FileOperations::Sync(file);
    }

  private:
    std::shared_future<void> gate_;
};

class BegunTurnsTest : public ::testing::Test, public SilentProgress {
  protected:
    void HandleEvents() override { ++events_; }
    QString Path(const QString& name) const { return folder_.filePath(name); }
    void BeginOne(const QString& target, PixelSize size = {6, 9}) {
        Turn turn;
        turn.what.target = target;
        turn.drawn->result = testing::PositionPicture(size);
        EXPECT_EQ(SizeOf(turns_.Begin(std::move(turn)).get()).width, size.width);
    }
    QString Ended() {
        const Turn turn = turns_.TakeFirst(*this);
        const bool isWritten = turn.outcome.end == ConversionEnd::Written;
        return (isWritten ? Text("written ") : Text("failed ")) +
               turn.what.target.section(u'/', -1);
    }

    const QTemporaryDir folder_;
    int events_ = 0;
    std::promise<void> gate_;
    ThreadRunner cores_{2};
    const ConversionPlan plan_{};
    const ConversionPorts ports_{};
    FileSeries series_{std::make_shared<SlowDisk>(gate_.get_future().share())};
    BegunTurns turns_{{plan_, ports_, series_, {cores_, false}}};
};

TEST_F(BegunTurnsTest, EndInOrderWithWhatBecameOfEach) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(Text("1.tif")));
    for (const char* const name : {"0.tif", "1.tif", "2.tif"}) {
        BeginOne(Path(Text(name)));
    }
    EXPECT_FALSE(turns_.IsFirstDue()) << "the disk has not answered";
    std::thread disk([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        gate_.set_value();
    });
    EXPECT_EQ(Ended(), Text("written 0.tif"));
    disk.join();
    EXPECT_GT(events_, 0);
    EXPECT_TRUE(turns_.IsFirstDue()) << "had failed at once";
    EXPECT_EQ(Ended(), Text("failed 1.tif"));
    EXPECT_EQ(Ended(), Text("written 2.tif"));
    EXPECT_TRUE(turns_.IsEmpty());
    EXPECT_FALSE(turns_.IsFirstDue());
    EXPECT_TRUE(QFileInfo::exists(Path(Text("2.tif"))));
}

TEST_F(BegunTurnsTest, NoMoreAreBegunThanFewWhatEverTheDiskDoes) {
    for (int n = 0; n < 2 * FileSeries::filesTogether; ++n) {
        BeginOne(Path(QString::number(n)));
        EXPECT_FALSE(turns_.IsFirstDue());
    }
    BeginOne(Path(Text("last")));
    EXPECT_TRUE(turns_.IsFirstDue());
    gate_.set_value();
}

TEST_F(BegunTurnsTest, KnowTheTargetsThatMayBecomeOneOfTheirFiles) {
    const auto link = [this](const char* name) {
        return QFile::link(Path(Text("a.tif")), Path(Text(name)));
    };
    ASSERT_TRUE(link("link"));
    EXPECT_FALSE(turns_.MayHave(Path(Text("link")))) << "nothing is begun";
    BeginOne(Path(Text("a.tif")));
    BeginOne(Path(QString::fromUtf8("\u00e4.tif")));
    for (const char* const name : {"a.tif", "A.TIF", "link", "\u00e4.tif", "a\u0308.tif"}) {
        EXPECT_TRUE(turns_.MayHave(Path(QString::fromUtf8(name)))) << name;
    }
    EXPECT_FALSE(turns_.MayHave(Path(Text("b.tif"))));
    EXPECT_FALSE(turns_.MayHave(Path(Text("none/a.tif"))));
    gate_.set_value();
}

TEST_F(BegunTurnsTest, AreSmall) {
    Turn turn;
    turn.drawn->result = NewBitmap({1000, 1000});
    EXPECT_TRUE(BegunTurns::IsSmall(turn));
    turn.drawn->result = NewBitmap({1001, 1000});
    EXPECT_FALSE(BegunTurns::IsSmall(turn));
    gate_.set_value();
}

}  // namespace
}  // namespace varnel
