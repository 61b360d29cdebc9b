// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/source_view.h"

#include <cassert>

namespace varnel {

SourceView SourceView::Of(const Bitmap* bitmap) {
    assert(bitmap->Format() == PixelFormat::Bgr8);
    const PixelSize size = bitmap->Size();
    return {bitmap->Bits(), static_cast<std::ptrdiff_t>(bitmap->Pitch()), size.width, size.height};
}

}  // namespace varnel
