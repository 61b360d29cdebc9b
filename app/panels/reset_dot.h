// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A dot at the end of a slider's row whose value is not the usual one; a click resets it. While it
// is the usual one there is nothing to be seen or pressed. Throws nothing.
#pragma once

#include <QAbstractButton>

namespace varnel {

class ResetDot : public QAbstractButton {
    Q_OBJECT
  public:
    // slider: its object name; spoken: the slider's name in words.
    ResetDot(const QString& slider, const QString& spoken, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace varnel
