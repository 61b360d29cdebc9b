// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/save_tools.h"

#include <QStatusBar>

#include "app/panels/named_button.h"
#include "app/panels/typed_number.h"

namespace varnel {

SaveTools::SaveTools(QMainWindow* window, const WindowParts& parts, Workspace& workspace,
                     ListTools& list, const WindowPorts& ports, BatchJob& job)
    : QObject(window),
      window_(window),
      panel_(*parts.save),
      workspace_(workspace),
      list_(list),
      ports_(ports),
      job_(job),
      saveImage_(parts.entries.saveImage),
      morph_(parts.entries.morph),
      showInFolder_(NamedButton("CmdShowInFolder", tr("Show in folder"),
                                tr("Shows the saved picture in the file manager"), window)) {
    showInFolder_->setFlat(true);
    window->statusBar()->insertWidget(1, showInFolder_);
    showInFolder_->hide();
    connect(showInFolder_, &QAbstractButton::clicked, this,
            [this] { ports_.dialogs.ShowInFolder(saved_); });
    connect(&workspace_.model, &WorkspaceModel::PictureSaved, this, &SaveTools::ShowSaved);
    connect(&workspace_.model.list, &ImageSelection::Chosen, showInFolder_, &QWidget::hide);
    connect(saveImage_, &QAction::triggered, this, &SaveTools::SaveAs);
    connect(morph_, &QAction::triggered, this, &SaveTools::Morph);
    connect(panel_.SaveAs(), &QAbstractButton::clicked, this, &SaveTools::SaveAs);
    connect(panel_.AddToQueue(), &QAbstractButton::clicked, this, &SaveTools::QueueAll);
    connect(panel_.ProcessQueue(), &QAbstractButton::clicked, this, &SaveTools::ProcessBatch);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &SaveTools::UpdateEnabled);
    connect(&job_, &BatchJob::Written, this, [this](const ImageRecord& entry, const QString& file) {
        workspace_.model.steps.MarkWritten(entry, file);
    });
    connect(&job_, &BatchJob::Ended, this, [this] {
        if (!job_.Summary().written.isEmpty()) {
            ShowSaved(job_.Summary().written.last());
        }
    });
    UpdateEnabled();
}

void SaveTools::SaveAs() {
    TakeTyped(*window_);
    workspace_.saver.SaveAs(ports_.fileChooser);
}

void SaveTools::QueueAll() {
    ShowsQueue()(workspace_.list.AddToBatchQueue());
}

void SaveTools::ProcessBatch() {
    ports_.dialogs.ProcessBatch(job_, ShowsQueue(), window_);
}

void SaveTools::Morph() {
    ports_.dialogs.Morph(workspace_.preparation.PreparedCurrent(), ShowsQueue(), window_);
}

QueueChanged SaveTools::ShowsQueue() {
    return [this](int length) {
        panel_.ShowQueue(length);
        list_.Refresh();
    };
}

void SaveTools::ShowSaved(const QString& path) {
    saved_ = path;
    showInFolder_->show();
}

void SaveTools::UpdateEnabled() {
    const bool photos = !workspace_.model.state.Images.Empty();
    panel_.SaveAs()->setEnabled(photos);
    panel_.AddToQueue()->setEnabled(photos);
    saveImage_->setEnabled(photos);
    morph_->setEnabled(photos);
}

}  // namespace varnel
