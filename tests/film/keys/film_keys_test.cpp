// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/keys/film_keys.h"

#include <gtest/gtest.h>

#include "tests/support/changed_fields.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(RecordAt, EachFieldGoesByItsOwnKeys) {
    const FilmKeys keys{
        {1.0, KeyEase::Linear, {{Text("RotateY"), 10.0F}, {Text("OutputAOV"), 100.0F}}},
        {2.0, KeyEase::Hold, {{Text("RotateX"), -8.0F}}},
        {3.0, KeyEase::Ease, {{Text("RotateY"), 20.0F}}},
        {4.0, KeyEase::Linear, {{Text("RotateX"), 8.0F}}},
        {7.0, KeyEase::Linear, {{Text("RotateY"), 120.0F}}}};
    ImageRecord film = testing::FisheyeRecord();
    film.Film = FilmCourse{0.0, {}, keys};
    // Between 3 and 7 seconds RotateY is 20 + 100 (3t^2 - 2t^3): 15.625 percent of the way after a
    // quarter of the time, half of it after half.
    const std::pair<double, const char*> rows[] = {{0.0, "OutputAOV=100 RotateX=-8 RotateY=10"},
                                                   {1.0, "OutputAOV=100 RotateX=-8 RotateY=10"},
                                                   {1.5, "OutputAOV=100 RotateX=-8 RotateY=12.5"},
                                                   {2.5, "OutputAOV=100 RotateX=-8 RotateY=17.5"},
                                                   {3.0, "OutputAOV=100 RotateX=-8 RotateY=20"},
                                                   {4.0, "OutputAOV=100 RotateX=8 RotateY=35.625"},
                                                   {5.0, "OutputAOV=100 RotateX=8 RotateY=70"},
                                                   {7.0, "OutputAOV=100 RotateX=8 RotateY=120"},
                                                   {1e6, "OutputAOV=100 RotateX=8 RotateY=120"}};
    for (const auto& [time, changes] : rows) {
        const ImageRecord frame = RecordAt(film, keys, time);
        EXPECT_EQ(testing::Changed(film, frame), changes) << time;
        EXPECT_FALSE(frame.Film);
    }
    EXPECT_EQ(testing::Changed(film, RecordAt(film, {}, 1.0)), "");
}

TEST(SetKey, ChangesTheKeyThatIsNearOrMakesOne) {
    FilmKeys keys;
    SetKey(keys, 2.0, 0.02, Text("RotateY"), 5.0F);
    keys.front().ease = KeyEase::Hold;
    SetKey(keys, 2.015, 0.02, Text("RotateX"), 1.0F);
    SetKey(keys, 3.0, 0.02, Text("RotateY"), 6.0F);
    SetKey(keys, 1.0, 0.02, Text("RotateY"), 4.0F);
    const FilmKeys expected{
        {1.0, KeyEase::Linear, {{Text("RotateY"), 4.0F}}},
        {2.0, KeyEase::Hold, {{Text("RotateX"), 1.0F}, {Text("RotateY"), 5.0F}}},
        {3.0, KeyEase::Hold, {{Text("RotateY"), 6.0F}}}};
    EXPECT_EQ(keys, expected);
    EXPECT_TRUE(Moves(keys, Text("RotateX")));
    EXPECT_FALSE(Moves(keys, Text("RotateZ")));
    EXPECT_EQ(KeyNear(keys, 2.5, 0.4), keys.end());
}

TEST(MoveKey, PassesOthersButNeverTakesTheirPlace) {
    FilmKeys keys;
    for (const double time : {1.0, 2.0, 3.0}) {
        SetKey(keys, time, 0.02, Text("RotateY"), static_cast<float>(time));
    }
    const struct {
        std::size_t from;
        double to;
        std::size_t place;
        double time;
    } rows[] = {{0, 2.5, 1, 2.5}, {1, 3.01, 1, 2.5}, {1, -4.0, 0, 0.0}, {2, 1e9, 2, latestKey}};
    for (const auto& row : rows) {
        const auto key = keys.cbegin() + static_cast<std::ptrdiff_t>(row.from);
        const auto moved = MoveKey(keys, key, row.to, 0.02);
        EXPECT_EQ(static_cast<std::size_t>(moved - keys.cbegin()), row.place) << row.to;
        EXPECT_EQ(moved->time, row.time);
    }
    RemoveKey(keys, keys.cbegin());
    ASSERT_EQ(keys.size(), 2U);
    EXPECT_EQ(keys.front().time, 2.0);
}

}  // namespace
}  // namespace varnel
