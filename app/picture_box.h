// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The two pictures of the main window: the photo as shot and the converted one.
#pragma once

#include <QImage>
#include <QLabel>
#include <QWidget>

#include "remap/bitmap.h"

namespace varnel {

// Shows one bitmap in its middle, a bitmap pixel to a pixel of the screen, or a hint without one.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    explicit PictureBox(const QString& hint, QWidget* parent = nullptr);
    void Show(FIBITMAP* bitmap);  // null empties the box
    bool Empty() const { return image_.isNull(); }

  Q_SIGNALS:
    // The mouse was released on the picture, at a position of this widget.
    void Released(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QString hint_;
    QImage image_;
};

// Both boxes on neutral grey, side by side in a wide area and stacked in a high one, each of the
// wanted size where there is room.
class PictureArea : public QWidget {
    Q_OBJECT
  public:
    explicit PictureArea(QWidget* parent = nullptr);
    PictureBox* From() const { return from_; }
    PictureBox* To() const { return to_; }
    // What is wrong with the photo as shot, on its lower edge; empty when nothing is.
    void ShowTrouble(const QString& text);
    // Logical pixels.
    void SetWanted(QSize size);
    QSize Room() const;  // for one picture
    QSize minimumSizeHint() const override { return {220, 220}; }

  Q_SIGNALS:
    void RoomChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool SideBySide() const { return width() >= height(); }
    void Place();
    void PlaceTrouble();

    PictureBox* from_;
    PictureBox* to_;
    QLabel* trouble_;
    QSize wanted_{400, 300};
};

}  // namespace varnel
