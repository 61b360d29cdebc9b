// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's dialogs as they really are.
#pragma once

#include "app/dialogs.h"
#include "state/settings_store.h"

namespace varnel {

class RealDialogs : public Dialogs {
  public:
    RealDialogs(WorkingState& state, SettingsStore& store, Notices& notices)
        : state_(state), store_(store), notices_(notices) {}
    bool AddImages(QWidget* parent) override;
    void ManageGears(QWidget* parent) override;
    void ChangeDefaults(QWidget* parent) override;
    void ShowAbout(QWidget* parent) override;

  private:
    WorkingState& state_;
    SettingsStore& store_;
    Notices& notices_;
};

}  // namespace varnel
