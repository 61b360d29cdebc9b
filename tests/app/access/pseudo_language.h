// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A language that shows where the window's texts come from: "Save" becomes "[Šåvé~~]".
#pragma once

#include <QMap>
#include <QTranslator>
#include <tuple>

namespace varnel::testing {

struct SourceText {
    QString context;
    QString text;
    friend bool operator<(const SourceText& one, const SourceText& other) {
        return std::tie(one.context, one.text) < std::tie(other.context, other.text);
    }
};

// What a file of translations/ holds: the translation of each text, empty when it is unfinished.
QMap<SourceText, QString> ReadTranslations(const QString& path);

// Marks the texts that the translations have under the same context, and makes them a third longer.
// Placeholders, mnemonics and what follows a tab stay.
class PseudoLanguage : public QTranslator {
  public:
    PseudoLanguage();
    ~PseudoLanguage() override;
    QString translate(const char* context, const char* text, const char* comment,
                      int n) const override;
    bool isEmpty() const override { return false; }

  private:
    QMap<SourceText, QString> known_;
};

// What of a text stands outside of all marks and is no name: projections, file types, settings, the
// gear and the files of the tests.
QString Unmarked(const QString& text);

}  // namespace varnel::testing
