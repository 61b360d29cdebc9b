// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/main_window.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "app/panels/menu_entry.h"
#include "app/panels/named_button.h"
#include "app/picture/first_size.h"
#include "app/tools/circle_tools.h"
#include "app/tools/empty_state.h"
#include "app/tools/frame_tools.h"
#include "app/tools/guide_tools.h"
#include "app/tools/level_tools.h"
#include "app/tools/picture_keys.h"
#include "app/tools/sample_tools.h"
#include "app/tools/sheet_tools.h"
#include "app/tools/undo_tools.h"
#include "app/tools/zoom_tools.h"
#include "base/rounding.h"
#include "state/settings/setting_names.h"

namespace varnel {

MDIForm1::MDIForm1(WorkingState& state, SettingsStore& store, const WindowPorts& ports)
    : state_(state), store_(store), ports_(ports), model_(state) {
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowTitle(QStringLiteral("Varnel"));
    setAcceptDrops(true);
    splitter_ = new QSplitter(this);
    auto* const side = new QWidget(splitter_);
    BuildSide(side);
    auto* const right = new QWidget(splitter_);
    BuildPictures(right);
    splitter_->addWidget(side);
    splitter_->addWidget(right);
    splitter_->setStretchFactor(1, 1);
    splitter_->setCollapsible(0, false);
    setCentralWidget(splitter_);
    BuildStatus();
    BuildMenus();
    view_ = std::make_unique<WindowView>(this, parts_, model_);
    workspace_ =
        std::make_unique<Workspace>(model_, WorkspacePorts{ports_.photos, ports_.notices, *view_});
    new UndoTools(parts_, *view_, *workspace_, this);
    AddRemoveEntry();
    list_ = new ListTools(parts_, *view_, *workspace_, state_, ports_.newSmallReader, this);
    projects_ = new ProjectTools(this, *view_, *workspace_, state_, store_, ports_);
    sessions_ = new SessionTools(*projects_, *workspace_, state_, ports_, this);
    new ZoomTools(this, parts_, *view_, *workspace_, state_);
    parts_.viewMenu->addSeparator();
    new SheetTools(parts_, *view_, *workspace_, state_, this);
    new FrameTools(parts_, *view_, *workspace_, state_, this);
    new LevelTools(this, parts_, *view_, *workspace_, state_);
    new CircleTools(this, parts_, *view_, *workspace_, state_, store_);
    new PictureKeys(this, parts_);
    new EmptyState(this, parts_);
    new SampleTools(this, parts_, *view_, *workspace_, state_);
    new GuideTools(this, ports_.notices);
    ConnectControls();
    ConnectSliders();
    // Sliders without scrolling, pictures side by side.
    resize(FirstSize(*this, {1400, 1040}));
    RestoreLayout();
    UpdateEnabled();
}

MDIForm1::~MDIForm1() {
    state_.bitmaps = {};
}

// The controls scroll where the window is low; what saves stays in sight.
void MDIForm1::BuildSide(QWidget* side) {
    parts_.column = side;
    auto* const scroll = new QScrollArea(side);
    auto* const controls = new QWidget(scroll);
    scroll->setFocusPolicy(Qt::NoFocus);
    parts_.list = new ImageListPanel(controls);  // first, for the order of the Tab key
    parts_.equipment = new EquipmentPanel(controls);
    parts_.adjustments = new AdjustmentPanel(controls);
    parts_.save = new SavePanel(side);
    auto* const inner = new QVBoxLayout(controls);
    inner->addWidget(parts_.list);
    inner->addWidget(parts_.equipment);
    inner->addWidget(parts_.adjustments);
    inner->addStretch();
    scroll->setWidget(controls);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(controls->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width() + 4);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 6);
    layout->addWidget(scroll, 1);
    auto* const margins = new QHBoxLayout;
    margins->setContentsMargins(9, 0, 9, 0);
    margins->addWidget(parts_.save);
    layout->addLayout(margins);
}

void MDIForm1::BuildPictures(QWidget* right) {
    parts_.pictures = new PictureArea(right);
    parts_.pictures->SetWanted({state_.settings.PreviewWidth, state_.settings.PreviewHeight});
    auto* const layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(parts_.pictures);
}

void MDIForm1::BuildStatus() {
    parts_.status = new QLabel(this);
    parts_.status->setObjectName(QStringLiteral("StatusText"));
    parts_.status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    parts_.bar = new QProgressBar(this);
    parts_.bar->setObjectName(QStringLiteral("ImgProgressBar"));
    parts_.bar->setAccessibleName(tr("Progress"));
    parts_.bar->setTextVisible(false);
    parts_.bar->setMaximumSize(240, 12);
    parts_.cancel =
        NamedButton("CmdCancelSave", tr("Cancel"), tr("Ends the saving without a file"), this);
    parts_.cancel->setShortcut(Qt::Key_Escape);
    parts_.cancel->hide();
    parts_.offer = new GearOfferRow(this);
    statusBar()->addWidget(parts_.status);
    statusBar()->addWidget(parts_.offer, 1);
    statusBar()->addPermanentWidget(parts_.bar);
    statusBar()->addPermanentWidget(parts_.cancel);
}

QAction* MDIForm1::AddEntry(QMenu* menu, const char* name, const QString& text,
                            const QKeySequence& shortcut, void (MDIForm1::*handler)()) {
    auto* const action = AddMenuEntry(menu, name, text, {shortcut});
    if (handler != nullptr) {
        connect(action, &QAction::triggered, this, handler);
    } else {
        action->setEnabled(false);
    }
    return action;
}

void MDIForm1::BuildMenus() {
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    AddEntry(file, "CmdFileOpen", tr("&OpenOld"), {}, nullptr);
    AddEntry(file, "CmdFileOpenFreeImage", tr("Open image(s)"), QKeySequence::Open,
             &MDIForm1::AddImages);
    saveImage_ = AddEntry(file, "CmdFileSaveImage", parts_.save->SaveAs()->text(),
                          QKeySequence::Save, &MDIForm1::SaveAs);
    saveImage_->setShortcuts(saveImage_->shortcuts() << QKeySequence::SaveAs);
    file->addSeparator()->setObjectName(QStringLiteral("Sep2"));
    AddEntry(file, "CmdFileExit", tr("&Exit"), QKeySequence(Qt::CTRL | Qt::Key_Q), &MDIForm1::Quit);
    parts_.editMenu = menuBar()->addMenu(tr("&Edit"));
    parts_.viewMenu = menuBar()->addMenu(tr("&View"));
    QMenu* const setup = menuBar()->addMenu(tr("&Setup"));
    AddEntry(setup, "CmdSetupEquipment", tr("&Manage equipment"), {}, &MDIForm1::ManageGears);
    AddEntry(setup, "CmdSetupSetup", tr("&Defaults"), QKeySequence::Preferences,
             &MDIForm1::ChangeDefaults);
    QMenu* const tools = menuBar()->addMenu(tr("&Tools"));
    morph_ = AddEntry(tools, "CmdToolsMorph", tr("Morph"), {}, &MDIForm1::Morph);
    AddEntry(tools, "CmdToolsStretch", tr("Stretch"), {}, &MDIForm1::Stretch);
    QMenu* const about = menuBar()->addMenu(tr("&About"));
    AddEntry(about, "CmdAboutAbout", tr("&About"), {}, &MDIForm1::ShowAbout);
}

// Its key is the list's own: elsewhere it deletes what is typed.
void MDIForm1::AddRemoveEntry() {
    parts_.editMenu->addSeparator();
    removeImages_ = AddEntry(parts_.editMenu, "CmdEditRemoveImages", parts_.list->Remove()->text(),
                             QKeySequence::Delete, &MDIForm1::RemoveImages);
    removeImages_->setShortcutContext(Qt::WidgetShortcut);
    parts_.list->List()->addAction(removeImages_);
}

void MDIForm1::Activate() {
    if (LoadGear(store_, state_.Gear, ports_.gearPrompt) != GearLoad::Loaded) {
        Q_EMIT QuitWanted();
        return;
    }
    model_.gears.Refill();
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

// The list's height follows the window alone, so that nothing jumps under the mouse when another
// projection shows or hides its sliders.
void MDIForm1::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    parts_.list->List()->setFixedHeight(std::clamp(height() / 5, 110, 420));
}

void MDIForm1::Quit() {
    close();
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (model_.activity.Busy()) {
        closeWanted_ = true;
        event->ignore();
        return;
    }
    if (!projects_->MayClose()) {
        event->ignore();
        return;
    }
    sessions_->End();
    SaveLayout();
    QMainWindow::closeEvent(event);
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
    workspace_->adder.AddFiles(projects_->OpenFrom(files));
}

void MDIForm1::RestoreLayout() {
    const auto stored = [this](const char* key) {
        return QByteArray::fromBase64(
            store_.Get(QStringLiteral("Window"), QString::fromLatin1(key), {}).toLatin1());
    };
    restoreGeometry(stored("Geometry"));
    splitter_->restoreState(stored("Splitter"));
}

void MDIForm1::SaveLayout() {
    const auto keep = [this](const char* key, const QByteArray& value) {
        store_.Save(QStringLiteral("Window"), QString::fromLatin1(key),
                    QString::fromLatin1(value.toBase64()));
    };
    keep("Geometry", saveGeometry());
    keep("Splitter", splitter_->saveState());
}

}  // namespace varnel
