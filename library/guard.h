// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From exceptions inside to a status and a text outside: nothing is thrown across the interface.
#pragma once

#include <QString>
#include <string>
#include <utility>

#include "base/reason.h"
#include "varnel/varnel.h"

struct varnel_error {
    std::string text;
};

namespace varnel {

// Ends a call with a status and a text for people.
class CallError {
  public:
    CallError(varnel_status status, QString text) : status_(status), text_(std::move(text)) {}
    CallError(varnel_status status, const Reason& reason);
    varnel_status Status() const { return status_; }
    const QString& Text() const { return text_; }

  private:
    varnel_status status_;
    QString text_;
};

// What a caught exception comes to. Throws nothing.
varnel_status Caught(varnel_error** error) noexcept;

// Runs what a function of the interface does. Throws nothing.
template <class Function>
varnel_status Guarded(varnel_error** error, const Function& function) noexcept {
    if (error != nullptr) {
        *error = nullptr;
    }
    try {
        function();
        return VARNEL_OK;
    } catch (...) {
        return Caught(error);
    }
}

// Throws CallError for a null pointer; name is that of the argument.
template <class Pointer>
Pointer* Given(Pointer* pointer, const char* name) {
    if (pointer == nullptr) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QString::fromLatin1(name) + QStringLiteral(" is null"));
    }
    return pointer;
}

// The place that a new handle goes to, null until it is there. Throws as Given.
template <class Handle>
Handle*& Place(Handle** place, const char* name) {
    *Given(place, name) = nullptr;
    return *place;
}

// From UTF-8. Throws as Given.
QString TextOf(const char* text, const char* name);

}  // namespace varnel
