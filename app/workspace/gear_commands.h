// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user does with the gears of the photos. Throws nothing but for want of memory.
#pragma once

#include <functional>
#include <vector>

#include "app/workspace/photo_preparation.h"

namespace varnel {

class GearCommands {
  public:
    GearCommands(WorkspaceModel& model, PhotoPreparation& preparation, PreviewRenderer& preview)
        : model_(model), preparation_(preparation), preview_(preview) {}

    // The chosen gear for the selected photos.
    void GiveChosen();
    void Use(int gear);                     // of the table, for the current photo
    void ApplyToAll();                      // the chosen one
    void NameCurrent(const QString& gear);  // the current photo's, which keeps its numbers
    // After the table changed: the names to choose from.
    void Refill();
    // After gears were redefined. Their photos follow a new name; new numbers they get if that is
    // agreed to for the gear, as it was called, and so many photos. Else they keep what they have.
    void Follow(const std::vector<GearChange>& changes,
                const std::function<bool(const QString& gear, int photos)>& agrees);

  private:
    WorkspaceModel& model_;
    PhotoPreparation& preparation_;
    PreviewRenderer& preview_;
};

}  // namespace varnel
