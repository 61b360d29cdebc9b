// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A group box with controls beside its title, where they take no line of their own. Throws nothing.
#pragma once

#include <QGroupBox>

namespace varnel {

class TitleCornerBox : public QGroupBox {
    Q_OBJECT
  public:
    TitleCornerBox(const QString& title, QWidget* parent);
    // At the right end of the title's line, and as high as that needs; one that can be narrower is
    // where there is less room.
    void SetCorner(QWidget* corner);
    QSize minimumSizeHint() const override;

  protected:
    // After the title or what is in the corner has changed.
    void Place();
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    int Beside() const;

    QWidget* corner_ = nullptr;
};

}  // namespace varnel
