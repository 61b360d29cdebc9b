// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The loops over columns, rows or radii that the projections share.
#pragma once

#include <algorithm>

#include "remap/render_run.h"

namespace varnel {

// Columns or rows that are worked out between two turns of the event queue at full size.
inline constexpr int batchLines = 2048;

// Calls draw(first, count) for columns or rows, until all from first to last are done, and
// progress(n) for each of them. At full size a batch is drawn before its progress is told. A
// preview is told of each line before it is drawn and may be read another way from then on: it is
// drawn at once as far as it goes, and anew from where the choice changes.
template <class Draw, class Progress>
void DrawLines(const RenderRun& run, int first, int last, const Draw& draw,
               const Progress& progress) {
    if (run.Kind() == SizeKind::Thumbnails) {
        bool drawnNearest = false;
        for (int n = first; n <= last; ++n) {
            progress(n);
            if (n == first || run.Nearest() != drawnNearest) {
                drawnNearest = run.Nearest();
                draw(n, last - n + 1);
            }
        }
        return;
    }
    for (int start = first; start <= last; start += batchLines) {
        const int count = std::min(batchLines, last - start + 1);
        draw(start, count);
        for (int n = 0; n < count; ++n) {
            progress(start + n);
        }
    }
}

// Shares rows first to first + count - 1 out to the surface's workers: draw(from, to) for pieces of
// a few rows, which must not write the same pixels.
template <class Draw>
void DrawBlocks(const RenderSurface& surface, int first, int count, int rowsOfABlock,
                const Draw& draw) {
    surface.Runner().Run((count + rowsOfABlock - 1) / rowsOfABlock, [&](int block) {
        const int from = first + block * rowsOfABlock;
        draw(from, std::min(from + rowsOfABlock, first + count) - 1);
    });
}

}  // namespace varnel
