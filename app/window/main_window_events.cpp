// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What happens on the main window: one short handler each; the work is the workspace's.

#include <QGuiApplication>
#include <QScopeGuard>
#include <QShortcut>
#include <QSpinBox>
#include <utility>

#include "app/window/main_window.h"
#include "base/rounding.h"
#include "remap/image/preview_size.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

void MDIForm1::ConnectControls() {
    const auto click = [this](QAbstractButton* button, auto handler) {
        connect(button, &QAbstractButton::clicked, this, [handler] { handler(); });
    };
    click(parts_.list->Add(), [this] { AddImages(); });
    click(parts_.list->Remove(), [this] { RemoveImages(); });
    click(parts_.equipment->ApplyToAll(), [this] { workspace_->gears.ApplyToAll(); });
    click(parts_.adjustments->ApplyToAll(), [this] { workspace_->adjustments.ApplyToAll(); });
    click(parts_.adjustments->PreviewButton(), [this] { workspace_->adjustments.PreviewNow(); });
    click(parts_.adjustments->AutoPreview(), [this] { workspace_->preview.Preview(); });
    click(parts_.adjustments->Antialiased(), [this] { workspace_->preview.Preview(); });
    click(parts_.save->SaveAs(), [this] { SaveAs(); });
    click(parts_.save->AddToQueue(), [this] { QueueAll(); });
    click(parts_.save->ProcessQueue(), [this] { ProcessBatch(); });
    click(parts_.offer->Button(), [this] { TakeOffer(); });
    connect(parts_.equipment->Gears(), &QComboBox::activated, this,
            [this] { workspace_->gears.GiveChosen(); });
    connect(parts_.adjustments->Projections(), &QButtonGroup::idClicked, this,
            &MDIForm1::OnProjection);
    connect(&model_.list, &ImageSelection::Chosen, this, &MDIForm1::OnLine);
    connect(parts_.list->List(), &QListWidget::itemClicked, this, &MDIForm1::OnLineClicked);
    connect(parts_.pictures->From(), &PictureBox::Released, this, &MDIForm1::PickPoint);
    connect(parts_.pictures, &PictureArea::RoomChanged, this, [this] { roomSettled_.start(150); });
    roomSettled_.setSingleShot(true);
    connect(&roomSettled_, &QTimer::timeout, this, &MDIForm1::OnRoomChanged);
    connect(&model_.list, &ImageSelection::Refilled, this, &MDIForm1::OnRefilled);
    connect(&model_.activity, &Activity::Idle, this, [this] {
        if (!model_.activity.Busy() && std::exchange(closeWanted_, false)) {
            QTimer::singleShot(0, this, &QWidget::close);
        }
    });

    const auto shortcut = [this](const QKeySequence& keys, auto handler) {
        auto* const made = new QShortcut(keys, this);
        connect(made, &QShortcut::activated, this, [this, handler] {
            TakeTyped();
            if (!view_->Locked()) {
                handler();
            }
        });
    };
    shortcut(QKeySequence(Qt::Key_F5), [this] { parts_.adjustments->PreviewButton()->click(); });
    for (const Projection projection : AllProjections()) {
        const int index = static_cast<int>(projection);
        shortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)),
                 [this, index] { parts_.adjustments->Projections()->button(index)->click(); });
    }
}

// What is still being typed counts.
void MDIForm1::TakeTyped() {
    if (auto* const number = qobject_cast<QSpinBox*>(focusWidget())) {
        number->interpretText();
    }
}

void MDIForm1::ConnectSliders() {
    livePreview_.setSingleShot(true);
    connect(&livePreview_, &QTimer::timeout, this,
            [this] { workspace_->preview.PreviewControls(); });
    for (SliderRow* const row : parts_.adjustments->Rows()) {
        connect(row, &SliderRow::Dragged, &livePreview_, [this] { livePreview_.start(0); });
        connect(row, &SliderRow::Changed, this, [this, row] { OnSliderChanged(row); });
        connect(row, &SliderRow::ResetWanted, this, [this, row] { OnSliderReset(row); });
    }
}

void MDIForm1::OnLine(int line) {
    changedByPress_ = QGuiApplication::mouseButtons() != Qt::NoButton;
    workspace_->photo.ShowLine(line);
}

// A click on the line that is current already loads its photo again.
void MDIForm1::OnLineClicked() {
    if (!std::exchange(changedByPress_, false)) {
        workspace_->photo.ShowLine(model_.list.CurrentLine());
    }
}

// The slider is disabled while its value is stored, so that a turn of the event queue cannot move
// it again; the keyboard stays where it was.
void MDIForm1::OnSliderChanged(SliderRow* row) {
    if (state_.loadingControls || view_->Locked()) {
        return;
    }
    QWidget* const focused = focusWidget();
    {
        row->Slider()->setEnabled(false);
        const auto enable = qScopeGuard([row] { row->Slider()->setEnabled(true); });
        view_->HandleEvents();
        workspace_->adjustments.StoreControls(true);
    }
    if (focused != nullptr) {
        focused->setFocus();
    }
}

void MDIForm1::OnSliderReset(SliderRow* row) {
    if (view_->Locked()) {
        return;
    }
    model_.controls.Set(row->Data().id, 0);
    OnSliderChanged(row);
}

void MDIForm1::OnProjection(int index) {
    workspace_->adjustments.ChooseProjection(ProjectionFromIndex(index));
}

// The pictures are made anew only when the window leaves another room for them.
void MDIForm1::OnRoomChanged() {
    const Bitmap* const full = state_.bitmaps.FullSourceBitmap.get();
    const Bitmap* const reduced = state_.bitmaps.PreviewSourceBitmap.get();
    if (model_.activity.Busy()) {
        roomSettled_.start(150);
        return;
    }
    if (full == nullptr) {
        return;
    }
    const PixelSize wanted = PreviewSize(SizeOf(full), view_->PreviewBox(), view_->PictureRoom());
    // There may have been no memory for the one before.
    if ((reduced == nullptr || wanted.width != SizeOf(reduced).width ||
         wanted.height != SizeOf(reduced).height) &&
        workspace_->photo.RebuildThumbnail()) {
        workspace_->preview.Preview();
    }
}

void MDIForm1::OnRefilled() {
    UpdateEnabled();
    if (state_.Images.Empty()) {
        view_->ShowTitle({});
    }
}

// Room for picking points on the photo; nothing is done with them.
void MDIForm1::PickPoint(QPoint /*position*/, Qt::MouseButton /*button*/,
                         Qt::KeyboardModifiers /*modifiers*/) {}

void MDIForm1::AddImages() {
    const int before = state_.Images.UpperBound();
    if (ports_.dialogs.AddImages(this)) {
        workspace_->adder.ImagesAdded(before);
    }
}

void MDIForm1::RemoveImages() {
    workspace_->list.RemoveSelected();
}

void MDIForm1::ManageGears() {
    const std::vector<GearChange> changes = ports_.dialogs.ManageGears(this);
    ShowGears();
    workspace_->gears.Follow(changes, [this](const QString& gear, int photos) {
        return ports_.dialogs.GiveNewNumbers(gear, photos);
    });
}

void MDIForm1::TakeOffer() {
    const GearOffer offer = parts_.offer->Offer();
    if (offer.gear > 0) {
        workspace_->gears.Use(offer.gear);
        return;
    }
    const GearRecord known = offer.lost ? GearOf(*model_.list.Current()) : GearNamed(offer.names);
    if (model_.activity.Busy() || !ports_.dialogs.DefineGear(known, this)) {
        return;
    }
    ShowGears();
    if (offer.lost) {
        workspace_->gears.NameCurrent(state_.Gear(state_.Gear.UpperBound()).GearName);
    } else if (const int gear = parts_.offer->Offer().gear; gear > 0) {
        workspace_->gears.Use(gear);
    }
}

void MDIForm1::ShowGears() {
    workspace_->gears.Refill();
    view_->ShowOffer();
}

void MDIForm1::ChangeDefaults() {
    ports_.dialogs.ChangeDefaults(this);
    parts_.pictures->SetWanted({state_.settings.PreviewWidth, state_.settings.PreviewHeight});
    view_->ShowOffer();
    if (workspace_->photo.RebuildThumbnail()) {
        workspace_->preview.Preview();
    }
}

void MDIForm1::ShowAbout() {
    ports_.dialogs.ShowAbout(this);
}

void MDIForm1::SaveAs() {
    TakeTyped();
    workspace_->saver.SaveAs(ports_.fileChooser);
}

void MDIForm1::QueueAll() {
    ShowsQueue()(workspace_->list.AddToBatchQueue());
}

QueueChanged MDIForm1::ShowsQueue() {
    return [this](int length) {
        parts_.save->ShowQueue(length);
        list_->Refresh();
    };
}

void MDIForm1::ProcessBatch() {
    ports_.dialogs.ProcessBatch(
        ShowsQueue(),
        [this](const ImageRecord& entry, const QString& file) {
            model_.steps.MarkWritten(entry, file);
        },
        this);
}

void MDIForm1::Morph() {
    ports_.dialogs.Morph(workspace_->preparation.PreparedCurrent(), ShowsQueue(), this);
}

void MDIForm1::Stretch() {
    ports_.dialogs.Stretch(model_.list.CurrentPath(), this);
}

void MDIForm1::UpdateEnabled() {
    const bool photos = !state_.Images.Empty();
    for (SliderRow* const row : parts_.adjustments->Rows()) {
        row->setEnabled(photos);
    }
    for (QWidget* const control : std::initializer_list<QWidget*>{
             parts_.list->Remove(), parts_.equipment->Gears(), parts_.equipment->ApplyToAll(),
             parts_.adjustments->ApplyToAll(), parts_.adjustments->PreviewButton(),
             parts_.save->SaveAs(), parts_.save->AddToQueue()}) {
        control->setEnabled(photos);
    }
    for (QAction* const entry : {morph_, saveImage_, removeImages_}) {
        entry->setEnabled(photos);
    }
}

}  // namespace varnel
