// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Fork and join: a piece of work cut into blocks that own disjoint pixels of the result. Throws
// what a block throws.
#pragma once

#include <functional>

namespace varnel {

class BlockRunner {
  public:
    virtual ~BlockRunner() = default;
    // Calls block(n) once for each n from 0 to blocks - 1, in any order and possibly at the same
    // time, and returns when all are done. An exception of a block ends the run: no more blocks are
    // begun, and it is rethrown once those at work are done.
    virtual void Run(int blocks, const std::function<void(int)>& block) = 0;
};

// One block after the other on the caller's thread.
class SerialRunner : public BlockRunner {
  public:
    void Run(int blocks, const std::function<void(int)>& block) override {
        for (int n = 0; n < blocks; ++n) {
            block(n);
        }
    }
};

}  // namespace varnel
