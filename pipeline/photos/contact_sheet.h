// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One photo in every projection and three strengths, to choose from by eye. Throws std::bad_alloc,
// TilePicture as Render.
#pragma once

#include <QString>
#include <vector>

#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "state/adjustments/control_values.h"

namespace varnel {

struct ContactTile {
    ControlValues values;    // what the window's controls would show
    ImageRecord record;      // what adopting the tile makes of the photo's record
    QString projection;      // "Rectilinear"
    QString strength;        // "75 %"
    QString title;           // "Rectilinear 75 %"
    bool isCurrent = false;  // the photo's own settings
};

// Projection by projection in their own order, gentle first: as their rows say, within the range of
// the control. Everything else is the record's.
std::vector<ContactTile> ContactTiles(const ImageRecord& image);

// Gives the tile's settings to a record, which is applied then.
void Adopt(const ContactTile& tile, ImageRecord& image);

// The tile as the preview of its settings would show the source at this size. Throws as Render.
BitmapHandle TilePicture(const ContactTile& tile, const Bitmap* source, bool smooth);

}  // namespace varnel
