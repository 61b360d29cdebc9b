// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch that runs on a thread of its own, beside whatever the window does: its entries, what
// became of each, pausing and stopping. It has its own pool, decoders and pictures; the window's
// are not touched. All calls and signals are of the thread that made it. Throws std::bad_alloc
// only.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "decoder/process/picture_reader.h"
#include "pipeline/conversion/batch_run.h"

namespace varnel {

enum class EntryState { Waiting, Working, Written, Failed };

// What is known of an entry of the run.
struct EntryProgress {
    EntryState state = EntryState::Waiting;
    QString text;  // the path that it was written to, or why it was not
};

class BatchJob : public QObject {
    Q_OBJECT
  public:
    using NewReader = std::function<std::unique_ptr<PictureReader>()>;
    explicit BatchJob(NewReader newReader = [] { return NewPictureReader(); });
    // Stops it.
    ~BatchJob() override;

    // Takes the entries and begins; nothing else may be under way. Upright: photos are turned as
    // their EXIF says.
    void Start(RecordArray<ImageRecord> entries, const BatchChoices& choices, bool upright);
    // The photo at hand is finished first, for which a paused run goes on; a film is given up.
    void Stop();
    // At once, within the image at hand; a file that is being written is finished.
    void Pause(bool on);

    bool IsRunning() const { return running_; }
    bool IsPaused() const { return paused_; }
    bool IsStopping() const { return stopping_; }

    // Of the run under way, or of the last one.
    const RecordArray<ImageRecord>& Entries() const { return entries_; }
    const EntryProgress& ProgressOf(int entry) const;  // from 1 on
    int Done() const { return done_; }
    int Left() const { return running_ ? entries_.UpperBound() - done_ : 0; }
    const QString& Name() const { return name_; }  // the path being written
    // Of the image at hand, from 0 to 1.
    double PartDone() const { return part_; }
    // Since it began, without pauses.
    double Seconds() const;
    const BatchSummary& Summary() const { return summary_; }
    // Why the run could not go on; empty when it did.
    const QString& Shortage() const { return shortage_; }

    const NewReader& ReaderMaker() const { return newReader_; }
    // Who writes entries that are films, on the job's thread; has to outlive the job.
    void Use(FilmSaver* films) { films_ = films; }
    // The last ones, for the run of the program.
    BatchChoices choices;

  Q_SIGNALS:
    void Started();
    // The run waits until the slots have returned, for this and the next two.
    void Named(const QString& path);
    void Written(const varnel::ImageRecord& entry, const QString& path);
    void ImageDone(int done, int queued);
    void PauseChanged(bool on);
    void Stopping();
    void Ended();

  private:
    class Observer;

    void Work(const BatchChoices& choices, bool upright);
    // On the worker's thread: has the job's thread do it, and waits for that.
    void Tell(std::function<void()> what);
    // On the worker's thread, as long as the run is paused.
    void WaitWhilePaused();
    void End();

    NewReader newReader_;
    FilmSaver* films_ = nullptr;
    RecordArray<ImageRecord> entries_;
    std::vector<EntryProgress> progress_;
    RecordArray<ImageRecord> atWork_;  // the worker's own copy
    BatchSummary summary_;
    QString shortage_;
    QString name_;
    int done_ = 0;
    bool running_ = false;
    QElapsedTimer sinceStart_;
    QElapsedTimer sincePause_;
    qint64 pausedFor_ = 0;  // ms, without the pause at hand

    std::atomic<double> part_ = 0.0;
    std::atomic<bool> stopping_ = false;
    std::atomic<bool> leaving_ = false;  // nobody answers the worker any more
    std::mutex mutex_;
    std::condition_variable changed_;
    std::atomic<bool> paused_ = false;
    std::thread thread_;
};

}  // namespace varnel
