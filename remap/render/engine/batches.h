// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The loops over columns, rows or radii that the projections share. Throws what the functions throw
// that are passed, and what the surface's Pause throws.
#pragma once

#include <algorithm>
#include <thread>

#include "base/line_range.h"
#include "remap/render/render_session.h"

namespace varnel {

// Rows that one block of a batch has, and where they are mirrored as many more.
inline constexpr int blockRows = 16;

// Calls draw(first, count) for columns or rows, until all of the range are done, and progress(n)
// for each of them. At full size a batch is drawn before its progress is reported. For a preview
// each line is reported before it is drawn, and the picture may be read another way from then on:
// it is drawn at once as far as it goes, and anew from where the choice changes.
template <class Draw, class Progress>
void DrawLines(const RenderSession& run, LineRange lines, const Draw& draw,
               const Progress& progress) {
    if (run.Kind() == SizeKind::Thumbnails) {
        bool drawnNearest = false;
        for (int n = 0; n < lines.Count(); ++n) {
            progress(lines.first + n);
            if (n == 0 || run.Nearest() != drawnNearest) {
                drawnNearest = run.Nearest();
                draw(lines.first + n, lines.Count() - n);
            }
        }
        return;
    }
    for (int done = 0; done < lines.Count(); done += batchLines) {
        const int count = std::min(batchLines, lines.Count() - done);
        draw(lines.first + done, count);
        for (int n = 0; n < count; ++n) {
            progress(lines.first + done + n);
        }
    }
}

// Shares rows out to the surface's workers: draw(from, to) for pieces of a few rows, which must not
// write the same pixels. Before each piece of its own the caller's thread pauses.
template <class Draw>
void DrawBlocks(const RenderSurface& surface, LineRange rows, int rowsOfABlock, const Draw& draw) {
    const std::thread::id caller = std::this_thread::get_id();
    const int blocks = (std::max(rows.Count(), 0) + rowsOfABlock - 1) / rowsOfABlock;
    surface.Runner().Run(blocks, [&](int block) {
        if (std::this_thread::get_id() == caller) {
            surface.Pause();
        }
        const int from = rows.first + block * rowsOfABlock;
        draw(from, std::min(from + rowsOfABlock - 1, rows.last));
    });
}

}  // namespace varnel
