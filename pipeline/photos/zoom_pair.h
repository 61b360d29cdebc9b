// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The zooms of a photo and of its result, which may have another size: both show the same share of
// their way, at the same scale where that is more than the whole picture. Throws nothing.
#pragma once

#include <functional>

#include "pipeline/photos/picture_zoom.h"

namespace varnel {

struct ZoomPair {
    PictureZoom photo;
    PictureZoom result;

    // Changes one of them, and the other goes along.
    void Change(PictureZoom& leader, const std::function<void(PictureZoom&)>& change);
    void ShowAll();
};

}  // namespace varnel
