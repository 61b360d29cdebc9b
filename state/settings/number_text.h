// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Numbers as the settings store keeps them: short decimal text with the locale's decimal character.
// Throws nothing.
#pragma once

#include <QLocale>
#include <QString>
#include <optional>

#include "state/settings/settings_store.h"

namespace varnel {

// At most seven digits, ASCII, never a group separator; the decimal character is the locale's.
QString FloatText(float value, const QLocale& locale = QLocale());

// Reads what any locale writes: ASCII or local digits, one decimal comma or point whatever the
// locale. Empty for a text with group separators ("118.125" is never 118125) and for anything else
// that is not a finite single-precision number.
std::optional<float> FloatFromText(const QString& text);

// As above but with a decimal point only: the form of the command line, whatever the locale.
std::optional<float> FloatFromPointText(const QString& text);

// A whole decimal number; empty for any other text.
std::optional<int> WholeFromText(const QString& text);

// The stored number, or the fallback when the key is missing or holds no number.
float ReadFloat(const SettingsStore& store, const QString& section, const QString& key,
                float fallback);
int ReadWhole(const SettingsStore& store, const QString& section, const QString& key, int fallback);

}  // namespace varnel
