// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reads what the list of the batch shows of each photo, one after the other in a decoder of its
// own: small pictures, and where names tell the day the photos were taken on, those. Throws nothing
// but for want of memory.
#pragma once

#include <QAbstractItemView>
#include <QTimer>
#include <functional>

#include "pipeline/dialogs/queue_model.h"

namespace varnel {

class QueuePictures : public QObject {
    Q_OBJECT
  public:
    QueuePictures(QueueModel& model, const QAbstractItemView& view, BatchJob::NewReader newReader,
                  bool upright);
    ~QueuePictures() override;
    // Before events are handled for the first time.
    void ReadBy(BatchJob::NewReader newReader) { newReader_ = std::move(newReader); }

    // Of these photos the days are read as well.
    void WantDays(const QStringList& paths);
    const PhotoDays& Days() const { return days_; }

  Q_SIGNALS:
    void DayFound();

  private:
    void GoOn();
    void Begin(const ReadRequest& request);
    void TakePicture();

    QueueModel& model_;
    const QAbstractItemView& view_;
    BatchJob::NewReader newReader_;
    bool upright_;
    std::unique_ptr<PictureReader> reader_;
    ReadRequest underWay_;  // no path: nothing
    QStringList wanted_;    // days
    PhotoDays days_;
    QTimer timer_;
};

}  // namespace varnel
