// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "film/keys/course_lines.h"
#include "film/keys/film_keys.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(FilmKeysFromJson, ReadsKeysInAnyOrder) {
    const auto read = FilmKeysFromJson(
        R"( {"keys": [ {"time": 2, "set": {"RotateY": -10.5, "OutputAOV": 120}},
                       {"set": {"EffectVarnel": 0.01}, "ease": "hold", "time": 0},
                       {"time": 1.25, "ease": "ease", "set": {"PaniniD": 1}} ]} )");
    const FilmKeys keys{
        {0.0, KeyEase::Hold, {{Text("EffectVarnel"), 0.01F}}},
        {1.25, KeyEase::Ease, {{Text("PaniniD"), 1.0F}}},
        {2.0, KeyEase::Linear, {{Text("OutputAOV"), 120.0F}, {Text("RotateY"), -10.5F}}}};
    ASSERT_TRUE(std::holds_alternative<FilmKeys>(read)) << std::get<1>(read).toStdString();
    EXPECT_EQ(std::get<FilmKeys>(read), keys);
    EXPECT_EQ(std::get<FilmKeys>(FilmKeysFromJson(R"({"keys":[]})")), FilmKeys());
}

TEST(FilmKeysToJson, IsShortAndComesBack) {
    const FilmKeys keys{{1.0 / 3.0, KeyEase::Ease, {{Text("RotateY"), 0.1F}}},
                        {7.0, KeyEase::Hold, {{Text("TranslateX"), 1.0F / 3.0F}}}};
    const QByteArray json = ToJson(keys);
    EXPECT_EQ(json, R"({"keys":[{"ease":"ease","set":{"RotateY":0.1},"time":0.3333333333333333},)"
                    R"({"ease":"hold","set":{"TranslateX":0.33333334},"time":7}]})");
    EXPECT_EQ(std::get<FilmKeys>(FilmKeysFromJson(json)), keys);
}

TEST(FilmKeysFromJson, SaysWhatIsWrong) {
    const struct {
        const char *keys, *error;
    } rows[] = {
        {R"({"set":{"RotateY":1}})",
         "key 1: \"time\" must be a number of seconds from 0 to 1000000"},
        {R"({"time":-0.1,"set":{"RotateY":1}})",
         "key 1: \"time\" must be a number of seconds from 0 to 1000000"},
        {R"({"time":"1","set":{"RotateY":1}})",
         "key 1: \"time\" must be a number of seconds from 0 to 1000000"},
        {R"({"time":1e7,"set":{"RotateY":1}})",
         "key 1: \"time\" must be a number of seconds from 0 to 1000000"},
        {R"({"time":1,"set":{"RotateY":1}},{"time":1.0,"set":{"RotateX":1}})",
         "there are two keys at 1 seconds"},
        {R"({"time":0,"set":{"RotateY":1}},{"time":1,"set":{"Rotatey":1}})",
         "key 2: \"Rotatey\" is no setting that moves; did you mean \"RotateY\"?"},
        {R"({"time":1,"set":{"Ratio":1}})",
         "key 1: \"Ratio\" is no setting that moves; there is OutputAOV, EffectVarnel, "
         "EffectRectilinear, RotateX, RotateY, RotateZ, TranslateX, TranslateY, PaniniD, "
         "PaniniSqueeze, UnrollStart, UnrollFrom, UnrollTo"},
        {R"({"time":1,"set":{"RotateY":"1"}})", "key 1: the value of RotateY must be a number"},
        {R"({"time":1,"set":{"RotateY":1e300}})",
         "key 1: the setting RotateY cannot be \"1e+300\""},
        {R"({"time":1,"set":{"PaniniD":1.5}})", "key 1: the setting PaniniD is out of range: 1.5"},
        {R"({"time":1,"set":{}})", "key 1: \"set\" must hold settings and their numbers"},
        {R"({"time":1})", "key 1: \"set\" must hold settings and their numbers"},
        {R"({"time":1,"ease":"slow","set":{"RotateY":1}})",
         "key 1: \"ease\" must be linear, ease or hold"},
        {R"({"time":1,"ease":1,"set":{"RotateY":1}})",
         "key 1: \"ease\" must be linear, ease or hold"},
        {R"({"tine":1,"set":{"RotateY":1}})",
         "key 1: \"tine\" means nothing here; did you mean \"time\"?"},
        {"7", "key 1: it must be an object with time and set"}};
    for (const auto& row : rows) {
        const auto read = FilmKeysFromJson("{\"keys\":[" + QByteArray(row.keys) + "]}");
        ASSERT_TRUE(std::holds_alternative<QString>(read)) << row.keys;
        EXPECT_EQ(std::get<QString>(read), Text(row.error));
    }
    for (const auto& [json, error] : {std::pair{"", "it is not JSON"},
                                      {"[]", "it has no list"},
                                      {"{}", "it has no list"},
                                      {R"({"keys":{}})", "it has no list"},
                                      {R"({"keys":[],"key":1})", "\"key\" means nothing"},
                                      {R"({"keys":[)", "it is not JSON"}}) {
        const auto read = FilmKeysFromJson(json);
        ASSERT_TRUE(std::holds_alternative<QString>(read)) << json;
        EXPECT_TRUE(std::get<QString>(read).startsWith(Text(error)))
            << std::get<QString>(read).toStdString();
    }
}

TEST(FilmLines, ComeBackAndLeaveOutWhatCannotBe) {
    const FilmCourse film{0.1, 2.5, {{1.0, KeyEase::Hold, {{Text("RotateY"), 2.0F}}}}, 1.5};
    FilmCourse read;
    EXPECT_EQ(TakeLines(LinesOf(film), read), QStringList());
    EXPECT_EQ(read, film);
    EXPECT_EQ(LinesOf({}), (FilmLines{{Text("FilmIn"), Text("0")}}));
    const struct {
        const char *name, *value;
    } rows[] = {{"FilmIn", "-1"}, {"FilmIn", "nan"},  {"FilmIn", "x"},    {"FilmOut", "0.1"},
                {"FilmOut", "0"}, {"FilmOut", "inf"}, {"FilmKeys", "{}"}, {"FilmKeys", ""}};
    for (const auto& row : rows) {
        FilmCourse changed;
        const FilmLines lines{{Text("FilmIn"), Text("0.1")}, {Text(row.name), Text(row.value)}};
        EXPECT_EQ(TakeLines(lines, changed), QStringList{Text(row.name)}) << row.value;
        EXPECT_FALSE(changed.out) << row.value;
    }
}

}  // namespace
}  // namespace varnel
