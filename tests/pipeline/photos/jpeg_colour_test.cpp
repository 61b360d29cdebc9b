// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/jpeg_colour.h"

#include <gtest/gtest.h>

#include "tests/support/files.h"

namespace varnel {
namespace {

TEST(JpegColour, IsHalvedAsItWasSaved) {
    const testing::PictureFolder files;
    const QString fine =
        files.Picture(QStringLiteral("fine.jpg"), {OutputType::Jpeg, 90, true}, {64, 48});
    const QString halved =
        files.Picture(QStringLiteral("halved.jpg"), {OutputType::Jpeg, 90, false}, {64, 48});
    EXPECT_FALSE(HasHalvedColour(fine));
    EXPECT_TRUE(HasHalvedColour(halved));
    EXPECT_FALSE(HasHalvedColour(files.Picture(QStringLiteral("a.png"), OutputType::Png)));
    EXPECT_FALSE(HasHalvedColour(files.Path(QStringLiteral("none.jpg"))));
    for (int percent = 1; percent < 60; percent += 3) {  // no end of it is read past
        HasHalvedColour(files.Cut(QStringLiteral("cut.jpg"), halved, percent));
    }
}

}  // namespace
}  // namespace varnel
