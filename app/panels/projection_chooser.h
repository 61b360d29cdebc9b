// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections to choose from: a button each for the first ones, one button and a list for all
// others. Throws nothing.
#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>

#include "state/records/projection.h"

namespace varnel {

class ProjectionChooser : public QObject {
    Q_OBJECT
  public:
    // Fills the grid, two lines.
    ProjectionChooser(QGridLayout* grid, QWidget* parent);

    // Without a signal.
    void Show(Projection projection);
    // The buttons that keys press: one for each of the first projections, then the one for more.
    QButtonGroup* Buttons() const { return buttons_; }

  Q_SIGNALS:
    // By the user.
    void Chosen(varnel::Projection projection);

  private:
    void AddButtons(QGridLayout* grid, QWidget* parent);
    void AddMore(QGridLayout* grid, QWidget* parent);
    Projection FromList() const;

    QButtonGroup* buttons_;
    QRadioButton* more_ = nullptr;
    QComboBox* list_ = nullptr;
};

}  // namespace varnel
