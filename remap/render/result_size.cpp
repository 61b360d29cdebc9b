// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/result_size.h"

namespace varnel {

OutputWish AtSize(const ImageRecord& image, PixelSize size) {
    return [image, size](const SourceFrame& photo) { return OutputFrameOf(image, photo, size); };
}

ImageRecord WithoutCrop(const ImageRecord& image, PixelSize photo) {
    ImageRecord whole = ShapedAsPhoto(image);
    whole.Outside = image.Outside;
    if (image.OutputWidth > 0 || image.OutputHeight > 0) {
        const PixelSize frame = FramesOf(image, photo).output.Whole();
        whole.OutputWidth = frame.width;
        whole.OutputHeight = frame.height;
    }
    return whole;
}

ImageRecord ShapedAsPhoto(const ImageRecord& image) {
    ImageRecord plain = image;
    plain.OutputWidth = plain.OutputHeight = 0;
    plain.CropLeft = plain.CropTop = plain.CropWidth = plain.CropHeight = 0.0F;
    plain.Outside = {};
    return plain;
}

}  // namespace varnel
