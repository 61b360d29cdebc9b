// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/save_tools.h"

#include "app/panels/typed_number.h"

namespace varnel {

SaveTools::SaveTools(QMainWindow* window, const WindowParts& parts, Workspace& workspace,
                     ListTools& list, const WorkingState& state, const WindowPorts& ports)
    : QObject(window),
      window_(window),
      panel_(*parts.save),
      workspace_(workspace),
      list_(list),
      state_(state),
      ports_(ports),
      saveImage_(parts.entries.saveImage),
      morph_(parts.entries.morph) {
    connect(saveImage_, &QAction::triggered, this, &SaveTools::SaveAs);
    connect(morph_, &QAction::triggered, this, &SaveTools::Morph);
    connect(panel_.SaveAs(), &QAbstractButton::clicked, this, &SaveTools::SaveAs);
    connect(panel_.AddToQueue(), &QAbstractButton::clicked, this, &SaveTools::QueueAll);
    connect(panel_.ProcessQueue(), &QAbstractButton::clicked, this, &SaveTools::ProcessBatch);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &SaveTools::UpdateEnabled);
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
    ports_.dialogs.ProcessBatch(
        ShowsQueue(),
        [this](const ImageRecord& entry, const QString& file) {
            workspace_.model.steps.MarkWritten(entry, file);
        },
        window_);
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

void SaveTools::UpdateEnabled() {
    const bool photos = !state_.Images.Empty();
    panel_.SaveAs()->setEnabled(photos);
    panel_.AddToQueue()->setEnabled(photos);
    saveImage_->setEnabled(photos);
    morph_->setEnabled(photos);
}

}  // namespace varnel
