// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_photos.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <map>
#include <new>
#include <optional>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "cli/conversion_records.h"
#include "cli/existing_results.h"
#include "cli/options/advice.h"
#include "cli/report/run_reports.h"
#include "gear/from_photo/gear_offer.h"
#include "pipeline/conversion/lending_steps.h"
#include "pipeline/conversion/prefetching_reader.h"
#include "pipeline/conversion/save_worker.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

namespace {

// While a photo is read: the time left is counted down, and a signal gives the photo up.
class RunWait : public ReadingWait {
  public:
    RunWait(TerminalBar& bar, const Console& console) : bar_(bar), console_(console) {}
    bool Continue() override {
        bar_.Refresh();
        return console_.StopSignal() == 0;
    }

  private:
    TerminalBar& bar_;
    const Console& console_;
};

// While one photo is converted the next is read and the last one written; what is told is told in
// the photos' order all the same.
class Conversions {
  public:
    Conversions(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                const Console& console)
        : settings_(With(options, settings)),
          runner_(options.jobs.value_or(QThread::idealThreadCount())),
          console_(console),
          reports_(options, console),
          wait_(reports_.Bar(), console),
          reader_(NewPictureReader()),
          feed_(std::in_place, *reader_, MoreReaders(runner_.Cores()), wait_, settings_.AutoOrient,
                &runner_),
          run_{options,
               gears,
               settings_,
               reports_.Bar(),
               runner_,
               FileIdentities(options.files),
               {},
               {},
               LendingSeries(runner_,
                             console.unfinished != nullptr ? *console.unfinished : unfinished_)},
          worker_(runner_.Cores() > 1, &runner_) {}

    // Returns the exit code.
    int Go() {
        files_ = FilesToDo();
        reports_.Bar().Start(files_.size() * ResultsEach());
        for (qsizetype n = 0; n < files_.size() && !Stopped(); ++n) {
            reports_.Bar().SetPhoto(files_[n]);
            TellSkipped(n);
            ConvertPhoto(n);
        }
        FinishWriting();
        TellSkipped(files_.size());
        reports_.Finish();
        bool allWell = reports_.AllWell();
        if (const WriteResult last = run_.series.Finish(); !last) {
            allWell = false;
            reports_.Say(ErrorText(last.reason));
        }
        if (const int signal = console_.StopSignal(); signal != 0 && left_) {
            TellStopped();
            return exitStopped + signal;
        }
        return allWell ? exitAllWritten : exitSomeFailed;
    }

  private:
    static GeneralSettings With(const Options& options, GeneralSettings settings) {
        settings.AutoOrient = settings.AutoOrient && !options.noAutoOrient;
        return settings;
    }

    struct Writing {
        ConversionTarget target;
        BitmapHandle result;
        FileReport report;
        QElapsedTimer sinceBegun;
    };

    // Asked between two results. What is left then is not done.
    bool Stopped() {
        left_ = left_ || console_.StopSignal() != 0;
        return left_;
    }

    qsizetype ResultsEach() const {
        return run_.options.morph.value_or(static_cast<int>(run_.options.projections.size()));
    }

    void TellStopped() {
        const QString rest =
            run_.options.skipExisting ? QStringLiteral("the same command does the rest")
            : run_.options.force
                ? QStringLiteral(
                      "with --skip-existing instead of --force the same command does "
                      "what is missing")
                : QStringLiteral("with --skip-existing the same command does the rest");
        reports_.Say(QStringLiteral("stopped, %1 of %2 pictures are written; ")
                         .arg(written_)
                         .arg(files_.size() * ResultsEach()) +
                     rest);
    }

    // Without those of which every result lies there already, if the options say so.
    QStringList FilesToDo() {
        if (!run_.options.skipExisting) {
            return run_.options.files;
        }
        QStringList files;
        PhotoLoader photos(*reader_, &wait_, &settings_);
        for (const QString& file : run_.options.files) {
            const auto results = console_.StopSignal() == 0 ? ResultsThere(run_, photos, file)
                                                            : std::vector<FileReport>();
            if (results.empty()) {
                files.append(file);
            }
            auto& skipped = skipped_[files.size()];
            skipped.insert(skipped.end(), results.begin(), results.end());
        }
        return files;
    }

    // Those that come before the file of that number.
    void TellSkipped(qsizetype n) {
        for (const FileReport& report : skipped_[n]) {
            if (report.status == FileStatus::Failed) {
                FinishWriting();
                reports_.Failed(report);
            } else if (run_.options.json) {
                FinishWriting();
                reports_.Skipped(report);
            }
        }
    }

    void ConvertPhoto(qsizetype n) {
        begun_.start();
        LoadedPicture loaded = Load(n);
        if (loaded.outcome != LoadOutcome::Loaded && Stopped()) {
            return;  // it was given up
        }
        if (loaded.outcome == LoadOutcome::NotLoaded) {
            FailedPhoto(files_[n], ErrorText(loaded.reason) + PhotoAdvice(files_[n]));
            return;
        }
        if (loaded.outcome == LoadOutcome::Damaged) {
            FinishWriting();
            reports_.Damaged(files_[n], ErrorText(loaded.reason));
        }
        const auto gear = GearFor(run_.gears, OriginOf(loaded.bitmap.get()));
        if (const auto* reason = std::get_if<QString>(&gear)) {
            FailedPhoto(files_[n], *reason);
            return;
        }
        OpenPhoto photo{files_[n],
                        StartRecord(run_, files_[n], {loaded.size, loaded.orientation},
                                    std::get<GearRecord>(gear)),
                        {},
                        loaded.outcome == LoadOutcome::Damaged};
        photo.error = ErrorText(loaded.reason);
        photo.bitmaps.FullSourceBitmap = std::move(loaded.bitmap);
        photo.bitmaps.ResultBitmap = std::move(spare_);
        ConvertAll(photo);
        if (!spare_) {
            spare_ = std::move(photo.bitmaps.ResultBitmap);
        }
    }

    void ConvertAll(OpenPhoto& photo) {
        if (const QString doubt = run_.gears.forAll ? QString() : ShapeError(photo.record);
            !doubt.isEmpty()) {
            photo.notes.append(doubt);
            reports_.Say(photo.path + QStringLiteral(": ") + doubt);
        }
        const std::vector<ImageRecord> records = RecordsFor(run_, photo.record);
        for (const ImageRecord& record : records) {
            if (&record != &records.front() && Stopped()) {
                return;
            }
            ConvertOne(photo, record, &record == &records.back());
            begun_.start();
        }
    }

    CameraInfo OriginOf(FIBITMAP* bitmap) const {
        return run_.gears.forAll ? CameraInfo() : MetadataOf(bitmap).origin;
    }

    LoadedPicture Load(qsizetype n) {
        if (asked_ <= n) {
            FinishWriting();  // it may be what is written, however odd that is
            asked_ = n + 1;
        }
        LoadedPicture loaded = feed_->Take(files_[n]);
        while (runner_.Cores() > 1 && asked_ < files_.size() && asked_ <= n + feed_->Ahead() &&
               HasRoomAhead(asked_ - n, loaded.size) && QFileInfo::exists(files_[asked_])) {
            feed_->ReadAhead(files_[asked_++]);
        }
        if (n + 1 == files_.size()) {
            feed_.reset();  // its decoders' memory is better used now
            reader_.reset();
        }
        return loaded;
    }

    void ConvertOne(OpenPhoto& photo, const ImageRecord& record, bool last) {
        FileReport report = ReportOf(photo.path, record);
        report.notes = photo.notes;
        try {
            const ConversionTarget target = TargetFor(run_, photo.path, record);
            report.result = target.file;
            if (writing_ && MayBeSameFile(writing_->target.file, target.file)) {
                FinishWriting();
            }
            if (const QString error = TakeName(run_, photo.path, target.file); !error.isEmpty()) {
                FailedResult(report, error);
                return;
            }
            if (run_.options.skipExisting && QFileInfo::exists(target.file)) {
                SkippedResult(report);
                return;
            }
            if (const QString error = TargetError(run_, photo, target.file); !error.isEmpty()) {
                FailedResult(report, error);
                return;
            }
            RenderInto(run_, photo, record, target.file);
            if (last) {
                photo.bitmaps.FullSourceBitmap.reset();  // encoding needs room of its own
                photo.bitmaps.PreviewSourceBitmap.reset();
            }
            FinishWriting();
            // What was written meanwhile may be the same file under another name.
            if (const QString error = TargetError(run_, photo, target.file); !error.isEmpty()) {
                FailedResult(report, error);
                return;
            }
            BeginWriting(target, photo, report);
        } catch (const RunTimeError& error) {
            FailedResult(report, ErrorText(ReasonFor(error)));
        } catch (const std::bad_alloc&) {
            FailedResult(report, ErrorText(ReasonCode::NotEnoughMemory) +
                                     Advice(QStringLiteral("; --jobs 1 takes less")));
        }
    }

    void BeginWriting(const ConversionTarget& target, OpenPhoto& photo, FileReport& report) {
        report.status = photo.damaged ? FileStatus::Damaged : FileStatus::Converted;
        report.reason = photo.error;
        report.size = SizeOf(photo.bitmaps.ResultBitmap.get());
        writing_ = {target, std::move(photo.bitmaps.ResultBitmap), report, begun_};
        photo.bitmaps.ResultBitmap = std::move(spare_);
        worker_.Begin([this, target, result = writing_->result.get()] {
            return SaveTo(run_, target, result, runner_);
        });
    }

    QString Advice(const QString& text) const { return run_.options.advises ? text : QString(); }

    void FinishWriting() {
        if (!writing_) {
            return;
        }
        {
            const CoreLent lent(runner_);
            while (!worker_.Wait(100)) {
                reports_.Bar().Refresh();
            }
        }
        const SaveResult saved = worker_.Take();
        FileReport report = std::move(writing_->report);
        report.seconds = static_cast<double>(writing_->sinceBegun.elapsed()) / 1000.0;
        spare_ = std::move(writing_->result);
        writing_.reset();
        if (!saved) {
            report.size = {};
            FailedResult(report, ErrorText(saved.reason) +
                                     Advice(ResultAdvice(report.result, saved.reason)));
            return;
        }
        const QFileInfo file(report.result);
        run_.written.insert(file.canonicalFilePath(), report.photo);
        report.bytes = file.size();
        report.notes += saved.note.isEmpty() ? QStringList() : QStringList(ErrorText(saved.note));
        ++written_;
        reports_.Note(report.result, saved.note);
        reports_.Written(report);
        reports_.Bar().Done(1);
    }

    // The following come after what was begun before them.
    void SkippedResult(FileReport& report) {
        if (run_.options.json) {
            FinishWriting();
            report.status = FileStatus::Skipped;
            reports_.Skipped(report);
        }
        reports_.Bar().Done(1);
    }

    void FailedResult(FileReport report, const QString& reason) {
        FinishWriting();
        report.status = FileStatus::Failed;
        report.reason = reason;
        report.seconds = static_cast<double>(begun_.elapsed()) / 1000.0;
        reports_.Failed(report);
        reports_.Bar().Done(1);
    }

    void FailedPhoto(const QString& photo, const QString& reason) {
        FinishWriting();
        reports_.Failed({.photo = photo,
                         .status = FileStatus::Failed,
                         .reason = reason,
                         .seconds = static_cast<double>(begun_.elapsed()) / 1000.0});
        reports_.Bar().Done(ResultsEach());
    }

    const GeneralSettings settings_;
    ThreadRunner runner_;  // all that is busy, the decoders too, takes its cores of this
    const Console& console_;
    RunReports reports_;
    RunWait wait_;
    std::unique_ptr<PictureReader> reader_;  // early: it gets ready meanwhile
    std::optional<PrefetchingReader> feed_;
    UnfinishedFile unfinished_;  // for a console that does not ask
    ConversionRun run_;
    QStringList files_;
    std::map<qsizetype, std::vector<FileReport>> skipped_;  // before the file of that number
    qsizetype asked_ = 0;                                   // files that were begun to be read
    QElapsedTimer begun_;                                   // the result at hand
    std::optional<Writing> writing_;
    BitmapHandle spare_;
    qsizetype written_ = 0;
    bool left_ = false;  // something was not done because of a signal
    SaveWorker worker_;  // last: it ends before what it works with
};

}  // namespace

int ConvertPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                  const Console& console) {
    return Conversions(options, gears, settings, console).Go();
}

}  // namespace varnel
