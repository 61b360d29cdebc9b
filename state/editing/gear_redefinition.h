// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What happens to the photos of a gear that was redefined. Throws nothing.
#pragma once

#include <QString>
#include <vector>

#include "base/record_array.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

// The photos of one gear. A photo uses a gear when it names it and has its numbers, adjusted or
// not. One that only names it, as after "Apply to all", will get whatever numbers it has then.
class GearFollowers {
  public:
    // Looks for them by the name that the gear had: for every redefined gear before one is settled.
    GearFollowers(GearChange change, const RecordArray<ImageRecord>& images);
    // How many use the gear and would get other numbers; a new name alone brings none.
    int Count() const { return static_cast<int>(users_.size()); }
    const QString& Gear() const { return change_.from.GearName; }
    // Photos that get no other numbers follow the gear's name. All others keep the name and the
    // numbers that they have, as if they were adjusted, whatever is asked and answered later.
    void Settle(RecordArray<ImageRecord>& images) const;
    // Gives them all names and numbers of the gear as it is. Of an adjusted photo every adjustment
    // stays, and its angle of view too unless that is the old gear's: the very number, or the one
    // that the slider stored for it.
    void GiveNewNumbers(RecordArray<ImageRecord>& images) const;

  private:
    struct User {
        int image;
        bool wasAdjusted;
    };
    GearChange change_;
    std::vector<User> users_;
    std::vector<int> named_;  // numbers of the other images that name it
};

}  // namespace varnel
