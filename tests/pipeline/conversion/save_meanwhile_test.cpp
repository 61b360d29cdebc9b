// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/save_meanwhile.h"

#include <gtest/gtest.h>

#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

// Cancels when events are handled for the second time between pieces of the work.
class Canceller : public RenderProgress {
  public:
    explicit Canceller(CancelFlag& cancelled) : cancelled_(cancelled) {}
    void Begin(float /*maximum*/) override {}
    void Advance(float /*value*/) override { ++steps; }
    void Pause() override { cancelled_ = ++pauses >= 2; }
    void End() override { ++ends; }
    int steps = 0, pauses = 0, ends = 0;

  private:
    CancelFlag& cancelled_;
};

TEST(CancellableProgress, EndsAConversionBeforeItsFirstColumnsAreDone) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = testing::PositionPicture({301, 200});
    RenderContext context{bitmaps};
    CancelFlag cancelled = false;
    Canceller canceller(cancelled);
    CancellableProgress progress(canceller, cancelled);
    EXPECT_THROW(Render(Projection::Rectilinear, testing::FisheyeRecord(), SizeKind::Large,
                        progress, context),
                 SavingCancelled);
    EXPECT_EQ(canceller.pauses, 2);
    EXPECT_EQ(canceller.steps, 0);
    EXPECT_EQ(canceller.ends, 1);
}

}  // namespace
}  // namespace varnel
