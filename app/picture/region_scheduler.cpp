// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/region_scheduler.h"

#include <new>

#include "base/run_time_error.h"

namespace varnel {

namespace {

constexpr std::chrono::milliseconds slice{10};
constexpr int afterChange = 40;  // milliseconds; a slider that is dragged goes first
constexpr int whileBusy = 50;

}  // namespace

RegionScheduler::RegionScheduler(QObject* parent) : QObject(parent) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &RegionScheduler::Slice);
}

void RegionScheduler::Serve(std::function<Wish()> wish, std::function<bool()> busy) {
    wish_ = std::move(wish);
    busy_ = std::move(busy);
}

void RegionScheduler::Wake() {
    if (!timer_.isActive()) {
        timer_.start(0);
    }
}

void RegionScheduler::Renew() {
    const Wish wish = wish_();
    failed_ = false;
    if (part_.Started() && !(wish.projection == projection_ && wish.image == image_)) {
        part_.Forget();
    }
    timer_.start(afterChange);
}

void RegionScheduler::Drop() {
    timer_.stop();
    part_.Drop();
    failed_ = false;
}

bool RegionScheduler::Begin(const Wish& wish) {
    projection_ = wish.projection;
    image_ = wish.image;
    try {
        part_.Start(wish.projection, wish.image, wish.source);
    } catch (const RunTimeError&) {
        failed_ = true;  // the preview's attempt has reported why
    } catch (const std::bad_alloc&) {
        failed_ = true;
    }
    return !failed_;
}

void RegionScheduler::Slice() {
    if (busy_()) {
        timer_.start(whileBusy);
        return;
    }
    const Wish wish = wish_();
    if (wish.source == nullptr || failed_ || (!part_.Started() && !Begin(wish))) {
        return;
    }
    const RowSpan drawn = part_.DrawSome(wish.rows, slice);
    if (drawn.last >= drawn.first) {
        Q_EMIT Drawn(drawn);
        timer_.start(0);
    }
}

}  // namespace varnel
