// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/save_worker.h"

#include <chrono>
#include <utility>

#include "base/error_reason.h"

namespace varnel {

SaveWorker::~SaveWorker() {
    if (pool_ != nullptr && result_.valid()) {
        const CoreLent lent(*pool_);
        result_.wait();
    }
}

void SaveWorker::Begin(Job job) {
    std::packaged_task<SaveResult()> task(std::move(job));
    result_ = task.get_future();
    if (pool_ == nullptr || !pool_->Begin(task, weight_)) {
        task();
    }
}

bool SaveWorker::Wait(int milliseconds) const {
    return result_.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
}

SaveResult SaveWorker::Take() {
    SaveResult result;
    const Reason error = Attempt([&] { result = result_.get(); });
    return error.isEmpty() ? result : SaveResult{false, error};
}

}  // namespace varnel
