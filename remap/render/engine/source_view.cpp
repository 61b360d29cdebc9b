// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/source_view.h"

#include <cassert>

namespace varnel {

SourceView SourceView::Of(FIBITMAP* bitmap) {
    assert(FreeImage_GetImageType(bitmap) == FIT_BITMAP && FreeImage_GetBPP(bitmap) == 24);
    const PixelSize size = SizeOf(bitmap);
    return {FreeImage_GetBits(bitmap), static_cast<std::ptrdiff_t>(FreeImage_GetPitch(bitmap)),
            size.width, size.height};
}

}  // namespace varnel
