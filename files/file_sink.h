// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the bytes of a file go that is too large for memory, while they are made. Throws nothing;
// each call is false when it failed, and Error says why.
#pragma once

#include <QByteArrayView>

#include "base/reason.h"

namespace varnel {

class FileSink {
  public:
    virtual ~FileSink() = default;
    // Before the first bytes. Once more, it drops what was written and begins anew.
    virtual bool Begin() = 0;
    // Behind what is there.
    virtual bool Append(QByteArrayView bytes) = 0;
    // In the place of the file's first bytes, which were appended.
    virtual bool PutAtStart(QByteArrayView bytes) = 0;
    // Of the call that failed; empty while none did.
    virtual const Reason& Error() const = 0;
};

}  // namespace varnel
