// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/hidden_tags.h"

#include "decoder/formats/jpeg_frame.h"

namespace varnel {

namespace {

// The next number means nothing to anybody and keeps the tags in order.
void HideTags(const std::vector<std::int64_t>& lowestBytes, PictureFile& file) {
    for (const std::int64_t place : lowestBytes) {
        const QByteArray byte = file.Read(place, 1);
        file.Replace(place, static_cast<char>(byte.isEmpty() ? 0 : byte.front() + 1));
    }
}

}  // namespace

void HideMetadata(InputFormat format, const std::optional<TiffStructure>& tiff, PictureFile& file) {
    if (format == InputFormat::Jpeg) {
        constexpr char unused = '\xEF';
        for (const std::int64_t place : JpegMetadataMarkers(file)) {
            file.Replace(place, unused);
        }
    } else if (format == InputFormat::Tiff && tiff) {
        HideTags(tiff->deadlyTags, file);
        HideTags(tiff->metadataTags, file);
    }
}

}  // namespace varnel
