// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/profiles/rgb_profile.h"

#include <gtest/gtest.h>

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/profiles.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using testing::Number;
using testing::Order;

TEST(IsProfileForRgb, TakesSoundProfilesOfDevicesWithRedGreenAndBlueAlone) {
    const QByteArray sound = testing::RgbProfile();
    const auto with = [&](qsizetype at, const QByteArray& bytes) {
        return QByteArray(sound).replace(at, bytes.size(), bytes);
    };
    EXPECT_TRUE(IsProfileForRgb(sound));
    EXPECT_TRUE(IsProfileForRgb(testing::ColourProfile()));
    EXPECT_FALSE(IsProfileForRgb(testing::GreyProfile()));
    EXPECT_FALSE(IsProfileForRgb(testing::InkProfile()));
    EXPECT_FALSE(IsProfileForRgb(with(12, "abst")));
    EXPECT_FALSE(IsProfileForRgb(with(12, "link")));
    EXPECT_FALSE(IsProfileForRgb(with(20, "RGB "))) << "no space that profiles connect by";
    EXPECT_FALSE(IsProfileForRgb(with(36, "none")));
    EXPECT_FALSE(IsProfileForRgb(sound + QByteArray(4, '\0')));
    EXPECT_FALSE(IsProfileForRgb(with(136, Number(sound.size(), 4, Order::Big)))) << "of a tag";
    for (qsizetype length = 0; length < sound.size(); length += 3) {
        EXPECT_FALSE(IsProfileForRgb(QByteArrayView(sound).first(length))) << length;
        EXPECT_FALSE(IsProfileForRgb(with(0, Number(length, 4, Order::Big)).left(length)));
    }
}

}  // namespace
}  // namespace varnel
