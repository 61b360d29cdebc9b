// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch queue as a list for a view. It reads the records themselves and keeps nothing. Throws
// nothing.
#pragma once

#include <QAbstractListModel>

#include "base/record_array.h"
#include "pipeline/conversion/batch_summary.h"

namespace varnel {

class QueueModel : public QAbstractListModel {
  public:
    explicit QueueModel(const RecordArray<ImageRecord>& queue) : queue_(queue) {}
    // The queue was emptied.
    void Reset() {
        beginResetModel();
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : queue_.UpperBound();
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const ImageRecord& entry = queue_(index.row() + 1);
        switch (role) {
            case Qt::DisplayRole:
                return QueueLine(entry);
            case Qt::ToolTipRole:
                return SourcePath(entry);
            default:
                return {};
        }
    }

  private:
    const RecordArray<ImageRecord>& queue_;
};

}  // namespace varnel
