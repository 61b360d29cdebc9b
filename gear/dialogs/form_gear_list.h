// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The list of gears: add, redefine, delete. OK writes the table to the store; every other way out
// of the dialog leaves the table as it was. Throws nothing.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "gear/store/gear_list.h"
#include "state/settings/settings_store.h"

namespace Ui {
class FormGearList;
}

namespace varnel {

// Shows the gear editor on element 0 of the table and returns when it has closed.
using EditGear = std::function<void(GearTable&)>;

class FormGearList : public QDialog {
    Q_OBJECT

  public:
    FormGearList(GearTable& table, SettingsStore& store, EditGear editGear,
                 QWidget* parent = nullptr);
    ~FormGearList() override;
    // Since the dialog was opened.
    std::vector<GearChange> Redefined() const { return origins_.Redefined(table_); }
    void reject() override;
    // Of the gears that cancelling brings back, too.
    void FollowLens(const QString& name, const LensReference& renamed) {
        origins_.RenameLens(name, renamed);
    }

  private:
    void AddNew();
    void Redefine();
    void Delete();
    void SaveAndClose();
    void Refresh(int selected);
    void ShowState();
    int Selected() const;  // 0 when no gear is selected

    std::unique_ptr<Ui::FormGearList> ui_;
    GearTable& table_;
    GearOrigins origins_;
    SettingsStore& store_;
    EditGear editGear_;
};

}  // namespace varnel
