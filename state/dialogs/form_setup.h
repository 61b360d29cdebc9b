// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The defaults dialog: default gear, preview size, what is done with opened photos and how files
// are written, for this run or for good. Throws nothing.
#pragma once

#include <QDialog>
#include <memory>

#include "state/records/gear_record.h"
#include "state/settings/general_settings.h"
#include "state/settings/settings_store.h"

namespace Ui {
class FormSetup;
}

namespace varnel {

// Accepted means applied. The settings may have changed even when the dialog was cancelled, because
// saving as default applies them and leaves the dialog open.
class FormSetup : public QDialog {
    Q_OBJECT

  public:
    FormSetup(GearTable& gear, GeneralSettings& settings, SettingsStore& store,
              QWidget* parent = nullptr);
    ~FormSetup() override;

    // Uses the controls' values for this run.
    void SetMyDefaults();

  private:
    void FillGears();
    void FillSizes();
    void FillFile();
    void FillChecks();
    void FillLanguages();
    void ConnectControls();
    void SaveAsDefault();

    std::unique_ptr<Ui::FormSetup> ui_;
    GearTable& gear_;
    GeneralSettings& settings_;
    SettingsStore& store_;
};

}  // namespace varnel
