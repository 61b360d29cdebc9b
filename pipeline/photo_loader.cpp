// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photo_loader.h"

namespace varnel {

LoadedPicture PhotoLoader::Read(const ReadRequest& request) {
    if (wait_ == nullptr) {
        return ReadPicture(reader_, request);
    }
    wait_->Begin(request.path);
    LoadedPicture picture = ReadPicture(reader_, request, [this] { return wait_->Continue(); });
    wait_->End();
    return picture;
}

LoadedPicture PhotoLoader::Load(const QString& path) {
    return Read({path, ReadKind::Whole, {}});
}

std::optional<PixelSize> PhotoLoader::Size(const QString& path) {
    const LoadedPicture picture = Read({path, ReadKind::Size, {}});
    return picture.outcome == LoadOutcome::NotLoaded ? std::nullopt : std::optional(picture.size);
}

void TakeSize(PixelSize size, ImageRecord& image) {
    image.Width = static_cast<std::int16_t>(size.width);
    image.Height = static_cast<std::int16_t>(size.height);
    image.Landscape = size.width >= size.height;
}

}  // namespace varnel
