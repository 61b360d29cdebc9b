// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/frame_wish.h"

#include <algorithm>
#include <cmath>

#include "decoder/request/picture_limits.h"
#include "remap/analysis/clean_crop.h"
#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

PixelSize PhotoOf(const ImageRecord& image) {
    return {image.Width, image.Height};
}

std::int32_t Whole(double side) {
    constexpr double most = 1e8;
    return static_cast<std::int32_t>(std::lround(std::clamp(side, 1.0, most)));
}

PixelSize Scaled(PixelSize size, double factor) {
    return {Whole(size.width * factor), Whole(size.height * factor)};
}

Reason LimitOf(PixelSize result) {
    return SizeError(result.width, result.height, MachineMemory());
}

// The largest size of that shape within the limits.
PixelSize WithinLimits(PixelSize result) {
    PixelSize size = result;
    if (const int longest = std::max(size.width, size.height); longest > largestResultSide) {
        size = Scaled(size, static_cast<double>(largestResultSide) / longest);
        size = {std::min(size.width, largestResultSide), std::min(size.height, largestResultSide)};
    }
    constexpr double step = 0.98;
    while (!LimitOf(size).isEmpty()) {
        size = Scaled(size, step);
    }
    return size;
}

void SetCrop(const CropParts& parts, ImageRecord& image) {
    image.CropLeft = static_cast<float>(parts.left);
    image.CropTop = static_cast<float>(parts.top);
    image.CropWidth = static_cast<float>(parts.width);
    image.CropHeight = static_cast<float>(parts.height);
}

CropParts CropOf(const ImageRecord& image) {
    const auto partOr1 = [](float part) { return part > 0.0F ? static_cast<double>(part) : 1.0; };
    return {static_cast<double>(image.CropLeft), static_cast<double>(image.CropTop),
            partOr1(image.CropWidth), partOr1(image.CropHeight)};
}

void SetSize(PixelSize size, ImageRecord& image) {
    image.OutputWidth = size.width;
    image.OutputHeight = size.height;
}

CropParts PartsOf(const CleanCrop& crop, PixelSize frame) {
    const double width = frame.width;
    const double height = frame.height;
    return {crop.left / width, (frame.height - crop.bottom - crop.height) / height,
            crop.width / width, crop.height / height};
}

class FrameGiver {
  public:
    FrameGiver(const FrameWish& wish, std::span<ImageRecord> records, BlockRunner& runner)
        : wish_(wish),
          records_(records),
          runner_(runner),
          size_(wish.size),
          photo_(PhotoOf(records.front())) {
        const ImageRecord& first = records.front();
        if (size_.width == 0 && size_.height == 0 && !wish.centre && !wish.aspect) {
            size_ = {first.OutputWidth, first.OutputHeight};
        }
        crop_ = wish.crop.value_or(CropOf(first));
    }

    FrameOutcome Give() {
        const Reason error = wish_.clean ? GiveClean() : GiveSized();
        return {error, error.isEmpty() ? note_ : Reason()};
    }

  private:
    // Before the crop, where no size is given.
    PixelSize Frame() const {
        const PixelSize frame{photo_.width,
                              wish_.aspect ? Whole(photo_.width / *wish_.aspect) : photo_.height};
        return wish_.centre ? Scaled(frame, PhotoPixelsInCentre(records_.front(), frame)) : frame;
    }

    Reason GiveSized() {
        const PixelSize frame = Frame();
        const double width = frame.width * crop_.width;
        const double height = frame.height * crop_.height;
        PixelSize result{Whole(width), Whole(height)};
        if (size_.width > 0) {
            result = {size_.width,
                      size_.height > 0 ? size_.height : Whole(height / width * size_.width)};
        } else if (size_.height > 0) {
            result = {Whole(width / height * size_.height), size_.height};
        }
        if (Reason error = Limit(result); !error.isEmpty()) {
            return error;
        }
        const bool hasSize = size_.width > 0 || size_.height > 0 || wish_.centre || wish_.aspect;
        for (ImageRecord& record : records_) {
            if (wish_.crop) {
                SetCrop(crop_, record);
            }
            SetSize(hasSize ? result : PixelSize{}, record);
        }
        return {};
    }

    // Cuts what the centre asks for; anything else has to fit.
    Reason Limit(PixelSize& result) {
        Reason error = LimitOf(result);
        if (error.isEmpty() || !wish_.centre) {
            return error;
        }
        result = WithinLimits(result);
        note_ = {ReasonCode::CentreReduced, result.width, result.height, error};
        return {};
    }

    CleanCrop Search(PixelSize frame) const {
        std::optional<double> shape = wish_.clean->shape;
        if (!shape && size_.width > 0 && size_.height > 0) {
            shape = static_cast<double>(size_.width) / size_.height;
        }
        return ExactCleanCrop({records_, photo_, frame, shape}, runner_);
    }

    // The frame is made larger until its clean part has the size.
    Reason GiveClean() {
        constexpr int mostTries = 8;
        PixelSize frame = Frame();
        CleanCrop crop = Search(frame);
        for (int n = 0; n < mostTries && crop.width > 0 && !Fits(crop); ++n) {
            PixelSize wanted = Wanted(crop);
            if (Reason error = Limit(wanted); !error.isEmpty()) {
                return error;
            }
            const double factor = std::max(wanted.width / static_cast<double>(crop.width),
                                           wanted.height / static_cast<double>(crop.height));
            const double more = n == 0 ? 0.0 : 1.0 / crop.width;
            frame = Scaled(frame, factor + (factor > 1.0 ? more : 0.0));
            crop = Search(frame);
        }
        if (crop.width < 1 || crop.height < 1 || !Fits(crop)) {
            return ReasonCode::NoCleanCrop;
        }
        crop = Trimmed(crop);
        const bool isOwnFrame = frame.width == photo_.width && frame.height == photo_.height;
        for (ImageRecord& record : records_) {
            SetCrop(PartsOf(crop, frame), record);
            SetSize(isOwnFrame ? PixelSize{} : PixelSize{crop.width, crop.height}, record);
        }
        return {};
    }

    // The size that a part has to have; its own where none is given.
    PixelSize Wanted(const CleanCrop& crop) const {
        return {size_.width > 0    ? size_.width
                : size_.height > 0 ? 1
                                   : crop.width,
                size_.height > 0  ? size_.height
                : size_.width > 0 ? 1
                                  : crop.height};
    }
    // At least as large, and not by more than some pixels.
    bool Fits(const CleanCrop& crop) const {
        if (size_.width == 0 && size_.height == 0) {
            return LimitOf({crop.width, crop.height}).isEmpty();
        }
        constexpr double spare = 1.01;
        const auto fits = [](int side, int wanted) { return wanted == 0 || side >= wanted; };
        const auto isClose = [](int side, int wanted) {
            return wanted > 0 && side <= wanted * spare + 4;
        };
        return fits(crop.width, size_.width) && fits(crop.height, size_.height) &&
               (isClose(crop.width, size_.width) || isClose(crop.height, size_.height));
    }
    // To the size, in the middle.
    CleanCrop Trimmed(const CleanCrop& crop) const {
        const int width = size_.width > 0 ? size_.width : crop.width;
        const int height = size_.height > 0 ? size_.height : crop.height;
        return {crop.left + (crop.width - width) / 2, crop.bottom + (crop.height - height) / 2,
                width, height};
    }

    const FrameWish& wish_;
    std::span<ImageRecord> records_;
    BlockRunner& runner_;
    PixelSize size_;
    PixelSize photo_;
    CropParts crop_;
    Reason note_{};
};

}  // namespace

FrameOutcome GiveFrame(const FrameWish& wish, std::span<ImageRecord> records, BlockRunner& runner) {
    if (wish.outside) {
        for (ImageRecord& record : records) {
            record.Outside = *wish.outside;
        }
    }
    return wish.HasFrame() && !records.empty() ? FrameGiver(wish, records, runner).Give()
                                               : FrameOutcome();
}

Reason FrameError(const ImageRecord& image) {
    constexpr double rounding = 1e-6;
    const auto isBeyond = [](float start, float length) {
        return length > 0.0F &&
               static_cast<double>(start) + static_cast<double>(length) > 1.0 + rounding;
    };
    if (isBeyond(image.CropLeft, image.CropWidth) || isBeyond(image.CropTop, image.CropHeight)) {
        return ReasonCode::CropBeyondFrame;
    }
    const PixelSize result = ResultSizeOf(image, PhotoOf(image));
    return image.OutputWidth > 0 || image.OutputHeight > 0 ? LimitOf(result) : Reason();
}

double PhotoPixelsInCentre(const ImageRecord& image, PixelSize frame) {
    const OutputWish whole = [frame](const SourceFrame& photo) {
        return OutputFrameOf({}, photo, frame);
    };
    const InverseMapping places(ProjectionFromIndex(image.Projection), image, PhotoOf(image),
                                whole);
    const int x = std::clamp(frame.width / 2, 1, std::max(frame.width - 2, 1));
    const int y = std::clamp(frame.height / 2, 1, std::max(frame.height - 2, 1));
    if (frame.width < 3 || frame.height < 3) {
        return 1.0;
    }
    const auto left = places.ReadAt(x - 1, y);
    const auto right = places.ReadAt(x + 1, y);
    const auto below = places.ReadAt(x, y - 1);
    const auto above = places.ReadAt(x, y + 1);
    if (!left || !right || !below || !above) {
        return 1.0;
    }
    // The larger of the two stretches of the map: no direction loses anything.
    const double a = (right->x - left->x) / 2.0;
    const double b = (above->x - below->x) / 2.0;
    const double c = (right->y - left->y) / 2.0;
    const double d = (above->y - below->y) / 2.0;
    const double squares = (a * a + b * b + c * c + d * d) / 2.0;
    const double determinant = a * d - b * c;
    const double spread = std::max(squares * squares - determinant * determinant, 0.0);
    const double stretch = std::sqrt(squares + std::sqrt(spread));
    return std::isfinite(stretch) && stretch > 0.0 ? stretch : 1.0;
}

}  // namespace varnel
