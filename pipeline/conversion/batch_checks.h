// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What can be checked of a batch before it runs. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "pipeline/conversion/batch_run.h"

namespace varnel {

// Why nothing can be written into the folder; empty when files can be made there.
QString FolderError(const QString& folder);

// The same for all folders that the entries go into.
QString FoldersError(const RecordArray<ImageRecord>& queue, const BatchChoices& choices);

// How many names more than one entry would be written under.
int CollidingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                   const PhotoDays& days = {});

// How many files of those names are there already.
int ExistingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                  const PhotoDays& days = {});

// The two numbers in words; empty when both are 0.
QString NamesText(int colliding, int existing);

// What the files usually have, in bytes. Entries whose size is not known count nothing.
qint64 UsualBytesOf(const RecordArray<ImageRecord>& queue, const BatchChoices& choices);

// The bytes that the run may need, as for photos full of fine detail; likewise.
qint64 ExpectedBytes(const RecordArray<ImageRecord>& queue, const BatchChoices& choices);

// The free bytes where the folder is; -1 when the system does not report them.
qint64 FreeBytes(const QString& folder);

// A warning when there is less free than expected; empty when there is enough or the free amount is
// unknown.
QString SpaceWarning(qint64 expectedBytes, qint64 freeBytes);

}  // namespace varnel
