// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/face_places.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

TEST(FacePlaces, LieOnAResultThatIsCutOutOfItsFrame) {
    OutputFrame cut{{400, 300}};
    cut.whole = {1000, 800};
    cut.corner = {100, 200};  // from the lower left: 300 rows are above
    const QRectF frame = FrameOnResult(cut);
    EXPECT_EQ(frame, QRectF(-100.0, -300.0, 1000.0, 800.0));
    const FaceEllipse face{0.3, 0.5, 0.1, 0.2, 30.0};
    const PictureEllipse ellipse = OnResult(face, frame);
    EXPECT_EQ(ellipse.middle, QPointF(200.0, 100.0));
    EXPECT_DOUBLE_EQ(ellipse.halfWidth, 50.0);
    EXPECT_DOUBLE_EQ(ellipse.halfHeight, 80.0);
    const FaceEllipse back = OnFrame(ellipse, frame);
    EXPECT_NEAR(back.x, face.x, 1e-12);
    EXPECT_NEAR(back.y, face.y, 1e-12);
    EXPECT_NEAR(back.width, face.width, 1e-12);
    EXPECT_NEAR(back.height, face.height, 1e-12);
    EXPECT_EQ(back.angle, 30.0);
    EXPECT_EQ(FrameOnResult(OutputFrame{{400, 300}}), QRectF(0.0, 0.0, 400.0, 300.0));
}

// Counter-clockwise, though rows count downward.
TEST(FacePlaces, TurnAgainstTheClock) {
    const PictureEllipse upright{{100.0, 100.0}, 20.0, 40.0, 90.0};
    EXPECT_NEAR(upright.PointAt({20.0, 0.0}).y(), 80.0, 1e-9);
    EXPECT_NEAR(upright.PointAt({0.0, 40.0}).x(), 60.0, 1e-9);
    EXPECT_NEAR(upright.LevelAt({60.0, 100.0}), 1.0, 1e-9);
    EXPECT_NEAR(upright.LevelAt({100.0, 110.0}), 0.5, 1e-9);
    const QPointF within = upright.Within({93.0, 88.0});
    EXPECT_NEAR(upright.PointAt(within).x(), 93.0, 1e-9);
    EXPECT_NEAR(upright.PointAt(within).y(), 88.0, 1e-9);
}

}  // namespace
}  // namespace varnel
