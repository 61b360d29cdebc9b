// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/list_order.h"

#include <algorithm>

namespace varnel {

std::vector<int> OrderAfterMove(int count, const std::vector<int>& chosen, int target) {
    std::vector<bool> moves(static_cast<std::size_t>(count));
    for (const int line : chosen) {
        moves[static_cast<std::size_t>(line)] = true;
    }
    std::vector<int> order;
    const auto addOthers = [&](int from, int to) {
        for (int line = from; line < to; ++line) {
            if (!moves[static_cast<std::size_t>(line)]) {
                order.push_back(line);
            }
        }
    };
    addOthers(0, target);
    order.insert(order.end(), chosen.begin(), chosen.end());
    addOthers(target, count);
    return order;
}

int TargetOneUp(const std::vector<int>& chosen) {
    return chosen.empty() ? 0 : std::max(chosen.front() - 1, 0);
}

int TargetOneDown(int count, const std::vector<int>& chosen) {
    return chosen.empty() ? count : std::min(chosen.back() + 2, count);
}

}  // namespace varnel
