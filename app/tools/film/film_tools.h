// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films in the window: the bar below the pictures follows the current film, and what is done there
// goes to its commands. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>

#include "app/tools/film/film_bar.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/film/film_commands.h"

namespace varnel {

class FilmTools : public QObject {
    Q_OBJECT
  public:
    FilmTools(QMainWindow* window, const WindowParts& parts, WindowView& view, Workspace& workspace,
              SettingsStore& store, const WindowPorts& ports, BatchJob& job);
    // The bar is locked with the column.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ConnectLine();
    void ConnectButtons();
    void Show();
    void ToggleKey();
    void RemoveKey();
    void Save();
    SavedFilm SaveLocked(const ImageRecord& film, const QString& path);

    WindowView& view_;
    Workspace& workspace_;
    WindowPorts ports_;
    FilmCommands commands_;
    FilmBar* bar_;
    QString error_;
};

}  // namespace varnel
