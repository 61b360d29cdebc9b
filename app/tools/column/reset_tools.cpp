// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/reset_tools.h"

#include <algorithm>

#include "app/panels/menu_entry.h"

namespace varnel {

ResetTools::ResetTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
                       QObject* parent)
    : QObject(parent), view_(view), commands_(workspace), panel_(*parts.adjustments) {
    parts.editMenu->addSeparator();
    entry_ = AddMenuEntry(parts.editMenu, "CmdEditResetPhoto", tr("Reset photo"));
    const auto reset = [this] {
        if (!view_.Locked()) {
            commands_.ResetPhoto();
        }
    };
    connect(entry_, &QAction::triggered, this, reset);
    connect(panel_.ResetPhoto(), &QPushButton::clicked, this, reset);
    for (SliderRow* const row : panel_.Rows()) {
        const SliderId slider = row->Data().id;
        connect(panel_.Dot(slider), &ResetDot::clicked, this, [this, slider] {
            if (!view_.Locked()) {
                commands_.Reset(slider);
            }
        });
    }
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &ResetTools::Refresh);
    const auto soon = [this] { refresh_.start(0); };
    connect(&workspace.model.steps, &ListSteps::Changed, this, soon);
    connect(&workspace.model.controls, &ControlModel::Shown, this, soon);
    connect(&workspace.model.list, &ImageSelection::Refilled, this, soon);
    Refresh();
}

void ResetTools::Refresh() {
    const auto& rows = panel_.Rows();
    for (const SliderRow* const row : rows) {
        panel_.Dot(row->Data().id)->setEnabled(commands_.IsUnusual(row->Data().id));
    }
    const bool any =
        commands_.HasUnusualChoice() || std::ranges::any_of(rows, [this](const SliderRow* row) {
            return commands_.IsUnusual(row->Data().id);
        });
    entry_->setEnabled(any);
    panel_.ResetPhoto()->setEnabled(any);
}

}  // namespace varnel
