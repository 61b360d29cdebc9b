// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/light_shot.h"

#include <array>
#include <cmath>
#include <numbers>

#include "remap/image/levels/srgb_curve.h"
#include "samples/texture.h"

namespace varnel {

namespace {

constexpr int places = 4;  // along a side of a pixel
constexpr int aside = 7;   // places beside a pixel that its blur reaches
constexpr std::size_t reach = places + 2 * aside;
constexpr double blur = 0.4;  // standard deviation, pixels

// Of the places around a pixel, which is a square behind a blur.
std::array<double, reach> Weights() {
    std::array<double, reach> weights;
    double sum = 0.0;
    for (std::size_t n = 0; n < reach; ++n) {
        const double place = (static_cast<double>(n) - aside + 0.5) / places - 0.5;
        const auto edge = [](double way) { return std::erf(way / (blur * std::numbers::sqrt2)); };
        weights[n] = edge(place + 0.5) - edge(place - 0.5);
        sum += weights[n];
    }
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

double PlaceOf(int n) {
    return (n - aside + 0.5) / places - 0.5;
}

// The angles across and up of directions before the camera, laid out evenly.
struct Angles {
    double across, up;

    static Angles Of(const Ray& ray) {
        const double length = std::sqrt(ray.x * ray.x + ray.y * ray.y + ray.z * ray.z);
        const double scale = 2.0 / (length + ray.z);
        return {ray.x * scale, ray.y * scale};
    }
};

}  // namespace

double PatchScene::operator()(const Ray& direction) const {
    const Angles at = Angles::Of(direction);
    constexpr std::array<double, 4> strengths{0.5, 0.3, 0.18, 0.108};
    double size = smallest;
    double sum = 0.0;
    double most = 0.0;
    for (std::size_t n = 0; n < strengths.size(); ++n, size *= 2.7) {
        const double turn = 0.3 + 0.5 * static_cast<double>(n);
        const double x = (at.across * std::cos(turn) + at.up * std::sin(turn)) / size;
        const double y = (at.up * std::cos(turn) - at.across * std::sin(turn)) / size;
        sum += strengths[n] * sample::Hash(static_cast<std::int64_t>(std::floor(x)),
                                           static_cast<std::int64_t>(std::floor(y)) +
                                               static_cast<std::int64_t>(n) * 1000003);
        most += strengths[n];
    }
    return (sum / most) * (sum / most);
}

LightPicture TakeLight(const LightScene& scene, PixelSize size, const RayAt& rayAt,
                       BlockRunner& runner) {
    const std::array<double, reach> weights = Weights();
    const auto width = static_cast<std::size_t>(size.width);
    const int rows = size.height * places + 2 * aside;
    std::vector<float> across(width * static_cast<std::size_t>(rows));
    runner.Run(rows, [&](int row) {
        std::vector<double> line(width * places + 2 * aside);
        for (std::size_t n = 0; n < line.size(); ++n) {
            const auto ray = rayAt(PlaceOf(static_cast<int>(n)), PlaceOf(row));
            line[n] = ray ? scene(*ray) : 0.0;
        }
        for (std::size_t x = 0; x < width; ++x) {
            double sum = 0.0;
            for (std::size_t n = 0; n < reach; ++n) {
                sum += weights[n] * line[x * places + n];
            }
            across[static_cast<std::size_t>(row) * width + x] = static_cast<float>(sum);
        }
    });
    LightPicture picture{size, std::vector<float>(width * static_cast<std::size_t>(size.height))};
    for (std::size_t n = 0; n < picture.light.size(); ++n) {
        double sum = 0.0;
        for (std::size_t k = 0; k < reach; ++k) {
            sum += weights[k] *
                   static_cast<double>(across[(n / width * places + k) * width + n % width]);
        }
        picture.light[n] = static_cast<float>(sum);
    }
    return picture;
}

double LevelOf(double light) {
    return 255.0 * SrgbCoded(light);
}

BitmapHandle Developed(const LightPicture& picture) {
    BitmapHandle bitmap = NewBitmap(picture.size);
    for (int y = 0; y < picture.size.height; ++y) {
        std::uint8_t* pixel = bitmap->ScanLine(y).data();
        for (int x = 0; x < picture.size.width; ++x, pixel += 3) {
            const auto level = static_cast<std::uint8_t>(
                std::lround(LevelOf(static_cast<double>(picture.At(x, y)))));
            pixel[0] = pixel[1] = pixel[2] = level;
        }
    }
    return bitmap;
}

}  // namespace varnel
