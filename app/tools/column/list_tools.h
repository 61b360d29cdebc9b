// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the image list shows beside the names, and the moving of its lines. Throws nothing but for
// want of memory.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QTimer>
#include <memory>

#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/dialogs/idle_previews.h"

namespace varnel {

// Makes a separate reader for the small pictures, so that they never delay a photo; called when it
// is first needed.
using NewSmallReader = std::function<std::unique_ptr<PictureReader>()>;

class ListTools : public QObject, private PreviewMaker {
    Q_OBJECT
  public:
    // Without newReader there are no small pictures.
    ListTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
              const WorkingState& state, NewSmallReader newReader, QObject* parent);
    ~ListTools() override;

    // Something that the marks show may have changed: they follow soon.
    void Refresh() { refresh_.start(0); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Begin(const QString& path) override;
    std::optional<QImage> Take() override;
    void Cancel() override;
    bool MayBegin() const override {
        return newReader_ != nullptr && !workspace_.model.activity.Busy();
    }

    void NoteLoaded();
    void ShowMarks();
    void ShowPictures();

    QListWidget& list_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    NewSmallReader newReader_;
    std::unique_ptr<PictureReader> reader_;
    IdlePreviews previews_;
    QTimer refresh_{this};
    QTimer resume_{this};
    QString underWay_;
    QHash<QString, QPixmap> pictures_;  // of each path
    QHash<QString, QString> errors_;
    bool refilled_ = false;
};

}  // namespace varnel
