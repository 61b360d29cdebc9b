// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a batch run may write where.
#pragma once

#include <QSet>
#include <QString>

#include "base/record_array.h"
#include "decoder/request/loaded_picture.h"
#include "files/file_identity.h"
#include "state/records/image_record.h"

namespace varnel {

class BatchTargets {
  public:
    explicit BatchTargets(const RecordArray<ImageRecord>& queue);
    // Why that photo's conversion is not written under the path; empty when it may be. The damage
    // is empty for a sound photo.
    QString Error(const ImageRecord& entry, const QString& path, const Reason& damage);
    void NoteWritten(const QString& path, bool damaged);

  private:
    FileIdentities queued_;
    QSet<QString> halfPictures_;  // written by this run from damaged photos
};

}  // namespace varnel
