// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/photo_shelf.h"

#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

constexpr int afterShowing = 120;  // milliseconds: the shown photo is made sharp first
constexpr int betweenLooks = 15;   // while a photo is read
constexpr std::uint64_t shareOfMemory = 8;
constexpr std::ptrdiff_t mostKept = 4;  // the photo that was left, the neighbours, one more

std::uint64_t BytesOf(const LoadedPicture& picture) {
    const PixelSize size = picture.bitmap->Size();
    return picture.bitmap->Pitch() * static_cast<std::uint64_t>(size.height);
}

}  // namespace

PhotoShelf::PhotoShelf(NewReader newReader, const GeneralSettings& settings)
    : newReader_(std::move(newReader)), settings_(settings) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &PhotoShelf::GoOn);
}

PhotoShelf::~PhotoShelf() {
    GiveUp();
}

PhotoShelf::Stamp PhotoShelf::StampOf(const QString& path) const {
    const QFileInfo file(path);
    return {path, file.lastModified(), file.size(), settings_.AutoOrient};
}

bool PhotoShelf::Has(const QString& path) const {
    const Stamp stamp = StampOf(path);
    return std::ranges::any_of(kept_, [&](const Kept& kept) { return kept.stamp == stamp; });
}

std::optional<LoadedPicture> PhotoShelf::Take(const QString& path) {
    timer_.stop();
    GiveUp();
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
    return std::move(kept.picture);
}

void PhotoShelf::Put(const QString& path, LoadedPicture picture) {
    if (newReader_) {
        PutStamped({StampOf(path), std::move(picture)});
    }
}

void PhotoShelf::PutStamped(Kept kept) {
    if (!kept.picture.bitmap) {
        return;
    }
    std::erase_if(kept_, [&](const Kept& old) { return old.stamp.path == kept.stamp.path; });
    std::uint64_t bytes = BytesOf(kept.picture);
    kept_.push_back(std::move(kept));
    // From the last one on, as long as there is room.
    auto first = std::prev(kept_.end());
    const std::uint64_t most = MachineMemory() / shareOfMemory;
    while (first != kept_.begin() && std::distance(first, kept_.end()) < mostKept && bytes + BytesOf(std::prev(first)->picture) <= most) {
        bytes += BytesOf((--first)->picture);
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
    if (underWay_) {
        if (!reader_->Wait(0)) {
            timer_.start(betweenLooks);
            return;
        }
        PutStamped({*std::exchange(underWay_, {}), reader_->Take()});
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
        reader_->Begin({path, ReadKind::Whole, {}, underWay_->upright});
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
