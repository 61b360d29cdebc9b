// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Bits as deflate has them: the first one is the lowest of the first byte.
#pragma once

#include <QtEndian>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varnel {

// Appends to bytes. Reserve throws std::bad_alloc, the rest nothing.
class BitWriter {
  public:
    explicit BitWriter(std::vector<std::uint8_t>& target)
        : target_(target), at_(target.data() + target.size()) {}

    // Room for so many bytes from here; to be called before anything is written.
    void Reserve(std::size_t bytes) {
        const auto place = at_ - target_.data();
        target_.resize(static_cast<std::size_t>(place) + bytes + sizeof bits_);
        at_ = target_.data() + place;
    }
    // At most 56 bits between two calls of Flush, all zero above their length.
    void Put(std::uint64_t bits, unsigned length) {
        bits_ |= bits << count_;
        count_ += length;
    }
    void Flush() {
        qToLittleEndian<quint64>(bits_, at_);
        at_ += count_ / 8;
        bits_ >>= count_ & ~7U;
        count_ &= 7U;
    }
    // Fills the last byte up with zeros. Nothing is to follow.
    void Finish() {
        count_ = (count_ + 7) & ~7U;
        Flush();
        target_.resize(static_cast<std::size_t>(at_ - target_.data()));
    }

  private:
    std::vector<std::uint8_t>& target_;
    std::uint8_t* at_;
    std::uint64_t bits_ = 0;
    unsigned count_ = 0;  // bits that wait, less than 8 after Flush
};

}  // namespace varnel
