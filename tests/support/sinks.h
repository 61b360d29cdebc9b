// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include "files/file_sink.h"

namespace varnel::testing {

// Keeps what it is given, and fails from the appended byte on that is beyond its room.
class KeepingSink : public FileSink {
  public:
    explicit KeepingSink(qint64 room = 1LL << 40) : room_(room) {}
    bool Begin() override {
        bytes.clear();
        ++begun;
        return true;
    }
    bool Append(QByteArrayView more) override {
        ++pieces;
        if (bytes.size() + more.size() > room_) {
            error_ = ReasonCode::NotRegular;  // any that encoders do not have
            return false;
        }
        bytes += more;
        return true;
    }
    bool PutAtStart(QByteArrayView start) override {
        bytes.replace(0, start.size(), start.toByteArray());
        return true;
    }
    const Reason& Error() const override { return error_; }

    QByteArray bytes;
    int begun = 0;
    int pieces = 0;

  private:
    const qint64 room_;
    Reason error_;
};

}  // namespace varnel::testing
