// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/morph_sequence.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "tests/support/changed_fields.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

ImageRecord Photo(Projection projection) {
    ImageRecord image = testing::FisheyeRecord();
    image.Projection = static_cast<std::int16_t>(projection);
    image.EffectVarnel = 70.0F;
    image.EffectRectilinear = 60.0F;
    image.TranslateY = 3.5F;
    image.FileName = Text("IMG.jpg");
    return image;
}

TEST(EndsFrom, BothEndsAreThePhotosOwnSettings) {
    for (const auto& [projection, effect] : {std::pair{Projection::Varnel, 70.0F},
                                             {Projection::Rectilinear, 60.0F},
                                             {Projection::Horizon, 70.0F}}) {
        const MorphEnds ends = EndsFrom(Photo(projection));
        EXPECT_EQ(ends.start, (MorphValues{90.0F, effect, 0, 0, 0, 0, 3.5F}));
        EXPECT_EQ(ends.end, ends.start);
    }
}

TEST(MorphFrame, MovesTheSevenSettingsInEqualSteps) {
    const MorphEnds ends{{60.0F, 10.0F, -40.0F, 0.0F, 1.0F, 5.0F, -2.0F},
                         {180.0F, 90.0F, 40.0F, 30.0F, 1.0F, -5.0F, 0.0F}};
    const ImageRecord photo = Photo(Projection::Rectilinear);
    const std::pair<int, const char*> rows[] = {
        {1,
         "OutputAOV=60 EffectRectilinear=10 RotateX=-40 RotateZ=1 TranslateX=5 TranslateY=-2 "
         "NameSuffix=Morph0001"},
        {2,
         "EffectRectilinear=30 RotateX=-20 RotateY=7.5 RotateZ=1 TranslateX=2.5 TranslateY=-1.5 "
         "NameSuffix=Morph0002"},
        {4,
         "OutputAOV=150 EffectRectilinear=70 RotateX=20 RotateY=22.5 RotateZ=1 TranslateX=-2.5 "
         "TranslateY=-0.5 NameSuffix=Morph0004"},
        {5,
         "OutputAOV=180 EffectRectilinear=90 RotateX=40 RotateY=30 RotateZ=1 TranslateX=-5 "
         "TranslateY=0 NameSuffix=Morph0005"}};
    for (const auto& [i, changes] : rows) {
        EXPECT_EQ(testing::Changed(photo, MorphFrame(photo, ends, i, 5)), changes);
    }
}

// 0.1 and 1/3 have no exact form: a step computed in double would end in other bits.
TEST(MorphFrame, CountsInSinglePrecision) {
    MorphEnds ends;
    ends.start.RotateX = 0.1F;
    ends.end.RotateX = 39.7F;
    const float third = 0.333333343F;
    const float way = 39.7F - 0.1F;
    const float moved = way * third;
    EXPECT_EQ(MorphFrame(Photo(Projection::Varnel), ends, 2, 4).RotateX, 0.1F + moved);
}

TEST(MorphFrame, TheEffectDrivesTheFieldThatTheProjectionReadsAboveItsFloor) {
    const MorphEnds ends{{.effect = 0.0F}, {.effect = 0.04F}};
    const struct {
        Projection projection;
        int i;
        float varnel, rectilinear;
    } rows[] = {
        {Projection::Varnel, 1, 0.01F, 60.0F},       {Projection::Varnel, 3, 0.04F, 60.0F},
        {Projection::Rectilinear, 1, 70.0F, 0.1F},   {Projection::Rectilinear, 3, 70.0F, 0.1F},
        {Projection::Equidistance, 1, 70.0F, 60.0F}, {Projection::Horizon, 3, 0.04F, 60.0F}};
    for (const auto& row : rows) {
        const ImageRecord frame = MorphFrame(Photo(row.projection), ends, row.i, 3);
        EXPECT_EQ(frame.EffectVarnel, row.varnel) << row.i;
        EXPECT_EQ(frame.EffectRectilinear, row.rectilinear) << row.i;
    }
}

TEST(MorphFrame, TheNameKeepsFourDigits) {
    const ImageRecord photo = Photo(Projection::Varnel);
    for (const auto& [i, suffix] : {std::pair{9, "Morph0009"},
                                    {10, "Morph0010"},
                                    {1234, "Morph1234"},
                                    {9999, "Morph9999"},
                                    {10000, "Morph0000"},
                                    {32767, "Morph2767"}}) {
        EXPECT_EQ(MorphFrame(photo, {}, i, 32767).NameSuffix, Text(suffix));
    }
}

TEST(AddMorph, AppendsBehindWhatIsQueued) {
    const ImageRecord photo = Photo(Projection::Varnel);
    RecordArray<ImageRecord> queue;
    queue.Append(photo);
    AddMorph(queue, photo, EndsFrom(photo), 3);
    ASSERT_EQ(queue.UpperBound(), 4);
    EXPECT_EQ(queue(1), photo);
    ImageRecord last = photo;
    last.NameSuffix = Text("Morph0003");
    EXPECT_EQ(queue(4), last);
    AddMorph(queue, photo, EndsFrom(photo), 2);
    EXPECT_EQ(queue(5).NameSuffix, Text("Morph0001"));
}

TEST(AddMorph, OneFrameIsADivisionByZeroAndFewerAreNothing) {
    RecordArray<ImageRecord> queue;
    queue.Append({});
    EXPECT_THROW(AddMorph(queue, {}, {}, 1), DivisionByZeroError);
    for (const int N : {0, -1, -32768}) {
        EXPECT_NO_THROW(AddMorph(queue, {}, {}, N));
    }
    EXPECT_EQ(queue.UpperBound(), 1);
}

TEST(MorphValue, KnowsTheEffectThatTheProjectionReadsOnly) {
    MorphValues values;
    EXPECT_EQ(MorphValue(values, Projection::Varnel, Text("EffectVarnel")), &values.effect);
    EXPECT_EQ(MorphValue(values, Projection::Rectilinear, Text("EffectVarnel")), nullptr);
    EXPECT_EQ(MorphValue(values, Projection::Horizon, Text("EffectVarnel")), &values.effect);
    EXPECT_EQ(MorphValue(values, Projection::Horizon, Text("EffectRectilinear")), nullptr);
    EXPECT_EQ(MorphValue(values, Projection::Equidistance, Text("EffectVarnel")), nullptr);
    EXPECT_EQ(MorphValue(values, Projection::Horizon, Text("TranslateX")), &values.TranslateX);
    EXPECT_EQ(MorphValue(values, Projection::Varnel, Text("InputAOV")), nullptr);
    EXPECT_EQ(MorphValue(values, Projection::Panini, Text("PaniniD")), &values.PaniniD);
    EXPECT_EQ(MorphValue(values, Projection::Panini, Text("EffectRectilinear")), &values.effect);
    EXPECT_EQ(MorphFields().size(), 13);
}

TEST(FrameCountFromText, TakesWholeNumbersOfSixteenBits) {
    for (const auto& [text, count] :
         {std::pair{"2", 2}, {" 32767 ", 32767}, {"0", 0}, {"-3", -3}}) {
        EXPECT_EQ(std::get<int>(FrameCountFromText(Text(text))), count);
    }
    for (const auto& [text, words] :
         {std::pair{"", "\"\" is not a whole number."},
          {"ten", "\"ten\" is not a whole number."},
          {"2.5", "\"2.5\" is not a whole number."},
          {"1e3", "\"1e3\" is not a whole number."},
          {"3-4", "\"3-4\" is not a whole number."},
          {"32768", "32768 is out of range: a sequence has at most 32767 frames."},
          {"99999999999999999999",
           "99999999999999999999 is out of range: a sequence has at most 32767 frames."},
          {"-32769", "-32769 is out of range: a sequence has at most 32767 frames."}}) {
        EXPECT_EQ(std::get<QString>(FrameCountFromText(Text(text))), Text(words));
    }
}

}  // namespace
}  // namespace varnel
