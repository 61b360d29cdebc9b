// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the main window is made of. Throws nothing.
#pragma once

#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>

#include "app/panels/adjustment_panel.h"
#include "app/panels/gear_offer_row.h"
#include "app/panels/side_panels.h"
#include "app/picture/picture_area.h"

namespace varnel {

struct WindowParts {
    AdjustmentPanel* adjustments = nullptr;
    EquipmentPanel* equipment = nullptr;
    ImageListPanel* list = nullptr;
    SavePanel* save = nullptr;
    GearOfferRow* offer = nullptr;
    PictureArea* pictures = nullptr;
    QWidget* column = nullptr;  // the whole side column
    QMenu* editMenu = nullptr;
    QMenu* viewMenu = nullptr;
    QProgressBar* bar = nullptr;
    QPushButton* cancel = nullptr;  // beside the bar
    QLabel* status = nullptr;
};

}  // namespace varnel
