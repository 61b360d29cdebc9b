// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/frame_text.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

TEST(FrameText, TakesSizesAndShapesAndNothingElse) {
    struct Case {
        const char* text;
        PixelSize size{};
        double aspect = 0.0;
        bool centre = false;
    };
    for (const Case& c :
         {Case{""}, Case{"4000", {4000, 0}}, Case{" 4000 x 3000 ", {4000, 3000}},
          Case{"4000X1", {4000, 1}}, Case{"16:9", {}, 16.0 / 9.0}, Case{"centre", {}, 0.0, true}}) {
        const auto wish = FrameWishFromText(QString::fromLatin1(c.text));
        ASSERT_TRUE(wish) << c.text;
        EXPECT_EQ(wish->size.width, c.size.width) << c.text;
        EXPECT_EQ(wish->size.height, c.size.height) << c.text;
        EXPECT_EQ(wish->aspect.value_or(0.0), c.aspect) << c.text;
        EXPECT_EQ(wish->centre, c.centre) << c.text;
    }
    for (const char* const text :
         {"0", "-3", "40000", "4x3x2", "x3", "4000x", "16:0", "1:1000", "16:9:4", "large"}) {
        EXPECT_FALSE(FrameWishFromText(QString::fromLatin1(text))) << text;
    }
}

TEST(FrameText, SaysASizeAsItIsTyped) {
    ImageRecord image;
    EXPECT_EQ(SizeText(image), QString());
    image.OutputWidth = 4000;
    EXPECT_EQ(SizeText(image), QStringLiteral("4000"));
    image.OutputHeight = 3000;
    EXPECT_EQ(SizeText(image), QStringLiteral("4000x3000"));
}

}  // namespace
}  // namespace varnel
