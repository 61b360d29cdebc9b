// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The text of a settings file: sections in brackets, a line "key=text" for each value, comments
// after semicolons, UTF-8. The same form as QSettings' INI files, which older releases wrote. The
// first line promises a last one, so that a file that was cut is known from one that was edited.
// Throws nothing.
//
// By hand rather than by QSettings: that forgets the order of the keys and writes them by the
// alphabet, so that a damaged file would leave no whole gear where this leaves those before the
// damage. It lets an open quote swallow the lines that follow, does not say which line is wrong,
// and reads and writes files only, so that each reading would need a temporary one and a disk with
// room for it. To decode only the values by it takes as many lines as it saves.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "base/reason.h"

namespace varnel {

// Texts by section and key, in the order in which they were first set: a damaged file is read up to
// the damage, so the keys of one gear have to stand together.
class SettingsValues {
  public:
    using Name = std::pair<QString, QString>;  // section, key
    bool Empty() const { return values_.empty(); }
    // Null when the key does not exist.
    const QString* Find(const QString& section, const QString& key) const;
    void Set(const QString& section, const QString& key, const QString& text);
    void Remove(const QString& section, const QString& key) { values_.erase({section, key}); }
    // Sets all values of the other.
    void Merge(const SettingsValues& newer);
    // Section by section.
    std::vector<std::pair<Name, QString>> InOrder() const;

  private:
    struct Held {
        QString text;
        std::size_t position = 0;
    };
    std::map<Name, Held> values_;
    std::size_t nextPosition_ = 0;
};

struct SettingsReading {
    SettingsValues values;  // of a damaged file, what could still be read
    Reason damage;          // empty when the file is whole
};

// Of a key that occurs twice the last value counts. An unquoted comma is a part of the value, as in
// a number that was typed by hand (107,5), while QSettings would read a list of two.
SettingsReading ReadSettingsText(const QByteArray& bytes);
// The whole file, in UTF-8.
QByteArray SettingsText(const SettingsValues& values);

}  // namespace varnel
