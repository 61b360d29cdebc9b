// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// For std::unique_ptr: what a library of C gives out goes back by one of its functions.
#pragma once

namespace varnel {

template <auto release>
struct ReleasedBy {
    template <class Thing>
    void operator()(Thing* thing) const {
        release(thing);
    }
};

}  // namespace varnel
