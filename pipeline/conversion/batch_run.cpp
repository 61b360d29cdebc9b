// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_run.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>
#include <new>
#include <optional>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "pipeline/conversion/conversion_targets.h"
#include "pipeline/conversion/lending_steps.h"
#include "pipeline/conversion/save_worker.h"
#include "remap/image/photo_metadata.h"
#include "state/editing/picture_settings.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

// One entry on its way. The observer hears of it only when the one before it is done.
struct Turn {
    int entry = 0;  // from 1
    BitmapHandle result{};
    QString path{};   // where it is written; empty when the photo could not be loaded
    QString error{};  // why it is not written; empty when it is
    Reason damage{};  // of the photo; empty when it is sound
    bool announced = false;
    float maximum = 0.0F;  // of its progress; 0 until it begins
    bool rendered = false;
};

class Run : private RenderProgress {
  public:
    Run(RecordArray<ImageRecord>& queue, const BatchChoices& choices, BatchObserver& observer,
        const BatchPorts& ports)
        : queue_(queue),
          choices_(choices),
          observer_(observer),
          ports_(ports),
          overlaps_(ports.readAhead),
          runner_(ports.cores != nullptr ? *ports.cores : own_.emplace()),
          targets_(queue),
          worker_(overlaps_, &runner_) {}

    BatchSummary Go() {
        summary_.folder = choices_.folder;
        summary_.queued = queue_.UpperBound();
        if (overlaps_) {
            NoteOutputs();
        }
        for (int n = 1; n <= summary_.queued && !stopped_; ++n) {
            turn_ = Turn{.entry = n, .result = std::move(turn_.result)};
            Convert(queue_(n));
            FinishWriting();
            if (!stopped_) {
                Announce();
                CheckTargetAgain();
                Conclude();
            }
        }
        FinishWriting();
        return std::move(summary_);
    }

  private:
    void Convert(ImageRecord& entry) {
        try {
            if (Load(SourcePath(entry))) {
                LoadedConvert(entry);
            } else {
                turn_.error = ErrorText(source_.reason);
            }
        } catch (const std::exception& error) {
            turn_.error = ErrorText(ReasonFor(error));
        }
        if (!NextHasSamePhoto()) {
            DropSource();  // encoding needs room of its own
        }
    }

    void LoadedConvert(ImageRecord& entry) {
        TakeSize({SizeOf(source_.bitmap.get()), source_.orientation}, entry);
        turn_.damage = source_.reason;
        turn_.path = BatchPath(entry, choices_);
        if (writing_ && MayBeSameFile(writing_->path, turn_.path)) {
            FinishWriting();
        }
        if (!writing_ && !stopped_) {
            Announce();
        }
        turn_.error = targets_.Error(entry, turn_.path, turn_.damage);
        if (turn_.error.isEmpty() && !stopped_) {
            RenderTurn(entry);
        }
    }

    void RenderTurn(const ImageRecord& entry) {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = std::move(source_.bitmap);
        bitmaps.ResultBitmap = std::move(turn_.result);
        RenderContext context{.bitmaps = bitmaps, .runner = &runner_};
        Render(ProjectionFromIndex(entry.Projection), entry, SizeKind::Batch, *this, context);
        NoteSettings(bitmaps.ResultBitmap.get(), entry, choices_.writeSettings,
                     choices_.writeMetadata ? turn_.path : QString());
        source_.bitmap = std::move(bitmaps.FullSourceBitmap);
        turn_.result = std::move(bitmaps.ResultBitmap);
    }

    // Reading. Frames of a sequence share their photo.

    bool Load(const QString& path) {
        if (!source_.bitmap || sourcePath_ != path) {
            DropSource();
            source_ = ports_.load(path);
            sourcePath_ = path;
            NoteLoaded(path);
            ReadAhead();
        }
        return source_.outcome != LoadOutcome::NotLoaded;
    }

    // A photo that was not the next one ends what was read ahead.
    void NoteLoaded(const QString& path) {
        if (!ahead_.isEmpty() && ahead_.first() == path) {
            ahead_.removeFirst();
        } else {
            ahead_.clear();
            lastAhead_ = turn_.entry;
        }
    }

    void DropSource() {
        source_ = {};
        sourcePath_.clear();
    }

    bool NextHasSamePhoto() const {
        return overlaps_ && turn_.entry < summary_.queued && source_.bitmap &&
               SourcePath(queue_(turn_.entry + 1)) == sourcePath_;
    }

    void ReadAhead() {
        while (overlaps_ && ahead_.size() < ports_.aheadAtMost && lastAhead_ < summary_.queued) {
            const QString path = SourcePath(queue_(lastAhead_ + 1));
            if (path == SourcePath(queue_(lastAhead_))) {
                ++lastAhead_;
                continue;
            }
            if (outputs_.contains(path) || !HasRoomAhead(ahead_.size() + 1, source_.size)) {
                return;  // has to be written first, or there would be too much in memory
            }
            ports_.readAhead(path);
            ++lastAhead_;
            ahead_.append(path);
        }
    }

    // Photos that this run writes itself, however odd that is.
    void NoteOutputs() {
        for (const ImageRecord& entry : queue_) {
            try {
                outputs_.insert(BatchPath(entry, choices_));
            } catch (const RunTimeError&) {  // will be told in its turn
            }
        }
    }

    // Writing.

    // What was written meanwhile may be the same file under another name.
    void CheckTargetAgain() {
        if (turn_.error.isEmpty()) {
            turn_.error = targets_.Error(queue_(turn_.entry), turn_.path, turn_.damage);
        }
    }

    void Conclude() {
        if (!turn_.error.isEmpty()) {
            EndTurn(turn_);
            return;
        }
        writing_ = std::move(turn_);
        turn_.result = std::move(spare_);
        worker_.Begin([this, path = writing_->path, bitmap = writing_->result.get()] {
            return Save(bitmap, path);
        });
        if (!overlaps_) {
            FinishWriting();
        }
    }

    SaveResult Save(FIBITMAP* bitmap, const QString& path) {
        const FREE_IMAGE_FORMAT format = FormatOf(choices_.type);
        const int flags = SaveFlags(choices_.type, choices_.jpegQuality, choices_.chroma444);
        if (!choices_.writeMetadata) {
            DropMetadata(bitmap);
        }
        if (ports_.save) {
            return ports_.save(format, bitmap, path, flags);
        }
        UnfinishedFile unfinished;  // nobody ends a window in the middle of a file
        FileSeries one = LendingSeries(runner_, unfinished);
        const SaveResult saved =
            SaveBitmap(format, bitmap, FileInSeries{path, one}, flags, &runner_);
        const WriteResult lasts = one.Finish();
        return !saved || lasts ? saved : SaveResult{false, lasts.reason};
    }

    void FinishWriting() {
        if (!writing_) {
            return;
        }
        {
            const CoreLent lent(runner_);
            while (!worker_.Wait(betweenEvents)) {
                observer_.Progress().HandleEvents();
            }
        }
        const SaveResult saved = worker_.Take();
        Turn written = std::move(*writing_);
        writing_.reset();
        spare_ = std::move(written.result);
        if (saved) {
            Note(written, saved.note);
        } else {
            written.error =
                Texts::tr("could not write %1: %2").arg(written.path, ErrorText(saved.reason));
        }
        EndTurn(written);
    }

    void Note(const Turn& turn, const Reason& note) {
        if (!note.isEmpty()) {
            summary_.notes.push_back({turn.path, note});
        }
        if (summary_.written.contains(turn.path) && !summary_.replaced.contains(turn.path)) {
            summary_.replaced.append(turn.path);
        }
        summary_.written.append(turn.path);
        summary_.entries.append(turn.entry);
        if (!turn.damage.isEmpty()) {
            summary_.damaged.push_back({SourcePath(queue_(turn.entry)), ErrorText(turn.damage)});
        }
        targets_.NoteWritten(turn.path, !turn.damage.isEmpty());
    }

    void EndTurn(const Turn& turn) {
        if (!turn.error.isEmpty()) {
            summary_.failures.push_back({SourcePath(queue_(turn.entry)), turn.error});
        }
        ++summary_.done;
        observer_.Done(summary_.done, summary_.queued);
        stopped_ = observer_.StopAsked();
    }

    // Telling.

    void Announce() {
        if (turn_.announced || turn_.path.isEmpty()) {
            return;
        }
        turn_.announced = true;
        observer_.Naming(turn_.path);
        if (turn_.maximum > 0.0F) {
            observer_.Progress().Begin(turn_.maximum);
        }
        if (turn_.rendered) {
            observer_.Progress().End();
        }
    }

    void HandleEvents() override { observer_.Progress().HandleEvents(); }

    void Begin(float maximum) override {
        turn_.maximum = maximum;
        if (turn_.announced) {
            observer_.Progress().Begin(maximum);
        }
    }

    void Advance(float value) override {
        if (writing_ && worker_.Wait(0)) {
            FinishWriting();
        }
        if (!writing_ && !stopped_) {
            Announce();
        }
        if (turn_.announced) {
            observer_.Progress().Advance(value);
        } else {
            HandleEvents();
        }
    }

    void End() override {
        turn_.rendered = true;
        if (turn_.announced) {
            observer_.Progress().End();
        }
    }

    static constexpr int betweenEvents = 10;  // ms

    RecordArray<ImageRecord>& queue_;
    const BatchChoices& choices_;
    BatchObserver& observer_;
    const BatchPorts& ports_;
    const bool overlaps_;
    std::optional<ThreadRunner> own_;
    ThreadRunner& runner_;
    BatchTargets targets_;
    QSet<QString> outputs_;
    BatchSummary summary_;
    LoadedPicture source_;
    QString sourcePath_;
    int lastAhead_ = 0;  // the last entry whose photo was begun to be read
    QStringList ahead_;  // photos begun to be read and not loaded yet
    Turn turn_;
    std::optional<Turn> writing_;
    BitmapHandle spare_;
    bool stopped_ = false;
    SaveWorker worker_;  // last: it ends before what it works with
};

}  // namespace

QString BatchPath(const ImageRecord& entry, const BatchChoices& choices) {
    return BatchName(entry, choices.folder, choices.additions, choices.type);
}

BatchPorts BatchPortsFor(PrefetchingReader& feed) {
    BatchPorts ports;
    ports.load = [&feed](const QString& path) { return feed.Take(path); };
    ports.cores = feed.Cores();
    ports.aheadAtMost = feed.Ahead();
    if (ports.aheadAtMost > 0) {
        ports.readAhead = [&feed](const QString& path) { feed.ReadAhead(path); };
    }
    return ports;
}

BatchSummary RunBatch(RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                      BatchObserver& observer, const BatchPorts& ports) {
    return Run(queue, choices, observer, ports).Go();
}

}  // namespace varnel
