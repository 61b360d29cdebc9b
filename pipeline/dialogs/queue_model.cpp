// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/queue_model.h"

#include <QFileInfo>
#include <algorithm>

#include "pipeline/conversion/batch_summary.h"

namespace varnel {

QueueModel::QueueModel(const RecordArray<ImageRecord>& queue, const BatchJob& job)
    : queue_(queue), job_(job) {
    connect(&job, &BatchJob::Named, this, [this] { ShowChange(job_.Done(), job_.Done()); });
    connect(&job, &BatchJob::ImageDone, this, [this](int done) { ShowChange(done - 1, done); });
    connect(&job, &BatchJob::Ended, this, [this] { ShowChange(0, rowCount() - 1); });
}

void QueueModel::Reset() {
    beginResetModel();
    endResetModel();
}

void QueueModel::ShowRun(bool on) {
    showsRun_ = on;
    Reset();
}

const RecordArray<ImageRecord>& QueueModel::Entries() const {
    return showsRun_ ? job_.Entries() : queue_;
}

int QueueModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Entries().UpperBound();
}

QVariant QueueModel::data(const QModelIndex& index, int role) const {
    const ImageRecord& entry = Entries()(index.row() + 1);
    switch (role) {
        case Qt::DisplayRole:
            return Line(index.row() + 1);
        case Qt::ToolTipRole:
            return showsRun_ ? SourcePath(entry) + u'\n' + Line(index.row() + 1)
                             : SourcePath(entry);
        case Qt::DecorationRole:
            return pictures_.value(SourcePath(entry));
        default:
            return {};
    }
}

// The state stands below the photo's name.
QString QueueModel::Line(int entry) const {
    QString line = QueueLine(Entries()(entry));
    if (!showsRun_) {
        return line;
    }
    const EntryProgress& progress = job_.ProgressOf(entry);
    switch (progress.state) {
        case EntryState::Working:
            return line + u'\n' + tr("being converted");
        case EntryState::Written:
            return line + u'\n' + tr("written: %1").arg(QFileInfo(progress.text).fileName());
        case EntryState::Failed:
            return line + u'\n' + tr("failed: %1").arg(progress.text);
        case EntryState::Waiting:
            break;
    }
    return line + u'\n' + (job_.IsRunning() ? tr("waiting") : tr("left out"));
}

void QueueModel::ShowChange(int first, int last) {
    last = std::min(last, rowCount() - 1);
    if (showsRun_ && first >= 0 && first <= last) {
        Q_EMIT dataChanged(index(first, 0), index(last, 0));
    }
}

QString QueueModel::NextWithoutPicture() const {
    for (const ImageRecord& entry : Entries()) {
        if (QString path = SourcePath(entry); !pictures_.contains(path)) {
            return path;
        }
    }
    return {};
}

void QueueModel::SetPicture(const QString& path, const QPixmap& picture) {
    pictures_.insert(path, picture);
    for (int row = 0; row < rowCount(); ++row) {
        if (SourcePath(Entries()(row + 1)) == path) {
            Q_EMIT dataChanged(index(row, 0), index(row, 0));
        }
    }
}

}  // namespace varnel
