// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/main_window.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "app/picture/first_size.h"
#include "app/straighten/straighten_tools.h"
#include "app/tools/circle_tools.h"
#include "app/tools/column/adjustment_tools.h"
#include "app/tools/column/gear_tools.h"
#include "app/tools/column/list_tools.h"
#include "app/tools/column/photo_tools.h"
#include "app/tools/column/reset_tools.h"
#include "app/tools/column/save_tools.h"
#include "app/tools/column/size_tools.h"
#include "app/tools/crop/crop_tools.h"
#include "app/tools/empty_state.h"
#include "app/tools/faces/face_tools.h"
#include "app/tools/film/film_tools.h"
#include "app/tools/frame_tools.h"
#include "app/tools/gear/photo_gear_tools.h"
#include "app/tools/guide_tools.h"
#include "app/tools/layout/hint_tools.h"
#include "app/tools/layout/layout_tools.h"
#include "app/tools/layout/theme_tools.h"
#include "app/tools/layout/toolbar_tools.h"
#include "app/tools/level_tools.h"
#include "app/tools/pair_tools.h"
#include "app/tools/picture_keys.h"
#include "app/tools/presets/batch_tools.h"
#include "app/tools/presets/preset_tools.h"
#include "app/tools/sample_tools.h"
#include "app/tools/sheet_tools.h"
#include "app/tools/steer/picture_menus.h"
#include "app/tools/steer/steer_tools.h"
#include "app/tools/steer/walk_tools.h"
#include "app/tools/undo_tools.h"
#include "app/tools/view/colour_tools.h"
#include "app/tools/view/divider_tools.h"
#include "app/tools/view/picture_size_tools.h"
#include "app/tools/view/view_tools.h"
#include "app/tools/view/zoom_tools.h"
#include "app/workspace/gears/first_gear.h"
#include "remap/image/preview_size.h"

namespace varnel {

MDIForm1::MDIForm1(WorkingState& state, SettingsStore& store, const WindowPorts& ports)
    : state_(state),
      store_(store),
      ports_(ports),
      parts_(MakeParts(this)),
      layout_(*this, parts_, store),
      model_(state),
      view_(this, parts_, model_),
      shelf_(ports_.newSmallReader, state.settings,
             [this](PixelSize photo) {
                 return PreviewSize(photo, view_.PreviewBox(), view_.PictureRoom());
             }),
      workspace_(model_, WorkspacePorts{ports_.photos, ports_.notices, view_, &shelf_,
                                        ports_.films.source}) {
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowTitle(QStringLiteral("Varnel"));
    setAcceptDrops(true);
    MakeTools();
    ConnectEntries();
    // Sliders without scrolling, pictures side by side.
    resize(FirstSize(*this, {1400, 1040}));
    layout_.Restore();
}

MDIForm1::~MDIForm1() {
    state_.bitmaps = {};
}

// The order is that of their entries in the menus, and that in which a signal calls them:
// PhotoTools loads a photo after the others dropped what belongs to the one before.
void MDIForm1::MakeTools() {
    new UndoTools(parts_, view_, workspace_, this);
    auto* const list =
        new ListTools(parts_, view_, workspace_, state_, ports_.newSmallReader, this);
    projects_ = new ProjectTools(this, view_, workspace_, state_, store_, ports_);
    sessions_ = new SessionTools(*projects_, workspace_, state_, ports_, this);
    new PresetTools(this, parts_, view_, workspace_, store_, ports_.dialogs, batch_);
    views_ = new ViewTools(this, parts_, store_);
    auto* const zoom = new ZoomTools(this, parts_, view_, workspace_, state_);
    new ColourTools(this, parts_, model_, store_, ports_.screenProfile);
    new SteerTools(parts_, view_, workspace_, this);
    new DividerTools(parts_, *zoom, this);
    new WalkTools(parts_, view_, model_.activity, this);
    parts_.viewMenu->addSeparator();
    new SheetTools(parts_, view_, workspace_, state_, this);
    new FrameTools(parts_, view_, workspace_, state_, this);
    new LevelTools(this, parts_, view_, workspace_, state_);
    new CropTools(this, parts_, view_, workspace_);
    new FaceTools(this, parts_, view_, workspace_, state_);
    new StraightenTools(this, view_, workspace_, state_, ports_);
    new CircleTools(this, parts_, view_, workspace_, store_, ports_.newGearReader);
    new PictureKeys(this, parts_);
    new PictureMenus(this, parts_, view_, model_.list, ports_.dialogs);
    new EmptyState(this, parts_);
    new SampleTools(this, parts_, view_, workspace_, state_);
    new GuideTools(this, ports_.notices, state_.settings.Language);
    new AdjustmentTools(this, parts_, view_, workspace_, state_);
    new PhotoTools(this, parts_, workspace_, state_, ports_.dialogs);
    new ResetTools(parts_, view_, workspace_, this);
    new PhotoGearTools(this, parts_, view_, workspace_, store_, ports_);
    new PairTools(parts_, view_, workspace_, this);
    new GearTools(this, parts_, view_, workspace_, state_, ports_.dialogs);
    if (ports_.films.source != nullptr) {
        new FilmTools(this, parts_, view_, workspace_, store_, ports_, batch_);
    }
    new SizeTools(this, parts_, view_, workspace_);
    new SaveTools(this, parts_, workspace_, *list, ports_, batch_);
    new BatchTools(this, parts_, view_, batch_);
    new PictureSizeTools(this, parts_, view_, workspace_, state_, ports_.dialogs);
    new HintTools(this, parts_, model_);
    new ToolbarTools(this, parts_, store_);
    new LayoutTools(this, parts_, store_, list->Pictures());
    new ThemeTools(*parts_.viewMenu, store_, ports_.theme, this);
}

void MDIForm1::ConnectEntries() {
    connect(parts_.entries.exit, &QAction::triggered, this, &QWidget::close);
    connect(parts_.entries.stretch, &QAction::triggered, this,
            [this] { ports_.dialogs.Stretch(model_.list.CurrentPath(), this); });
    connect(parts_.entries.about, &QAction::triggered, this,
            [this] { ports_.dialogs.ShowAbout(this); });
    connect(&model_.list, &ImageSelection::Refilled, this, [this] {
        if (state_.Images.Empty()) {
            view_.ShowTitle({});
        }
    });
    connect(&model_.activity, &Activity::Idle, this, &MDIForm1::CloseWhenIdle);
    connect(&batch_, &BatchJob::Ended, this, [this] {
        if (closeAgreed_) {
            QTimer::singleShot(0, this, &QWidget::close);
        }
    });
}

void MDIForm1::Activate() {
    ProposeFirstGear(filesAtStart_, {store_, ports_.photos, model_.activity}, state_.Gear);
    if (LoadGear(store_, state_.Gear, ports_.gearPrompt) != GearLoad::Loaded) {
        Q_EMIT QuitWanted();
        return;
    }
    model_.gears.Refill();
    view_.ShowStatus(LackingLensText(state_.Gear));
    if (filesAtStart_.isEmpty()) {  // other work comes first
        sessions_->OfferLost();
    }
    AddFiles(filesAtStart_);
    Q_EMIT Started();
}

void MDIForm1::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!started_) {
        started_ = true;
        // After the window is on the screen, so that the first questions stand above it.
        QTimer::singleShot(0, this, &MDIForm1::Activate);
    }
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (model_.activity.Busy()) {
        closeWanted_ = true;
        event->ignore();
        return;
    }
    if (!closeAgreed_ && !projects_->MayClose(batch_.Left())) {
        event->ignore();
        return;
    }
    if (batch_.IsRunning()) {  // its image at hand is finished first
        closeAgreed_ = true;
        setEnabled(false);
        batch_.Stop();
        event->ignore();
        return;
    }
    sessions_->End();
    layout_.Save();
    views_->Save();
    QMainWindow::closeEvent(event);
}

void MDIForm1::CloseWhenIdle() {
    if (!model_.activity.Busy() && std::exchange(closeWanted_, false)) {
        QTimer::singleShot(0, this, &QWidget::close);
    }
}

void MDIForm1::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && !model_.activity.Busy()) {
        event->acceptProposedAction();
    }
}

void MDIForm1::dropEvent(QDropEvent* event) {
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile() && QFileInfo::exists(url.toLocalFile())) {
            files.append(url.toLocalFile());
        }
    }
    if (model_.activity.Busy() || files.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    AddFiles(files);
}

void MDIForm1::AddFiles(const QStringList& files) {
    workspace_.adder.AddFiles(projects_->OpenFrom(files));
}

}  // namespace varnel
