// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The File menu's last entry: the sample photo, to try Varnel without a photo. It is made on first
// use by the program beside this one, into the folder Varnel of the user's pictures. Throws nothing
// but for want of memory.
#pragma once

#include <QObject>
#include <QProcess>

#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class SampleTools : public QObject {
    Q_OBJECT
  public:
    SampleTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                Workspace& workspace, const WorkingState& state);
    ~SampleTools() override;

  private:
    void Open();
    void OnMade();
    // To the list's end, with its gear if the table has that.
    void Add();

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    QProcess maker_;
};

}  // namespace varnel
