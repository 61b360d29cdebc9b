// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the main window is made of, and the making of it. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <array>

#include "app/panels/adjustment_panel.h"
#include "app/panels/gear_offer_row.h"
#include "app/panels/side_panels.h"
#include "app/panels/size_panel.h"
#include "app/picture/picture_area.h"

namespace varnel {

// The entries that the menus begin with, unconnected; the tools connect them and add their own.
struct MenuEntries {
    QAction* openImages = nullptr;
    QAction* saveImage = nullptr;
    QAction* exit = nullptr;
    QAction* manageGears = nullptr;
    QAction* defaults = nullptr;
    QAction* morph = nullptr;
    QAction* stretch = nullptr;
    QAction* about = nullptr;
};

struct WindowParts {
    AdjustmentPanel* adjustments = nullptr;
    EquipmentPanel* equipment = nullptr;
    ImageListPanel* list = nullptr;
    SizePanel* size = nullptr;
    SavePanel* save = nullptr;
    GearOfferRow* offer = nullptr;
    PictureArea* pictures = nullptr;
    QWidget* header = nullptr;            // a row above the pictures, with a horizontal layout
    std::array<QToolButton*, 3> views{};  // in it, one for each PictureView
    QLabel* hint = nullptr;               // at its right end
    QSplitter* splitter = nullptr;        // between the side column and the pictures
    QSplitter* strip = nullptr;           // between the pictures and the filmstrip
    QWidget* column = nullptr;            // the whole side column
    QToolBar* tools = nullptr;
    QMenu* editMenu = nullptr;
    QMenu* viewMenu = nullptr;
    MenuEntries entries;
    QProgressBar* bar = nullptr;
    QPushButton* cancel = nullptr;  // beside the bar
    QLabel* status = nullptr;
};

// Fills the window, its status bar and its menu bar; the Edit and the View menu stay empty. The
// window owns all parts.
WindowParts MakeParts(QMainWindow* window);

// The image list in the side column, or as a filmstrip below the pictures.
void PlaceList(const WindowParts& parts, bool inColumn);

}  // namespace varnel
