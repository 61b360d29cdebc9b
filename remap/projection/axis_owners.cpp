// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/axis_owners.h"

#include <cmath>

#include "base/rounding.h"

namespace varnel {

namespace {

// The positions that go to the picture, and some around them.
LineRange ShownOf(const LoopAxis& axis, std::int32_t size, LineRange all) {
    const auto within = [all](double n) {
        return static_cast<int>(std::clamp<double>(n, all.first, all.last));
    };
    const double origin = std::floor(axis.shift - axis.centre);
    return {within(origin - 1.0), within(origin + size + 1.0)};
}

LineRange RunOf(const LoopAxis& axis, std::int32_t size) {
    const LineRange all = axis.All();
    return WorthARun(all, ShownOf(axis, size, all), size);
}

}  // namespace

LineRange LoopAxis::All() const {
    return {CLng(shift - before, shiftName), CLng(shift + after, shiftName)};
}

AxisOwners::AxisOwners(const LoopAxis& axis, std::int32_t size)
    : run_(RunOf(axis, size)), owners_(static_cast<std::size_t>(size), none) {
    for (int n = 0; n < run_.Count(); ++n) {
        const int position = run_.first + n;
        places_.push_back(CLng(static_cast<double>(axis.centre) + position - axis.shift,
                               ReasonCode::OutputPosition));
        if (places_.back() >= 0 && places_.back() < size) {
            owners_[static_cast<std::size_t>(places_.back())] = position;
        }
    }
    for (std::size_t n = 1; n < places_.size(); ++n) {
        contiguous_ = contiguous_ && places_[n] == places_[n - 1] + 1;
    }
}

}  // namespace varnel
