// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/zoom_pair.h"

namespace varnel {

void ZoomPair::Change(PictureZoom& leader, const std::function<void(PictureZoom&)>& change) {
    change(leader);
    PictureZoom& other = &leader == &photo ? result : photo;
    if (leader.Fit()) {
        other.ShowAll();
    } else {
        other.ShowLike(leader);
    }
}

void ZoomPair::ShowAll() {
    photo.ShowAll();
    result.ShowAll();
}

}  // namespace varnel
