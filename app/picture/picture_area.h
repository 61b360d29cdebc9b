// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The two pictures of the main window: the photo as shot and the converted one. Throws nothing.
#pragma once

#include <QLabel>

#include "app/picture/picture_box.h"

namespace varnel {

// Both boxes on neutral grey, side by side in a wide area and stacked in a high one, each of the
// wanted size where there is space.
class PictureArea : public QWidget {
    Q_OBJECT
  public:
    explicit PictureArea(QWidget* parent = nullptr);
    PictureBox* From() const { return from_; }
    PictureBox* To() const { return to_; }
    // What is wrong with the photo as shot, on its lower edge; empty when nothing is.
    void ShowError(const QString& text);
    // Logical pixels.
    void SetWanted(QSize size);
    // Boxes as large as the area allows, whatever size was wanted: for pictures shown in part.
    void SetRoomy(bool roomy);
    QSize Room() const;  // for one picture
    QSize minimumSizeHint() const override { return {220, 220}; }

  Q_SIGNALS:
    void RoomChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool SideBySide() const { return width() >= height(); }
    void Place();
    void PlaceError();

    PictureBox* from_;
    PictureBox* to_;
    QLabel* error_;
    QSize wanted_{400, 300};
    bool roomy_ = false;
};

}  // namespace varnel
