// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/reason.h"

#include <algorithm>
#include <cassert>
#include <limits>

#include "base/error_text.h"

namespace varnel {

namespace {

constexpr int mostNested = 4;  // reasons within reasons
constexpr quint8 mostArguments = 16;

const Reason* ReasonIn(const Reason::Argument& argument) {
    return std::get_if<Reason>(&argument);
}

bool IsErrorNumber(const Reason::Argument& argument) {
    const qint64* const number = std::get_if<qint64>(&argument);
    return number != nullptr && *number >= 0 && *number <= std::numeric_limits<int>::max();
}

// One line that can stand in a message: a library's text may contain bytes of a damaged file.
QString Printable(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return !character.isPrint(); }, u' ');
    return text.simplified();
}

void Corrupt(QDataStream& in) {
    in.setStatus(QDataStream::ReadCorruptData);
}

Reason ReadReason(QDataStream& in, int depth);

Reason::Argument ReadArgument(QDataStream& in, int depth) {
    quint8 kind = 0;
    in >> kind;
    qint64 number = 0;
    QString text;
    switch (kind) {
        case 0:
            in >> number;
            return number;
        case 1:
            in >> text;
            return Printable(text);
        case 2:
            return ReadReason(in, depth + 1);
        default:
            Corrupt(in);
            return {};
    }
}

Reason ReadReason(QDataStream& in, int depth) {
    quint16 code = 0;
    quint8 count = 0;
    in >> code >> count;
    if (depth > mostNested || count > mostArguments) {
        Corrupt(in);
    }
    std::vector<Reason::Argument> arguments;
    for (int n = 0; n < count && in.status() == QDataStream::Ok; ++n) {
        arguments.push_back(ReadArgument(in, depth));
    }
    if (in.status() == QDataStream::Ok && !IsSound(static_cast<ReasonCode>(code), arguments)) {
        Corrupt(in);
    }
    return in.status() == QDataStream::Ok
               ? Reason(static_cast<ReasonCode>(code), std::move(arguments))
               : Reason();
}

}  // namespace

Reason::Reason(ReasonCode code, std::vector<Argument> arguments)
    : code_(code), arguments_(std::move(arguments)) {
    assert(IsSound(code_, arguments_));
}

bool Reason::IsBy(int systemError) const {
    if (code_ == ReasonCode::SystemError) {
        return std::get<qint64>(arguments_.front()) == systemError;
    }
    return std::ranges::any_of(arguments_, [&](const Argument& argument) {
        const Reason* const reason = ReasonIn(argument);
        return reason != nullptr && reason->IsBy(systemError);
    });
}

bool operator==(const Reason& one, const Reason& other) {
    return one.code_ == other.code_ && one.arguments_ == other.arguments_;
}

Reason Joined(const Reasons& reasons) {
    std::vector<Reason::Argument> parts;
    for (const Reason& reason : reasons) {
        if (!reason.isEmpty()) {
            parts.emplace_back(reason);
        }
    }
    return parts.empty()       ? Reason()
           : parts.size() == 1 ? std::get<Reason>(parts.front())
                               : Reason(ReasonCode::Several, std::move(parts));
}

bool IsSound(ReasonCode code, const std::vector<Reason::Argument>& arguments) {
    if (code == ReasonCode::Several) {
        return arguments.size() > 1 && std::ranges::all_of(arguments, &ReasonIn);
    }
    return code < ReasonCode::Count &&
           arguments.size() == static_cast<std::size_t>(ArgumentCount(code)) &&
           (code != ReasonCode::SystemError || IsErrorNumber(arguments.front()));
}

QDataStream& operator<<(QDataStream& out, const Reason& reason) {
    out << static_cast<quint16>(reason.Code()) << static_cast<quint8>(reason.Arguments().size());
    for (const Reason::Argument& argument : reason.Arguments()) {
        out << static_cast<quint8>(argument.index());
        std::visit([&](const auto& value) { out << value; }, argument);
    }
    return out;
}

QDataStream& operator>>(QDataStream& in, Reason& reason) {
    reason = ReadReason(in, 1);
    return in;
}

QDataStream& operator<<(QDataStream& out, const Reasons& reasons) {
    out << static_cast<quint32>(reasons.size());
    for (const Reason& reason : reasons) {
        out << reason;
    }
    return out;
}

// Without reserving memory first: the count in the stream may be wrong.
QDataStream& operator>>(QDataStream& in, Reasons& reasons) {
    reasons.clear();
    quint32 count = 0;
    in >> count;
    while (count-- > 0 && in.status() == QDataStream::Ok) {
        in >> reasons.emplaceBack();
    }
    return in;
}

}  // namespace varnel
