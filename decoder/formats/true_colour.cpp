// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/true_colour.h"

#include <optional>
#include <utility>

#include "decoder/formats/profiles/rgb_profile.h"
#include "decoder/formats/tone_map.h"

namespace varnel {

BitmapHandle To24Bits(LibraryPicture picture, BitmapMetadata metadata) {
    const std::optional<SampleRows> light = picture.FloatColours();
    // Tone-mapped colours are no longer those of the profile.
    if (light || !IsProfileForRgb(metadata.colourProfile)) {
        metadata.colourProfile.clear();
    }
    BitmapHandle result = light ? ToneMapped(*light) : picture.To24Bits();
    if (result) {
        result->metadata = std::move(metadata);
    }
    return result;
}

BitmapHandle InOwnFormat(LibraryPicture picture, BitmapMetadata metadata) {
    if (!IsProfileForRgb(metadata.colourProfile)) {
        metadata.colourProfile.clear();
    }
    BitmapHandle result = picture.InOwnFormat();
    if (result) {
        result->metadata = std::move(metadata);
    }
    return result;
}

}  // namespace varnel
