// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a run may write where: one set of rules for the batch and the command line. Throws nothing
// but std::bad_alloc.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include "files/file_identity.h"
#include "pipeline/conversion/taken_names.h"

namespace varnel {

// Two results of one run under one name: the later one replaces the earlier, or fails.
enum class RepeatedName { LaterReplaces, LaterFails };

// A file that was there before the run.
enum class ExistingFile { Replaced, Kept, Skipped };

struct TargetRules {
    RepeatedName repeated = RepeatedName::LaterReplaces;
    ExistingFile existing = ExistingFile::Replaced;
};

enum class TargetError {
    None,
    IsFolder,
    IsThePhoto,
    IsPhotoOfRun,
    IsResultOfRun,  // of another photo, or of the same one
    Exists,
    DamagedPhoto  // whose conversion would replace an older file
};

// Why nothing is written under a name.
struct TargetRefusal {
    TargetError error = TargetError::None;
    QString photo = {};  // whose result has the name, for IsResultOfRun
    explicit operator bool() const { return error != TargetError::None; }
};

class ConversionTargets {
  public:
    // The photos are those of the run; they are never replaced.
    ConversionTargets(const QStringList& photos, TargetRules rules)
        : photos_(photos), rules_(rules) {}

    // Takes the name for a result of the photo, whether that is going to be written, exists already
    // or fails. Refused where the rules give a name once only and it is taken.
    TargetRefusal Take(const QString& photo, const QString& target);
    // Whether a file of that name exists that the rules leave alone without an error.
    bool IsSkipped(const QString& target) const;
    // Whether a conversion of that photo may be written there now.
    TargetRefusal Check(const QString& photo, const QString& target, bool damaged);
    void NoteWritten(const QString& photo, const QString& target, bool damaged);

  private:
    FileIdentities photos_;
    TargetRules rules_;
    TakenNames names_;
    QSet<QString> halfPictures_;  // written by this run from damaged photos
};

}  // namespace varnel
