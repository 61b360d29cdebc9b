// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/view/window_view.h"

#include <QMenuBar>
#include <QSignalBlocker>
#include <cmath>

#include "remap/display/hourglass.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

namespace {

PixelSize DevicePixels(QSize logical, double ratio) {
    return {static_cast<std::int32_t>(std::lround(logical.width() * ratio)),
            static_cast<std::int32_t>(std::lround(logical.height() * ratio))};
}

}  // namespace

WindowView::WindowView(QMainWindow* window, const WindowParts& parts, const WorkingState& state)
    : window_(window), parts_(parts), state_(state), progress_(parts.bar) {
    QObject::connect(parts_.cancel, &QPushButton::clicked, parts_.cancel, [this] {
        parts_.cancel->setEnabled(false);
        if (cancel_) {
            cancel_();
        }
    });
}

PixelSize WindowView::PreviewBox() const {
    return DevicePixels({state_.settings.PreviewWidth, state_.settings.PreviewHeight},
                        window_->devicePixelRatioF());
}

PixelSize WindowView::PictureRoom() const {
    return DevicePixels(parts_.pictures->Room(), window_->devicePixelRatioF());
}

QSize WindowView::FullSize() const {
    const Bitmap* const full = state_.bitmaps.FullSourceBitmap.get();
    if (full == nullptr) {
        return {};
    }
    const PixelSize size = SizeOf(full);
    return {size.width, size.height};
}

void WindowView::ShowList(const RecordArray<ImageRecord>& images, int line) {
    parts_.list->Fill(images);
    {
        const QSignalBlocker blocker(parts_.list->List());
        parts_.list->List()->setCurrentRow(images.Empty() ? -1 : line);
    }
    ShowOffer();
    if (whenListShown_) {
        whenListShown_();
    }
}

void WindowView::ShowLines(const RecordArray<ImageRecord>& images, int current,
                           const std::vector<int>& selected) {
    parts_.list->Fill(images);
    QListWidget* const list = parts_.list->List();
    const QSignalBlocker blocker(list);
    list->setCurrentRow(current);
    for (const int line : selected) {
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
    window_->setWindowModified(false);  // before its place may go
    window_->setWindowTitle(parts.join(QStringLiteral(" - ")));
    window_->setWindowModified(unsaved_);
}

void WindowView::ShowResult(const Bitmap* bitmap) {
    parts_.pictures->To()->Show(bitmap, FullSize());
    for (const std::function<void()>& then : whenResultShown_) {
        then();
    }
}

void WindowView::ShowOffer() {
    GearOffer offer;
    const int n = CurrentLine() + 1;
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    if (n >= 1 && n <= state_.Images.UpperBound()) {
        const bool asks = state_.settings.OfferGear && photo != nullptr;
        offer = OfferFor(asks ? photo->metadata.photo.origin : CameraInfo(), state_.Gear,
                         state_.Images(n));
    }
    parts_.offer->Show(offer, state_.Gear);
}

void WindowView::ShowRecord(const ImageRecord& image) {
    parts_.equipment->Show(image.GearName);
    parts_.adjustments->Show(ValuesFor(image));
    const int current = CurrentLine();
    if (current >= 0 && &image == &state_.Images(current + 1)) {
        ShowTitle(image.FileName);
        ShowOffer();
    }
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
    parts_.column->setEnabled(!on);
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
