// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window: what it is made of, and how it opens, closes and takes files that are dropped on
// it. What can be done on it is in the tools. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>

#include "app/tools/project_tools.h"
#include "app/tools/session_tools.h"
#include "app/tools/view/view_tools.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/window/window_layout.h"
#include "app/workspace/workspace.h"
#include "state/settings/settings_store.h"

namespace varnel {

class MDIForm1 : public QMainWindow {
    Q_OBJECT
  public:
    MDIForm1(WorkingState& state, SettingsStore& store, const WindowPorts& ports);
    ~MDIForm1() override;

    // Added to the list when the gears are there: files named at the start.
    void OpenAtStart(const QStringList& files) { filesAtStart_ = files; }
    void AddFiles(const QStringList& files);
    const ImageRecord* CurrentImage() const { return model_.list.Current(); }  // null for none

  Q_SIGNALS:
    // The gears are loaded and the window is ready for use.
    void Started();
    // The user wants to quit before there is any gear.
    void QuitWanted();

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void MakeTools();
    void ConnectEntries();
    void Activate();
    void CloseWhenIdle();

    WorkingState& state_;
    SettingsStore& store_;
    WindowPorts ports_;
    WindowParts parts_;
    WindowLayout layout_;
    WorkspaceModel model_;
    WindowView view_;
    PhotoShelf shelf_;
    Workspace workspace_;
    BatchJob batch_;
    ProjectTools* projects_ = nullptr;
    ViewTools* views_ = nullptr;
    SessionTools* sessions_ = nullptr;
    QStringList filesAtStart_;
    bool started_ = false;
    bool closeWanted_ = false;
    bool closeAgreed_ = false;  // as soon as the batch has finished its image at hand
};

}  // namespace varnel
