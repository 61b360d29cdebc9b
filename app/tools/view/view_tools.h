// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The choice between the three views of the pictures, above them and in the View menu; it and the
// place of the inset are remembered. Throws nothing but for want of memory.
#pragma once

#include <QActionGroup>
#include <QMainWindow>

#include "app/view/window_parts.h"
#include "state/settings/settings_store.h"

namespace varnel {

class ViewTools : public QObject {
    Q_OBJECT
  public:
    ViewTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store);
    // For the next start.
    void Save();

  private:
    void AddChoice(PictureView view, const char* name, const QString& text, const QString& tip);
    void Restore();
    void Choose(PictureView view);

    PictureArea& pictures_;
    QMenu* menu_;
    std::array<QToolButton*, 3> buttons_;
    SettingsStore& store_;
    QActionGroup choices_{this};
};

}  // namespace varnel
