// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/view/window_view.h"

#include <QMenuBar>
#include <QSignalBlocker>
#include <cmath>

#include "remap/display/hourglass.h"
#include "remap/image/photo_metadata.h"
#include "remap/projection/record_maps.h"
#include "state/editing/read_gear.h"

namespace varnel {

namespace {

PixelSize DevicePixels(QSize logical, double ratio) {
    return {static_cast<std::int32_t>(std::lround(logical.width() * ratio)),
            static_cast<std::int32_t>(std::lround(logical.height() * ratio))};
}

}  // namespace

WindowView::WindowView(QMainWindow* window, const WindowParts& parts, WorkspaceModel& model)
    : window_(window), parts_(parts), model_(model), progress_(parts.bar) {
    FollowList();
    FollowControls();
    FollowGears();
    connect(&model_, &WorkspaceModel::CurrentShown, this, [this] {
        ShowTitle(model_.list.Current()->FileName);
        ShowOffer();
    });
    connect(parts_.cancel, &QPushButton::clicked, this, [this] {
        parts_.cancel->setEnabled(false);
        if (cancel_) {
            cancel_();
        }
    });
}

void WindowView::FollowList() {
    QListWidget* const list = parts_.list->List();
    connect(list, &QListWidget::itemSelectionChanged, this,
            [this] { model_.list.Select(parts_.list->SelectedLines()); });
    connect(list, &QListWidget::currentRowChanged, &model_.list, &ImageSelection::Choose);
    connect(&model_.list, &ImageSelection::Refilled, this, &WindowView::FillList);
    connect(&model_.list, &ImageSelection::Rearranged, this, &WindowView::FillLines);
}

void WindowView::FollowControls() {
    AdjustmentPanel* const panel = parts_.adjustments;
    ControlModel& controls = model_.controls;
    connect(panel->AutoPreview(), &QCheckBox::toggled, &controls, &ControlModel::SetAutoPreview);
    connect(panel->Antialiased(), &QCheckBox::toggled, &controls, &ControlModel::SetAntialiased);
    for (SliderRow* const row : panel->Rows()) {
        connect(row, &SliderRow::Moved, this,
                [&controls, row](double value) { controls.Set(row->Data().id, value); });
    }
    connect(&controls, &ControlModel::ProjectionChosen, panel, &AdjustmentPanel::ShowFor);
    connect(&controls, &ControlModel::Shown, this,
            [this, panel] { panel->Show(model_.controls.Values()); });
    connect(panel->Choices(), &ChoiceLine::Chosen, &controls, &ControlModel::Choose);
    connect(&controls, &ControlModel::ChoiceMade, panel->Choices(),
            qOverload<ChoiceId, int>(&ChoiceLine::Show));
    connect(&controls, &ControlModel::SliderSet, this,
            [panel](SliderId slider, double value) { panel->Row(slider)->Show(value); });
}

void WindowView::FollowGears() {
    EquipmentPanel* const panel = parts_.equipment;
    connect(panel->Gears(), &QComboBox::currentIndexChanged, this,
            [this](int index) { model_.gears.Choose(index + 1); });
    connect(&model_.gears, &GearModel::Refilled, this,
            [this, panel] { panel->Fill(model_.gears.Names(), model_.gears.Number()); });
    connect(&model_.gears, &GearModel::Shown, panel, &EquipmentPanel::Show);
}

PixelSize WindowView::PreviewBox() const {
    return DevicePixels({model_.state.settings.PreviewWidth, model_.state.settings.PreviewHeight},
                        window_->devicePixelRatioF());
}

PixelSize WindowView::PictureRoom() const {
    return DevicePixels(parts_.pictures->Room(), window_->devicePixelRatioF());
}

QSize WindowView::FullSize() const {
    const Bitmap* const full = model_.state.bitmaps.FullSourceBitmap.get();
    if (full == nullptr) {
        return {};
    }
    const PixelSize size = SizeOf(full);
    return {size.width, size.height};
}

void WindowView::FillList() {
    parts_.list->Fill(model_.list.Images());
    {
        const QSignalBlocker blocker(parts_.list->List());
        parts_.list->List()->setCurrentRow(model_.list.CurrentLine());
    }
    ShowOffer();
}

void WindowView::FillLines() {
    parts_.list->Fill(model_.list.Images());
    QListWidget* const list = parts_.list->List();
    const QSignalBlocker blocker(list);
    list->setCurrentRow(model_.list.CurrentLine());
    for (const int line : model_.list.SelectedLines()) {
        list->item(line)->setSelected(true);
    }
}

void WindowView::ShowProject(const QString& name, bool unsaved) {
    project_ = name;
    unsaved_ = unsaved;
    ShowTitle(photo_);
}

void WindowView::ShowTitle(const QString& photo) {
    photo_ = photo;
    QStringList parts{photo, project_, QStringLiteral("Varnel")};
    parts.removeAll(QString());
    const QString place = QStringLiteral("[*]");  // of the mark; written twice it is itself
    for (QString& part : parts) {
        part.replace(place, place + place);
    }
    parts.first() += unsaved_ ? place : QString();
    window_->setWindowModified(false);  // before its placeholder may be removed
    window_->setWindowTitle(parts.join(QStringLiteral(" - ")));
    window_->setWindowModified(unsaved_);
}

// Of what is drawn, at full size.
QSize WindowView::ResultSize() const {
    const QSize photo = FullSize();
    if (photo.isEmpty()) {
        return photo;
    }
    const PixelSize size = ResultSizeOf(drawn_, {photo.width(), photo.height()});
    return {size.width, size.height};
}

void WindowView::ShowResult(const Bitmap* bitmap) {
    parts_.pictures->To()->Show(bitmap, bitmap == nullptr ? FullSize() : ResultSize());
    Q_EMIT ResultShown();
}

void WindowView::ShowOffer() {
    GearOffer offer;
    const WorkingState& state = model_.state;
    const Bitmap* const photo = state.bitmaps.FullSourceBitmap.get();
    if (const ImageRecord* const image = model_.list.Current()) {
        const bool asks = state.settings.OfferGear && photo != nullptr;
        ImageRecord asked = *image;
        if (IsGuessed(asked)) {
            asked.GearName.clear();  // no gear that the table has lost
        }
        offer = OfferFor(asks ? photo->metadata.photo.origin : CameraInfo(), state.Gear, asked);
    }
    parts_.offer->Show(offer, model_.state.Gear);
}

std::shared_ptr<void> WindowView::Hourglass() {
    return std::make_shared<varnel::Hourglass>();
}

void WindowView::LetCancel(std::function<void()> cancel) {
    cancel_ = std::move(cancel);
    parts_.cancel->setEnabled(cancel_ != nullptr);
    parts_.cancel->setVisible(cancel_ != nullptr);
}

void WindowView::Lock(bool on) {
    locked_ = on;
    if (on) {
        focusBeforeLock_ = window_->focusWidget();
    }
    progress_.LetInputThrough(on);
    for (QWidget* const part :
         std::initializer_list<QWidget*>{parts_.column, parts_.list, parts_.tools}) {
        part->setEnabled(!on);
    }
    parts_.offer->setEnabled(!on);
    window_->menuBar()->setEnabled(!on);
    for (QAction* const action : window_->findChildren<QAction*>()) {
        // Shortcuts work beside a disabled menu bar. Exit waits like a click on the window's cross.
        if (action->menu() == nullptr && action->objectName() != QStringLiteral("CmdFileExit")) {
            action->blockSignals(on);
        }
    }
    if (!on && focusBeforeLock_) {
        focusBeforeLock_->setFocus();
    }
}

}  // namespace varnel
