// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/idle_previews.h"

#include <QEvent>
#include <QPixmap>
#include <QScrollBar>

namespace varnel {

namespace {

constexpr int doneRole = Qt::UserRole;  // true when a line has had its turn
constexpr int pause = 150;              // ms without input before pictures are made again

}  // namespace

IdlePreviews::IdlePreviews(QListWidget& list, Maker make) : list_(list), make_(std::move(make)) {
    connect(&timer_, &QTimer::timeout, this, &IdlePreviews::MakeOne);
    connect(list_.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (list_.isVisible()) {
            timer_.start(pause);
        }
    });
    GiveWayTo(list_);
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

QListWidgetItem* IdlePreviews::NextItem() const {
    const QRect seen = list_.viewport()->rect();
    for (int row = 0; row < list_.count(); ++row) {
        QListWidgetItem* const item = list_.item(row);
        if (!item->data(doneRole).toBool() && list_.visualItemRect(item).intersects(seen)) {
            return item;
        }
    }
    return nullptr;
}

void IdlePreviews::MakeOne() {
    QListWidgetItem* const item = NextItem();
    if (item == nullptr) {
        timer_.stop();
        return;
    }
    item->setData(doneRole, true);
    if (const QImage image = make_(item->text()); !image.isNull()) {
        item->setIcon(QPixmap::fromImage(image));
    }
    timer_.start(0);
}

}  // namespace varnel
