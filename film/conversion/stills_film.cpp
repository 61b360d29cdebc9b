// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/stills_film.h"

#include <cmath>
#include <utility>

namespace varnel {

TimeBase FrameRateOf(double framesPerSecond) {
    const double whole = std::round(framesPerSecond * 1.001);
    if (std::abs(whole / 1.001 - framesPerSecond) < 0.001 &&
        std::abs(framesPerSecond - std::round(framesPerSecond)) > 0.001) {
        return {static_cast<std::int32_t>(std::lround(whole * 1000.0)), 1001};
    }
    const long thousandths = std::lround(framesPerSecond * 1000.0);
    return thousandths % 1000 == 0 ? TimeBase{static_cast<std::int32_t>(thousandths / 1000), 1}
                                   : TimeBase{static_cast<std::int32_t>(thousandths), 1000};
}

StillsFilm::StillsFilm(QString path, const FilmEncoding& encoding, TimeBase frameRate,
                       FileOperations* operations)
    : path_(std::move(path)), operations_(operations) {
    film_.encoding = encoding;
    film_.timeBase = {frameRate.den, frameRate.num};
    film_.frameRate = frameRate;
    film_.sampleAspect = {1, 1};
}

Reason StillsFilm::Add(const Bitmap& picture, BlockRunner& runner) {
    const PixelSize size = picture.Size();
    if (!writer_) {
        size_ = size;
        film_.format = StillFormat(size);
        OpenedFilmWriter opened = NewFilmWriter(path_, film_, operations_);
        if (!opened.writer) {
            return opened.error;
        }
        writer_ = std::move(opened.writer);
        frame_ = FrameBuffer(film_.format);
    } else if (size.width != size_.width || size.height != size_.height) {
        return {ReasonCode::StillOfOtherSize, size.width, size.height, size_.width, size_.height};
    }
    BitmapToFrame(picture, frame_.Target(), runner);
    return writer_->Write(frame_.View(), count_++, 1);
}

Reason StillsFilm::Finish() {
    return writer_ ? writer_->Finish() : Reason();
}

}  // namespace varnel
