// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/picture_size_tools.h"

#include "remap/image/preview_size.h"

namespace varnel {

namespace {

constexpr int afterChange = 150;  // ms without another change of the window's size

}  // namespace

PictureSizeTools::PictureSizeTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                                   Workspace& workspace, WorkingState& state, Dialogs& dialogs)
    : QObject(window),
      window_(window),
      pictures_(*parts.pictures),
      view_(view),
      workspace_(workspace),
      state_(state),
      dialogs_(dialogs),
      sharp_(*parts.pictures, state.pool, this) {
    roomSettled_.setSingleShot(true);
    roomSettled_.setInterval(afterChange);
    connect(&pictures_, &PictureArea::RoomChanged, &roomSettled_, qOverload<>(&QTimer::start));
    connect(&roomSettled_, &QTimer::timeout, this, &PictureSizeTools::OnRoomChanged);
    connect(parts.entries.defaults, &QAction::triggered, this, &PictureSizeTools::ChangeDefaults);
    sharp_.Serve(
        [this] {
            return ScreenPictures::Wish{state_.bitmaps.FullSourceBitmap.get(), view_.Drawn()};
        },
        [this] { return workspace_.model.activity.Busy(); });
}

// The pictures are made anew only when the window leaves another room for them.
void PictureSizeTools::OnRoomChanged() {
    const Bitmap* const full = state_.bitmaps.FullSourceBitmap.get();
    const Bitmap* const reduced = state_.bitmaps.PreviewSourceBitmap.get();
    if (workspace_.model.activity.Busy()) {
        roomSettled_.start();
        return;
    }
    if (full == nullptr) {
        return;
    }
    const PixelSize wanted = PreviewSize(SizeOf(full), view_.PreviewBox(), view_.PictureRoom());
    // There may have been no memory for the one before.
    if (reduced == nullptr || wanted.width != SizeOf(reduced).width ||
        wanted.height != SizeOf(reduced).height) {
        Redraw();
    }
}

void PictureSizeTools::ChangeDefaults() {
    dialogs_.ChangeDefaults(window_);
    view_.ShowOffer();
    Q_EMIT workspace_.model.SavingChanged();
    Redraw();
}

void PictureSizeTools::Redraw() {
    if (workspace_.photo.RebuildThumbnail()) {
        workspace_.preview.Preview();
    }
}

}  // namespace varnel
