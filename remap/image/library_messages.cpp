// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/library_messages.h"

#include <FreeImage.h>
#include <tiffio.h>

#include <array>
#include <cassert>
#include <cstdarg>
#include <cstdio>

namespace varnel {

namespace {

// The libraries' callbacks carry no pointer of the caller's, so the collector at work has to be
// found through the thread.
QStringList*& Collector() {
    thread_local QStringList* collector = nullptr;
    return collector;
}

void Keep(const QString& message) {
    if (Collector() != nullptr) {
        Collector()->append(message.trimmed());
    }
}

void KeepFromFreeImage(FREE_IMAGE_FORMAT /*format*/, const char* message) {
    Keep(QString::fromLocal8Bit(message));
}

void KeepFromTiff(const char* /*module*/, const char* format, va_list arguments) {
    std::array<char, 512> text{};
    std::vsnprintf(text.data(), text.size(), format, arguments);
    Keep(QString::fromLocal8Bit(text.data()));
}

}  // namespace

LibraryMessages::LibraryMessages() {
    assert(Collector() == nullptr);
    Collector() = &lines_;
    FreeImage_SetOutputMessage(&KeepFromFreeImage);
    TIFFSetErrorHandler(&KeepFromTiff);
    TIFFSetWarningHandler(nullptr);
}

LibraryMessages::~LibraryMessages() {
    Collector() = nullptr;
}

Reason LibraryMessages::Added(const Reason& reason) const {
    return lines_.isEmpty() ? reason : Reason(ReasonCode::Added, reason, lines_.last());
}

QString LibraryVersion() {
    return QString::fromLocal8Bit(FreeImage_GetVersion());
}

QString LibraryNotice() {
    return QString::fromLocal8Bit(FreeImage_GetCopyrightMessage());
}

}  // namespace varnel
