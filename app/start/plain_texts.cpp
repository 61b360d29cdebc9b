// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/plain_texts.h"

#include <QEvent>
#include <QLabel>

namespace varnel {

namespace {

void MakePlain(QLabel* label) {
    if (label != nullptr && label->textFormat() == Qt::AutoText) {
        label->setTextFormat(Qt::PlainText);
    }
}

}  // namespace

// Widgets are polished before their text is laid out. A window comes before its children, and its
// layout may ask them for their height in between.
bool PlainTexts::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) {
        MakePlain(qobject_cast<QLabel*>(watched));
        if (watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
            for (QLabel* const label : watched->findChildren<QLabel*>()) {
                MakePlain(label);
            }
        }
    }
    return false;
}

}  // namespace varnel
