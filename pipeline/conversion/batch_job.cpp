// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_job.h"

#ifdef __linux__
#include <sys/resource.h>
#endif

#include <chrono>
#include <future>
#include <utility>

#include "base/shortage.h"

namespace varnel {

namespace {

constexpr auto betweenLooks = std::chrono::milliseconds(10);

// The window comes first; on Linux this holds for the calling thread, for those that it starts and
// for their decoders.
void GiveWay() {
#ifdef __linux__
    constexpr int nicer = 5;
    ::setpriority(PRIO_PROCESS, 0, nicer);
#endif
}

}  // namespace

// Between the run on its thread and the job on the window's.
class BatchJob::Observer : public BatchObserver, public RenderProgress {
  public:
    explicit Observer(BatchJob& job) : job_(job) {}

    void Naming(const QString& path) override {
        job_.part_ = 0.0;
        job_.Tell([this, path] {
            job_.name_ = path;
            if (const auto entry = static_cast<std::size_t>(job_.done_);
                entry < job_.progress_.size()) {
                job_.progress_[entry] = {EntryState::Working, path};
            }
            Q_EMIT job_.Named(path);
        });
    }

    RenderProgress& Progress() override { return *this; }

    void EntryEnded(int entry, bool written, const QString& text) override {
        job_.Tell([this, entry, written, text] {
            job_.progress_[static_cast<std::size_t>(entry) - 1] = {
                written ? EntryState::Written : EntryState::Failed, text};
            if (written) {
                Q_EMIT job_.Written(job_.entries_(entry), text);
            }
        });
    }

    void Done(int done, int queued) override {
        job_.part_ = 0.0;
        job_.Tell([this, done, queued] {
            job_.done_ = done;
            Q_EMIT job_.ImageDone(done, queued);
        });
    }

    bool StopAsked() override {
        job_.WaitWhilePaused();
        return job_.stopping_;
    }

    void HandleEvents() override { job_.WaitWhilePaused(); }
    void Begin(float maximum) override { maximum_ = maximum; }
    void Advance(float value) override {
        job_.part_ = maximum_ > 0.0F ? static_cast<double>(value / maximum_) : 0.0;
        job_.WaitWhilePaused();
    }
    void Pause() override { job_.WaitWhilePaused(); }
    void End() override { job_.part_ = 1.0; }

  private:
    BatchJob& job_;
    float maximum_ = 0.0F;
};

BatchJob::BatchJob(NewReader newReader) : newReader_(std::move(newReader)) {}

BatchJob::~BatchJob() {
    leaving_ = true;
    stopping_ = true;
    Pause(false);
    if (thread_.joinable()) {
        thread_.join();
    }
}

void BatchJob::Start(RecordArray<ImageRecord> entries, const BatchChoices& how, bool upright) {
    entries_ = std::move(entries);
    atWork_ = entries_;
    progress_.assign(static_cast<std::size_t>(entries_.UpperBound()), {});
    summary_ = {};
    shortage_.clear();
    name_.clear();
    done_ = 0;
    part_ = 0.0;
    stopping_ = false;
    pausedFor_ = 0;
    sinceStart_.start();
    running_ = true;
    shortage_ = varnel::Shortage(
        [&] { thread_ = std::thread([this, how, upright] { Work(how, upright); }); });
    if (!shortage_.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [this] { End(); }, Qt::QueuedConnection);
    }
    Q_EMIT Started();
}

void BatchJob::Work(const BatchChoices& how, bool upright) {
    GiveWay();
    BatchSummary summary;
    const QString shortage = varnel::Shortage([&] {
        ThreadRunner pool;
        const std::unique_ptr<PictureReader> reader = newReader_();
        ReadingWait wait;
        const ReadDepth depth = how.depth == OutputDepth::Eight ? ReadDepth::Eight : ReadDepth::Own;
        ReadChoices read{upright, depth};
        read.planar = how.lessMemory && how.sampling == SamplingKind::Classic;
        PrefetchingReader feed(*reader, MoreReaders(pool.Cores()), wait, read, &pool);
        ConversionPorts ports = PortsFor(feed);
        ports.cores = &pool;
        Observer observer(*this);
        summary = RunBatch(atWork_, how, observer, ports, films_);
    });
    Tell([this, summary, shortage] {
        summary_ = summary;
        shortage_ = shortage;
    });
    QMetaObject::invokeMethod(
        this, [this] { End(); }, Qt::QueuedConnection);
}

void BatchJob::End() {
    if (thread_.joinable()) {
        thread_.join();
    }
    Pause(false);
    running_ = false;
    stopping_ = false;
    Q_EMIT Ended();
}

void BatchJob::Tell(std::function<void()> what) {
    const auto done = std::make_shared<std::promise<void>>();
    const std::future<void> answer = done->get_future();
    QMetaObject::invokeMethod(
        this,
        [done, what = std::move(what)] {
            what();
            done->set_value();
        },
        Qt::QueuedConnection);
    while (!leaving_ && answer.wait_for(betweenLooks) != std::future_status::ready) {
    }
}

void BatchJob::Stop() {
    if (!running_ || stopping_) {
        return;
    }
    stopping_ = true;
    Pause(false);
    Q_EMIT Stopping();
}

void BatchJob::Pause(bool on) {
    if (paused_ == on || (on && !running_)) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        paused_ = on;
    }
    changed_.notify_all();
    if (on) {
        sincePause_.start();
    } else {
        pausedFor_ += sincePause_.elapsed();
    }
    if (!leaving_) {
        Q_EMIT PauseChanged(on);
    }
}

void BatchJob::WaitWhilePaused() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !paused_; });
}

const EntryProgress& BatchJob::ProgressOf(int entry) const {
    return progress_[static_cast<std::size_t>(entry) - 1];
}

double BatchJob::Seconds() const {
    const qint64 pause = pausedFor_ + (paused_ ? sincePause_.elapsed() : 0);
    return static_cast<double>(sinceStart_.elapsed() - pause) / 1000.0;
}

}  // namespace varnel
