// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/straighten_tools.h"

#include "app/panels/menu_entry.h"

namespace varnel {

namespace {

QMenu* MenuWith(const QMainWindow* window, const char* entry) {
    return qobject_cast<QMenu*>(window->findChild<QAction*>(QString::fromLatin1(entry))->parent());
}

}  // namespace

StraightenTools::StraightenTools(QMainWindow* window, WindowView& view, Workspace& workspace,
                                 const WorkingState& state, const WindowPorts& ports)
    : QObject(window),
      window_(window),
      view_(view),
      workspace_(workspace),
      state_(state),
      dialogs_(ports.dialogs),
      commands_(workspace, {ports.photos, ports.notices, view}) {
    QAction* const straighten =
        AddMenuEntry(MenuWith(window, "CmdToolsStretch"), "CmdToolsStraighten",
                     tr("St&raighten..."), {Qt::CTRL | Qt::SHIFT | Qt::Key_L});
    connect(straighten, &QAction::triggered, this, &StraightenTools::Straighten);
    QAction* const measure = AddMenuEntry(MenuWith(window, "CmdSetupEquipment"), "CmdSetupMeasure",
                                          tr("Measure a &lens..."));
    connect(measure, &QAction::triggered, this,
            [this] { dialogs_.Straighten(std::nullopt, window_); });
}

void StraightenTools::Straighten() {
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    if (workspace_.model.list.Current() == nullptr || photo == nullptr) {
        view_.ShowStatus(tr("Open a photo first."));
        return;
    }
    if (workspace_.model.activity.Busy() || view_.Locked()) {
        return;
    }
    const ImageRecord& record = workspace_.preparation.PreparedCurrent();
    auto shared = std::make_shared<Bitmap>(photo->Format(), photo->Size(), photo->SharedPixels());
    shared->metadata.photo.origin = photo->metadata.photo.origin;
    if (const auto use = dialogs_.Straighten(
            PhotoToMeasure{SourcePath(record), std::move(shared), record}, window_)) {
        Use(*use);
    }
}

void StraightenTools::Use(const MeasuredLensUse& use) {
    const int given = commands_.Use(use.lens, use.forAll);
    view_.ShowStatus(given == 1
                         ? tr("The photo has the measured lens; undo takes it back.")
                         : tr("%1 photos have the measured lens; undo takes it back.").arg(given));
}

}  // namespace varnel
