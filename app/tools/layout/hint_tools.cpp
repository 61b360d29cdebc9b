// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/hint_tools.h"

#include "state/adjustments/slider_table.h"

namespace varnel {

HintTools::HintTools(QMainWindow* window, const WindowParts& parts, const WorkspaceModel& model)
    : QObject(window),
      parts_(parts),
      model_(model),
      level_(window->findChild<QAction*>(QStringLiteral("CmdToolsLevel"))),
      circle_(window->findChild<QAction*>(QStringLiteral("CmdViewCircle"))),
      crop_(window->findChild<QAction*>(QStringLiteral("CmdToolsCrop"))) {
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &HintTools::Refresh);
    const auto soon = [this] { refresh_.start(0); };
    connect(level_, &QAction::toggled, this, soon);
    connect(circle_, &QAction::toggled, this, soon);
    connect(crop_, &QAction::toggled, this, soon);
    connect(&model_.controls, &ControlModel::ProjectionChosen, this, soon);
    connect(&model_.controls, &ControlModel::Shown, this, soon);
    connect(&model_.list, &ImageSelection::Refilled, this, soon);
    Refresh();
}

void HintTools::Refresh() {
    parts_.hint->setText(Hint());
    parts_.hint->setToolTip(Hint());
}

QString HintTools::Hint() const {
    if (level_->isChecked()) {
        return tr(
            "Draw along the horizon on the photo, or click points and then the last one "
            "again; Escape leaves");
    }
    if (circle_->isChecked()) {
        return tr("Drag the circle's rim or its middle on the photo; Escape leaves");
    }
    if (crop_->isChecked()) {
        return tr("Drag the crop, its sides or its corners on the result; Escape leaves");
    }
    const bool turns = Reads(model_.controls.ChosenProjection(), SliderId::Y);
    return turns && model_.list.Current() != nullptr
               ? tr("drag: turn   wheel: angle   Shift+drag: roll")
               : QString();
}

}  // namespace varnel
