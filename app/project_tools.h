// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Project files: their entries in the File menu, and everything that opens or saves one.
#pragma once

#include <QObject>

#include "app/dialogs.h"
#include "app/window_view.h"
#include "state/settings_store.h"

namespace varnel {

class ProjectTools : public QObject {
    Q_OBJECT
  public:
    ProjectTools(QMainWindow* window, WindowView& view, Desk& desk, const WorkingState& state,
                 SettingsStore& store, const WindowPorts& ports);

    // Opens the first project file among them; returns the other files that are none.
    QStringList OpenFrom(const QStringList& files);
    void Open(const QString& path);
    // Asks whether an opened project that was changed is to be saved; false to stay.
    bool MayClose() {
        const History& steps = desk_.Steps();
        return steps.Project().isEmpty() || !steps.ChangedSinceSaved() || MayLeaveList();
    }

  private:
    void AddEntries(QMenu* menu, QAction* before);
    void FillRecent();
    void ChooseAndOpen();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path);
    bool MayLeaveList();
    void ShowState();
    void Tell(const QString& text, const QStringList& lines);
    QString StartFolder() const;

    QMainWindow* window_;
    WindowView& view_;
    Desk& desk_;
    const WorkingState& state_;
    SettingsStore& store_;
    WindowPorts ports_;
    QAction* save_ = nullptr;
    QAction* saveAs_ = nullptr;
    QMenu* recent_ = nullptr;
};

}  // namespace varnel
