// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The list box of the photos: small pictures, marks at the right end of each line, and lines that
// can be dragged, or moved with Alt and the arrow keys. It moves nothing itself.
#pragma once

#include <QListWidget>

namespace varnel {

class PhotoList : public QListWidget {
    Q_OBJECT
  public:
    static constexpr int pathRole = Qt::UserRole + 1;   // the photo's path
    static constexpr int marksRole = Qt::UserRole + 2;  // letters, one mark each

    explicit PhotoList(QWidget* parent = nullptr);

  Q_SIGNALS:
    // The selected lines shall stand before the target's; the count puts them last.
    void MoveWanted(int target);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    std::vector<int> SelectedLines() const;
};

}  // namespace varnel
