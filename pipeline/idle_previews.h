// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Gives the lines of a file list their small pictures while nothing else happens: one after the
// other, only of lines that can be seen, and none begun right after the user did something.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QListWidget>
#include <QTimer>
#include <optional>

namespace varnel {

// Makes one small picture at a time, elsewhere.
class PreviewMaker {
  public:
    virtual ~PreviewMaker() = default;
    // Starts on the picture of the line with this text; nothing else is under way.
    virtual void Begin(const QString& text) = 0;
    // The picture, once there is an answer; an empty one leaves the line's icon as it is.
    virtual std::optional<QImage> Take() = 0;
    virtual void Cancel() = 0;
};

class IdlePreviews : public QObject {
    Q_OBJECT

  public:
    IdlePreviews(QListWidget& list, PreviewMaker& maker);

    // Also after the list was filled anew.
    void Start();
    void Stop();
    // Input there makes the pictures wait, as input to the list itself does.
    void GiveWayTo(QAbstractScrollArea& area);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void GoOn();
    void BeginNext();
    QListWidgetItem* NextItem() const;

    QListWidget& list_;
    PreviewMaker& maker_;
    QString underWay_;  // the text of the line whose picture is being made
    QTimer timer_;
};

}  // namespace varnel
