// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/av_log.h"

#include <QByteArray>
#include <array>
#include <cstdio>
#include <mutex>
#include <utility>

#include "film/writing/module/av_headers.h"

namespace varnel {

namespace {

// Written by the encoders' threads, too.
struct LastError {
    std::mutex mutex;
    std::array<char, 512> text{};
};

LastError& Last() {
    static LastError last;
    return last;
}

void Keep(void* /*source*/, int level, const char* format, va_list arguments) {
    if (level > AV_LOG_ERROR) {
        return;
    }
    LastError& last = Last();
    const std::lock_guard lock(last.mutex);
    std::vsnprintf(last.text.data(), last.text.size(), format, arguments);
}

}  // namespace

void CatchAvLog() {
    av_log_set_callback(&Keep);
}

QString AvErrorText(int error) {
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    LastError& last = Last();
    const std::lock_guard lock(last.mutex);
    const QString said = QString::fromUtf8(std::exchange(last.text, {}).data()).simplified();
    const QString name = QString::fromUtf8(text.data());
    return said.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, said);
}

}  // namespace varnel
