// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/idle_previews.h"

#include <QEvent>
#include <QPixmap>
#include <QScrollBar>

namespace varnel {

namespace {

constexpr int doneRole = Qt::UserRole;  // true when a line has had its turn
constexpr int pause = 150;              // ms without input before pictures are made again
constexpr int whileMaking = 10;         // ms between looks at the picture under way

}  // namespace

IdlePreviews::IdlePreviews(QListWidget& list, PreviewMaker& maker, int keyRole)
    : list_(list), maker_(maker), keyRole_(keyRole) {
    connect(&timer_, &QTimer::timeout, this, &IdlePreviews::GoOn);
    for (const QScrollBar* const bar : {list_.verticalScrollBar(), list_.horizontalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, [this] {
            if (list_.isVisible()) {
                timer_.start(pause);
            }
        });
    }
    GiveWayTo(list_);
}

void IdlePreviews::Start() {
    Stop();
    timer_.start(0);
}

void IdlePreviews::Stop() {
    timer_.stop();
    if (!underWay_.isEmpty()) {
        maker_.Cancel();
        for (QListWidgetItem* const item : LinesUnderWay()) {
            item->setData(doneRole, false);
        }
        underWay_.clear();
    }
}

void IdlePreviews::GiveWayTo(QAbstractScrollArea& area) {
    area.installEventFilter(this);
    area.viewport()->installEventFilter(this);
}

bool IdlePreviews::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
            if (timer_.isActive()) {
                timer_.start(pause);
            }
            break;
        case QEvent::Resize:  // more lines may be seen now
            if (watched == list_.viewport() && list_.isVisible()) {
                timer_.start(pause);
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void IdlePreviews::MarkDone(QListWidgetItem& item) {
    item.setData(doneRole, true);
}

void IdlePreviews::MarkStale(QListWidgetItem& item) {
    item.setData(doneRole, false);
}

QList<QListWidgetItem*> IdlePreviews::LinesUnderWay() const {
    QList<QListWidgetItem*> lines;
    for (int row = 0; row < list_.count(); ++row) {
        if (list_.item(row)->data(keyRole_).toString() == underWay_) {
            lines.append(list_.item(row));
        }
    }
    return lines;
}

QListWidgetItem* IdlePreviews::NextItem() const {
    const QRect seen = list_.viewport()->rect();
    QListWidgetItem* beyond = nullptr;
    for (int row = 0; row < list_.count(); ++row) {
        QListWidgetItem* const item = list_.item(row);
        if (item->data(doneRole).toBool()) {
            continue;
        }
        if (list_.visualItemRect(item).intersects(seen)) {
            return item;
        }
        beyond = beyond == nullptr ? item : beyond;
    }
    return beyondSight_ ? beyond : nullptr;
}

void IdlePreviews::GoOn() {
    if (underWay_.isEmpty()) {
        BeginNext();
        return;
    }
    const std::optional<QImage> image = maker_.Take();
    if (!image) {
        timer_.start(whileMaking);
        return;
    }
    for (QListWidgetItem* const line : LinesUnderWay()) {
        MarkDone(*line);
        if (!image->isNull()) {
            line->setIcon(QPixmap::fromImage(*image));
        }
    }
    underWay_.clear();
    timer_.start(0);
}

void IdlePreviews::BeginNext() {
    QListWidgetItem* const item = NextItem();
    if (item == nullptr) {
        timer_.stop();
        return;
    }
    if (!maker_.MayBegin()) {
        timer_.start(pause);
        return;
    }
    MarkDone(*item);
    underWay_ = item->data(keyRole_).toString();
    maker_.Begin(underWay_);
    timer_.start(whileMaking);
}

}  // namespace varnel
