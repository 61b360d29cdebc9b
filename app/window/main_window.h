// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window: its parts, its menus, and one line for each thing that can happen on it.
#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QSplitter>
#include <QTimer>
#include <memory>

#include "app/tools/column/list_tools.h"
#include "app/tools/project_tools.h"
#include "app/tools/session_tools.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
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

  Q_SIGNALS:
    // The gears are loaded and the window is ready for use.
    void Started();
    // The user wants to quit before there is any gear.
    void QuitWanted();

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void BuildSide(QWidget* side);
    void BuildPictures(QWidget* right);
    void BuildStatus();
    void BuildMenus();
    QAction* AddEntry(QMenu* menu, const char* name, const QString& text,
                      const QKeySequence& shortcut, void (MDIForm1::*handler)());
    void AddRemoveEntry();
    void ConnectControls();
    void TakeTyped();
    void ConnectSliders();

    void Activate();
    void OnLine(int line);
    void OnLineClicked();
    void OnSliderChanged(SliderRow* row);
    void OnSliderReset(SliderRow* row);
    void OnProjection(int index);
    void OnRoomChanged();
    void OnRefilled();
    void PickPoint(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    void AddImages();
    void ManageGears();
    void TakeOffer();
    void ShowGears();
    void ChangeDefaults();
    void ShowAbout();
    void Quit();
    void SaveAs();
    void QueueAll();
    void ProcessBatch();
    void Morph();
    void Stretch();
    QueueChanged ShowsQueue();
    void RemoveImages();
    void UpdateEnabled();
    void RestoreLayout();
    void SaveLayout();

    WorkingState& state_;
    SettingsStore& store_;
    WindowPorts ports_;
    WindowParts parts_;
    QSplitter* splitter_ = nullptr;
    QAction* morph_ = nullptr;
    QAction* saveImage_ = nullptr;
    QAction* removeImages_ = nullptr;
    WorkspaceModel model_;
    std::unique_ptr<WindowView> view_;
    std::unique_ptr<Workspace> workspace_;
    ProjectTools* projects_ = nullptr;
    SessionTools* sessions_ = nullptr;
    ListTools* list_ = nullptr;
    QTimer livePreview_{this};  // fires when the input at hand is handled: many moves, one preview
    QTimer roomSettled_{this};
    QStringList filesAtStart_;
    bool started_ = false;
    bool closeWanted_ = false;
    bool changedByPress_ = false;  // the current line, by the mouse button that is down
};

}  // namespace varnel
