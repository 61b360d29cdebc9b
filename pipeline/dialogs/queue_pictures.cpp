// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/queue_pictures.h"

#include "remap/display/paint.h"
#include "remap/image/photo_date.h"

namespace varnel {

namespace {

constexpr int betweenLooks = 15;  // ms

}  // namespace

QueuePictures::QueuePictures(QueueModel& model, const QAbstractItemView& view,
                             BatchJob::NewReader newReader, bool upright)
    : model_(model), view_(view), newReader_(std::move(newReader)), upright_(upright) {
    timer_.setInterval(betweenLooks);
    connect(&timer_, &QTimer::timeout, this, &QueuePictures::GoOn);
    connect(&model, &QAbstractItemModel::modelReset, &timer_, qOverload<>(&QTimer::start));
    timer_.start();
}

QueuePictures::~QueuePictures() {
    if (reader_) {
        reader_->Cancel();
    }
}

void QueuePictures::WantDays(const QStringList& paths) {
    for (const QString& path : paths) {
        if (!days_.contains(path) && !wanted_.contains(path)) {
            wanted_.append(path);
            timer_.start();
        }
    }
}

void QueuePictures::GoOn() {
    if (!underWay_.path.isEmpty()) {
        if (!reader_->Wait(0)) {
            return;
        }
        TakePicture();
    }
    if (!wanted_.isEmpty()) {
        Begin({wanted_.takeFirst(), ReadKind::Facts, {}, upright_});
    } else if (const QString path = model_.NextWithoutPicture(); !path.isEmpty()) {
        const QSize box = view_.iconSize() * view_.devicePixelRatioF();
        Begin({path, ReadKind::Small, {box.width(), box.height()}, upright_});
    } else {
        timer_.stop();
    }
}

void QueuePictures::Begin(const ReadRequest& request) {
    if (!reader_) {
        reader_ = newReader_();
    }
    underWay_ = request;
    reader_->Begin(request);
}

void QueuePictures::TakePicture() {
    const LoadedPicture picture = reader_->Take();
    const ReadRequest done = std::exchange(underWay_, {});
    if (done.kind == ReadKind::Facts) {
        days_.insert(done.path, PhotoDate(picture.facts, done.path));
        Q_EMIT DayFound();
        return;
    }
    QPixmap shown;
    if (picture.bitmap) {
        QImage image = ImageOf(picture.bitmap.get());
        image.setDevicePixelRatio(view_.devicePixelRatioF());
        shown = QPixmap::fromImage(image);
    }
    model_.SetPicture(done.path, shown);
}

}  // namespace varnel
