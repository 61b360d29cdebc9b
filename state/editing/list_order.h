// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lines of the image list in another order. Lines count from 0.
#pragma once

#include <vector>

namespace varnel {

// Where the chosen lines, in their order, come to stand before the line that was the target's (the
// count: at the end): the older line of each line.
std::vector<int> OrderAfterMove(int count, const std::vector<int>& chosen, int target);

// The target that moves the chosen lines together one line up or down, the first or last of them
// leading; they stay where they are at the list's end.
int TargetOneUp(const std::vector<int>& chosen);
int TargetOneDown(int count, const std::vector<int>& chosen);

}  // namespace varnel
