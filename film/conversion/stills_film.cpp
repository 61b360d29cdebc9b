// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/stills_film.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace varnel {

namespace {

// ITU-T H.273, matrix 1.
constexpr double redShare = 0.2126;
constexpr double blueShare = 0.0722;
constexpr double greenShare = 1.0 - redShare - blueShare;

struct Rgb {
    double red = 0.0;  // 0 to 1, as all
    double green = 0.0;
    double blue = 0.0;
};

Rgb At(const Bitmap& picture, int x, int row) {
    const auto line = picture.ScanLine(row);
    const std::size_t step = BytesPerPixel(picture.Format());
    const std::uint8_t* const pixel = line.data() + static_cast<std::size_t>(x) * step;
    if (SampleKindOf(picture.Format()) == SampleKind::Word) {
        const auto* const samples = reinterpret_cast<const std::uint16_t*>(pixel);
        return {samples[2] / 65535.0, samples[1] / 65535.0, samples[0] / 65535.0};
    }
    if (SampleKindOf(picture.Format()) == SampleKind::Float) {
        const auto* const samples = reinterpret_cast<const float*>(pixel);
        const auto cut = [](float v) { return static_cast<double>(std::clamp(v, 0.0F, 1.0F)); };
        return {cut(samples[2]), cut(samples[1]), cut(samples[0])};
    }
    return {pixel[2] / 255.0, pixel[1] / 255.0, pixel[0] / 255.0};
}

double LumaOf(const Rgb& c) {
    return redShare * c.red + greenShare * c.green + blueShare * c.blue;
}

std::byte Level(double value) {
    return static_cast<std::byte>(std::clamp(std::lround(value), 0L, 255L));
}

void DrawLuma(const Bitmap& picture, const FrameTarget& frame, int y) {
    const int row = SizeOf(&picture).height - 1 - y;
    std::byte* const line = frame.planes[0].first + y * frame.planes[0].pitch;
    for (int x = 0; x < frame.format.size.width; ++x) {
        line[x] = Level(16.0 + 219.0 * LumaOf(At(picture, x, row)));
    }
}

// One, two and one part across around the left column, both rows alike.
void DrawColour(const Bitmap& picture, const FrameTarget& frame, int y) {
    const PixelSize size = SizeOf(&picture);
    for (int x = 0; x < frame.format.size.width / 2; ++x) {
        Rgb sum;
        for (int n = 0; n < 6; ++n) {
            const int column = std::clamp(2 * x + n % 3 - 1, 0, size.width - 1);
            const double share = n % 3 == 1 ? 0.25 : 0.125;
            const Rgb one = At(picture, column, size.height - 1 - (2 * y + n / 3));
            sum.red += share * one.red;
            sum.green += share * one.green;
            sum.blue += share * one.blue;
        }
        const double luma = LumaOf(sum);
        const double blue = (sum.blue - luma) / (2.0 * (1.0 - blueShare));
        const double red = (sum.red - luma) / (2.0 * (1.0 - redShare));
        frame.planes[1].first[y * frame.planes[1].pitch + x] = Level(128.0 + 224.0 * blue);
        frame.planes[2].first[y * frame.planes[2].pitch + x] = Level(128.0 + 224.0 * red);
    }
}

FrameFormat FormatFor(PixelSize size) {
    FrameFormat format;
    format.size = {std::max(size.width & ~1, 2), std::max(size.height & ~1, 2)};
    format.primaries = 1;
    format.transfer = 13;
    format.matrix = 1;
    return format;
}

}  // namespace

FrameBuffer FrameOf(const Bitmap& picture, BlockRunner& runner) {
    FrameBuffer frame(FormatFor(SizeOf(&picture)));
    const PixelSize size = SizeOf(&picture);
    if (size.width < 2 || size.height < 2) {
        frame.Blank();
        return frame;
    }
    runner.Run(frame.Format().size.height / 2, [&](int pair) {
        DrawLuma(picture, frame.Target(), 2 * pair);
        DrawLuma(picture, frame.Target(), 2 * pair + 1);
        DrawColour(picture, frame.Target(), pair);
    });
    return frame;
}

StillsFilm::StillsFilm(QString path, FilmEncoding encoding, TimeBase rate,
                       FileOperations* operations)
    : path_(std::move(path)),
      encoding_(std::move(encoding)),
      rate_(rate),
      operations_(operations) {}

Reason StillsFilm::Open() {
    FilmToWrite film;
    film.encoding = encoding_;
    film.format = format_;
    film.timeBase = {rate_.den, rate_.num};
    film.frameRate = rate_;
    film.sampleAspect = {1, 1};
    OpenedFilmWriter opened = NewFilmWriter(path_, film, operations_);
    writer_ = std::move(opened.writer);
    return opened.error;
}

Reason StillsFilm::Add(const Bitmap& picture, BlockRunner& runner) {
    const FrameBuffer frame = FrameOf(picture, runner);
    if (!writer_) {
        format_ = frame.Format();
        if (Reason error = Open(); !error.isEmpty()) {
            return error;
        }
    }
    const PixelSize size = frame.Format().size;
    if (!(frame.Format() == format_)) {
        return {ReasonCode::StillOfOtherSize, size.width, size.height, format_.size.width,
                format_.size.height};
    }
    return writer_->Write(frame.View(), frames_++, 1);
}

Reason StillsFilm::Finish() {
    return writer_ ? writer_->Finish() : Reason(ReasonCode::FilmWithoutFrames);
}

}  // namespace varnel
