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

// What the title takes of its line.
int TitleCornerBox::Beside() const {
    return fontMetrics().horizontalAdvance(title()) + 2 * groupMargin;
}

QSize TitleCornerBox::minimumSizeHint() const {
    const QSize whole = QGroupBox::minimumSizeHint();
    const int line = corner_ == nullptr ? 0 : Beside() + corner_->minimumSizeHint().width();
    return {std::max(whole.width(), line), whole.height()};
}

void TitleCornerBox::Place() {
    if (corner_ == nullptr) {
        return;
    }
    const QSize size = corner_->sizeHint();
    const int across = std::clamp(width() - Beside(), 0, size.width());
    updateGeometry();
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
