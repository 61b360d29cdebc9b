// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/zoom_pair.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

// A picture of 6000 x 4000 in a view of 901 x 600.
PictureZoom Zoom() {
    PictureZoom zoom;
    zoom.SetView({901, 600});
    zoom.SetPicture({6000, 4000});
    return zoom;
}

TEST(PictureZoom, ThePointStaysAsFarAsTheEdgesAllow) {
    struct Case {
        double scale;
        QPointF picture, view;
        QPoint corner;
        QRectF visible;
    };
    const Case cases[] = {
        {1.0, {3000, 2000}, {450.5, 300}, {-2549, -1700}, {2549, 1700, 901, 600}},
        {1.0, {3000, 2000}, {100, 50}, {-2900, -1950}, {2900, 1950, 901, 600}},
        {1.0, {10, 3990}, {450, 300}, {0, -3400}, {0, 3400, 901, 600}},
        {2.0, {3000, 2000}, {0, 0}, {-6000, -4000}, {3000, 2000, 450.5, 300}},
        // Not wider than the view: in its middle.
        {0.15005, {0, 0}, {0, 0}, {0, 0}, {0, 0, 6000, 600 / 0.15005}},
        {0.1, {3000, 2000}, {450, 300}, {1, 0}, {0, 0, 6000, 4000}},  // whole
    };
    for (const Case& c : cases) {
        PictureZoom zoom = Zoom();
        zoom.Show(c.scale, c.picture, c.view);
        EXPECT_EQ(zoom.Corner(), c.corner) << c.scale;
        EXPECT_NEAR(zoom.Visible().left(), c.visible.left(), 1e-9);
        EXPECT_NEAR(zoom.Visible().top(), c.visible.top(), 1e-9);
        EXPECT_NEAR(zoom.Visible().width(), c.visible.width(), 1e-6);
        EXPECT_NEAR(zoom.Visible().height(), c.visible.height(), 1e-6);
        const QPointF there = zoom.ToView({1234.5, 678.25});
        EXPECT_NEAR(zoom.ToPicture(there).x(), 1234.5, 1e-9);
    }
    EXPECT_TRUE(Zoom().Fit());
    EXPECT_DOUBLE_EQ(Zoom().Scale(), 0.15);
}

TEST(PictureZoom, PansByWholePixelsUntilTheEdge) {
    PictureZoom zoom = Zoom();
    zoom.Show(1.0, {3000, 2000}, {450, 300});
    zoom.Pan({7, -3});
    EXPECT_EQ(zoom.Corner(), QPoint(-2543, -1703));
    zoom.Pan({9999, 9999});
    EXPECT_EQ(zoom.Corner(), QPoint(0, 0));
    zoom.Pan({-9999, -9999});
    EXPECT_EQ(zoom.Corner(), QPoint(901 - 6000, 600 - 4000));
}

TEST(PictureZoom, StepsStopAtRoundScalesAndPassOneOnlyFromThere) {
    PictureZoom zoom = Zoom();
    EXPECT_DOUBLE_EQ(zoom.Stepped(1), 1.0 / 6);
    EXPECT_DOUBLE_EQ(zoom.Stepped(99), 8.0);
    EXPECT_LT(zoom.Stepped(-99), zoom.FitScale());
    zoom.Show(0.9, {}, {});
    EXPECT_DOUBLE_EQ(zoom.Stepped(-1), 2.0 / 3);
    EXPECT_DOUBLE_EQ(zoom.Scaled(1.5), 1.0);
    zoom.Show(1.0, {}, {});
    EXPECT_DOUBLE_EQ(zoom.Scaled(1.5), 1.5);
    zoom.Show(20.0, {}, {});
    EXPECT_DOUBLE_EQ(zoom.Scale(), 8.0);
    zoom.Show(0.15, {}, {});
    EXPECT_TRUE(zoom.Fit());
}

TEST(PictureZoom, AnotherSizeIsShownWholeAndSmallPicturesFillTheView) {
    PictureZoom zoom = Zoom();
    zoom.Show(1.0, {}, {});
    zoom.SetPicture({6000, 4000});
    EXPECT_FALSE(zoom.Fit());
    zoom.SetPicture({300, 200});
    EXPECT_TRUE(zoom.Fit());
    EXPECT_DOUBLE_EQ(zoom.Scale(), 3.0);
    zoom.Show(2.0, {}, {});
    EXPECT_EQ(zoom.Corner(), QPoint(151, 100));
    zoom.SetView({5000, 5000});
    EXPECT_FALSE(zoom.Fit());
    zoom.Show(1.0, {}, {});
    EXPECT_DOUBLE_EQ(zoom.Scale(), 1.0);
    zoom.Show(0.9, {}, {});
    EXPECT_TRUE(zoom.Fit());
    EXPECT_DOUBLE_EQ(zoom.Largest(), zoom.FitScale());
}

TEST(ZoomPair, BothShowTheSameShareAtOneScale) {
    ZoomPair zooms;
    for (PictureZoom* const zoom : {&zooms.photo, &zooms.result}) {
        zoom->SetView({300, 200});
    }
    zooms.photo.SetPicture({6000, 4000});
    zooms.result.SetPicture({2000, 8000});
    zooms.Change(zooms.result, [](PictureZoom& zoom) { zoom.Show(0.5, {500, 6000}, {150, 100}); });
    EXPECT_EQ(zooms.photo.Centre(), QPointF(1500, 3000));
    EXPECT_DOUBLE_EQ(zooms.photo.Scale(), 0.5);
    zooms.Change(zooms.photo, [](PictureZoom& zoom) { zoom.Pan({-600, 0}); });
    EXPECT_EQ(zooms.result.Centre(), QPointF(900, 6000));
    // The one is larger than its view at this scale, the other is not.
    zooms.Change(zooms.result, [](PictureZoom& zoom) { zoom.Show(0.04, {}, {}); });
    EXPECT_FALSE(zooms.result.Fit());
    EXPECT_TRUE(zooms.photo.Fit());
    zooms.ShowAll();
    EXPECT_TRUE(zooms.result.Fit());
}

}  // namespace
}  // namespace varnel
