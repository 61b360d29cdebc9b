// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is wrong is said, and nothing is thrown across the interface in C.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "tests/library/pictures.h"

namespace varnel {
namespace {

using testing::photoSize;
using testing::Pixels;

struct Refusal {
    const char* what;
    std::function<void()> call;
    varnel_status status;
    const char* text;  // part of the error's
};

void ExpectRefused(const Refusal& refusal) {
    try {
        refusal.call();
        ADD_FAILURE() << refusal.what << ": not refused";
    } catch (const Error& error) {
        EXPECT_EQ(error.Status(), refusal.status) << refusal.what << ": " << error.what();
        EXPECT_NE(std::string(error.what()).find(refusal.text), std::string::npos)
            << refusal.what << ": " << error.what();
    }
}

TEST(Refusals, SayWhatIsWrongWithLensesAndViews) {
    View view;
    const Refusal refusals[] = {
        {"lens", [] { Lens::FromCatalogue("Sigma/no such"); }, VARNEL_NOT_FOUND, "Sigma/no such"},
        {"no slash", [] { Lens::FromCatalogue("Sigma"); }, VARNEL_NOT_FOUND, "\"Sigma\""},
        {"camera", [] { Lens::FromCatalogue(Lenses().front(), "Canon/x"); }, VARNEL_NOT_FOUND,
         "camera \"Canon/x\""},
        {"file", [] { Lens::FromFile("no-such.json"); }, VARNEL_NOT_READ, "no-such.json"},
        {"curve falls",
         [] {
             Lens::FromCurve({0, 40, 80}, {0, 2, 1});
         },
         VARNEL_BAD_ARGUMENT, "rise"},
        {"curve begins late",
         [] {
             Lens::FromCurve({1, 40}, {0, 2});
         },
         VARNEL_BAD_ARGUMENT, "rise"},
        {"curve of a point", [] { Lens::FromCurve({0}, {0}); }, VARNEL_BAD_ARGUMENT, "two points"},
        {"wide curve",
         [] {
             Lens::FromCurve({0, 181}, {0, 2});
         },
         VARNEL_BAD_ARGUMENT, "180"},
        {"curve of no numbers",
         [] {
             Lens::FromCurve({0, std::nan("")}, {0, 2});
         },
         VARNEL_BAD_ARGUMENT, "rise"},
        {"photo", [] { Lens::OfPhoto("no-such.jpg"); }, VARNEL_NOT_READ, "no-such.jpg"},
        {"name", [&] { view.Set("Rotate", "3"); }, VARNEL_BAD_ARGUMENT, "\"Rotate\""},
        {"of the lens", [&] { view.Set("SensorWidth", "3"); }, VARNEL_BAD_ARGUMENT, "SensorWidth"},
        {"value", [&] { view.Set("RotateX", "much"); }, VARNEL_BAD_ARGUMENT, "much"},
        {"projection", [&] { view.Set("Projection", "flat"); }, VARNEL_BAD_ARGUMENT, "flat"},
        {"size",
         [&] {
             view.SizeFor({0, 100});
         },
         VARNEL_BAD_ARGUMENT, "0 x 100"},
        {"circle",
         [] {
             Lens::FromCurve({0, 90}, {0, 1}).SetCircle({1, 1}, std::nan(""), photoSize);
         },
         VARNEL_BAD_ARGUMENT, "circle"},
        {"written", [] { Lens::FromCatalogue(Lenses().front()).Write("x.json"); },
         VARNEL_BAD_ARGUMENT, "no curve"},
        {"ending", [] { testing::EquidistantLens().Write("x.lens"); }, VARNEL_BAD_ARGUMENT,
         ".json"},
        {"threads", [] { Pool pool(-1); }, VARNEL_BAD_ARGUMENT, "threads"},
        {"words",
         [] {
             Convert({"--projektion", "x"});
         },
         VARNEL_BAD_ARGUMENT, "--projektion"},
    };
    for (const Refusal& refusal : refusals) {
        ExpectRefused(refusal);
    }
}

TEST(Refusals, SayWhatIsWrongWithPictures) {
    const Lens lens = testing::EquidistantLens();
    View view;
    View transparent;
    transparent.Set("Outside", "transparent");
    Pixels<std::uint16_t> photo(photoSize, 3);
    Pixels<std::uint16_t> result(photoSize, 3);
    const auto with = [&](const std::function<void(varnel_image&)>& change, const View& how) {
        return [&lens, &how, &photo, &result, change] {
            varnel_image source = photo.Image();
            change(source);
            Remap(lens, how, source, result.Image());
        };
    };
    const Refusal refusals[] = {
        {"no pixels", with([](auto& i) { i.pixels = nullptr; }, view), VARNEL_BAD_ARGUMENT,
         "no pixels"},
        {"width", with([](auto& i) { i.width = 40000; }, view), VARNEL_BAD_ARGUMENT, "sides"},
        {"row", with([](auto& i) { i.row_bytes = 100; }, view), VARNEL_BAD_ARGUMENT, "row_bytes"},
        {"odd row", with([](auto& i) { ++i.row_bytes; }, view), VARNEL_BAD_ARGUMENT, "row_bytes"},
        {"least row",
         with([](auto& i) { i.row_bytes = std::numeric_limits<std::ptrdiff_t>::min(); }, view),
         VARNEL_BAD_ARGUMENT, "row_bytes"},
        {"channels", with([](auto& i) { i.channels = 5; }, view), VARNEL_BAD_ARGUMENT, "channels"},
        {"another", with([](auto& i) { i.channels = 2; }, view), VARNEL_BAD_ARGUMENT, "result"},
        {"order", with([](auto& i) { i.order = VARNEL_BGR; }, view), VARNEL_BAD_ARGUMENT, "order"},
        {"aligned", with([](auto& i) { i.pixels = static_cast<char*>(i.pixels) + 1; }, view),
         VARNEL_BAD_ARGUMENT, "aligned"},
        {"itself", with([&](auto& i) { i.pixels = result.samples.data(); }, view),
         VARNEL_BAD_ARGUMENT, "source itself"},
        {"size", with([](auto& i) { i.width = 300; }, view), VARNEL_BAD_ARGUMENT, "300 x 203"},
        {"alpha", with([](auto&) {}, transparent), VARNEL_BAD_ARGUMENT, "alpha"},
        {"edges",
         [&] {
             Pixels<std::uint8_t> grey(photoSize, 1);
             Lens::Measure({grey.Image()});
         },
         VARNEL_NOT_MEASURED, "few"},
    };
    for (const Refusal& refusal : refusals) {
        ExpectRefused(refusal);
    }
}

TEST(Refusals, TakeNullPointers) {
    varnel_error* error = nullptr;
    varnel_lens* lens = reinterpret_cast<varnel_lens*>(&error);
    EXPECT_EQ(varnel_lens_from_catalogue(nullptr, nullptr, &lens, &error), VARNEL_BAD_ARGUMENT);
    EXPECT_EQ(lens, nullptr);
    EXPECT_STREQ(varnel_error_text(error), "lens is null");
    varnel_error_free(error);
    EXPECT_EQ(varnel_lens_from_catalogue("a/b", nullptr, nullptr, nullptr), VARNEL_BAD_ARGUMENT);
    EXPECT_EQ(varnel_remap(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
              VARNEL_BAD_ARGUMENT);
    EXPECT_EQ(varnel_convert(nullptr, 1, 0, nullptr, nullptr, nullptr), VARNEL_BAD_ARGUMENT);
    EXPECT_EQ(varnel_names_at(nullptr, 0), nullptr);
    EXPECT_STREQ(varnel_error_text(nullptr), "");
    EXPECT_STREQ(varnel_lens_name(nullptr), "");
    varnel_error_free(nullptr);
    varnel_lens_free(nullptr);
    varnel_view_free(nullptr);
    varnel_pool_free(nullptr);
    varnel_names_free(nullptr);
}

TEST(Lists, HaveWhatIsTaken) {
    for (const std::string& lens : Lenses()) {
        EXPECT_GT(Lens::FromCatalogue(lens).FieldDegrees(), 30.0) << lens;
    }
    for (const std::string& projection : Projections()) {
        EXPECT_NO_THROW(View().Set("Projection", projection)) << projection;
    }
    Lens lens = Lens::FromCatalogue(Lenses().front(), Cameras().front());
    const Lens copy = lens;
    lens = Lens::FromCurve({0.0, 90.0}, {0.0, 1.0});
    EXPECT_NE(copy.Name().find(" + "), std::string::npos);
    EXPECT_EQ(lens.Name(), "curve");
    EXPECT_GT(Settings().size(), 20U);
}

}  // namespace
}  // namespace varnel
