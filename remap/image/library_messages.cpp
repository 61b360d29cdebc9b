// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/library_messages.h"

#include <cassert>

namespace varnel {

namespace {

// The libraries' callbacks carry no pointer of the caller's, so the collector at work has to be
// found through the thread.
QStringList*& Collector() {
    thread_local QStringList* collector = nullptr;
    return collector;
}

}  // namespace

LibraryMessages::LibraryMessages() {
    assert(Collector() == nullptr);
    Collector() = &lines_;
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
