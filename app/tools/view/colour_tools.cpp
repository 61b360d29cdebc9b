// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/colour_tools.h"

#include "app/panels/menu_entry.h"

namespace varnel {

namespace {

constexpr QLatin1StringView section("Window");

}  // namespace

ColourTools::ColourTools(QMainWindow* window, const WindowParts& parts, const WorkspaceModel& model,
                         SettingsStore& store, ScreenProfile screenProfile)
    : QObject(window),
      pictures_(*parts.pictures),
      menu_(*parts.viewMenu),
      model_(model),
      store_(store),
      screenProfile_(std::move(screenProfile)) {
    colours_ = AddChoice("CmdViewColours", tr("Displa&y colours"), true);
    histogram_ = AddChoice("CmdViewHistogram", tr("Histogram and clipping mar&ks"), false);
    connect(colours_, &QAction::toggled, this, [this] {
        TakeColours();
        pictures_.Refresh();
    });
    connect(histogram_, &QAction::toggled, this, &ColourTools::ShowHistogram);
    connect(pictures_.From(), &PictureBox::Shown, this, &ColourTools::TakeColours);
    connect(pictures_.To(), &PictureBox::Shown, this, &ColourTools::TakeLevels);
    ShowHistogram(histogram_->isChecked());
}

QAction* ColourTools::AddChoice(const char* name, const QString& text, bool usual) {
    const QString key = QString::fromLatin1(name).mid(7);
    QAction* const entry = AddMenuEntry(&menu_, name, text);
    entry->setCheckable(true);
    entry->setChecked(store_.Get(section, key, QString::number(usual ? 1 : 0)) !=
                      QStringLiteral("0"));
    connect(entry, &QAction::toggled, this,
            [this, key](bool on) { store_.Save(section, key, QString::number(on ? 1 : 0)); });
    return entry;
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
    if (histogram_->isChecked() && result != nullptr && !pictures_.To()->Empty()) {
        overlay_.Show(Histogram::Of(*result));
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
