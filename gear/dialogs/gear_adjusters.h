// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear editor's fine adjustment: sliders and spin boxes for the numbers of the scratch gear,
// element 0 of the table. Throws std::bad_alloc only.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "gear/store/gear_entry.h"
#include "state/records/gear_record.h"

class QDoubleSpinBox;
class QLabel;
class QSlider;
class QSpinBox;
class QWidget;

namespace Ui {
class FormGearEdit;
}

namespace varnel {

class GearAdjusters : public QObject {
    Q_OBJECT
  public:
    GearAdjusters(const Ui::FormGearEdit& ui, GearTable& table, QWidget* form);

    // The gear's numbers; it has a camera and a lens.
    void Show();

  Q_SIGNALS:
    void Moved();  // by the user; the gear has the number

  private:
    // One of the gear's numbers: its slider, the same as a whole number, its label and the range
    // that it has for most gears.
    struct Adjuster {
        float GearRecord::*number;
        QSlider* slider;
        QSpinBox* spin;
        QLabel* label;
        QString unit;
        SliderRange range;
        QDoubleSpinBox* fine = nullptr;  // takes the place of spin for a lens with a curve
    };

    void Connect(const Adjuster& adjuster);
    void ShowNumber(const Adjuster& adjuster);
    void ShowLensNumbers();
    void Follow(const Adjuster& adjuster, int value);
    void TakeAdjustment(const Adjuster& adjuster, double value);
    void TakeLensNumbers();

    const Ui::FormGearEdit& ui_;
    GearTable& table_;
    std::vector<Adjuster> adjusters_;
    bool loading_ = false;  // the program moves the controls, not the user
};

}  // namespace varnel
