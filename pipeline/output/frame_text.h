// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Sizes and shapes as people write them. Throws nothing.
#pragma once

#include <QString>
#include <optional>

#include "pipeline/output/frame_wish.h"

namespace varnel {

// Width by height, between 1:100 and 100:1, of "16:9"; nothing for any other text.
std::optional<double> ShapeFromText(const QString& text);
// Puts "4000x3000", "4000" or "centre" into the wish; false for any other text.
bool TakeSizeText(const QString& text, FrameWish& wish);
// A size, or a shape of the frame; an empty text is as large as the photo, which is no wish.
std::optional<FrameWish> FrameWishFromText(const QString& text);
// "4000x3000", what is not set left out; empty where the result is as large as the photo.
QString SizeText(const ImageRecord& image);

}  // namespace varnel
