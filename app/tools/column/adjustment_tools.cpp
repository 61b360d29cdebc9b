// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/adjustment_tools.h"

#include <QScopeGuard>
#include <QShortcut>

#include "app/panels/typed_number.h"

namespace varnel {

AdjustmentTools::AdjustmentTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                                 Workspace& workspace, const WorkingState& state)
    : QObject(window),
      window_(window),
      panel_(*parts.adjustments),
      view_(view),
      workspace_(workspace),
      state_(state) {
    ConnectButtons();
    ConnectSliders();
    AddKeys();
    connect(&workspace_.model.list, &ImageSelection::Refilled, this,
            &AdjustmentTools::UpdateEnabled);
    UpdateEnabled();
}

void AdjustmentTools::ConnectButtons() {
    const auto click = [this](QAbstractButton* button, auto handler) {
        connect(button, &QAbstractButton::clicked, this, [handler] { handler(); });
    };
    click(panel_.ApplyToAll(), [this] { workspace_.adjustments.ApplyToAll(); });
    click(panel_.PreviewButton(), [this] { workspace_.adjustments.PreviewNow(); });
    click(panel_.AutoPreview(), [this] { workspace_.preview.Preview(); });
    click(panel_.Antialiased(), [this] { workspace_.preview.Preview(); });
    connect(panel_.Projections(), &ProjectionChooser::Chosen, this,
            [this](Projection projection) { workspace_.adjustments.ChooseProjection(projection); });
    connect(panel_.Choices(), &ChoiceLine::Chosen, this,
            [this] { workspace_.adjustments.StoreControls(true); });
}

void AdjustmentTools::ConnectSliders() {
    livePreview_.setSingleShot(true);
    connect(&livePreview_, &QTimer::timeout, this,
            [this] { workspace_.preview.PreviewControls(); });
    for (SliderRow* const row : panel_.Rows()) {
        connect(row, &SliderRow::Dragged, &livePreview_, [this] { livePreview_.start(0); });
        connect(row, &SliderRow::Changed, this, [this, row] { OnSliderChanged(row); });
        connect(row, &SliderRow::ResetWanted, this, [this, row] { OnSliderReset(row); });
    }
}

void AdjustmentTools::AddKeys() {
    const auto shortcut = [this](const QKeySequence& keys, QAbstractButton* button) {
        auto* const made = new QShortcut(keys, window_);
        connect(made, &QShortcut::activated, this, [this, button] {
            TakeTyped(*window_);
            if (!view_.Locked()) {
                button->click();
            }
        });
    };
    shortcut(QKeySequence(Qt::Key_F5), panel_.PreviewButton());
    const QButtonGroup* const projections = panel_.Projections()->Buttons();
    for (QAbstractButton* const button : projections->buttons()) {
        shortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + projections->id(button))),
                 button);
    }
}

// The slider is disabled while its value is stored, so that a turn of the event queue cannot move
// it again; the keyboard stays where it was.
void AdjustmentTools::OnSliderChanged(SliderRow* row) {
    if (state_.loadingControls || view_.Locked()) {
        return;
    }
    QWidget* const focused = window_->focusWidget();
    {
        row->Slider()->setEnabled(false);
        const auto enable = qScopeGuard([row] { row->Slider()->setEnabled(true); });
        view_.HandleEvents();
        workspace_.adjustments.StoreControls(true);
    }
    if (focused != nullptr) {
        focused->setFocus();
    }
}

void AdjustmentTools::OnSliderReset(SliderRow* row) {
    if (view_.Locked()) {
        return;
    }
    workspace_.model.controls.Set(row->Data().id, 0);
    OnSliderChanged(row);
}

void AdjustmentTools::UpdateEnabled() {
    const bool photos = !state_.Images.Empty();
    for (SliderRow* const row : panel_.Rows()) {
        row->setEnabled(photos);
    }
    panel_.Choices()->setEnabled(photos);
    panel_.ApplyToAll()->setEnabled(photos);
    panel_.PreviewButton()->setEnabled(photos);
}

}  // namespace varnel
