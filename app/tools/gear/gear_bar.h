// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lines below the pictures: what added photos got, and what is not certain about the current
// photo's gear, with what can be done about it. A line that says nothing is not there. Throws
// nothing.
#pragma once

#include <QMenu>
#include <QStringList>

#include "app/panels/line_bar.h"

namespace varnel {

class GearLine : public LineBar {
    Q_OBJECT
  public:
    using LineBar::LineBar;
    // An empty text hides the line.
    void Show(const QString& text);
};

class GivenBar : public GearLine {
    Q_OBJECT
  public:
    explicit GivenBar(QWidget* parent);
    // So many photos got their own gear; 0 hides the line.
    void ShowGiven(int photos);

  Q_SIGNALS:
    void UndoWanted();
    void Closed();
};

// What the line about the current photo's gear shows.
struct GearDoubt {
    QString text;
    QStringList gears;  // to choose from
    bool mayDefine = false;
    QString otherFrame;    // text of the button; empty for none
    bool maySame = false;  // for all photos like this one

    bool operator==(const GearDoubt&) const = default;
};

class GearBar : public GearLine {
    Q_OBJECT
  public:
    explicit GearBar(QWidget* parent);
    void ShowDoubt(const GearDoubt& doubt);

  Q_SIGNALS:
    void GearChosen(int number);  // of the gears to choose from, from 0
    void DefineWanted();
    void OtherFrameWanted();
    void SameWanted();

  private:
    void FillMenu(const GearDoubt& doubt);

    GearDoubt shown_;
    QPushButton* choose_;
    QPushButton* other_;
    QPushButton* same_;
    QMenu* menu_;
};

}  // namespace varnel
