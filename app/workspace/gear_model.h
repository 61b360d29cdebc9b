// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which gear of the table is chosen in the window, by its number; 0 for one that the table does not
// have. The window's selector follows it and notes here what the user chooses. Throws nothing.
#pragma once

#include <QObject>
#include <QStringList>

#include "state/records/gear_record.h"

namespace varnel {

class GearModel : public QObject {
    Q_OBJECT
  public:
    explicit GearModel(const GearTable& gears) : gears_(gears) {}

    int Number() const { return number_; }
    QString Name() const { return names_.value(number_ - 1); }  // empty for none
    const QStringList& Names() const { return names_; }         // in table order

    // The table is another one; the default gear is chosen.
    void Refill();
    // A photo's gear.
    void Show(const QString& gearName);
    void Choose(int number) { number_ = number; }  // by the user

  Q_SIGNALS:
    void Refilled();
    void Shown(const QString& gearName);

  private:
    const GearTable& gears_;
    QStringList names_;
    int number_ = 0;
};

}  // namespace varnel
