// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/records/image_record.h"

namespace varnel {

std::optional<float ImageRecord::*> EffectReadBy(Projection projection) {
    switch (projection) {
        case Projection::Varnel:
        case Projection::Horizon:
            return &ImageRecord::EffectVarnel;
        case Projection::Rectilinear:
            return &ImageRecord::EffectRectilinear;
        case Projection::Equidistance:
            break;
    }
    return std::nullopt;
}

QString SourcePath(const ImageRecord& image) {
    return image.Folder + u'/' + image.FileName;
}

}  // namespace varnel
