// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Project files: their entries in the File menu, and everything that opens or saves one. Throws
// nothing but for want of memory.
#pragma once

#include <QObject>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "pipeline/photos/project_file.h"
#include "state/settings/settings_store.h"

namespace varnel {

class ProjectTools : public QObject {
    Q_OBJECT
  public:
    ProjectTools(QMainWindow* window, WindowView& view, Workspace& workspace,
                 const WorkingState& state, SettingsStore& store, const WindowPorts& ports);

    // Opens the first project file among them; returns the other files that are none.
    QStringList OpenFrom(const QStringList& files);
    void Open(const QString& path);
    // Replaces the present list by that of a project. The path is the project file's; empty where
    // the list was kept against a crash.
    void Show(const ReadProject& project, const QString& path);
    // Asks once whether work that closing would lose is to be saved; false when the window shall
    // stay.
    bool MayClose(int converting = 0);

  private:
    void AddEntries(QMenu* menu, QAction* before);
    void FillRecent();
    void ChooseAndOpen();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path);
    QString ChangedProject() const;
    bool SavedOrDiscarded(const UnsavedWork& work);
    void ShowState();
    void Tell(const QString& text, const QStringList& lines);
    QString StartFolder() const;

    QMainWindow* window_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    SettingsStore& store_;
    WindowPorts ports_;
    QAction* save_ = nullptr;
    QAction* saveAs_ = nullptr;
    QMenu* recent_ = nullptr;
};

}  // namespace varnel
