// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/error_reason.h"

#include <new>

#include "base/run_time_error.h"

namespace varnel {

Reason ReasonFor(const std::exception& error) {
    if (const auto* const number = dynamic_cast<const RunTimeError*>(&error)) {
        const ValueName& value = number->Value();
        return value.words == ReasonCode::None
                   ? Reason(number->Code(), QString::fromUtf8(value.field))
                   : Reason(number->Code(), Reason(value.words));
    }
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        return ReasonCode::NotEnoughMemory;
    }
    return {ReasonCode::Words, QString::fromUtf8(error.what())};
}

}  // namespace varnel
