// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's "Display colours", which shows pictures through their profile and the screen's,
// and "Histogram and clipping marks", the levels of the result. Both are remembered. Throws nothing
// but for want of memory.
#pragma once

#include <QMainWindow>
#include <functional>

#include "app/picture/histogram_overlay.h"
#include "app/view/window_parts.h"
#include "app/workspace/workspace_model.h"
#include "state/settings/settings_store.h"

namespace varnel {

class ColourTools : public QObject {
    Q_OBJECT
  public:
    // The screen's profile, empty where the system has none: sRGB.
    using ScreenProfile = std::function<QByteArray()>;
    ColourTools(QMainWindow* window, const WindowParts& parts, const WorkspaceModel& model,
                SettingsStore& store, ScreenProfile screenProfile);

  private:
    void TakeColours();
    void TakeLevels();
    void ShowHistogram(bool on);

    PictureArea& pictures_;
    const WorkspaceModel& model_;
    ScreenProfile screenProfile_;
    HistogramOverlay overlay_;
    QAction* colours_ = nullptr;
    QAction* histogram_ = nullptr;
};

}  // namespace varnel
