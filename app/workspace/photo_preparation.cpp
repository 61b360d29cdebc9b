// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/photo_preparation.h"

#include "state/adjustments/gear_assignment.h"

namespace varnel {

// The number of the gear that brings the record's numbers. One whose gear is not in the table keeps
// what it has.
int PhotoPreparation::OwnGear(const ImageRecord& image) const {
    const GearTable& table = model_.state.Gear;
    const int own = image.GearName.isEmpty() ? 0 : table.Find(image.GearName);
    const bool hasOther = !image.GearName.isEmpty() && HasGearNumbers(image);
    return own > 0 || hasOther ? own : table.Default();
}

void PhotoPreparation::GiveOwnGear(ImageRecord& image) {
    if (const int gear = OwnGear(image); gear > 0) {
        AssignGear(model_.state.Gear(gear), image);
    }
}

bool PhotoPreparation::KnowSize(ImageRecord& image) {
    if (image.Width != 0) {
        return true;
    }
    // Events are handled meanwhile; nothing may change the list under the record.
    const auto busy = model_.activity.Occupy();
    if (const std::optional<PhotoSize> size = ports_.photos.Size(SourcePath(image))) {
        TakeSize(*size, image);
    }
    return !ports_.photos.GivenUp();
}

void PhotoPreparation::Prepare(ImageRecord& image) {
    if (KnowSize(image)) {
        GiveOwnGear(image);
    }
}

bool PhotoPreparation::PrepareAll() {
    bool prepared = true;
    {
        const auto hourglass = ports_.view.Hourglass();
        const auto busy = model_.activity.Occupy();
        const PhotoLoader::Together together(ports_.photos);
        RecordArray<ImageRecord>& images = model_.list.Images();
        for (int n = 1; prepared && n <= images.UpperBound(); ++n) {
            Prepare(images(n));
            prepared = !ports_.photos.GivenUp();
        }
    }
    RefreshCurrent();
    Q_EMIT model_.activity.Idle();
    return prepared;
}

const ImageRecord& PhotoPreparation::PreparedCurrent() {
    Prepare(*model_.list.Current());
    RefreshCurrent();
    return *model_.list.Current();
}

// Shows the current record's values again after something else changed them.
void PhotoPreparation::RefreshCurrent() {
    model_.steps.Absorb();
    const ImageRecord* const image = model_.list.Current();
    if (image == nullptr) {
        return;
    }
    const ControlValues before = model_.controls.Values();
    model_.ShowInControls(*image);
    if (!(model_.controls.Values() == before)) {
        preview_.Preview();
    }
}

}  // namespace varnel
