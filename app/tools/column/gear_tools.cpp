// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/gear_tools.h"

#include "state/adjustments/gear_assignment.h"

namespace varnel {

GearTools::GearTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace, const WorkingState& state, Dialogs& dialogs)
    : QObject(window),
      window_(window),
      panel_(*parts.equipment),
      offer_(*parts.offer),
      view_(view),
      workspace_(workspace),
      state_(state),
      dialogs_(dialogs) {
    connect(panel_.ApplyToAll(), &QAbstractButton::clicked, this,
            [this] { workspace_.gears.ApplyToAll(); });
    connect(offer_.Button(), &QAbstractButton::clicked, this, &GearTools::TakeOffer);
    connect(panel_.Gears(), &QComboBox::activated, this, [this] { workspace_.gears.GiveChosen(); });
    connect(parts.entries.manageGears, &QAction::triggered, this, &GearTools::Manage);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &GearTools::UpdateEnabled);
    UpdateEnabled();
}

void GearTools::Manage() {
    const std::vector<GearChange> changes = dialogs_.ManageGears(window_);
    ShowGears();
    workspace_.gears.Follow(changes, [this](const QString& gear, int photos) {
        return dialogs_.GiveNewNumbers(gear, photos);
    });
}

void GearTools::TakeOffer() {
    const GearOffer offer = offer_.Offer();
    if (offer.gear > 0) {
        workspace_.gears.Use(offer.gear);
        return;
    }
    const GearRecord known =
        offer.lost ? GearOf(*workspace_.model.list.Current()) : GearNamed(offer.names);
    if (workspace_.model.activity.Busy() || !dialogs_.DefineGear(known, window_)) {
        return;
    }
    ShowGears();
    if (offer.lost) {
        workspace_.gears.NameCurrent(state_.Gear(state_.Gear.UpperBound()).GearName);
    } else if (const int gear = offer_.Offer().gear; gear > 0) {
        workspace_.gears.Use(gear);
    }
}

void GearTools::ShowGears() {
    workspace_.gears.Refill();
    view_.ShowOffer();
}

void GearTools::UpdateEnabled() {
    const bool photos = !state_.Images.Empty();
    panel_.Gears()->setEnabled(photos);
    panel_.ApplyToAll()->setEnabled(photos);
}

}  // namespace varnel
