// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The group "Size and crop": what its choices do to the selected photos, and the numbers of the
// current result where it is saved. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>

#include "app/view/window_view.h"
#include "app/workspace/shape/shape_commands.h"

namespace varnel {

class SizeTools : public QObject {
    Q_OBJECT
  public:
    SizeTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
              Workspace& workspace);

  private:
    void TakeSize(const QString& text);
    void TakeOutside(const QString& text);
    void Refresh();
    QString NumbersOf(const ImageRecord& image) const;

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    ShapeCommands commands_;
};

}  // namespace varnel
