// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/pool.h"

#include "library/guard.h"

namespace {

constexpr int mostThreads = 1024;

}  // namespace

varnel_status varnel_pool_new(int threads, varnel_pool** pool, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_pool*& place = varnel::Place(pool, "pool");
        if (threads < 0 || threads > mostThreads) {
            throw varnel::CallError(
                VARNEL_BAD_ARGUMENT,
                QStringLiteral("a pool has 1 to %1 threads, or 0 for one each core")
                    .arg(mostThreads));
        }
        place = new varnel_pool(threads);
    });
}

void varnel_pool_free(varnel_pool* pool) {
    delete pool;
}
