// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/early_result.h"

#include <optional>
#include <utility>

#include "base/error_reason.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

EarlyResult::EarlyResult(const ConversionPlan& plan, const ResultDrawer& drawer,
                         Conversion conversion, const LoadedPicture& photo) {
    const Reason error = Attempt([&] {
        records_ = plan.records(conversion.photo, photo);
        if (records_.needsPixels || records_.all.size() != 1) {
            return;
        }
        conversion.record = records_.all.front();
        target_ = plan.target(conversion);
        const auto decided = decision_.get_future().share();
        std::optional<DrawnResult> drawn = drawer.DrawArriving(photo, conversion.record, [decided] {
            if (!decided.get()) {
                throw UnsoundPhoto();
            }
        });
        if (drawn) {
            NoteSettings(drawn->result.get(), conversion.record, plan.output.writeSettings,
                         plan.output.writeMetadata ? target_ : QString());
            drawn_ = std::make_shared<DrawnResult>(std::move(*drawn));
        }
    });
    if (!error.isEmpty()) {
        drawn_ = nullptr;
    }
}

void EarlyResult::Decide(bool isResult) {
    if (!std::exchange(decided_, true)) {
        decision_.set_value(isResult);
    }
}

}  // namespace varnel
