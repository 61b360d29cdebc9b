// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/colour_tools.h"

#include "app/panels/menu_entry.h"
#include "app/tools/layout/kept_choice.h"

namespace varnel {

ColourTools::ColourTools(QMainWindow* window, const WindowParts& parts, const WorkspaceModel& model,
                         SettingsStore& store, ScreenProfile screenProfile)
    : QObject(window),
      pictures_(*parts.pictures),
      model_(model),
      screenProfile_(std::move(screenProfile)) {
    colours_ = AddMenuEntry(parts.viewMenu, "CmdViewColours", tr("Displa&y colours"));
    KeepChoice(*colours_, "Colours", true, store);
    histogram_ =
        AddMenuEntry(parts.viewMenu, "CmdViewHistogram", tr("Histogram and clipping mar&ks"));
    KeepChoice(*histogram_, "Histogram", false, store);
    connect(colours_, &QAction::toggled, this, [this] {
        TakeColours();
        pictures_.Refresh();
    });
    connect(histogram_, &QAction::toggled, this, &ColourTools::ShowHistogram);
    connect(pictures_.From(), &PictureBox::Shown, this, &ColourTools::TakeColours);
    connect(pictures_.To(), &PictureBox::Shown, this, &ColourTools::TakeLevels);
    ShowHistogram(histogram_->isChecked());
}

void ColourTools::TakeColours() {
    const Bitmap* const photo = model_.state.bitmaps.FullSourceBitmap.get();
    ScreenColour colour;
    if (photo != nullptr && colours_->isChecked()) {
        colour = ScreenColour(photo->metadata.colourProfile,
                              screenProfile_ ? screenProfile_() : QByteArray());
    }
    pictures_.From()->SetColour(colour);
    pictures_.To()->SetColour(colour);
}

void ColourTools::TakeLevels() {
    const Bitmap* const result = model_.state.bitmaps.ResultBitmap.get();
    const ImageRecord* const image = model_.list.Current();
    if (histogram_->isChecked() && result != nullptr && image != nullptr &&
        !pictures_.To()->Empty()) {
        overlay_.Show(Histogram::Of(*result, image->Outside));
    }
}

void ColourTools::ShowHistogram(bool on) {
    pictures_.To()->RemoveOverlay(&overlay_);
    if (on) {
        pictures_.To()->AddOverlay(&overlay_);
        TakeLevels();
    }
}

}  // namespace varnel
