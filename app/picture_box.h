// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The two pictures of the main window: the photo as shot and the converted one.
#pragma once

#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QTransform>
#include <QWidget>
#include <vector>

#include "app/picture_overlay.h"
#include "remap/bitmap.h"

namespace varnel {

// Shows one bitmap in its middle, a bitmap pixel to a pixel of the screen, or a hint without one.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    explicit PictureBox(const QString& hint, QWidget* parent = nullptr);
    // Null empties the box. full is the size of the picture that the bitmap is a reduced copy of;
    // without one the bitmap is the picture.
    void Show(FIBITMAP* bitmap, QSize full = {});
    bool Empty() const { return image_.isNull(); }

    QSize Picture() const { return picture_; }
    // Where the whole picture lies, logical pixels of this widget.
    QRectF PictureRect() const;
    // From points of the picture, (0, 0) being its top left corner, to points of this widget.
    QTransform ToWidget() const;

    // Not owned, and never deleted before the box or without RemoveOverlay. The one added last is
    // drawn last and asked first.
    void AddOverlay(PictureOverlay* overlay);
    void RemoveOverlay(PictureOverlay* overlay);
    void RedrawOverlays() { update(); }

  Q_SIGNALS:
    // The mouse was released on the picture, at a position of this widget, and no overlay had taken
    // it.
    void Released(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    OverlayInput InputAt(const QSinglePointEvent& event) const;
    void ShowCursorFor(const OverlayInput& input);

    QString hint_;
    QImage image_;
    QSize picture_;
    std::vector<PictureOverlay*> overlays_;
    PictureOverlay* holder_ = nullptr;  // the overlay that has the mouse
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
