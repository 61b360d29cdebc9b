// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/number_text.h"

#include <QByteArray>
#include <charconv>
#include <cmath>

namespace varnel {

namespace {

// The text in ASCII: decimal digits of any script, the Arabic decimal comma and the minus sign
// become their plain forms; any other character that is not ASCII becomes one that no number has.
QByteArray PlainText(const QString& text) {
    QByteArray plain;
    for (const char32_t character : text.trimmed().toUcs4()) {
        if (QChar::category(character) == QChar::Number_DecimalDigit) {
            plain.append(static_cast<char>('0' + QChar::digitValue(character)));
        } else if (character == U'\u066B') {
            plain.append(',');
        } else if (character == U'\u2212') {
            plain.append('-');
        } else {
            plain.append(character < 128 ? static_cast<char>(character) : '?');
        }
    }
    return plain;
}

// Digits with at most one decimal point, a sign and an exponent; refuses "inf", "nan" and 0x1p3.
std::optional<float> FloatFromPlain(QByteArray plain) {
    if (plain.startsWith('+') && !plain.startsWith("+-")) {
        plain.remove(0, 1);
    }
    for (const char character : plain) {
        if (!QByteArrayView("0123456789.eE+-").contains(character)) {
            return std::nullopt;
        }
    }
    float value = 0.0F;
    const char* end = plain.constData() + plain.size();
    const auto [stop, error] = std::from_chars(plain.constData(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

QString FloatText(float value, const QLocale& locale) {
    return QString::number(static_cast<double>(value), 'g', 7)
        .replace(QStringLiteral("."), locale.decimalPoint());
}

std::optional<float> FloatFromText(const QString& text) {
    QByteArray plain = PlainText(text);
    if (plain.count('.') + plain.count(',') > 1) {
        return std::nullopt;
    }
    return FloatFromPlain(plain.replace(',', '.'));
}

std::optional<float> FloatFromPointText(const QString& text) {
    return FloatFromPlain(text.trimmed().toUtf8());
}

std::optional<int> WholeFromText(const QString& text) {
    bool isWhole = false;
    const int value = text.toInt(&isWhole);
    return isWhole ? std::optional(value) : std::nullopt;
}

float ReadFloat(const SettingsStore& store, const QString& section, const QString& key,
                float fallback) {
    return FloatFromText(store.Get(section, key, QString())).value_or(fallback);
}

int ReadWhole(const SettingsStore& store, const QString& section, const QString& key,
              int fallback) {
    return WholeFromText(store.Get(section, key, QString())).value_or(fallback);
}

}  // namespace varnel
