// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/photo_shelf.h"

#include <QFileInfo>
#include <algorithm>
#include <chrono>
#include <new>
#include <utility>

#include "decoder/request/picture_limits.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/image/preview_size.h"

namespace varnel {

namespace {

constexpr int afterShowing = 120;  // milliseconds: the shown photo is made sharp first
constexpr int betweenLooks = 15;   // while a photo is read
constexpr std::uint64_t shareOfMemory = 8;
constexpr std::ptrdiff_t mostKept = 4;  // the photo that was left, the neighbours, one more

std::uint64_t BytesOf(const LoadedPicture& picture) {
    const PixelSize size = picture.bitmap->Size();
    return static_cast<std::uint64_t>(picture.bitmap->Pitch() * size.height);
}

}  // namespace

PhotoShelf::PhotoShelf(NewReader newReader, const GeneralSettings& settings,
                       SizeOfPreview sizeOfPreview)
    : newReader_(std::move(newReader)),
      settings_(settings),
      sizeOfPreview_(std::move(sizeOfPreview)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &PhotoShelf::GoOn);
}

PhotoShelf::~PhotoShelf() {
    GiveUp();
}

PhotoShelf::Stamp PhotoShelf::StampOf(const QString& path) const {
    const QFileInfo file(path);
    const ReadChoices choices = ReadChoicesOf(settings_);
    return {path, file.lastModified(), file.size(), choices.upright, choices.depth};
}

bool PhotoShelf::Has(const QString& path) const {
    const Stamp stamp = StampOf(path);
    return std::ranges::any_of(kept_, [&](const Kept& kept) { return kept.stamp == stamp; });
}

std::optional<ShelvedPhoto> PhotoShelf::Take(const QString& path) {
    timer_.stop();
    GiveUp();
    if (reducing_ && reducing_->kept.stamp.path == path) {
        Collect();
    }
    const auto found =
        std::ranges::find(kept_, path, [](const Kept& kept) { return kept.stamp.path; });
    if (found == kept_.end()) {
        return {};
    }
    Kept kept = std::move(*found);
    kept_.erase(found);
    if (!(kept.stamp == StampOf(path))) {
        return {};
    }
    return std::move(kept.photo);
}

void PhotoShelf::Put(const QString& path, ShelvedPhoto photo) {
    if (newReader_) {
        PutStamped({StampOf(path), std::move(photo)});
    }
}

void PhotoShelf::Reduce(Kept kept) {
    const Bitmap* const photo = kept.photo.picture.bitmap.get();
    if (photo == nullptr) {
        return;
    }
    const PixelSize size = sizeOfPreview_(photo->Size());
    reducing_ = Reducing{std::move(kept), std::async(std::launch::async, [photo, size] {
                             return ReducedCopy(photo, size);
                         })};
}

bool PhotoShelf::IsReducing() const {
    return reducing_ &&
           reducing_->reduced.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void PhotoShelf::Collect() {
    Reducing done = std::move(*reducing_);
    reducing_.reset();
    try {
        done.kept.photo.reduced = done.reduced.get();
    } catch (const std::bad_alloc&) {
        return;  // there is no memory to spare
    }
    PutStamped(std::move(done.kept));
}

void PhotoShelf::PutStamped(Kept kept) {
    if (!kept.photo.picture.bitmap) {
        return;
    }
    std::erase_if(kept_, [&](const Kept& old) { return old.stamp.path == kept.stamp.path; });
    std::uint64_t bytes = BytesOf(kept.photo.picture);
    kept_.push_back(std::move(kept));
    // From the last one on, as long as there is room.
    auto first = std::prev(kept_.end());
    const std::uint64_t most = MachineMemory() / shareOfMemory;
    while (first != kept_.begin() && std::distance(first, kept_.end()) < mostKept &&
           bytes + BytesOf(std::prev(first)->photo.picture) <= most) {
        bytes += BytesOf((--first)->photo.picture);
    }
    kept_.erase(kept_.begin(), bytes <= most ? first : kept_.end());
}

void PhotoShelf::ReadAhead(QStringList paths) {
    if (newReader_) {
        GiveUp();
        wanted_ = std::move(paths);
        timer_.start(afterShowing);
    }
}

void PhotoShelf::GoOn() {
    if (IsReducing() || (underWay_ && !reader_->Wait(0))) {
        timer_.start(betweenLooks);
        return;
    }
    if (reducing_) {
        Collect();
    }
    if (underWay_) {
        Reduce({*std::exchange(underWay_, {}), {reader_->Take(), nullptr}});
        timer_.start(betweenLooks);
        return;
    }
    BeginNext();
}

void PhotoShelf::BeginNext() {
    while (!wanted_.isEmpty()) {
        const QString path = wanted_.takeFirst();
        if (Has(path)) {
            continue;
        }
        if (!reader_) {
            reader_ = newReader_();
        }
        if (!reader_->IsApart()) {
            return;  // reading would keep everybody waiting
        }
        underWay_ = StampOf(path);
        reader_->Begin({path, ReadKind::Whole, {}, underWay_->upright, underWay_->depth});
        timer_.start(betweenLooks);
        return;
    }
}

void PhotoShelf::GiveUp() {
    if (underWay_) {
        reader_->Cancel();
        underWay_.reset();
    }
}

}  // namespace varnel
