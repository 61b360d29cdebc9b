// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/outside_text.h"

#include <QLatin1StringView>

namespace varnel {

namespace {

constexpr QLatin1StringView blackText("black");
constexpr QLatin1StringView transparentText("transparent");

}  // namespace

QString ToText(const OutsideFill& fill) {
    if (fill.kind == OutsideFill::Kind::Colour) {
        const unsigned number = unsigned{fill.red} << 16U | unsigned{fill.green} << 8U | fill.blue;
        return QStringLiteral("#%1").arg(number, 6, 16, QChar(u'0'));
    }
    return fill.kind == OutsideFill::Kind::Black ? blackText : transparentText;
}

std::optional<OutsideFill> OutsideFromText(const QString& text) {
    if (text.compare(blackText, Qt::CaseInsensitive) == 0) {
        return OutsideFill();
    }
    if (text.compare(transparentText, Qt::CaseInsensitive) == 0) {
        return OutsideFill{OutsideFill::Kind::Transparent};
    }
    bool isNumber = false;
    const unsigned number = text.mid(1).toUInt(&isNumber, 16);
    if (!isNumber || text.size() != 7 || !text.startsWith(u'#') || text[1] == u'+') {
        return std::nullopt;
    }
    return OutsideFill{OutsideFill::Kind::Colour, static_cast<std::uint8_t>(number >> 16U),
                       static_cast<std::uint8_t>(number >> 8U & 255U),
                       static_cast<std::uint8_t>(number & 255U)};
}

}  // namespace varnel
