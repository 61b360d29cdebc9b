// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/guard.h"

#include <new>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"

namespace varnel {

namespace {

// Without memory for the text there is none.
varnel_status Told(varnel_error** error, varnel_status status, const QString& text) noexcept {
    if (error != nullptr) {
        try {
            *error = new varnel_error{text.toStdString()};
        } catch (...) {
            *error = nullptr;
        }
    }
    return status;
}

}  // namespace

CallError::CallError(varnel_status status, const Reason& reason)
    : CallError(status, ErrorText(reason)) {}

varnel_status Caught(varnel_error** error) noexcept {
    try {
        throw;
    } catch (const CallError& known) {
        return Told(error, known.Status(), known.Text());
    } catch (const RunTimeError& impossible) {
        return Told(error, VARNEL_IMPOSSIBLE, ErrorText(ReasonFor(impossible)));
    } catch (const std::bad_alloc&) {
        return Told(error, VARNEL_NO_MEMORY, QStringLiteral("there is too little memory"));
    } catch (const std::exception& other) {
        return Told(error, VARNEL_INTERNAL, QString::fromUtf8(other.what()));
    } catch (...) {
        return Told(error, VARNEL_INTERNAL, QStringLiteral("an unknown error"));
    }
}

QString TextOf(const char* text, const char* name) {
    return QString::fromUtf8(Given(text, name));
}

}  // namespace varnel

const char* varnel_error_text(const varnel_error* error) {
    return error == nullptr ? "" : error->text.c_str();
}

void varnel_error_free(varnel_error* error) {
    delete error;
}
