// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/title_corner.h"

#include <algorithm>

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
    const int beside = fontMetrics().horizontalAdvance(title()) + 2 * groupMargin;
    setMinimumWidth(beside + corner_->minimumSizeHint().width());
    const QSize size = corner_->sizeHint();
    const int across = std::clamp(width() - beside, 0, size.width());
    corner_->setGeometry(width() - across - groupMargin, 0, across, size.height());
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
