// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/ordered_pieces.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

#include "base/thread_runner.h"
#include "tests/support/runners.h"

namespace varnel {
namespace {

std::vector<int> UpTo(int count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

// By threads that come in any order, with little room to wait, and one after the other.
TEST(OrderedPieces, AreTakenInTheirOrderWhoeverBringsThem) {
    constexpr int count = 3000;
    ThreadRunner threads(4);
    testing::ShuffledRunner shuffled(5);
    for (BlockRunner* const runner :
         {static_cast<BlockRunner*>(&threads), static_cast<BlockRunner*>(&shuffled)}) {
        std::vector<int> taken;
        std::atomic<int> atOnce = 0;
        OrderedPieces<int> pieces(
            [&](int piece) {
                EXPECT_EQ(++atOnce, 1);
                taken.push_back(piece);
                --atOnce;
                return true;
            },
            1);
        runner->Run(count, [&](int n) { EXPECT_TRUE(pieces.Put(static_cast<std::size_t>(n), n)); });
        EXPECT_EQ(taken, UpTo(count));
    }
}

// As by a slow disk: what waits meanwhile is little.
TEST(OrderedPieces, DoNotPileUpWhileOneIsTaken) {
    std::promise<void> begun;
    std::promise<void> end;
    OrderedPieces<int> pieces(
        [&, last = end.get_future().share()](int piece) {
            if (piece == 0) {
                begun.set_value();
                last.wait();
            }
            return true;
        },
        2);
    const auto slow = std::async(std::launch::async, [&] { return pieces.Put(0, 0); });
    begun.get_future().wait();
    std::atomic<int> brought = 0;
    const auto fast = std::async(std::launch::async, [&] {
        for (int n = 1; n <= 5; ++n) {
            pieces.Put(static_cast<std::size_t>(n), n);
            ++brought;
        }
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_LE(brought, 2);
    end.set_value();
    fast.wait();
    EXPECT_EQ(brought, 5);
}

TEST(OrderedPieces, EndWithTheFirstThatCannotBeTaken) {
    std::vector<int> taken;
    OrderedPieces<int> refused(
        [&](int piece) {
            taken.push_back(piece);
            return piece != 1;
        },
        1);
    EXPECT_TRUE(refused.Put(2, 2) && refused.Put(0, 0));
    EXPECT_FALSE(refused.Failed());
    EXPECT_FALSE(refused.Put(1, 1));
    EXPECT_FALSE(refused.Put(3, 3));
    EXPECT_TRUE(refused.Failed());
    EXPECT_EQ(taken, UpTo(2));
    OrderedPieces<int> thrown([](int) -> bool { throw std::runtime_error("full"); }, 1);
    EXPECT_THROW(thrown.Put(0, 0), std::runtime_error);
    EXPECT_FALSE(thrown.Put(1, 1));
}

}  // namespace
}  // namespace varnel
