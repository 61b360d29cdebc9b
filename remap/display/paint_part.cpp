// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/display/paint_part.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "remap/image/levels/byte_coding.h"

namespace varnel {

namespace {

// Of each side of an image pixel; more than three would cost more than one sees.
int SamplesOf(double scale) {
    return scale >= 1.0 ? 1 : std::min(static_cast<int>(std::ceil(1.0 / scale)), 3);
}

// The image pixels first to end - 1 of one axis lie on the picture; samples holds for each the
// picture pixels that it is the mean of.
struct Axis {
    int first = 0;
    int end = 0;
    std::vector<int> samples;

    Axis(int corner, double scale, int image, int picture) {
        const double last = corner + picture * scale;
        first = std::clamp(corner, 0, image);
        end = std::clamp(static_cast<int>(std::ceil(last)), first, image);
        const int count = SamplesOf(scale);
        for (int n = first; n < end; ++n) {
            for (int k = 0; k < count; ++k) {
                const double at = (n - corner + (k + 0.5) / count) / scale;
                samples.push_back(std::clamp(static_cast<int>(at), 0, picture - 1));
            }
        }
    }
};

void PaintLine(const std::vector<const std::uint8_t*>& rows, const Bitmap& bitmap,
               const Axis& columns, QRgb* out) {
    const ByteCoding coding(bitmap);
    const std::ptrdiff_t step = PixelStep(bitmap.Format());
    const auto count = static_cast<int>(rows.size());
    const int* column = columns.samples.data();
    if (count == 1) {
        for (int x = columns.first; x < columns.end; ++x) {
            const PixelColor pixel = coding.ColourAt(rows[0] + *column++ * step);
            out[x] = qRgb(pixel.red, pixel.green, pixel.blue);
        }
        return;
    }
    const int all = count * count;
    for (int x = columns.first; x < columns.end; ++x, column += count) {
        int blue = all / 2;
        int green = all / 2;
        int red = all / 2;
        for (const std::uint8_t* const row : rows) {
            for (int k = 0; k < count; ++k) {
                const PixelColor pixel = coding.ColourAt(row + column[k] * step);
                blue += pixel.blue;
                green += pixel.green;
                red += pixel.red;
            }
        }
        out[x] = qRgb(red / all, green / all, blue / all);
    }
}

}  // namespace

void PaintPart(const Bitmap* bitmap, const PartPlace& place, QImage& image,
               const std::function<bool(int row)>& has) {
    if (bitmap == nullptr) {
        return;
    }
    const PixelSize size = SizeOf(bitmap);
    const Axis columns(place.corner.x(), place.scale, image.width(), size.width);
    const Axis lines(place.corner.y(), place.scale, image.height(), size.height);
    const auto count = static_cast<std::size_t>(SamplesOf(place.scale));
    std::vector<const std::uint8_t*> rows(count);
    const int* line = lines.samples.data();
    for (int y = lines.first; y < lines.end; ++y) {
        bool there = true;
        for (std::size_t k = 0; k < count; ++k) {
            const int row = size.height - 1 - *line++;
            there = there && (!has || has(row));
            rows[k] = ScanLine(bitmap, row).data();
        }
        if (there) {
            PaintLine(rows, *bitmap, columns, reinterpret_cast<QRgb*>(image.scanLine(y)));
        }
    }
}

}  // namespace varnel
