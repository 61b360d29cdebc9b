// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/thread_runner.h"

#include <gtest/gtest.h>

#include <chrono>
#include <latch>
#include <new>

namespace varnel {
namespace {

using namespace std::chrono_literals;

TEST(ThreadRunner, ATaskHoldsACoreWhichTheCallerGivesBackWhileItWaits) {
    ThreadRunner runner(1);
    std::packaged_task<int()> task([] { return 7; });
    std::packaged_task<int()> light([] { return 8; });
    std::future<int> result = task.get_future();
    std::future<int> lightResult = light.get_future();
    ASSERT_TRUE(runner.Begin(task));
    EXPECT_EQ(result.wait_for(30ms), std::future_status::timeout) << "the caller has the only core";
    ASSERT_TRUE(runner.Begin(light, TaskWeight::Light));
    EXPECT_EQ(lightResult.get(), 8);
    const CoreLent lent(runner);
    EXPECT_EQ(result.get(), 7);
}

TEST(ThreadRunner, TasksRunAtTheSameTimeAndAgain) {
    ThreadRunner runner(3);
    for (int round = 0; round < 3; ++round) {
        std::latch bothBegun(2);
        std::packaged_task<void()> one([&] { bothBegun.arrive_and_wait(); });
        std::packaged_task<void()> other([&] { bothBegun.arrive_and_wait(); });
        std::future<void> oneDone = one.get_future();
        std::future<void> otherDone = other.get_future();
        ASSERT_TRUE(runner.Begin(one) && runner.Begin(other));
        EXPECT_EQ(oneDone.wait_for(10s), std::future_status::ready);
        EXPECT_EQ(otherDone.wait_for(10s), std::future_status::ready);
    }
}

TEST(ThreadRunner, WhatATaskThrowsComesOutOfItsFuture) {
    ThreadRunner runner(2);
    std::packaged_task<int()> task([]() -> int { throw std::bad_alloc(); });
    std::future<int> result = task.get_future();
    ASSERT_TRUE(runner.Begin(task));
    EXPECT_THROW(result.get(), std::bad_alloc);
}

}  // namespace
}  // namespace varnel
