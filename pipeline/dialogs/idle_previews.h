// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Gives the lines of a file list their small pictures while nothing else happens: one after the
// other, first or only of lines that can be seen, and none begun right after the user did
// something. Throws what the maker of the pictures throws.
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
    // Starts on the picture of the line with this key; nothing else is under way.
    virtual void Begin(const QString& key) = 0;
    // The picture, once there is an answer; an empty one leaves the line's icon as it is.
    virtual std::optional<QImage> Take() = 0;
    virtual void Cancel() = 0;
    // Whether another picture may be begun now; asked again later when not.
    virtual bool MayBegin() const { return true; }
};

class IdlePreviews : public QObject {
    Q_OBJECT

  public:
    // A line's key is what it holds under the role; lines with the same key share their picture.
    IdlePreviews(QListWidget& list, PreviewMaker& maker, int keyRole = Qt::DisplayRole);

    // Also after the list was filled anew.
    void Start();
    void Stop();
    // The line has its picture already, or the one that it has is no longer right.
    static void MarkDone(QListWidgetItem& item);
    static void MarkStale(QListWidgetItem& item);
    // Whether lines that cannot be seen get theirs, too, after the others.
    void GoBeyondSight(bool on) { beyondSight_ = on; }
    // Input there makes the pictures wait, as input to the list itself does.
    void GiveWayTo(QAbstractScrollArea& area);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void GoOn();
    void BeginNext();
    QListWidgetItem* NextItem() const;
    QList<QListWidgetItem*> LinesUnderWay() const;

    QListWidget& list_;
    PreviewMaker& maker_;
    int keyRole_;
    bool beyondSight_ = false;
    QString underWay_;  // the key of the line whose picture is being made
    QTimer timer_{this};
};

}  // namespace varnel
