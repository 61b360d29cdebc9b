// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file that a coder makes from its start to its end: kept in memory, or put into the sink that
// the options name. Throws std::bad_alloc.
#pragma once

#include <algorithm>

#include "remap/encode/coders/encoded_bitmap.h"

namespace varnel {

class FileBytes {
  public:
    explicit FileBytes(const EncodeOptions& options) : options_(options) {}

    // Each false from the first failure on.
    bool Add(QByteArrayView more) {
        if (!reason_.isEmpty()) {
            return false;
        }
        const bool isFirst = length_ == 0;
        length_ += more.size();
        if (length_ > options_.largest) {
            reason_ = {ReasonCode::FileTooLarge, options_.largest};
        } else if (options_.sink == nullptr) {
            bytes_ += more;
        } else if ((isFirst && !options_.sink->Begin()) || !options_.sink->Append(more)) {
            reason_ = options_.sink->Error();
        }
        return reason_.isEmpty();
    }
    // In the place of what was added first, which was as long.
    bool PutAtStart(QByteArrayView start) {
        if (reason_.isEmpty() && options_.sink == nullptr) {
            std::ranges::copy(start, bytes_.begin());
        } else if (reason_.isEmpty() && !options_.sink->PutAtStart(start)) {
            reason_ = options_.sink->Error();
        }
        return reason_.isEmpty();
    }

    // Of the first failure.
    const Reason& Error() const { return reason_; }
    // None where there is a sink.
    QByteArray& Bytes() { return bytes_; }

  private:
    const EncodeOptions& options_;
    QByteArray bytes_;
    qint64 length_ = 0;
    Reason reason_;
};

}  // namespace varnel
