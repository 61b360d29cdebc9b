// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/number_text.h"

#include <gtest/gtest.h>

#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(FloatText, WritesSevenAsciiDigitsWithOnlyTheLocalesDecimalCharacter) {
    const struct {
        const char* locale;
        float value;
        QString text;
    } cases[] = {
        {"C", 181.754745F, Text("181.7547")},        {"de_DE", 181.754745F, Text("181,7547")},
        {"fr_FR", 1234567.0F, Text("1234567")},      {"de_DE", -0.5F, Text("-0,5")},
        {"de_CH", 118.125F, Text("118.125")},        {"ar_EG", 118.125F, Text("118\u066B125")},
        {"fa_IR", -118.125F, Text("-118\u066B125")}, {"C", 157.894737F, Text("157.8947")},
        {"C", 16777216.0F, Text("1.677722e+07")},    {"C", 0.1F, Text("0.1")},
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
    const QString section = Text("Gear");
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
        const char* text;
        float value;
    } cases[] = {
        {"118.125", 118.125F},  // never 118125
        {"118,125", 118.125F},
        {"+1,5", 1.5F},
        {" 7 ", 7.0F},
        {"1E3", 1000.0F},
        {"\u2212\u0661\u0662\u066B\u0665", -12.5F},  // Arabic-Indic
        {"\u06F1\u06F2\u066B\u06F5", 12.5F},         // Persian
        {"\U0001E951,\U0001E952", 1.2F},             // Adlam, beyond 16 bits
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FloatFromText(Text(c.text)), c.value) << c.text;
    }
    for (const char* const text :
         {"1.234,5", "1,234.5", "1.234.567", "1'234", "1\u00A0234", "1\u066C234", "1 2", "\u00B2",
          "", ",", "+-1", "1e", "12 mm", "0x10", "nan", "-inf", "3.5e38"}) {
        EXPECT_EQ(FloatFromText(Text(text)), std::nullopt) << text;
    }
}

TEST(FloatFromPointText, TakesNoComma) {
    EXPECT_EQ(FloatFromPointText(Text("-1.5e2")), -150.0F);
    EXPECT_EQ(FloatFromPointText(Text("1,5")), std::nullopt);
    EXPECT_EQ(FloatFromPointText(Text("\u0661")), std::nullopt);
}

TEST(ReadNumber, KeepsTheFallbackWhenNothingOrNoNumberIsStored) {
    MemoryStore store;
    const QString section = Text("Gear");
    const QString key = Text("hAOV1");
    EXPECT_EQ(ReadFloat(store, section, key, 180.0F), 180.0F);
    EXPECT_EQ(ReadWhole(store, section, key, 7), 7);
    for (const auto& text : {"", "wide", "nan", "1.234,5"}) {
        store.Save(section, key, QString::fromLatin1(text));
        EXPECT_EQ(ReadFloat(store, section, key, 180.0F), 180.0F) << text;
        EXPECT_EQ(ReadWhole(store, section, key, 7), 7) << text;
    }
    store.Save(section, key, Text("12"));
    EXPECT_EQ(ReadWhole(store, section, key, 7), 12);
    store.Save(section, key, Text("99999999999"));
    EXPECT_EQ(ReadWhole(store, section, key, 7), 7);
}

}  // namespace
}  // namespace varnel
