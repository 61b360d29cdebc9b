// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/number_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnel {
namespace {

TEST(FloatText, WritesSevenAsciiDigitsWithOnlyTheLocalesDecimalCharacter) {
    const struct {
        const char* locale;
        float value;
        QString text;
    } cases[] = {
        {"C", 181.754745F, QStringLiteral("181.7547")},
        {"de_DE", 181.754745F, QStringLiteral("181,7547")},
        {"fr_FR", 1234567.0F, QStringLiteral("1234567")},
        {"de_DE", -0.5F, QStringLiteral("-0,5")},
        {"de_CH", 118.125F, QStringLiteral("118.125")},
        {"ar_EG", 118.125F, QStringLiteral("118\u066B125")},
        {"fa_IR", -118.125F, QStringLiteral("-118\u066B125")},
        {"C", 157.894737F, QStringLiteral("157.8947")},
        {"C", 16777216.0F, QStringLiteral("1.677722e+07")},
        {"C", 0.1F, QStringLiteral("0.1")},
    };
    for (const auto& c : cases) {
        const QString text = FloatText(c.value, QLocale(QString::fromLatin1(c.locale)));
        EXPECT_EQ(text, c.text) << c.locale << ' ' << text.toStdString();
    }
}

TEST(ReadFloat, ReadsUnderAnyLocaleWhatWasSavedUnderAnyOther) {
    const QLocale before;
    const char* const locales[] = {"C",     "en_US", "de_DE", "fr_FR",
                                   "de_CH", "ar_EG", "fa_IR", "hi_IN"};
    const float values[] = {179.3221F, 1234.5F, 0.0001F,  -12.5F,   1e-7F,
                            3.4e38F,   0.0F,    -1234.5F, -2.5e10F, 1234567.0F};
    const QString section = QStringLiteral("Gear");
    for (const char* const writer : locales) {
        MemoryStore store;
        QLocale::setDefault(QLocale(QString::fromLatin1(writer)));
        for (const float value : values) {
            store.Save(section, QString::number(value), FloatText(value));
        }
        for (const char* const reader : locales) {
            QLocale::setDefault(QLocale(QString::fromLatin1(reader)));
            for (const float value : values) {
                EXPECT_EQ(ReadFloat(store, section, QString::number(value), 99.0F), value)
                    << writer << ' ' << reader;
            }
        }
    }
    QLocale::setDefault(before);
}

TEST(FloatFromText, ReadsOneNumberWhateverItsScriptAndRefusesTheRest) {
    const struct {
        QString text;
        std::optional<float> value;
    } cases[] = {
        {QStringLiteral("118.125"), 118.125F},  // never 118125
        {QStringLiteral("118,125"), 118.125F},
        {QStringLiteral("+1,5"), 1.5F},
        {QStringLiteral(" 7 "), 7.0F},
        {QStringLiteral("1E3"), 1000.0F},
        {QStringLiteral("\u2212\u0661\u0662\u066B\u0665"), -12.5F},  // Arabic-Indic
        {QStringLiteral("\u06F1\u06F2\u066B\u06F5"), 12.5F},         // Persian
        {QStringLiteral("\U0001E951,\U0001E952"), 1.2F},             // Adlam, beyond 16 bits
        {QStringLiteral("1.234,5"), std::nullopt},
        {QStringLiteral("1,234.5"), std::nullopt},
        {QStringLiteral("1.234.567"), std::nullopt},
        {QStringLiteral("1'234"), std::nullopt},
        {QStringLiteral("1\u00A0234"), std::nullopt},
        {QStringLiteral("1\u066C234"), std::nullopt},  // Arabic thousands separator
        {QStringLiteral("1 2"), std::nullopt},
        {QStringLiteral("\u00B2"), std::nullopt},  // superscript two
        {QStringLiteral(""), std::nullopt},
        {QStringLiteral(","), std::nullopt},
        {QStringLiteral("+-1"), std::nullopt},
        {QStringLiteral("1e"), std::nullopt},
        {QStringLiteral("12 mm"), std::nullopt},
        {QStringLiteral("0x10"), std::nullopt},
        {QStringLiteral("nan"), std::nullopt},
        {QStringLiteral("-inf"), std::nullopt},
        {QStringLiteral("3.5e38"), std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FloatFromText(c.text), c.value) << c.text.toStdString();
    }
}

TEST(FloatFromPointText, TakesNoComma) {
    EXPECT_EQ(FloatFromPointText(QStringLiteral("-1.5e2")), -150.0F);
    EXPECT_EQ(FloatFromPointText(QStringLiteral("1,5")), std::nullopt);
    EXPECT_EQ(FloatFromPointText(QStringLiteral("\u0661")), std::nullopt);
}

TEST(ReadNumber, KeepsTheFallbackWhenNothingOrNoNumberIsStored) {
    MemoryStore store;
    const QString section = QStringLiteral("Gear");
    const QString key = QStringLiteral("hAOV1");
    EXPECT_EQ(ReadFloat(store, section, key, 180.0F), 180.0F);
    EXPECT_EQ(ReadWhole(store, section, key, 7), 7);
    for (const auto& text : {"", "wide", "nan", "1.234,5"}) {
        store.Save(section, key, QString::fromLatin1(text));
        EXPECT_EQ(ReadFloat(store, section, key, 180.0F), 180.0F) << text;
        EXPECT_EQ(ReadWhole(store, section, key, 7), 7) << text;
    }
    store.Save(section, key, QStringLiteral("12"));
    EXPECT_EQ(ReadWhole(store, section, key, 7), 12);
    store.Save(section, key, QStringLiteral("99999999999"));
    EXPECT_EQ(ReadWhole(store, section, key, 7), 7);
}

}  // namespace
}  // namespace varnel
