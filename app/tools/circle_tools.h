// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entry "Image circle": while it is checked, the gear's circle is drawn on the
// photo as shot, can be moved and found there, and be taken into the gear. Throws nothing but for
// want of memory.
#pragma once

#include <QAction>
#include <QObject>
#include <optional>

#include "app/picture/circle_overlay.h"
#include "app/tools/circle_bar.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "state/editing/gear_circle.h"
#include "state/settings/settings_store.h"

namespace varnel {

class CircleTools : public QObject {
    Q_OBJECT
  public:
    CircleTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                Workspace& workspace, WorkingState& state, SettingsStore& store);

  private:
    void Connect();
    void OnToggled(bool on);
    void PrepareCurrent();
    // The one on trial, or else the one that the current record's numbers make; nothing without a
    // photo.
    std::optional<ImageCircle> Shown();
    PixelSize PhotoSize() const;
    bool IsNewToGear(const ImageCircle& circle);
    int GearNumber();  // of the current photo; 0 for none
    void Try(const ImageCircle& circle);
    void Refresh();
    void Find();
    void Reset();
    void Ask();
    void Decline();
    void Take();
    void RestoreGear(const GearChange& change);

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    WorkingState& state_;
    SettingsStore& store_;
    CircleOverlay overlay_;
    QString found_;  // what the status shows of the last search for the circle
    CircleBar* bar_;
    QAction* entry_;
    std::optional<ImageCircle> trial_;
    QString trialPhoto_;
    std::optional<QString> asked_;  // whether this gear shall have the one on trial
};

}  // namespace varnel
