// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/time_left.h"

#include <gtest/gtest.h>

#include <sstream>

#include "cli/report/progress_bar.h"

namespace varnel {
namespace {

TEST(RunPace, WaitsForGroundAndFollowsTheLastPictures) {
    RunPace pace;
    for (const double now : {10.0, 10.5, 11.0}) {  // the start does not count
        pace.Done(now);
        EXPECT_FALSE(pace.Left(100, now));
    }
    pace.Done(12.0);
    EXPECT_NEAR(*pace.Left(100, 12.0), 100 * 2.0 / 3, 1e-9);
    // Counts down while the next one is at work, but no further than to its end.
    EXPECT_NEAR(*pace.Left(100, 12.5), 100 * 2.0 / 3 - 0.5, 1e-9);
    EXPECT_NEAR(*pace.Left(100, 20.0), 99 * 2.0 / 3, 1e-9);
    EXPECT_EQ(*pace.Left(1, 20.0), 0.0);
    // A photo of four projections that fails takes four away.
    pace.Done(16.0, 4);
    EXPECT_NEAR(*pace.Left(7, 16.0), 7 * 6.0 / 7, 1e-9);
    // What was long ago does not count: 40 pictures at 3 seconds each.
    for (int n = 1; n <= 40; ++n) {
        pace.Done(16.0 + 3.0 * n);
    }
    EXPECT_NEAR(*pace.Left(10, 136.0), 30.0, 1e-9);
}

TEST(LeftText, IsCoarserTheLongerItTakes) {
    const struct {
        double seconds;
        const char* text;
    } rows[] = {
        {0.0, "1 s left"},          {3.2, "4 s left"},          {11.0, "15 s left"},
        {58.0, "1 min 0 s left"},   {195.0, "3 min 20 s left"}, {200.0, "3 min 20 s left"},
        {3599.0, "1 h 0 min left"}, {3900.0, "1 h 5 min left"}, {90000.0, "25 h 0 min left"}};
    for (const auto& row : rows) {
        EXPECT_EQ(LeftText(row.seconds).toStdString(), row.text) << row.seconds;
    }
}

TEST(TerminalBar, IsOneShortLineWhereItIsWanted) {
    for (const bool shown : {false, true}) {
        std::ostringstream terminal;
        {
            TerminalBar bar(terminal, shown);
            bar.Start(4);
            bar.SetPhoto(QStringLiteral("folder/a\n") + QString(100, u'x'));
            bar.Done(2);
            while (shown && terminal.str().empty()) {  // not too often
                bar.Refresh();
            }
        }
        const std::string line = "\r[############............] 2 of 4  a\\n" + std::string(41, 'x');
        EXPECT_EQ(terminal.str(), shown ? line + "\x1b[K\r\x1b[K" : "");
    }
}

}  // namespace
}  // namespace varnel
