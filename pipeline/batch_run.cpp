// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/batch_run.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>
#include <filesystem>
#include <new>

#include "remap/engine/thread_runner.h"
#include "remap/run_time_error.h"

namespace varnel {

namespace {

QString Tr(const char* text) {
    return QCoreApplication::translate("Batch", text);
}

// Through links too, and on cards that do not tell small from capital letters.
bool SameFile(const QString& a, const QString& b) {
    std::error_code notThere;
    return std::filesystem::equivalent(QFileInfo(a).filesystemFilePath(),
                                       QFileInfo(b).filesystemFilePath(), notThere);
}

class Run {
  public:
    Run(RecordArray<ImageRecord>& queue, const BatchChoices& choices, BatchObserver& observer,
        const BatchPorts& ports)
        : queue_(queue), choices_(choices), observer_(observer), ports_(ports) {}

    BatchSummary Go() {
        summary_.folder = choices_.folder;
        summary_.queued = queue_.UpperBound();
        while (summary_.done < summary_.queued) {
            ImageRecord& entry = queue_(summary_.done + 1);
            const QString trouble = TroubleWith(entry);
            if (!trouble.isEmpty()) {
                summary_.failures.push_back({SourcePath(entry), trouble});
            }
            ++summary_.done;
            observer_.Done(summary_.done, summary_.queued);
            if (observer_.StopAsked()) {
                break;
            }
        }
        return std::move(summary_);
    }

  private:
    QString TroubleWith(ImageRecord& entry) {
        try {
            return Convert(entry);
        } catch (const std::bad_alloc&) {
            return Tr("there is not enough memory");
        } catch (const std::exception& error) {  // RunTimeError among them
            return QString::fromUtf8(error.what());
        }
    }

    // The reason when nothing was written.
    QString Convert(ImageRecord& entry) {
        LoadedPicture loaded = ports_.load(SourcePath(entry));
        if (loaded.outcome == LoadOutcome::NotLoaded) {
            return loaded.reason;
        }
        TakeSize(SizeOf(loaded.bitmap.get()), entry);
        const QString path = BatchPath(entry, choices_);
        observer_.Naming(path);
        if (const QString trouble = TargetTrouble(entry, path, loaded); !trouble.isEmpty()) {
            return trouble;
        }
        const SaveResult saved = RenderAndSave(entry, std::move(loaded.bitmap), path);
        if (!saved) {
            return Tr("could not write %1: %2").arg(path, saved.reason);
        }
        if (!saved.note.isEmpty()) {
            summary_.notes.push_back({path, saved.note});
        }
        NoteWritten(entry, path, loaded);
        return {};
    }

    SaveResult RenderAndSave(const ImageRecord& entry, BitmapHandle source, const QString& path) {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = std::move(source);
        RenderDesk desk{.bitmaps = bitmaps, .runner = &runner_};
        Render(ProjectionFromIndex(entry.Projection), entry, SizeKind::Batch, observer_.Progress(),
               desk);
        bitmaps.FullSourceBitmap.reset();  // encoding needs room of its own
        return ports_.save(FormatOf(choices_.type), bitmaps.ResultBitmap.get(), path,
                           SaveFlags(choices_.type, choices_.jpegQuality));
    }

    QString TargetTrouble(const ImageRecord& entry, const QString& path,
                          const LoadedPicture& loaded) const {
        if (!QFileInfo::exists(path)) {
            return {};
        }
        if (SameFile(path, SourcePath(entry))) {
            return Tr("%1 is the photo itself").arg(path);
        }
        if (IsQueued(path)) {
            return Tr("%1 is one of the queued photos").arg(path);
        }
        if (loaded.outcome == LoadOutcome::Damaged && !halfPictures_.contains(path)) {
            return Tr("the photo is damaged (%1) and does not replace the older %2")
                .arg(loaded.reason, path);
        }
        return {};
    }

    bool IsQueued(const QString& path) const {
        QString last;
        for (const ImageRecord& entry : queue_) {
            const QString source = SourcePath(entry);
            if (source != last && SameFile(path, source)) {  // frames share their photo
                return true;
            }
            last = source;
        }
        return false;
    }

    void NoteWritten(const ImageRecord& entry, const QString& path, const LoadedPicture& loaded) {
        if (summary_.written.contains(path) && !summary_.replaced.contains(path)) {
            summary_.replaced.append(path);
        }
        summary_.written.append(path);
        if (loaded.outcome == LoadOutcome::Damaged) {
            summary_.damaged.push_back({SourcePath(entry), loaded.reason});
            halfPictures_.insert(path);
        } else {
            halfPictures_.remove(path);
        }
    }

    RecordArray<ImageRecord>& queue_;
    const BatchChoices& choices_;
    BatchObserver& observer_;
    const BatchPorts& ports_;
    ThreadRunner runner_;
    BatchSummary summary_;
    QSet<QString> halfPictures_;  // written by this run from damaged photos
};

}  // namespace

QString BatchPath(const ImageRecord& entry, const BatchChoices& choices) {
    return BatchName(entry, choices.folder, choices.additions, choices.type);
}

BatchSummary RunBatch(RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                      BatchObserver& observer, const BatchPorts& ports) {
    return Run(queue, choices, observer, ports).Go();
}

}  // namespace varnel
