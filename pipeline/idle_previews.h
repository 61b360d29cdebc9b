// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Gives the lines of a file list their small pictures while nothing else happens: one picture per
// turn of the event loop, only of lines that can be seen, and none right after the user did
// something.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QListWidget>
#include <QTimer>
#include <functional>

namespace varnel {

class IdlePreviews : public QObject {
    Q_OBJECT

  public:
    // The picture of a line by its text; an empty one leaves the line's icon as it is.
    using Maker = std::function<QImage(const QString& text)>;

    IdlePreviews(QListWidget& list, Maker make);

    void Start() { timer_.start(0); }
    void Stop() { timer_.stop(); }
    // Input there makes the pictures wait, as input to the list itself does.
    void GiveWayTo(QAbstractScrollArea& area);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeOne();
    QListWidgetItem* NextItem() const;

    QListWidget& list_;
    Maker make_;
    QTimer timer_;
};

}  // namespace varnel
