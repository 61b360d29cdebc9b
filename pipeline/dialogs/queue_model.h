// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch queue as a list for a view, and once a run has taken its entries those of the run: each
// with its small picture, its state and why it failed. It reads the records themselves. Throws
// nothing.
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QPixmap>

#include "pipeline/conversion/batch_job.h"

namespace varnel {

class QueueModel : public QAbstractListModel {
    Q_OBJECT
  public:
    QueueModel(const RecordArray<ImageRecord>& queue, const BatchJob& job);

    // The queue is another one.
    void Reset();
    // Whether the entries are those of the run.
    bool ShowsRun() const { return showsRun_; }
    void ShowRun(bool on);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // The first photo in the list without a picture, empty when there is none.
    QString NextWithoutPicture() const;
    // An empty one stands for a photo that has none.
    void SetPicture(const QString& path, const QPixmap& picture);

  private:
    const RecordArray<ImageRecord>& Entries() const;
    QString Line(int entry) const;
    void ShowChange(int first, int last);

    const RecordArray<ImageRecord>& queue_;
    const BatchJob& job_;
    bool showsRun_ = false;
    QHash<QString, QPixmap> pictures_;
};

}  // namespace varnel
