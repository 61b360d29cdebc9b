// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Gives added photos their own gear, and says above the pictures what they got and what is not
// certain. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <vector>

#include "app/tools/gear/gear_bar.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/gears/photo_gears.h"

namespace varnel {

class PhotoGearTools : public QObject {
    Q_OBJECT
  public:
    PhotoGearTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                   Workspace& workspace, SettingsStore& store, const WindowPorts& ports);

  private:
    void Refresh();
    GearDoubt DoubtOfCurrent();
    void AddGuess(const PhotoReading& reading, GearDoubt& doubt);
    void AddFrame(const FrameChoice& choice, GearDoubt& doubt) const;
    void Define();

    QMainWindow* window_;
    WindowView& view_;
    Workspace& workspace_;
    Dialogs& dialogs_;
    PhotoGears gears_;
    GivenBar* given_;
    GearBar* bar_;
    QTimer refresh_{this};
    std::vector<GearOption> options_;  // that the bar shows
    bool closed_ = false;              // the line about the gears that were given
};

}  // namespace varnel
