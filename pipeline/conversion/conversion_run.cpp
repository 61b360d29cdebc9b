// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/conversion_run.h"

#include <QScopeGuard>
#include <thread>

#include "base/error_reason.h"
#include "base/thread_runner.h"
#include "pipeline/conversion/lending_steps.h"
#include "pipeline/conversion/run/begun_turns.h"
#include "pipeline/conversion/run/early_result.h"
#include "pipeline/conversion/run/photo_feed.h"
#include "pipeline/conversion/run/turn.h"
#include "pipeline/conversion/save_worker.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

namespace {

constexpr int betweenEvents = 10;  // ms

class Run : private RenderProgress {
  public:
    Run(const ConversionPlan& plan, ConversionTargets& targets, ConversionObserver& observer,
        const ConversionPorts& ports)
        : plan_(plan),
          targets_(targets),
          observer_(observer),
          ports_(ports),
          overlaps_(ports.readAhead),
          feed_(plan, ports),
          runner_(ports.cores != nullptr ? *ports.cores : own_.emplace()),
          series_(LendingSeries(runner_,
                                ports.unfinished != nullptr ? *ports.unfinished : unfinished_)),
          sharing_(runner_, overlaps_ && plan.photos.size() > 1),
          drawer_(plan, sharing_, *this, plan.drawsByRows && !ports.save),
          begun_({plan, ports, series_, sharing_}),
          worker_(overlaps_ ? &runner_ : nullptr) {}

    ConversionRunEnd Go() {
        for (photo_ = 0; photo_ < plan_.photos.size() && !Stopped(); ++photo_) {
            ConvertPhoto();
        }
        FinishWriting();
        return {left_, series_.Finish().reason};
    }

  private:
    void ConvertPhoto() {
        BeginTurn(0, {});
        if (!feed_.HasBegun(photo_)) {
            FinishWriting();  // it may be what is written, however odd that is
        }
        LoadedPicture loaded = feed_.Load(photo_, overlaps_);
        // Whatever is thrown: the worker would wait for a decision for ever.
        const auto atEnd = qScopeGuard([this] { DropEarly(); });
        if (loaded.arriving) {
            BeginEarly(loaded);
            loaded = feed_.Whole(photo_);
            KeepEarlyOf(loaded);
        }
        ConvertLoaded(std::move(loaded));
    }

    void ConvertLoaded(LoadedPicture loaded) {
        if (loaded.reason.Is(ReasonCode::Cancelled)) {
            stopped_ = left_ = true;
            return;
        }
        if (loaded.outcome == LoadOutcome::NotLoaded) {
            EndPhoto(ConversionEnd::NotRead, loaded.reason);
            return;
        }
        turn_.what.damage = loaded.reason;
        ConversionRecords records;
        const Reason error = Attempt([&] {
            records = early_ ? early_->Records() : plan_.records(photo_, loaded);
            if (records.needsPixels) {
                HavePixels(loaded);
                records = plan_.records(photo_, loaded);
            }
            drawer_.TakePhoto(loaded);
        });
        if (!error.isEmpty() || records.all.empty()) {
            EndPhoto(ConversionEnd::NoRecords, error.isEmpty() ? records.error : error);
            return;
        }
        ConvertAll(records.all, loaded.reason);
        drawer_.DropPhoto();
    }

    void ConvertAll(const std::vector<ImageRecord>& records, const Reason& damage) {
        for (std::size_t n = 0; n < records.size(); ++n) {
            if (n > 0) {
                if (Stopped()) {
                    return;
                }
                BeginTurn(static_cast<qsizetype>(n), damage);
            }
            turn_.what.record = records[n];
            Convert(n + 1 == records.size());
        }
    }

    void BeginTurn(qsizetype index, const Reason& damage) {
        auto used = turn_.drawn ? std::move(turn_.drawn) : std::make_shared<DrawnResult>();
        turn_ = Turn{.what = {photo_, index, {}, {}, damage}, .drawn = std::move(used)};
        turn_.sinceBegun.start();
    }

    void EndPhoto(ConversionEnd end, const Reason& reason) {
        Fail(end, reason);
        ReportTurn();
    }

    void Fail(ConversionEnd end, const Reason& reason) {
        turn_.outcome.end = end;
        turn_.outcome.reason = reason;
    }

    bool Failed() const { return turn_.outcome.end != ConversionEnd::Written; }

    // Before something is begun. What is left then is not done.
    bool Stopped() {
        stopped_ = stopped_ || observer_.StopAsked();
        left_ = left_ || stopped_;
        return stopped_;
    }

    // What is drawn while the photo is decoded.

    void BeginEarly(const LoadedPicture& photo) {
        early_ = std::make_unique<EarlyResult>(plan_, drawer_, turn_.what, photo);
        if (!early_->CanBe()) {
            early_.reset();
            return;
        }
        const auto self = std::this_thread::get_id();
        worker_.Begin([this, self, drawn = early_->Drawn(), target = early_->Target()] {
            // Where the system gives no thread nobody would decide.
            return std::this_thread::get_id() == self ? SaveResult{} : Save(*drawn, target);
        });
    }

    void KeepEarlyOf(const LoadedPicture& photo) {
        if (early_ && (photo.outcome != LoadOutcome::Loaded || worker_.Wait(0))) {
            DropEarly();
        }
    }

    void DropEarly() {
        if (early_) {
            early_->Decide(false);
            const CoreLent lent(runner_);
            worker_.Take();
            early_.reset();
        }
    }

    // Converting.

    void Convert(bool last) {
        const Reason error = Attempt([this] {
            ChooseTarget();
            if (!Failed() && !Dropped()) {
                DrawTurn();
            }
        });
        if (!error.isEmpty()) {
            Fail(ConversionEnd::NotConverted, error);
        }
        if (last) {
            drawer_.DropPhoto();  // encoding needs memory of its own
        }
        if (!Failed() && IsBegunOnly()) {
            BeginSaving();
            return;
        }
        FinishWriting();
        if (!Failed()) {
            CheckTarget();  // what was written meanwhile may be the same file by another name
        }
        if (Failed() || Dropped()) {
            ReportTurn();
        } else {
            BeginWriting();
        }
    }

    void ChooseTarget() {
        const QString& photo = plan_.photos[photo_];
        turn_.what.target = plan_.target(turn_.what);
        if ((writing_ && MayBeSameFile(writing_->what.target, turn_.what.target)) ||
            begun_.MayHave(turn_.what.target)) {
            FinishWriting();
        }
        AnnounceTurn();
        if (const TargetRefusal taken = targets_.Take(photo, turn_.what.target)) {
            Refuse(taken);
        } else if (targets_.IsSkipped(turn_.what.target)) {
            turn_.outcome.end = ConversionEnd::Skipped;
        } else {
            CheckTarget();
        }
    }

    void CheckTarget() {
        if (const TargetRefusal refusal = targets_.Check(plan_.photos[photo_], turn_.what.target,
                                                         !turn_.what.damage.isEmpty())) {
            Refuse(refusal);
        }
    }

    void Refuse(const TargetRefusal& refusal) {
        turn_.outcome.end = ConversionEnd::Refused;
        turn_.outcome.refusal = refusal;
    }

    void DrawTurn() {
        if (early_) {
            turn_.drawn = early_->Drawn();
            Begin(static_cast<float>(turn_.drawn->result->Size().height));
            return;
        }
        *turn_.drawn = drawer_.Draw(turn_.what.record, std::move(turn_.drawn->result));
        NoteSettings(turn_.drawn->result.get(), turn_.what.record, plan_.output.writeSettings,
                     plan_.output.writeMetadata ? turn_.what.target : QString());
    }

    // Writing.

    // Small pictures are encoded on this thread, and their ends are not waited for.
    bool IsBegunOnly() const {
        return !writing_ && !early_ && overlaps_ && !ports_.save && plan_.namesLastAtEnd &&
               BegunTurns::IsSmall(turn_);
    }

    void BeginSaving() {
        AnnounceTurn();
        turn_.outcome.size = SizeOf(turn_.drawn->result.get());
        turn_.drawn = std::make_shared<DrawnResult>(DrawnResult{begun_.Begin(std::move(turn_))});
        EndDue();
    }

    void EndDue() {
        while (begun_.IsFirstDue()) {
            EndBegun();
        }
    }

    void EndBegun() { EndSaved(begun_.TakeFirst(observer_.Progress())); }
    void EndSaved(Turn turn) {
        if (turn.outcome.end == ConversionEnd::Written) {
            targets_.NoteWritten(plan_.photos[turn.what.photo], turn.what.target,
                                 !turn.what.damage.isEmpty());
        }
        Announce(turn, observer_);
        End(turn);
    }

    void BeginWriting() {
        AnnounceTurn();
        turn_.outcome.size = SizeOf(turn_.drawn->result.get());
        writing_ = std::move(turn_);
        turn_.drawn = std::make_shared<DrawnResult>(DrawnResult{std::move(spare_)});
        if (early_) {
            early_->Decide(true);
            early_.reset();
        } else {
            worker_.Begin([this] { return Save(*writing_->drawn, writing_->what.target); });
        }
        if (!overlaps_) {
            FinishWriting();
        }
    }

    SaveResult Save(DrawnResult& drawn, const QString& path) {
        return SaveNow(drawn, path, {plan_, ports_, series_, sharing_});
    }

    void FinishWriting() {
        while (!begun_.IsEmpty()) {
            EndBegun();
        }
        if (!writing_) {
            return;
        }
        if (!worker_.Wait(0)) {
            const CoreLent lent(runner_);
            while (!worker_.Wait(betweenEvents)) {
                if (writing_->drawn->rows) {
                    observer_.Progress().Advance(static_cast<float>(writing_->drawn->rows->Done()));
                } else {
                    observer_.Progress().HandleEvents();
                }
            }
        }
        if (writing_->drawn->rows) {
            observer_.Progress().End();
        }
        const SaveResult saved = worker_.Take();
        Turn written = std::move(*writing_);
        writing_.reset();
        spare_ = written.drawn->rows ? nullptr : std::move(written.drawn->result);
        written.drawn->rows.reset();
        NoteSaved(written, saved);
        EndSaved(std::move(written));
    }

    // Reporting.

    // What was converted while the one before it was written, and is not to be reported any more.
    bool Dropped() const { return stopped_ && !plan_.finishesBegun; }

    void ReportTurn() {
        FinishWriting();
        if (Dropped()) {
            left_ = true;
            return;
        }
        AnnounceTurn();
        End(turn_);
    }

    void End(Turn& turn) {
        turn.outcome.seconds = static_cast<double>(turn.sinceBegun.elapsed()) / 1000.0;
        observer_.Ended(turn.what, turn.outcome);
        stopped_ = stopped_ || (!plan_.finishesBegun && observer_.StopAsked());
    }

    // What is before it is done.
    void AnnounceTurn() {
        if (!writing_ && begun_.IsEmpty() && !Dropped()) {
            Announce(turn_, observer_);
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
        EndDue();
        AnnounceTurn();
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

    const ConversionPlan& plan_;
    ConversionTargets& targets_;
    ConversionObserver& observer_;
    const ConversionPorts& ports_;
    const bool overlaps_;
    PhotoFeed feed_;
    std::optional<ThreadRunner> own_;
    ThreadRunner& runner_;
    UnfinishedFile unfinished_;  // where no other is given
    FileSeries series_;
    const Sharing sharing_;
    ResultDrawer drawer_;
    qsizetype photo_ = 0;
    Turn turn_;
    std::optional<Turn> writing_;
    BegunTurns begun_;                    // small ones; nothing is writing then
    std::unique_ptr<EarlyResult> early_;  // which the worker is at
    BitmapHandle spare_;
    bool stopped_ = false;
    bool left_ = false;  // something was not done because of that
    SaveWorker worker_;  // last: it ends before what it works with
};

}  // namespace

ConversionRunEnd RunConversions(const ConversionPlan& plan, ConversionTargets& targets,
                                ConversionObserver& observer, const ConversionPorts& ports) {
    return Run(plan, targets, observer, ports).Go();
}

}  // namespace varnel
