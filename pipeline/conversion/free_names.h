// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Names beside what is there already. Throws std::bad_alloc only.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace varnel {

class FreeNames {
  public:
    // The wanted path itself, else the first of "IMG.Varnel-2.TIF", "IMG.Varnel-3.TIF" and so on
    // that neither a file, a folder nor a link has, nor an earlier answer. Names that differ in
    // small and capital letters count as one.
    QString Take(const QString& wanted);
    // The same for a result that may ask again: it keeps its name.
    QString For(int result, const QString& wanted);

  private:
    QSet<QString> given_;  // in small letters
    QHash<int, QString> results_;
};

}  // namespace varnel
