// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A label for paths: what does not fit is left out in the middle when it is painted, so that drive
// and file name stay and a long path does not widen the window. Throws nothing.
#pragma once

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace varnel {

class ElidedLabel : public QLabel {
  public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QString shown =
            fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
        style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                              isEnabled(), shown, foregroundRole());
    }
};

}  // namespace varnel
