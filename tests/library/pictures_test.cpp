// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The caller's pictures of every form give the same as plain ones.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>
#include <type_traits>

#include "tests/library/pictures.h"

namespace varnel {
namespace {

using testing::photoSize;
using testing::Pixels;

View Turned() {
    View view;
    view.Set("Projection", "rectilinear").Set("OutputAOV", "130").Set("RotateY", "25");
    view.Set("RotateZ", "10").Set("OutputWidth", "280").Set("OutputHeight", "190");
    return view;
}

template <class Sample>
Sample White() {
    return std::is_floating_point_v<Sample> ? Sample{1} : std::numeric_limits<Sample>::max();
}

// The same grain in each: channel n of a pixel by chance, alpha opaque.
template <class Sample>
Pixels<Sample> Grain(int channels, std::ptrdiff_t padding, bool bottomUp) {
    Pixels<Sample> pixels(photoSize, channels, padding);
    std::mt19937 random(5);
    for (int y = 0; y < photoSize.height; ++y) {
        for (int x = 0; x < photoSize.width; ++x) {
            const int row = bottomUp ? photoSize.height - 1 - y : y;
            for (int n = 0; n < 3; ++n) {
                const auto level = static_cast<double>(random() % 1000) / 1000.0;
                const auto value =
                    static_cast<Sample>(level * static_cast<double>(White<Sample>()));
                if (n < (channels < 3 ? 1 : 3)) {
                    pixels.At(x, row, n) = value;
                }
            }
            if (channels % 2 == 0) {
                pixels.At(x, row, channels - 1) = White<Sample>();
            }
        }
    }
    return pixels;
}

template <class Sample>
Pixels<Sample> Drawn(int channels, std::ptrdiff_t padding, bool bottomUp, const Pool* pool) {
    Pixels<Sample> photo = Grain<Sample>(channels, padding, bottomUp);
    Pixels<Sample> result(Turned().SizeFor(photoSize), channels, padding);
    Remap(testing::EquidistantLens(), Turned(), photo.Image(bottomUp), result.Image(bottomUp),
          pool);
    return result;
}

template <class Sample>
void ExpectAllFormsAlike(double tolerance) {
    Pixels<Sample> plain = Drawn<Sample>(3, 0, false, nullptr);
    const Pool pool(2);
    int shown = 0;
    for (const int channels : {1, 2, 3, 4}) {
        for (const bool bottomUp : {false, true}) {
            Pixels<Sample> other = Drawn<Sample>(channels, 5, bottomUp, &pool);
            for (int y = 0; y < plain.size.height; ++y) {
                for (int x = 0; x < plain.size.width; ++x) {
                    const int row = bottomUp ? plain.size.height - 1 - y : y;
                    for (int n = 0; n < (channels < 3 ? 1 : 3); ++n) {
                        // With alpha the border of the photo fades where black is mixed in.
                        const bool fades =
                            channels % 2 == 0 && other.At(x, row, channels - 1) != White<Sample>();
                        if (!fades) {
                            ASSERT_NEAR(other.At(x, row, n), plain.At(x, y, n), tolerance)
                                << channels << " channels, " << x << ", " << y;
                        }
                        shown += plain.At(x, y, n) > Sample{0} ? 1 : 0;
                    }
                }
            }
        }
    }
    EXPECT_GT(shown, 100000);
}

TEST(Pictures, OfAllFormsGiveTheSame) {
    ExpectAllFormsAlike<std::uint8_t>(1.0);
    ExpectAllFormsAlike<std::uint16_t>(1.0);
    ExpectAllFormsAlike<float>(1e-5);
}

TEST(Pictures, KeepTheOrderOfTheirColoursOutside) {
    View view;
    view.Set("Projection", "equirectangular").Set("OutputAOV", "360").Set("Outside", "#ff8000");
    for (const varnel_order order : {VARNEL_RGB, VARNEL_BGR}) {
        Pixels<std::uint8_t> photo(photoSize, 3);
        Pixels<std::uint8_t> result(view.SizeFor(photoSize), 3);
        Remap(testing::EquidistantLens(), view, photo.Image(false, order),
              result.Image(false, order));
        EXPECT_EQ(result.At(0, 0, order == VARNEL_RGB ? 0 : 2), 255);
        EXPECT_EQ(result.At(0, 0, 1), 128);
        EXPECT_EQ(result.At(0, 0, order == VARNEL_RGB ? 2 : 0), 0);
    }
}

TEST(Pictures, AreDrawnByManyThreadsAtOnce) {
    const Pool pool(2);
    const Pixels<std::uint8_t> alone = Drawn<std::uint8_t>(3, 0, false, nullptr);
    std::vector<std::thread> threads;
    std::vector<std::vector<std::uint8_t>> results(4);
    for (auto& result : results) {
        threads.emplace_back([&] {
            for (int n = 0; n < 5; ++n) {
                result = Drawn<std::uint8_t>(3, 0, false, &pool).samples;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const auto& result : results) {
        EXPECT_EQ(result, alone.samples);
    }
}

TEST(Pictures, HaveTheCircleThatTheyShow) {
    constexpr Size size{800, 600};
    Pixels<std::uint8_t> photo(size, 3);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const bool inside = std::hypot(x - 410.0, y - 290.0) < 250.0;
            for (int n = 0; n < 3; ++n) {
                photo.At(x, y, n) =
                    static_cast<std::uint8_t>(inside ? 130 + (x * 7 + y * 3) % 60 : 3);
            }
        }
    }
    Lens lens = Lens::FromCurve({0.0, 90.0}, {0.0, 1.0});
    lens.FindCircle(photo.Image());
    const Point rim = lens.Points(size, {{1.0, 0.0, 0.0}}).front();
    EXPECT_NEAR(rim.x, 660.0, 2.0);
    EXPECT_NEAR(rim.y, 290.0, 2.0);
    Pixels<std::uint8_t> dark(size, 3);
    EXPECT_THROW(lens.FindCircle(dark.Image()), Error);
}

}  // namespace
}  // namespace varnel
