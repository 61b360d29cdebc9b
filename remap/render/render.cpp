// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render.h"

#include "remap/render/row_renderer.h"

namespace varnel {

QString ToText(SizeKind kind) {
    switch (kind) {
        case SizeKind::Thumbnails:
            return QStringLiteral("Thumbnails");
        case SizeKind::Batch:
            return QStringLiteral("Batch");
        case SizeKind::Large:
            break;
    }
    return QStringLiteral("Large");
}

SizeKind SizeKindFromText(QStringView text) {
    if (text == u"Thumbnails") {
        return SizeKind::Thumbnails;
    }
    return text == u"Batch" ? SizeKind::Batch : SizeKind::Large;
}

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context) {
    switch (projection) {
        case Projection::Varnel:
            return RenderVarnel(image, kind, progress, context);
        case Projection::Rectilinear:
            return RenderRectilinear(image, kind, progress, context);
        case Projection::Equidistance:
            return RenderEquidistance(image, kind, progress, context);
        case Projection::Horizon:
            return RenderHorizon(image, kind, progress, context);
    }
}

std::unique_ptr<RowRenderer> RowsOf(Projection projection, const ImageRecord& image,
                                    const RenderSurface& surface) {
    switch (projection) {
        case Projection::Varnel:
            return VarnelRows(image, surface);
        case Projection::Rectilinear:
            return RectilinearRows(image, surface);
        case Projection::Equidistance:
            return EquidistanceRows(image, surface);
        case Projection::Horizon:
            break;
    }
    return HorizonRows(image, surface);
}

}  // namespace varnel
