// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the image list shows beside the names, and the moving of its lines. Throws nothing but for
// want of memory.
#pragma once

#include <QHash>
#include <QTimer>

#include "app/tools/column/list_pictures.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class ListTools : public QObject {
    Q_OBJECT
  public:
    // Without newReader there are no small pictures.
    ListTools(const WindowParts& parts, WindowView& view, Workspace& workspace, WorkingState& state,
              const NewSmallReader& newReader, QObject* parent);

    // Something that the marks show may have changed: they follow soon.
    void Refresh() { refresh_.start(0); }

    ListPictures& Pictures() { return pictures_; }

  private:
    void NoteLoaded();
    void ShowMarks();

    PhotoList& list_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    ListPictures pictures_;
    QTimer refresh_{this};
    QHash<QString, QString> errors_;
};

}  // namespace varnel
