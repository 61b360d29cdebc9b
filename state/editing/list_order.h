// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lines of the image list in another order. Lines count from 0. Throws nothing.
#pragma once

#include <vector>

namespace varnel {

// The order after the chosen lines were moved, in their own order, before the line target (count:
// to the end): for each line its number before.
std::vector<int> OrderAfterMove(int count, const std::vector<int>& chosen, int target);

// The target that moves the chosen lines together one line up or down, the first or last of them
// leading; they stay where they are at the list's end.
int TargetOneUp(const std::vector<int>& chosen);
int TargetOneDown(int count, const std::vector<int>& chosen);

}  // namespace varnel
