// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The user's own lenses: one file a lens, in a folder beside the settings file. Names are compared
// exactly and occur once. Every function looks at the folder anew, so that what another program has
// written is found. Throws std::bad_alloc only; errors are returned.
#pragma once

#include <QString>
#include <vector>

#include "base/reason.h"
#include "state/records/sampled_lens.h"

namespace varnel {

class LensFolder {
  public:
    struct Entry {
        QString path;
        SampledLensPointer lens;  // never null
    };
    struct Listing {
        std::vector<Entry> entries;  // by name, without case
        Reasons reasons;             // of files that hold no lens, each with its name
    };

    // The folder need not exist; it is made for the first lens.
    explicit LensFolder(QString folder) : folder_(std::move(folder)) {}
    // "lenses" beside that file.
    static LensFolder Beside(const QString& settingsFile);

    const QString& Path() const { return folder_; }
    Listing List() const;
    // Null where there is no lens of that name.
    SampledLensPointer Find(const QString& name) const;
    // The name itself, or the first of "NAME (2)", "NAME (3)" ... that no lens has.
    QString FreeName(const QString& name) const;

    // Each returns why nothing was changed; empty when it is done.
    Reason Add(SampledLens lens) const;      // under a name that is free
    Reason Replace(SampledLens lens) const;  // the lens of that name, or adds it
    Reason Rename(const QString& name, const QString& newName) const;
    Reason Delete(const QString& name) const;

  private:
    QString FreePath(const QString& name) const;
    // The first entry of that name; one without a lens where there is none.
    Entry EntryOf(const QString& name) const;

    QString folder_;
};

}  // namespace varnel
