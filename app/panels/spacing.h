// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The grid of the main window, in logical pixels: steps of four.
#pragma once

namespace varnel {

inline constexpr int rowGap = 4;        // between controls of a group
inline constexpr int groupMargin = 8;   // within a group, left and right
inline constexpr int foldMargin = 11;   // the same where there is no frame
inline constexpr int groupGap = 4;      // between groups
inline constexpr int columnMargin = 8;  // of the side column

}  // namespace varnel
