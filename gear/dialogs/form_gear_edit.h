// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear editor: defines the scratch gear, element 0 of the table, from a camera and a lens. A
// scratch gear that has a name is redefined, else a new one is made. After the dialog has closed an
// empty name means that nothing was defined. Throws nothing.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>
#include <vector>

#include "gear/store/gear_entry.h"
#include "state/records/gear_record.h"

class QComboBox;
class QLabel;
class QSlider;
class QSpinBox;

namespace Ui {
class FormGearEdit;
}

namespace varnel {

class FormGearEdit : public QDialog {
    Q_OBJECT

  public:
    explicit FormGearEdit(GearTable& table, QWidget* parent = nullptr);
    ~FormGearEdit() override;

    // Starts a new gear with the known names and numbers; names that are in no catalogue are left
    // open.
    void Propose(const GearRecord& known);
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

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
    };

    void ConnectChoice();
    void ConnectAdjusters();
    void ConnectNameText();
    void Open();
    void SelectNames(const GearNames& names);
    void Choose();
    void Refresh();
    void ShowNumber(const Adjuster& adjuster);
    void Follow(const Adjuster& adjuster, int value);
    void TakeAdjustment(const Adjuster& adjuster, int value);
    void UseCatalogue();
    void Confirm();
    void ShowState();
    void ShowPromptPale();
    bool NameIsPrompt() const;
    bool BothChosen() const;
    GearNames ChosenNames() const;

    std::unique_ptr<Ui::FormGearEdit> ui_;
    GearTable& table_;
    GearRecord opened_;  // the gear when the dialog was opened
    std::vector<Adjuster> adjusters_;
    QString prompt_;
    bool isNew_ = true;
    bool loading_ = false;  // the program moves the controls, not the user
};

}  // namespace varnel
