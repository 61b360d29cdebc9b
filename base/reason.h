// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Why something failed or is not as it should be: a code with its arguments. The program compares
// codes; the user reads the text that ErrorText makes of them (error_text.h). Throws nothing.
#pragma once

#include <QDataStream>
#include <QList>
#include <QString>
#include <utility>
#include <variant>
#include <vector>

#include "base/reason_code.h"

namespace varnel {

class Reason {
  public:
    struct Argument;

    // Empty: no error.
    Reason();
    Reason(const Reason&);
    Reason(Reason&&) noexcept;
    Reason& operator=(const Reason&);
    Reason& operator=(Reason&&) noexcept;
    ~Reason();
    // With as many arguments as the code's text has: whole numbers, texts, further reasons.
    template <class... Arguments>
    Reason(ReasonCode code, Arguments&&... arguments)
        : Reason(code, std::vector<Argument>{Argument(std::forward<Arguments>(arguments))...}) {}
    Reason(ReasonCode code, std::vector<Argument> arguments);

    ReasonCode Code() const { return code_; }
    const std::vector<Argument>& Arguments() const { return arguments_; }
    bool isEmpty() const { return code_ == ReasonCode::None; }
    bool Is(ReasonCode code) const { return code_ == code; }
    // Whether this is the given errno value or contains it.
    bool IsBy(int systemError) const;

    friend bool operator==(const Reason& one, const Reason& other);

  private:
    ReasonCode code_ = ReasonCode::None;
    std::vector<Argument> arguments_;
};

struct Reason::Argument : std::variant<qint64, QString, Reason> {
    using variant::variant;
};

// Here, where arguments are complete: they hold reasons themselves.
inline Reason::Reason() = default;
inline Reason::Reason(const Reason&) = default;
inline Reason::Reason(Reason&&) noexcept = default;
inline Reason& Reason::operator=(const Reason&) = default;
inline Reason& Reason::operator=(Reason&&) noexcept = default;
inline Reason::~Reason() = default;

using Reasons = QList<Reason>;

// Those that are not empty, as one; empty when there is none.
Reason Joined(const Reasons& reasons);

// True for a code that exists, with the arguments that it takes.
bool IsSound(ReasonCode code, const std::vector<Reason::Argument>& arguments);

// The form in which reasons are sent to another process. What is read is sound, else the stream's
// status is ReadCorruptData. Texts come back as one line without characters that cannot be shown.
QDataStream& operator<<(QDataStream& out, const Reason& reason);
QDataStream& operator>>(QDataStream& in, Reason& reason);
QDataStream& operator<<(QDataStream& out, const Reasons& reasons);
QDataStream& operator>>(QDataStream& in, Reasons& reasons);

}  // namespace varnel
