// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whose results the names of one run are. Two photos of one name, or of names that differ in their
// endings alone, would have one result; from the file on the disk it cannot be seen of which of
// them it is. Throws std::bad_alloc only.
#pragma once

#include <QMultiHash>
#include <QString>

namespace varnel {

class TakenNames {
  public:
    // The photo that took the name before; empty when it was free: then it is this photo's from now
    // on. Names that differ in small and capital letters are one only where both lead to the same
    // existing file.
    QString Take(const QString& result, const QString& photo);

  private:
    struct Taken {
        QString result;
        QString photo;
    };
    QString Key(const QString& result);

    QMultiHash<QString, Taken> taken_;  // by whole names in small letters
    QString folder_;                    // the last one as given, and its true path
    QString truePath_;
};

}  // namespace varnel
