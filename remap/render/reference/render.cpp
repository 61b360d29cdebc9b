// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

namespace varnel::reference {

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderDesk& desk) {
    switch (projection) {
        case Projection::Varnel:
            return reference::RenderVarnel(image, kind, progress, desk);
        case Projection::Rectilinear:
            return reference::RenderRectilinear(image, kind, progress, desk);
        case Projection::Equidistance:
            return reference::RenderEquidistance(image, kind, progress, desk);
        case Projection::Horizon:
            return reference::RenderHorizon(image, kind, progress, desk);
    }
}

}  // namespace varnel::reference
