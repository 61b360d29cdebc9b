// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The rows of a picture too large to be kept as a whole.
#pragma once

#include <functional>

#include "base/line_range.h"
#include "remap/image/bitmap.h"

namespace varnel {

class RowSource {
  public:
    virtual ~RowSource() = default;
    // Calls use with a bitmap as large as the whole picture of which these rows, counted from the
    // bottom row, are there and no other ones; only as long as it runs. Several threads may ask at
    // once. Throws what making the rows and use throw.
    virtual void WithRows(LineRange rows, const std::function<void(const Bitmap&)>& use) const = 0;
    // No more rows are asked for: what they are made from can go. Throws when those that there were
    // are not to be used after all.
    virtual void End() {}
};

}  // namespace varnel
