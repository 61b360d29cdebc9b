// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What belongs to a picture in memory besides its pixels. Throws nothing.
#pragma once

#include <QByteArray>
#include <QMap>
#include <cstdint>

#include "remap/image/panorama_info.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

inline constexpr std::uint32_t usualDotsPerMetre = 2835;  // 72 an inch

struct BitmapMetadata {
    std::uint32_t dotsPerMetreX = usualDotsPerMetre;  // 0: not known
    std::uint32_t dotsPerMetreY = usualDotsPerMetre;
    QByteArray colourProfile;                // ICC; empty when there is none
    QMap<QByteArray, QByteArray> comments;   // keywords and texts as the photo's file had them
    PhotoMetadata photo;                     // what its file says; empty for a picture of no photo
    PictureSettings settings;                // to be written into the picture's file
    std::optional<PanoramaInfo> panorama{};  // likewise, of a result that a viewer takes

    bool operator==(const BitmapMetadata&) const = default;
};

}  // namespace varnel
