// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The list of the photos, a filmstrip or lines below one another: small pictures, marks on the
// picture or at the end of the line, and photos that can be dragged, or moved with Alt and the
// arrow keys. It moves nothing itself: MoveWanted asks for it. While there are lines, one is
// current and selected, whatever is clicked: else the sliders would move and reach nothing, or
// another photo than the one that is shown. Throws nothing.
#pragma once

#include <QListWidget>

namespace varnel {

class PhotoList : public QListWidget {
    Q_OBJECT
  public:
    static constexpr int pathRole = Qt::UserRole + 1;   // the photo's path
    static constexpr int marksRole = Qt::UserRole + 2;  // letters, one mark each
    // What its picture is made from; the same text means the same picture.
    static constexpr int pictureRole = Qt::UserRole + 3;

    explicit PhotoList(QWidget* parent = nullptr);
    // Pictures with their names below, from left to right, or lines.
    void SetStrip(bool strip);
    bool Strip() const { return flow() == LeftToRight; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    // The selected lines shall be moved before the target line, which counts from 0; the number of
    // lines puts them last.
    void MoveWanted(int target);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool viewportEvent(QEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    int StripHeight() const;
    std::vector<int> SelectedLines() const;
    void KeepLater();
    void KeepCurrentSelected(const QModelIndex& before);

    bool handlingInput_ = false;
};

}  // namespace varnel
