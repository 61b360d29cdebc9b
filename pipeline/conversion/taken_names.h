// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whose results the names of one run are. Two photos of one name, or of names that differ in their
// endings alone, would have one result; from the file on the disk it cannot be seen of which of
// them it is. Throws std::bad_alloc only.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <string>
#include <unordered_map>

namespace varnel {

// One name is kept for each result of a run, and runs can be long: so it is kept in few bytes.
class TakenNames {
  public:
    // The photo that took the name before; empty when it was free: then it is this photo's from now
    // on. Names that differ in small and capital letters are one only where both lead to the same
    // existing file.
    QString Take(const QString& result, const QString& photo);
    // That the photo's result has been written under that name.
    void NoteWritten(const QString& result, const QString& photo);
    // The photo whose result was written into the file of that canonical path; empty for none.
    QString WriterOf(const QString& canonicalPath);

  private:
    struct Taken {
        QString photo;
        std::string name;  // of the file, UTF-8
        int folder = 0;
        bool written = false;
    };
    struct Place {
        int folder = 0;
        QString name;
        std::size_t hash = 0;
    };
    Place PlaceOf(const QString& path);
    Taken* Find(const Place& place);

    std::unordered_multimap<std::size_t, Taken> taken_;  // by whole names in small letters
    QStringList folders_;                                // their true paths
    QHash<QString, int> numbers_;                        // of those
    QString folder_;                                     // the last one as given, and its number
    int number_ = -1;
    QHash<QString, QString> throughLinks_;  // photos by canonical paths, where they are others
};

}  // namespace varnel
