// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The contact sheet over the two pictures: the current photo in every projection and three
// strengths. Throws nothing but for want of memory for the settings of the tiles; a lack of it for
// pictures is reported by GivenUp.
#pragma once

#include <QImage>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "pipeline/photos/contact_sheet.h"

namespace varnel {

// Is shown over its parent and fills it. The tiles are drawn one by one while the window is idle.
class ContactSheetBox : public QWidget {
    Q_OBJECT
  public:
    explicit ContactSheetBox(QWidget* parent);
    // Of a record and its photo, which is read before this returns. Closes where there is no memory
    // for the tiles.
    void Open(const ImageRecord& image, const Bitmap* photo, bool smooth);
    const std::vector<ContactTile>& Tiles() const { return tiles_; }
    // The picture of a tile; null while it is not drawn yet or when it cannot be.
    const QImage& Picture(std::size_t tile) const { return pictures_.at(tile); }
    bool IsDrawn() const { return next_ == tiles_.size(); }
    // The rectangle of a tile, logical pixels of this widget.
    QRect CellOf(std::size_t tile) const;

  Q_SIGNALS:
    // A tile was chosen; the sheet is closed then.
    void Chosen(const ContactTile& tile);
    // There was not enough memory or threads; the sheet is closed then.
    void GivenUp(const QString& shortage);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    int HeadingHeight(int columns) const;
    QSize CellSize(int columns) const;
    void PaintTitle(QPainter& painter, std::size_t tile) const;
    int Columns() const;
    int TileAt(QPoint position) const;  // -1 for none
    void DrawNext();
    void Draw(std::size_t tile);
    void Restart();
    bool GiveUpFor(const QString& shortage);  // when it is not empty
    void Drop();
    void PaintTile(QPainter& painter, std::size_t tile) const;
    void MoveTo(int tile);
    void Choose(int tile);

    ImageRecord image_;
    BitmapHandle photo_;   // reduced, larger than any tile
    BitmapHandle source_;  // at the tiles' size
    bool smooth_ = true;
    std::vector<ContactTile> tiles_;
    std::vector<QImage> pictures_;
    std::size_t next_ = 0;
    int columns_ = strengthsPerProjection;
    int marked_ = 0;
    QPointer<QWidget> focusBefore_;
    QTimer idle_{this};
};

}  // namespace varnel
