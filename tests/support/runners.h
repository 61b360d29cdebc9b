// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "base/block_runner.h"

namespace varnel::testing {

// Runs blocks one after the other in an order of its own, the same each time: what depends on the
// order shows without a race having to happen.
class ShuffledRunner : public BlockRunner {
  public:
    explicit ShuffledRunner(unsigned seed) : random_(seed) {}
    void Run(int blocks, const std::function<void(int)>& block) override {
        std::vector<int> order(static_cast<std::size_t>(blocks));
        std::iota(order.begin(), order.end(), 0);
        std::ranges::shuffle(order, random_);
        std::ranges::for_each(order, block);
    }

  private:
    std::mt19937 random_;
};

}  // namespace varnel::testing
