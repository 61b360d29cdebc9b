// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/title_corner.h"

#include "app/panels/spacing.h"

namespace varnel {

TitleCornerBox::TitleCornerBox(const QString& title, QWidget* parent) : QGroupBox(title, parent) {}

void TitleCornerBox::SetCorner(QWidget* corner) {
    corner_ = corner;
    Place();
}

void TitleCornerBox::Place() {
    if (corner_ == nullptr) {
        return;
    }
    const QSize size = corner_->sizeHint();
    setMinimumWidth(fontMetrics().horizontalAdvance(title()) + size.width() + 2 * groupMargin);
    corner_->setGeometry(width() - size.width() - groupMargin, 0, size.width(), size.height());
}

void TitleCornerBox::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    Place();
}

void TitleCornerBox::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    Place();
}

}  // namespace varnel
