// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/film/time_line.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace varnel {
namespace {

TEST(TimeText, HasHoursOnlyWhereThereAreSome) {
    for (const auto& [seconds, text] : {std::pair{0.0, "0:00.000"},
                                        {61.2345, "1:01.235"},
                                        {3599.9996, "1:00:00.000"},
                                        {36000.5, "10:00:00.500"}}) {
        EXPECT_EQ(TimeText(seconds), QLatin1StringView(text));
    }
}

class TimeLineTest : public ::testing::Test {
  protected:
    TimeLineTest() {
        line.resize(518, 40);
        line.Show(10.0, 25.0, {2.0, 8.0, {{3.0, KeyEase::Linear, {}}, {6.0, KeyEase::Hold, {}}}},
                  5.0);
        line.show();
    }
    QPoint At(double seconds) const { return {qRound(line.PlaceOf(seconds)), 24}; }
    void Drag(double from, double to) {
        QTest::mousePress(&line, Qt::LeftButton, {}, At(from));
        QTest::mouseMove(&line, At(to));
        QTest::mouseRelease(&line, Qt::LeftButton, {}, At(to));
    }

    TimeLine line{nullptr};
};

TEST_F(TimeLineTest, EveryThingIsDraggedByItself) {
    QSignalSpy scrubbed(&line, &TimeLine::Scrubbed);
    QSignalSpy in(&line, &TimeLine::InMoved);
    QSignalSpy out(&line, &TimeLine::OutMoved);
    QSignalSpy key(&line, &TimeLine::KeyMoved);
    Drag(2.0, 1.0);
    Drag(8.0, 9.5);
    Drag(6.0, 7.0);
    EXPECT_EQ(scrubbed.count(), 0);
    ASSERT_EQ(in.count(), 1);
    EXPECT_NEAR(in[0][0].toDouble(), 1.0, 0.02);
    ASSERT_EQ(out.count(), 1);
    EXPECT_NEAR(out[0][0].toDouble(), 9.5, 0.02);
    ASSERT_EQ(key.count(), 1);
    EXPECT_EQ(key[0][0].toInt(), 1);
    EXPECT_NEAR(key[0][1].toDouble(), 7.0, 0.02);
    QTest::mouseClick(&line, Qt::LeftButton, {}, At(4.0));
    ASSERT_EQ(scrubbed.count(), 1);
    EXPECT_NEAR(scrubbed[0][0].toDouble(), 4.0, 0.02);
    QTest::mouseClick(&line, Qt::LeftButton, {}, At(3.0) + QPoint(2, 0));
    EXPECT_EQ(scrubbed.last()[0].toDouble(), 3.0);  // a key that is clicked is gone to exactly
    EXPECT_EQ(key.count(), 1);
}

TEST_F(TimeLineTest, IsSteeredByTheKeyboard) {
    QSignalSpy stepped(&line, &TimeLine::Stepped);
    QSignalSpy play(&line, &TimeLine::PlayWanted);
    QSignalSpy in(&line, &TimeLine::InWanted);
    QSignalSpy out(&line, &TimeLine::OutWanted);
    QSignalSpy key(&line, &TimeLine::NewKeyWanted);
    QSignalSpy remove(&line, &TimeLine::RemoveWanted);
    QSignalSpy scrubbed(&line, &TimeLine::Scrubbed);
    QTest::keyClick(&line, Qt::Key_Left);
    QTest::keyClick(&line, Qt::Key_Right, Qt::ShiftModifier);
    for (const Qt::Key pressed :
         {Qt::Key_Space, Qt::Key_I, Qt::Key_O, Qt::Key_K, Qt::Key_Delete, Qt::Key_End}) {
        QTest::keyClick(&line, pressed);
    }
    ASSERT_EQ(stepped.count(), 2);
    EXPECT_EQ(stepped[0][0].toInt(), -1);
    EXPECT_EQ(stepped[1][0].toInt(), 25);
    EXPECT_EQ((std::array{play.count(), in.count(), out.count(), key.count(), remove.count()}),
              (std::array<qsizetype, 5>{1, 1, 1, 1, 1}));
    EXPECT_EQ(scrubbed.last()[0].toDouble(), 10.0);
}

}  // namespace
}  // namespace varnel
