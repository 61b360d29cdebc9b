// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the main window says about the gear that took the current photo, and what it offers. Throws
// nothing.
#pragma once

#include <QString>

#include "gear/from_photo/photo_gear.h"
#include "state/records/image_record.h"

namespace varnel {

struct GearOffer {
    QString line;         // empty when the gear is not known
    int gear = 0;         // of the table, to be used; 0 for none
    bool define = false;  // a gear may be defined from the names
    bool lost = false;    // names are the record's gear, which the table does not have
    GearNames names;
    QString reason;  // why the gear is offered, or why none is
    QString error;   // the gear in use does not fit the photo, or lacks its lens; else empty

    bool operator==(const GearOffer&) const = default;
};

// A photo that has its gear already, or one with the same camera and lens, gets no offer, unless
// that gear is not in the table: it may be defined then, whatever gear took the photo. Nor does one
// whose lens has a curve of its own. From the
// record come its gear and, when that gear took the photo, whether the picture was cropped.
GearOffer OfferFor(const CameraInfo& origin, const GearTable& table, const ImageRecord& image);

// Why the gear's numbers may not fit the record's picture, though it took the photo: the picture
// has another shape than the sensor, as after cropping. Empty when it has the same, within 3 %, or
// when a side is not known.
QString ShapeError(const ImageRecord& image);

}  // namespace varnel
