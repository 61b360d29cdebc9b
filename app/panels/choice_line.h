// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a projection lets choose besides its numbers, in one line: small lists with a label, and
// boxes to be checked. Throws nothing.
#pragma once

#include <QHBoxLayout>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "state/adjustments/choice_table.h"
#include "state/adjustments/control_values.h"

namespace varnel {

class ChoiceLine : public QWidget {
    Q_OBJECT
  public:
    explicit ChoiceLine(QWidget* parent = nullptr);

    // Those of the projection; the line is hidden when there are none.
    void ShowFor(Projection projection);
    // Without a signal.
    void Show(const ControlValues& values);
    void Show(ChoiceId choice, int value) { setters_[static_cast<std::size_t>(choice)](value); }

  Q_SIGNALS:
    // By the user.
    void Chosen(varnel::ChoiceId choice, int value);

  private:
    void AddBox(const ChoiceRowData& row);
    void AddList(const ChoiceRowData& row);

    QHBoxLayout* line_;
    std::array<std::vector<QWidget*>, choiceCount> controls_;
    std::array<std::function<void(int)>, choiceCount> setters_;
};

}  // namespace varnel
