// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/fisheye_shot.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <system_error>
#include <thread>
#include <vector>

#include "samples/texture.h"

namespace varnel {

namespace {

using namespace sample;

// Every row is worked out by itself, so who does it makes no difference to the bytes.
void ForEachRow(int rows, int threads, const std::function<void(int)>& work) {
    if (threads <= 0) {
        threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    }
    threads = std::min(threads, rows);
    const auto share = [&](int first) {
        for (int row = first; row < rows; row += threads) {
            work(row);
        }
    };
    std::vector<std::jthread> others;
    int first = 1;
    try {
        for (; first < threads; ++first) {
            others.emplace_back(share, first);
        }
    } catch (const std::system_error&) {  // no more threads are to be had
    }
    for (share(0); first < threads; ++first) {
        share(first);
    }
}

Colour PixelMean(const Scene& scene, const RayAt& rayAt, int samples, int x, int y) {
    Colour sum;
    for (int row = 0; row < samples; ++row) {
        const double up = (row + 0.5) / samples - 0.5;
        for (int column = 0; column < samples; ++column) {
            const double across = (column + 0.5) / samples - 0.5;
            if (const std::optional<Ray> ray = rayAt(x + across, y + up)) {
                sum = sum + scene(*ray);
            }
        }
    }
    return sum * (1.0 / (samples * samples));
}

std::uint8_t Byte(double level) {
    return static_cast<std::uint8_t>(std::clamp(std::nearbyint(level), 0.0, 255.0));
}

void StorePixel(std::uint8_t* pixel, const Colour& colour) {
    pixel[0] = Byte(colour.blue);
    pixel[1] = Byte(colour.green);
    pixel[2] = Byte(colour.red);
}

// The sum of four even numbers in [0, 1), set to mean 0 and deviation 1: a bell for the eye.
double Grain(int x, int y, int channel) {
    double sum = -2.0;
    for (int term = 0; term < 4; ++term) {
        sum += Hash(std::int64_t{x} * 16 + channel * 4 + term, y);
    }
    return sum * std::numbers::sqrt3;
}

void AddNoise(Bitmap* bitmap, double deviation, int threads) {
    const PixelSize size = SizeOf(bitmap);
    ForEachRow(size.height, threads, [&](int y) {
        const std::span<std::uint8_t> line = ScanLine(bitmap, y);
        for (int x = 0; x < size.width; ++x) {
            for (int channel = 0; channel < 3; ++channel) {
                std::uint8_t& value = line[static_cast<std::size_t>(x * 3 + channel)];
                // Outside the circle no light falls: the frame stays clean there.
                if (value != 0) {
                    value = Byte(value + deviation * Grain(x, y, channel));
                }
            }
        }
    });
}

// The angle from the axis that the lens puts at this radius in millimetres; nothing beyond its
// range.
std::optional<double> AngleAt(const FisheyeShot& shot, double radius) {
    const double factor = static_cast<double>(shot.curve.factor);
    const double share = radius / static_cast<double>(shot.curve.scale);
    if (shot.kind == LensKind::Sin && share > 1.0) {
        return std::nullopt;
    }
    const double theta =
        shot.kind == LensKind::Sin ? std::asin(share) / factor : std::atan(share) * factor;
    return theta <= std::numbers::pi ? std::optional(theta) : std::nullopt;
}

}  // namespace

std::optional<Ray> FisheyeRay(const FisheyeShot& shot, double x, double y) {
    const double right = (x - shot.centreX) / shot.pixelsPerMillimetre;
    const double up = (y - shot.centreY) / shot.pixelsPerMillimetre;
    const double radius = std::sqrt(right * right + up * up);
    if (shot.circleRadius > 0.0 && radius > shot.circleRadius) {
        return std::nullopt;
    }
    if (radius == 0.0) {
        return Ray{0.0, 0.0, 1.0};
    }
    const std::optional<double> theta = AngleAt(shot, radius);
    if (!theta) {
        return std::nullopt;
    }
    const double aside = std::sin(*theta) / radius;
    return Ray{right * aside, up * aside, std::cos(*theta)};
}

BitmapHandle TakeView(const Scene& scene, PixelSize size, int samples, const RayAt& rayAt,
                      int threads) {
    BitmapHandle picture = NewBitmap(size);
    ForEachRow(size.height, threads, [&](int y) {
        std::uint8_t* const line = ScanLine(picture.get(), y).data();
        for (int x = 0; x < size.width; ++x) {
            StorePixel(line + x * 3, PixelMean(scene, rayAt, samples, x, y));
        }
    });
    return picture;
}

BitmapHandle TakeFisheye(const Scene& scene, const FisheyeShot& shot, int threads) {
    BitmapHandle picture = TakeView(
        scene, shot.size, shot.samples, [&](double x, double y) { return FisheyeRay(shot, x, y); },
        threads);
    if (shot.noise > 0.0) {
        AddNoise(picture.get(), shot.noise, threads);
    }
    return picture;
}

}  // namespace varnel
