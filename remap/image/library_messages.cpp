// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/library_messages.h"

#include <tiffio.h>

#include <array>
#include <cassert>
#include <cstdarg>
#include <cstdio>

#include "remap/image/image_library.h"

namespace varnel {

namespace {

// The libraries' callbacks carry no pointer of the caller's, so the collector at work has to be
// found through the thread.
QStringList*& Collector() {
    thread_local QStringList* collector = nullptr;
    return collector;
}

void KeepFromTiff(const char* /*module*/, const char* format, va_list arguments) {
    std::array<char, 512> text{};
    std::vsnprintf(text.data(), text.size(), format, arguments);
    AddLibraryMessage(QString::fromLocal8Bit(text.data()));
}

}  // namespace

LibraryMessages::LibraryMessages() {
    assert(Collector() == nullptr);
    Collector() = &lines_;
    SendLibraryMessagesTo(&AddLibraryMessage);
    TIFFSetErrorHandler(&KeepFromTiff);
    TIFFSetWarningHandler(nullptr);
}

LibraryMessages::~LibraryMessages() {
    Collector() = nullptr;
}

Reason LibraryMessages::Added(const Reason& reason) const {
    return lines_.isEmpty() ? reason : Reason(ReasonCode::Added, reason, lines_.last());
}

void AddLibraryMessage(const QString& message) {
    if (Collector() != nullptr) {
        Collector()->append(message.trimmed());
    }
}

}  // namespace varnel
