// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line of the status bar with the gear that took the current photo, with a button while the
// photo has another gear, and a warning when that gear cannot have taken it. Always as high as with
// the button, so that the pictures keep their size. Throws nothing.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "gear/from_photo/gear_offer.h"

namespace varnel {

class GearOfferRow : public QWidget {
    Q_OBJECT
  public:
    explicit GearOfferRow(QWidget* parent = nullptr);
    void Show(const GearOffer& offer, const GearTable& gears);
    const GearOffer& Offer() const { return offer_; }
    QPushButton* Button() const { return button_; }

  private:
    GearOffer offer_;
    QLabel* sign_;
    QLabel* error_;
    QLabel* line_;
    QPushButton* button_;
};

}  // namespace varnel
