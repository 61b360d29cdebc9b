// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/screen_pictures.h"

#include <new>

#include "base/run_time_error.h"
#include "remap/display/paint.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr std::chrono::milliseconds slice{10};
constexpr int afterChange = 40;  // milliseconds; the hand that moves goes first
constexpr int whileBusy = 50;

PixelSize SizeOf(QSize size) {
    return {size.width(), size.height()};
}

QImage Averaged(const Bitmap& picture, const AreaPlace& place, PixelSize size,
                BlockRunner& runner) {
    const BitmapHandle shown = NewBitmap(size);
    AverageAreas(picture, place, *shown, runner);
    return ImageOf(shown.get()).convertToFormat(QImage::Format_RGB32);
}

}  // namespace

ScreenPictures::ScreenPictures(PictureArea& pictures, BlockRunner& runner, QObject* parent)
    : QObject(parent), pictures_(pictures), runner_(runner) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ScreenPictures::Slice);
    connect(pictures.From(), &PictureBox::Shown, this, &ScreenPictures::OnPhotoShown);
    connect(pictures.To(), &PictureBox::Shown, this, &ScreenPictures::OnResultShown);
    connect(&pictures, &PictureArea::RoomChanged, this, &ScreenPictures::OnRoomChanged);
}

void ScreenPictures::Serve(std::function<Wish()> wish, std::function<bool()> busy) {
    wish_ = std::move(wish);
    busy_ = std::move(busy);
}

void ScreenPictures::OnPhotoShown() {
    photoDone_ = false;
    reduced_.reset();
    part_.Drop();
    resultDone_ = false;
    WaitForRest();
}

// An emptied box is also reported before another photo is loaded.
void ScreenPictures::OnResultShown() {
    resultDone_ = false;
    if (pictures_.To()->Empty()) {
        part_.Drop();
    } else {
        part_.Forget();
        WaitForRest();
    }
}

void ScreenPictures::OnRoomChanged() {
    photoDone_ = false;
    resultDone_ = false;
    part_.Forget();
    WaitForRest();
}

void ScreenPictures::WaitForRest() {
    timer_.start(afterChange);
}

void ScreenPictures::Slice() {
    if (busy_()) {
        timer_.start(whileBusy);
        return;
    }
    const Wish wish = wish_();
    if (wish.photo == nullptr || pictures_.From()->Empty()) {
        return;
    }
    try {
        if (!photoDone_) {
            MakePhoto(*wish.photo);
            timer_.start(0);
        } else if (IsResultWanted() && MakeResult(wish)) {
            timer_.start(0);
        }
    } catch (const RunTimeError&) {
        resultDone_ = true;  // the draft's attempt has reported why
    } catch (const std::bad_alloc&) {
        resultDone_ = true;
    }
}

bool ScreenPictures::IsResultWanted() const {
    const PictureBox& box = *pictures_.To();
    return !resultDone_ && !box.Empty() && !box.isHidden() && box.IsWhole();
}

// Also as large as the result, in whose place it can be looked at.
void ScreenPictures::MakePhoto(const Bitmap& photo) {
    photoDone_ = true;
    std::vector<QImage> images;
    for (const PictureBox* const box : {pictures_.From(), pictures_.To()}) {
        const PixelSize size = SizeOf(pictures_.From()->FitSizeIn(*box));
        const PixelSize full = photo.Size();
        if (size.width < 1 || size.width >= full.width || size.height > full.height) {
            continue;
        }
        const AreaPlace place{{0.0, static_cast<double>(full.width) / size.width},
                              {0.0, static_cast<double>(full.height) / size.height}};
        images.push_back(Averaged(photo, place, size, runner_));
    }
    pictures_.From()->ShowSharp(std::move(images));
}

// False when it is done.
bool ScreenPictures::MakeResult(const Wish& wish) {
    if (!part_.Started()) {
        Begin(wish);
    }
    const RowSpan drawn = part_.DrawSome({0, plan_.drawn.height - 1}, slice);
    if (drawn.last >= drawn.first) {
        return true;
    }
    Finish();
    return false;
}

void ScreenPictures::Begin(const Wish& wish) {
    image_ = wish.image;
    shown_ = SizeOf(pictures_.To()->FitSize());
    plan_ = ScreenPlanFor(image_, wish.photo->Size(), shown_);
    part_.Start(ProjectionFromIndex(image_.Projection), image_, &SourceFor(wish),
                DrawnWish(image_, plan_));
}

const Bitmap& ScreenPictures::SourceFor(const Wish& wish) {
    if (!plan_.Reduces()) {
        reduced_.reset();
        return *wish.photo;
    }
    const AreaPlace place = ReducedPlace(image_, plan_);
    if (!reduced_ || reduced_->Size().width != plan_.source.width || !(reducedPlace_ == place)) {
        reduced_.reset();
        BitmapHandle reduced = NewBitmap(plan_.source);
        AverageAreas(*wish.photo, place, *reduced, runner_);
        reduced_ = std::move(reduced);
        reducedPlace_ = place;
    }
    return *reduced_;
}

// A result that is smaller than it is shown is interpolated: means would be squares.
void ScreenPictures::Finish() {
    resultDone_ = true;
    const Bitmap& result = *part_.Result();
    std::vector<QImage> images;
    images.push_back(plan_.drawn.width < shown_.width
                         ? ImageOf(&result)
                               .scaled(shown_.width, shown_.height, Qt::IgnoreAspectRatio,
                                       Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_RGB32)
                         : Averaged(result, ShownPlace(image_, plan_, shown_), shown_, runner_));
    part_.Forget();
    pictures_.To()->ShowSharp(std::move(images));
    Q_EMIT Finished();
}

}  // namespace varnel
