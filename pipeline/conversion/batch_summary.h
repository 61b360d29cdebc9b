// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What came of a batch run, and the texts that describe the batch. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "base/reason.h"
#include "state/records/image_record.h"

namespace varnel {

struct BatchError {
    QString file;    // the photo
    QString reason;  // in words, without the file's name
};

struct BatchNote {
    QString file;  // that was written
    Reason note;
};

struct BatchSummary {
    QString folder;  // empty: next to their photos
    int queued = 0;
    int done = 0;         // written or failed
    QStringList written;  // one path for each photo written, in order
    QList<int> entries;   // the number in the queue of each of these
    std::vector<BatchError> failures;
    std::vector<BatchError> damaged;  // written as far as they could be read
    std::vector<BatchNote> notes;     // written files and what they are without
    QStringList replaced;  // paths under which a later photo of the run replaced an earlier one

    bool Stopped() const { return done < queued; }
};

// Several lines in plain text.
QString SummaryText(const BatchSummary& summary);

// "3 of 10 images".
QString BatchProgressText(int done, int queued);

// How long it will take at the pace so far, "about 2 minutes left"; empty while that is a guess.
// done is the part of the work that is finished, from 0 to 1.
QString TimeLeftText(double elapsedSeconds, double done);

// An entry in the list: file, projection and, for a frame of a sequence, "Morph " and its number.
QString QueueLine(const ImageRecord& entry);

}  // namespace varnel
