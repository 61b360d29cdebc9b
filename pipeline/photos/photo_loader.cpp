// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/photo_loader.h"

#include <QScopeGuard>

#include "state/adjustments/gear_assignment.h"

namespace varnel {

ReadChoices ReadChoicesOf(const GeneralSettings& settings, const RawDevelopment& raw) {
    return {settings.AutoOrient, settings.KeepDepth ? ReadDepth::Own : ReadDepth::Eight, raw};
}

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

LoadedPicture PhotoLoader::Read(ReadRequest request) {
    if (reading_) {
        return LoadedPicture::Refused(ReasonCode::AnotherIsRead);
    }
    reading_ = true;
    const ReadChoices choices = settings_ == nullptr ? ReadChoices() : ReadChoicesOf(*settings_);
    request.upright = choices.upright;
    request.depth = choices.depth;
    request.raw = raw_;
    BeginWait(request.path);
    const auto atEnd = qScopeGuard([this] {
        EndWait();
        reading_ = false;
    });
    return ReadPicture(reader_, request, [this] { return Continue(); });
}

LoadedPicture PhotoLoader::Load(const QString& path) {
    return Read({path, ReadKind::Whole, {}});
}

BitmapHandle PhotoLoader::FirstLook(const QString& path, PixelSize box) {
    return Read({path, ReadKind::Small, box}).bitmap;
}

std::optional<PhotoSize> PhotoLoader::Size(const QString& path) {
    const LoadedPicture picture = Read({path, ReadKind::Size, {}});
    return picture.outcome == LoadOutcome::NotLoaded
               ? std::nullopt
               : std::optional(PhotoSize{picture.size, picture.orientation});
}

Reason PhotoLoader::Error(const QString& path) {
    const LoadedPicture picture = Read({path, ReadKind::Size, {}});
    return picture.outcome == LoadOutcome::NotLoaded && !givenUp_ ? picture.reason : Reason();
}

PhotoFacts PhotoLoader::Facts(const QString& path) {
    LoadedPicture picture = Read({path, ReadKind::Facts, {}});
    return picture.outcome == LoadOutcome::NotLoaded ? PhotoFacts{{}, picture.reason}
                                                     : PhotoFacts{std::move(picture.facts), {}};
}

void TakeSize(const PhotoSize& size, ImageRecord& image) {
    if (image.Width != 0) {
        TurnCentre(image, size.orientation);
    }
    image.Width = static_cast<std::int16_t>(size.pixels.width);
    image.Height = static_cast<std::int16_t>(size.pixels.height);
    image.Landscape = size.pixels.width >= size.pixels.height;
    image.Orientation = static_cast<std::int16_t>(size.orientation);
}

}  // namespace varnel
