// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A growable array that counts from 1, as its users and the stored keys do. There is no element 0;
// an empty array has the upper bound 0. Throws std::bad_alloc only.
#pragma once

#include <cassert>
#include <vector>

namespace varnel {

template <class Record>
class RecordArray {
  public:
    int UpperBound() const { return static_cast<int>(records_.size()); }
    bool Empty() const { return records_.empty(); }
    // 1 <= n <= UpperBound().
    Record& operator()(int n) { return records_[Slot(n)]; }
    const Record& operator()(int n) const { return records_[Slot(n)]; }
    // Keeps the existing records; new ones are empty. Shrinking drops the last ones.
    void Resize(int upperBound) { records_.resize(static_cast<std::size_t>(upperBound)); }
    void Append(Record record) { records_.push_back(std::move(record)); }
    void Clear() { records_.clear(); }

    auto begin() { return records_.begin(); }
    auto end() { return records_.end(); }
    auto begin() const { return records_.begin(); }
    auto end() const { return records_.end(); }

  private:
    std::size_t Slot(int n) const {
        assert(n >= 1 && n <= UpperBound());
        return static_cast<std::size_t>(n - 1);
    }
    std::vector<Record> records_;
};

}  // namespace varnel
