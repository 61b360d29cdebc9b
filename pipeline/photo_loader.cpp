// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photo_loader.h"

namespace varnel {

void PhotoLoader::BeginWait(const QString& path) {
    if (waits_++ == 0) {
        givenUp_ = false;
        if (wait_ != nullptr) {
            wait_->Begin(path);
        }
    }
}

void PhotoLoader::EndWait() {
    if (--waits_ == 0 && wait_ != nullptr) {
        wait_->End();
    }
}

bool PhotoLoader::Continue() {
    givenUp_ = wait_ != nullptr && !wait_->Continue();
    return !givenUp_;
}

LoadedPicture PhotoLoader::Read(const ReadRequest& request) {
    if (reading_) {
        return LoadedPicture::Refused(QStringLiteral("another photo is being read"));
    }
    reading_ = true;
    BeginWait(request.path);
    LoadedPicture picture = ReadPicture(reader_, request, [this] { return Continue(); });
    EndWait();
    reading_ = false;
    return picture;
}

LoadedPicture PhotoLoader::Load(const QString& path) {
    return Read({path, ReadKind::Whole, {}});
}

std::optional<PixelSize> PhotoLoader::Size(const QString& path) {
    const LoadedPicture picture = Read({path, ReadKind::Size, {}});
    return picture.outcome == LoadOutcome::NotLoaded ? std::nullopt : std::optional(picture.size);
}

PhotoFacts PhotoLoader::Facts(const QString& path) {
    const LoadedPicture picture = Load(path);
    return picture.bitmap ? PhotoFacts{MetadataOf(picture.bitmap.get()), {}}
                          : PhotoFacts{{}, picture.reason};
}

void TakeSize(PixelSize size, ImageRecord& image) {
    image.Width = static_cast<std::int16_t>(size.width);
    image.Height = static_cast<std::int16_t>(size.height);
    image.Landscape = size.width >= size.height;
}

}  // namespace varnel
