// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/thread_runner.h"
#include "varnel/varnel.h"

// All of its cores are free between calls: whoever calls takes one.
struct varnel_pool {
    explicit varnel_pool(int threads) : runner(threads) { runner.GiveCore(); }
    ~varnel_pool() { runner.TakeCore(); }
    varnel_pool(const varnel_pool&) = delete;
    varnel_pool& operator=(const varnel_pool&) = delete;

    varnel::ThreadRunner runner;
};
