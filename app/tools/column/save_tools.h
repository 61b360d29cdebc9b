// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving the current photo, and the batch queue: the frame "Save", the File menu's entry "Save
// image as ..." and the Tools menu's entry "Morph", which fills the queue. Throws nothing but for
// want of memory.
#pragma once

#include <QMainWindow>

#include "app/tools/column/list_tools.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class SaveTools : public QObject {
    Q_OBJECT
  public:
    // The list marks the photos that are in the queue.
    SaveTools(QMainWindow* window, const WindowParts& parts, Workspace& workspace, ListTools& list,
              const WindowPorts& ports, BatchJob& job);

  private:
    void SaveAs();
    void QueueAll();
    void ProcessBatch();
    void Morph();
    QueueChanged ShowsQueue();
    void ShowSaved(const QString& path);
    void UpdateEnabled();

    QMainWindow* window_;
    SavePanel& panel_;
    Workspace& workspace_;
    ListTools& list_;
    WindowPorts ports_;
    BatchJob& job_;
    QAction* saveImage_;
    QAction* morph_;
    QPushButton* showInFolder_;  // in the status bar
    QString saved_;
};

}  // namespace varnel
