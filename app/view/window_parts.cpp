// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/view/window_parts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/panels/menu_entry.h"
#include "app/panels/named_button.h"
#include "app/panels/spacing.h"
#include "pipeline/dialogs/elided_label.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WindowParts)
};

// Never narrower than what is in it: a projection may bring wider sliders.
class ColumnArea : public QScrollArea {
  public:
    using QScrollArea::QScrollArea;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            const int needed =
                widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
            setMinimumWidth(std::max(minimumWidth(), needed));
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

// The controls scroll where the window is low; what saves stays in sight.
void MakeSide(QWidget* side, WindowParts& parts) {
    parts.column = side;
    auto* const scroll = new ColumnArea(side);
    auto* const controls = new QWidget(scroll);
    scroll->setFocusPolicy(Qt::NoFocus);
    parts.equipment = new EquipmentPanel(controls);
    parts.adjustments = new AdjustmentPanel(controls);
    parts.size = new SizePanel(controls);
    parts.save = new SavePanel(side);
    auto* const inner = new QVBoxLayout(controls);
    inner->setContentsMargins(columnMargin, groupGap, columnMargin, 0);
    inner->setSpacing(groupGap);
    inner->addWidget(parts.equipment);
    inner->addWidget(parts.adjustments);
    inner->addWidget(parts.size);
    inner->addStretch();
    scroll->setWidget(controls);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(controls->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, groupGap);
    layout->setSpacing(groupGap);
    layout->addWidget(scroll, 1);
    auto* const margins = new QVBoxLayout;
    margins->setContentsMargins(columnMargin, 0, columnMargin, 0);
    margins->setSpacing(groupGap);
    margins->addWidget(parts.save);
    layout->addLayout(margins);
}

// The pictures between the row above them and the lines that tools put below them.
void MakePictures(QWidget* right, WindowParts& parts) {
    parts.header = new QWidget(right);
    parts.header->setObjectName(QStringLiteral("PictureHeader"));
    parts.header->setAccessibleName(Texts::tr("View"));
    auto* const row = new QHBoxLayout(parts.header);
    row->setContentsMargins(columnMargin, rowGap, columnMargin, rowGap);
    row->setSpacing(rowGap);
    for (QToolButton*& button : parts.views) {  // before the pictures, for the order of the Tab key
        button = new QToolButton(parts.header);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    parts.hint = new ElidedLabel(parts.header);
    parts.hint->setObjectName(QStringLiteral("LabelHint"));
    parts.hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(parts.hint, 1);
    parts.pictures = new PictureArea(right);
    auto* const layout = new QVBoxLayout(right);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(parts.header);
    layout->addWidget(parts.pictures, 1);
}

void MakeCentre(QMainWindow* window, WindowParts& parts) {
    parts.splitter = new QSplitter(window);
    auto* const side = new QWidget(parts.splitter);
    MakeSide(side, parts);
    parts.strip = new QSplitter(Qt::Vertical, parts.splitter);
    auto* const right = new QWidget(parts.strip);
    MakePictures(right, parts);
    parts.list = new ImageListPanel(parts.strip);
    parts.strip->setStretchFactor(0, 1);
    parts.strip->setChildrenCollapsible(false);
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
    parts.tools = window->addToolBar(Texts::tr("Toolbar"));
    parts.tools->setObjectName(QStringLiteral("ToolBarMain"));
    MakeCentre(window, parts);
    MakeStatus(window, parts);
    MakeMenus(window->menuBar(), parts);
    return parts;
}

void PlaceList(const WindowParts& parts, bool inColumn) {
    parts.list->SetStrip(!inColumn);
    if (inColumn) {
        auto* const column = qobject_cast<QBoxLayout*>(parts.column->layout());
        auto* const margins = qobject_cast<QBoxLayout*>(column->itemAt(1)->layout());
        margins->insertWidget(0, parts.list);
    } else {
        parts.strip->addWidget(parts.list);
    }
    parts.list->show();
}

}  // namespace varnel
