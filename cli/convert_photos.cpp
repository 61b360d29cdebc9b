// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_photos.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <map>
#include <optional>
#include <utility>

#include "base/error_text.h"
#include "base/thread_runner.h"
#include "cli/conversion_records.h"
#include "cli/films/films.h"
#include "cli/names/existing_results.h"
#include "cli/names/other_shards.h"
#include "cli/report/failure_text.h"
#include "cli/report/file_digest.h"
#include "cli/report/run_reports.h"
#include "cli/signal_wait.h"
#include "pipeline/conversion/conversion_run.h"
#include "pipeline/conversion/free_names.h"
#include "remap/image/photo_date.h"

namespace varnel {

namespace {

// The run of one command, as the console shows it; Go returns the exit code.
class CommandRun : public ConversionObserver {
  public:
    CommandRun(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
               const Console& console)
        : settings_(With(options, settings)),
          request_{options, gears, settings_,
                   StopCheck([&console] { return console.StopSignal() != 0; })},
          runner_(options.jobs.value_or(QThread::idealThreadCount())),
          console_(console),
          reports_(options, console),
          wait_(reports_.Bar(), console),
          reader_(console.TakeReader()),
          feed_(std::make_shared<PrefetchingReader>(*reader_, MoreReaders(runner_.Cores()), wait_,
                                                    ReadChoicesFor(options, settings_), &runner_)),
          targets_(options.files, options.film.output.isEmpty() ? RulesOf(options) : TargetRules()),
          others_(request_) {}

    int Go() {
        files_ = FilesToDo();
        reports_.Bar().Start(files_.size() * RecordsOfEach(request_.options));
        if (!request_.options.film.output.isEmpty() && !BeginFilm()) {
            return exitSomeFailed;
        }
        const ConversionRunEnd end = RunConversions(Plan(), targets_, *this, Ports());
        ReportSkipped(files_.size());
        FinishFilm(end.stopped);
        reports_.Finish();
        if (!end.lasting.isEmpty()) {
            reports_.Say(ErrorText(end.lasting));
        }
        if (const int signal = console_.StopSignal(); signal != 0 && end.stopped) {
            ReportStopped();
            return exitStopped + signal;
        }
        return reports_.AllWell() && end.lasting.isEmpty() ? exitAllWritten : exitSomeFailed;
    }

  private:
    // What is known of a photo until it is done.
    struct Facts {
        QDate day;  // on which it was taken, where the names ask for it
        FrameReading reading;
        QStringList notes;
    };

    static GeneralSettings With(const Options& options, GeneralSettings settings) {
        settings.AutoOrient = settings.AutoOrient && !options.noAutoOrient;
        settings.KeepDepth = KeepsDepth(options, settings) && options.film.output.isEmpty();
        return settings;
    }

    ConversionPlan Plan() {
        const Options& options = request_.options;
        return {.photos = files_,
                .records = [this](qsizetype photo,
                                  const LoadedPicture& picture) { return Records(photo, picture); },
                .target = [this](const Conversion& result) { return Target(result); },
                .output = {EncodingFor(request_), settings_.WriteMetadata && !options.noMetadata,
                           settings_.WriteSettings && !options.noSettings},
                .preview = options.preview,
                .smoothPreview = options.antialiased,
                .finishesBegun = true,
                .drawsByRows = true,
                .namesLastAtEnd = true};
    }

    QString Target(const Conversion& conversion) {
        if (film_) {
            return request_.options.film.output;
        }
        const qsizetype number = numbers_.value(conversion.photo, conversion.photo);
        QString target = TargetFor(
            request_, files_.at(conversion.photo), conversion.record,
            {ResultNumber(number, conversion.index), Results(), facts_[conversion.photo].day});
        if (request_.options.keepBoth) {
            return free_.For(ResultNumber(number, conversion.index), target);
        }
        others_.Take(number, target, targets_);
        return target;
    }

    ConversionPorts Ports() {
        ConversionPorts ports = PortsFor(*feed_);
        ports.load = [this](const QString& path) {
            reports_.Bar().SetPhoto(path);
            return IsFrameOf(path) ? LoadFilmFrame(path, *request_.options.film.frame,
                                                   settings_.KeepDepth, runner_)
                                   : feed_->Take(path);
        };
        if (request_.options.film.frame) {
            ports.readAhead = [this, photos = ports.readAhead](const QString& path) {
                return photos && !IsFrameOf(path) && photos(path);
            };
        }
        if (film_) {
            ports.save = [this](const OutputEncoding& /*encoding*/, const Bitmap* picture,
                                const QString& /*path*/) {
                Reason error = film_->Add(*picture);
                return SaveResult{error.isEmpty(), std::move(error)};
            };
        }
        if (film_ || request_.options.film.frame) {
            ports.loadEarly = nullptr;
        } else if (ports.loadEarly) {
            ports.loadEarly = [this, early = ports.loadEarly](const QString& path) {
                reports_.Bar().SetPhoto(path);
                return early(path);
            };
        }
        if (runner_.Cores() == 1) {
            ports.readAhead = nullptr;
        }
        ports.allRead = [this] {  // its decoders' memory is better used now
            EndMeanwhile(std::move(feed_), std::move(reader_), runner_);
        };
        ports.digest = request_.options.json ? &Sha256Of : nullptr;
        ports.cores = &runner_;
        ports.unfinished = console_.unfinished;
        return ports;
    }

    bool IsFrameOf(const QString& path) const {
        return request_.options.film.frame && IsFilmFile(path);
    }

    // False where there is none to be.
    bool BeginFilm() {
        const QString& path = request_.options.film.output;
        FileReport report{.photo = path};
        report.result = path;
        ConversionTargets films(request_.options.files, RulesOf(request_.options));
        if (films.IsSkipped(path)) {
            report.status = FileStatus::Skipped;
            reports_.Skipped(report);
            files_.clear();
            return true;
        }
        if (const TargetRefusal refused = films.Check({}, path, false)) {
            report.status = FileStatus::Failed;
            report.reason = RefusalText(request_.options, path, refused);
            reports_.Failed(report);
            return false;
        }
        film_ = NewResultsAsFilm(request_.options, console_, runner_);
        clock_.start();
        return film_ != nullptr;
    }

    void FinishFilm(bool stopped) {
        if (!film_ || stopped) {
            film_.reset();
            return;
        }
        FileReport report{.photo = request_.options.film.output};
        report.result = report.photo;
        const bool whole = filmFrames_ == files_.size() * RecordsOfEach(request_.options);
        const Reason error = whole ? film_->Finish() : Reason();
        film_.reset();
        if (!whole || !error.isEmpty()) {
            report.status = FileStatus::Failed;
            report.reason = whole ? ErrorText(error)
                                  : QStringLiteral("not written, because not all photos are in it");
            reports_.Failed(report);
            return;
        }
        report.frames = filmFrames_;
        report.bytes = QFileInfo(report.result).size();
        report.sha256 = DigestFor(request_.options, report.result);
        report.seconds = static_cast<double>(clock_.elapsed()) / 1000.0;
        report.size = filmSize_;
        reports_.Written(report);
    }

    // Of all results of the command, those that exist already included.
    int Results() const {
        return static_cast<int>(request_.options.files.size() * RecordsOfEach(request_.options));
    }

    int ResultNumber(qsizetype file, qsizetype index) const {
        return static_cast<int>(file * RecordsOfEach(request_.options) + index) + 1;
    }

    // Without those of which every result exists already, if the options say so.
    QStringList FilesToDo() {
        if (!request_.options.skipExisting && !request_.options.shard) {
            return request_.options.files;
        }
        QStringList files;
        PhotoLoader photos(*reader_, &wait_, &settings_, request_.options.raw);
        for (qsizetype n = 0; n < request_.options.files.size(); ++n) {
            if (!IsInShard(request_.options, n)) {
                continue;
            }
            const QString& file = request_.options.files[n];
            others_.LookUp(n, photos);
            const bool asks = request_.options.skipExisting && !StopAsked() &&
                              !request_.options.film.frame &&
                              request_.options.film.output.isEmpty();
            const auto take = [&](const QString& result) {
                others_.Take(n, result, targets_);
                return targets_.Take(file, result);
            };
            const auto results = asks ? ExistingResults(request_, photos,
                                                        {file, ResultNumber(n, 0), Results()}, take)
                                      : std::vector<FileReport>();
            if (results.empty()) {
                files.append(file);
                numbers_.append(n);
            }
            if (!results.empty()) {
                auto& skipped = skipped_[files.size()];
                skipped.insert(skipped.end(), results.begin(), results.end());
            }
        }
        return files;
    }

    ConversionRecords Records(qsizetype photo, const LoadedPicture& picture) {
        if (NamesDay(request_.options.namePattern)) {
            facts_[photo].day = PhotoDate(picture.bitmap->metadata.photo, files_.at(photo));
        }
        const GearChoice& gears = request_.gears;
        const auto gear =
            GearFor(gears, gears.forAll ? CameraInfo() : picture.bitmap->metadata.photo.origin);
        if (const auto* const error = std::get_if<QString>(&gear)) {
            return {{}, {ReasonCode::Words, *error}};
        }
        const auto& known = std::get<std::optional<GearRecord>>(gear);
        if ((picture.arriving || picture.planar) && NeedsPixels(request_.options, known)) {
            return {.needsPixels = true};
        }
        const StartedRecord start =
            StartRecord(request_, files_.at(photo), {picture.size, picture.orientation}, known,
                        picture.bitmap.get());
        PhotoRecords records = RecordsFor(request_, start.record, runner_);
        Facts& facts = facts_[photo];
        facts.reading = start.reading;
        facts.notes = start.notes;
        for (const Reason& note : records.notes) {
            facts.notes.append(ErrorText(note));
        }
        facts.notes.removeAll(QString());
        return {std::move(records.all), records.error};
    }

    void Begun(const Conversion& conversion) override {
        if (conversion.index > 0) {
            return;
        }
        const QString& photo = files_.at(conversion.photo);
        ReportSkipped(conversion.photo);
        if (!conversion.damage.isEmpty()) {
            reports_.Damaged(photo, ErrorText(conversion.damage));
        }
        for (const QString& note : facts_[conversion.photo].notes) {
            reports_.Say(photo + QStringLiteral(": ") + note);
        }
    }

    RenderProgress& Progress() override { return reports_.Bar(); }

    bool StopAsked() override { return console_.StopSignal() != 0; }

    void Ended(const Conversion& conversion, const ConversionOutcome& outcome) override {
        const QString& photo = files_.at(conversion.photo);
        facts_.erase(facts_.begin(), facts_.lower_bound(conversion.photo));
        if (outcome.end == ConversionEnd::NotRead || outcome.end == ConversionEnd::NoRecords) {
            ReportFailed({.photo = photo}, conversion, outcome);
            reports_.Bar().Done(RecordsOfEach(request_.options));
            return;
        }
        FileReport report = ReportOf(photo, conversion.record);
        report.result = conversion.target;
        const Facts& facts = facts_[conversion.photo];
        report.gearSource = ToText(facts.reading.source);
        report.uncertain = facts.reading.doubts.Names();
        report.notes = facts.notes;
        if (outcome.end == ConversionEnd::Written && film_) {
            ++filmFrames_;
            filmSize_ = outcome.size;
        } else if (outcome.end == ConversionEnd::Written) {
            ReportWritten(report, conversion, outcome);
        } else if (outcome.end == ConversionEnd::Skipped) {
            report.status = FileStatus::Skipped;
            reports_.Skipped(report);
        } else {
            ReportFailed(report, conversion, outcome);
        }
        reports_.Bar().Done(1);
    }

    void ReportWritten(FileReport& report, const Conversion& conversion,
                       const ConversionOutcome& outcome) {
        report.status = conversion.damage.isEmpty() ? FileStatus::Converted : FileStatus::Damaged;
        report.reason = ErrorText(conversion.damage);
        report.size = outcome.size;
        report.bytes = QFileInfo(report.result).size();
        report.sha256 = outcome.digest;
        report.depth = DepthText(outcome.samples);
        report.seconds = outcome.seconds;
        if (!outcome.note.isEmpty()) {
            report.notes.append(ErrorText(outcome.note));
        }
        ++written_;
        reports_.Note(report.result, outcome.note);
        if (const QString cut = CutNote(conversion.record); !cut.isEmpty()) {
            report.notes.append(cut);
            reports_.Note(report.result, {ReasonCode::Words, cut});
        }
        reports_.Written(report);
    }

    void ReportFailed(FileReport report, const Conversion& conversion,
                      const ConversionOutcome& outcome) {
        report.status = FileStatus::Failed;
        report.reason = FailureText(request_.options, report.photo, conversion, outcome);
        report.seconds = outcome.seconds;
        reports_.Failed(report);
    }

    // Those that come before the file of that number.
    void ReportSkipped(qsizetype n) {
        const auto skipped = skipped_.extract(n);
        for (const FileReport& report : skipped ? skipped.mapped() : std::vector<FileReport>()) {
            if (report.status == FileStatus::Failed) {
                reports_.Failed(report);
            } else {
                reports_.Skipped(report);
            }
        }
    }

    void ReportStopped() {
        reports_.Say(QStringLiteral("stopped, %1 of %2 pictures are written; ")
                         .arg(written_)
                         .arg(files_.size() * RecordsOfEach(request_.options)) +
                     HowToGoOn(request_.options));
    }

    const GeneralSettings settings_;
    const ConvertRequest request_;
    ThreadRunner runner_;  // all that is busy, the decoders too, takes its cores of this
    const Console& console_;
    RunReports reports_;
    SignalWait wait_;
    std::shared_ptr<PictureReader> reader_;  // early: it gets ready meanwhile
    std::shared_ptr<PrefetchingReader> feed_;
    ConversionTargets targets_;
    NamesOfOthers others_;
    std::unique_ptr<ResultsAsFilm> film_;  // of --film
    qsizetype filmFrames_ = 0;
    PixelSize filmSize_{};
    QElapsedTimer clock_;
    QStringList files_;
    QList<qsizetype> numbers_;  // of these files among those of the command, unless all are done
    FreeNames free_;
    std::map<qsizetype, std::vector<FileReport>> skipped_;  // before the file of that number
    std::map<qsizetype, Facts> facts_;                      // by the photo's number
    qsizetype written_ = 0;
};

}  // namespace

int ConvertPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                  const Console& console) {
    return CommandRun(options, gears, settings, console).Go();
}

}  // namespace varnel
