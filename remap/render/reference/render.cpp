// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

namespace varnel::reference {

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context) {
    switch (projection) {
        case Projection::Varnel:
            return reference::RenderVarnel(image, kind, progress, context);
        case Projection::Rectilinear:
            return reference::RenderRectilinear(image, kind, progress, context);
        case Projection::Equidistance:
            return reference::RenderEquidistance(image, kind, progress, context);
        case Projection::Horizon:
            return reference::RenderHorizon(image, kind, progress, context);
    }
}

}  // namespace varnel::reference
