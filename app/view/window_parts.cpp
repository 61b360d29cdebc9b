// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/view/window_parts.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/panels/menu_entry.h"
#include "app/panels/named_button.h"
#include "pipeline/dialogs/elided_label.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WindowParts)
};

// The controls scroll where the window is low; what saves stays in sight.
void MakeSide(QWidget* side, WindowParts& parts) {
    parts.column = side;
    auto* const scroll = new QScrollArea(side);
    auto* const controls = new QWidget(scroll);
    scroll->setFocusPolicy(Qt::NoFocus);
    parts.list = new ImageListPanel(controls);  // first, for the order of the Tab key
    parts.equipment = new EquipmentPanel(controls);
    parts.adjustments = new AdjustmentPanel(controls);
    parts.save = new SavePanel(side);
    auto* const inner = new QVBoxLayout(controls);
    inner->addWidget(parts.list);
    inner->addWidget(parts.equipment);
    inner->addWidget(parts.adjustments);
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
    margins->addWidget(parts.save);
    layout->addLayout(margins);
}

void MakePictures(QWidget* right, WindowParts& parts) {
    parts.header = new QWidget(right);
    parts.header->setObjectName(QStringLiteral("PictureHeader"));
    parts.header->setAccessibleName(Texts::tr("View"));
    auto* const row = new QHBoxLayout(parts.header);
    row->setContentsMargins(pictureMargin, 3, pictureMargin, 3);
    row->setSpacing(2);
    row->setAlignment(Qt::AlignLeft);
    for (QToolButton*& button : parts.views) {  // before the pictures, for the order of the Tab key
        button = new QToolButton(parts.header);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    parts.pictures = new PictureArea(right);
    auto* const layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(parts.header);
    layout->addWidget(parts.pictures, 1);
}

void MakeCentre(QMainWindow* window, WindowParts& parts) {
    parts.splitter = new QSplitter(window);
    auto* const side = new QWidget(parts.splitter);
    MakeSide(side, parts);
    auto* const right = new QWidget(parts.splitter);
    MakePictures(right, parts);
    parts.splitter->addWidget(side);
    parts.splitter->addWidget(right);
    parts.splitter->setStretchFactor(1, 1);
    parts.splitter->setCollapsible(0, false);
    window->setCentralWidget(parts.splitter);
}

void MakeStatus(QMainWindow* window, WindowParts& parts) {
    parts.status = new ElidedLabel(window);  // whatever length a reason has
    parts.status->setObjectName(QStringLiteral("StatusText"));
    parts.status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    parts.bar = new QProgressBar(window);
    parts.bar->setObjectName(QStringLiteral("ImgProgressBar"));
    parts.bar->setAccessibleName(Texts::tr("Progress"));
    parts.bar->setTextVisible(false);
    parts.bar->setMaximumSize(240, 12);
    parts.cancel = NamedButton("CmdCancelSave", Texts::tr("Cancel"),
                               Texts::tr("Ends the saving without a file"), window);
    parts.cancel->setShortcut(Qt::Key_Escape);
    parts.cancel->hide();
    parts.offer = new GearOfferRow(window);
    QStatusBar* const bar = window->statusBar();
    bar->addWidget(parts.status);
    bar->addWidget(parts.offer, 1);
    bar->addPermanentWidget(parts.bar);
    bar->addPermanentWidget(parts.cancel);
}

void MakeMenus(QMenuBar* bar, WindowParts& parts) {
    MenuEntries& entries = parts.entries;
    QMenu* const file = bar->addMenu(Texts::tr("&File"));
    AddMenuEntry(file, "CmdFileOpen", Texts::tr("&OpenOld"))->setEnabled(false);
    entries.openImages = AddMenuEntry(file, "CmdFileOpenFreeImage", Texts::tr("Open image(s)"),
                                      {QKeySequence(QKeySequence::Open)});
    entries.saveImage =
        AddMenuEntry(file, "CmdFileSaveImage", parts.save->SaveAs()->text(),
                     {QKeySequence(QKeySequence::Save), QKeySequence(QKeySequence::SaveAs)});
    file->addSeparator()->setObjectName(QStringLiteral("Sep2"));
    entries.exit = AddMenuEntry(file, "CmdFileExit", Texts::tr("&Exit"), {Qt::CTRL | Qt::Key_Q});
    parts.editMenu = bar->addMenu(Texts::tr("&Edit"));
    parts.viewMenu = bar->addMenu(Texts::tr("&View"));
    QMenu* const setup = bar->addMenu(Texts::tr("&Setup"));
    entries.manageGears = AddMenuEntry(setup, "CmdSetupEquipment", Texts::tr("&Manage equipment"));
    entries.defaults = AddMenuEntry(setup, "CmdSetupSetup", Texts::tr("&Defaults"),
                                    {QKeySequence(QKeySequence::Preferences)});
    QMenu* const tools = bar->addMenu(Texts::tr("&Tools"));
    entries.morph = AddMenuEntry(tools, "CmdToolsMorph", Texts::tr("Morph"));
    entries.stretch = AddMenuEntry(tools, "CmdToolsStretch", Texts::tr("Stretch"));
    QMenu* const about = bar->addMenu(Texts::tr("&About"));
    entries.about = AddMenuEntry(about, "CmdAboutAbout", Texts::tr("&About"));
}

}  // namespace

WindowParts MakeParts(QMainWindow* window) {
    WindowParts parts;
    MakeCentre(window, parts);
    MakeStatus(window, parts);
    MakeMenus(window->menuBar(), parts);
    return parts;
}

}  // namespace varnel
