// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <optional>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "cli/films/films.h"
#include "cli/names/existing_results.h"
#include "cli/names/other_shards.h"
#include "cli/options/advice.h"
#include "cli/report/failure_text.h"
#include "cli/report/file_digest.h"
#include "cli/report/run_reports.h"
#include "files/noting_operations.h"
#include "film/conversion/convert_film.h"
#include "film/conversion/film_pictures.h"
#include "pipeline/conversion/free_names.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr qsizetype mostDamageTold = 20;  // of a film, line by line

// On which it was filmed, as its own tag or else its file says.
QDate DayOf(const FilmInfo& film, const QString& path) {
    for (const auto& [name, value] : film.tags) {
        if (const QDateTime time = QDateTime::fromString(QString::fromUtf8(value), Qt::ISODate);
            name == "creation_time" && time.isValid()) {
            return time.date();
        }
    }
    return QFileInfo(path).lastModified().date();
}

// The rule by which the last three letters of a photo's name are its ending is for theirs: ".webm"
// or no ending at all would leave odd names.
QString WithEndingOfThree(const QString& path) {
    const QFileInfo file(path);
    return file.suffix().size() == 3
               ? path
               : path.chopped(file.suffix().size() + (file.suffix().isEmpty() ? 0 : 1)) +
                     QStringLiteral(".mp4");
}

class FilmsRun {
  public:
    FilmsRun(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
             const Console& console)
        : request_{options, gears, settings,
                   StopCheck([&console] { return console.StopSignal() != 0; })},
          console_(console),
          reports_(options, console),
          runner_(options.jobs.value_or(QThread::idealThreadCount())),
          targets_(options.files, RulesOf(options)) {
        if (console.unfinished != nullptr && !options.film.keepPart) {
            operations_.emplace(*console.unfinished);
        }
    }

    int Go() {
        const QStringList& films = request_.options.files;
        reports_.Bar().Start(films.size() * RecordsOfEach(request_.options));
        const Namesakes namesakes(request_.options);
        for (film_ = 0; film_ < films.size() && !StopAsked(); ++film_) {
            if (!IsInShard(request_.options, film_)) {
                continue;
            }
            for (const qsizetype other : namesakes.Before(film_)) {
                TakeNames(other);
            }
            ConvertFile(films[film_]);
        }
        reports_.Finish();
        if (const int signal = console_.StopSignal(); signal != 0 && stopped_) {
            reports_.Say(QStringLiteral("stopped, %1 of %2 films are written; with --skip-existing "
                                        "the same command does the rest")
                             .arg(written_)
                             .arg(films.size() * RecordsOfEach(request_.options)));
            return exitStopped + signal;
        }
        return reports_.AllWell() ? exitAllWritten : exitSomeFailed;
    }

  private:
    bool StopAsked() {
        stopped_ = stopped_ || console_.StopSignal() != 0;
        return stopped_;
    }

    void Fail(FileReport report, const QString& reason) {
        report.status = FileStatus::Failed;
        report.reason = reason;
        reports_.Failed(report);
    }

    void ConvertFile(const QString& path) {
        reports_.Bar().SetPhoto(path);
        const std::unique_ptr<FilmReader> reader = NewFilmReader();
        PhotoRecords records;
        Reason error = reader->Open(path);
        if (error.isEmpty()) {
            const Reason thrown = Attempt([&] { records = Records(path, *reader); });
            error = thrown.isEmpty() ? records.error : thrown;
        }
        if (!error.isEmpty()) {
            Fail({.photo = path}, ErrorText(error) + PhotoAdvice(path));
            reports_.Bar().Done(RecordsOfEach(request_.options));
            return;
        }
        for (const QString& note : notes_) {
            reports_.Say(path + QStringLiteral(": ") + note);
        }
        for (std::size_t n = 0; n < records.all.size() && !StopAsked(); ++n) {
            ConvertRecord(path, *reader, records.all[n], static_cast<qsizetype>(n));
            reports_.Bar().Done(1);
        }
    }

    // The frame that the gear, the circle and straight edges are looked for on.
    bool NeedsFrame() const {
        return !request_.gears.forAll || request_.options.circle == CircleUse::Found ||
               request_.options.straighten;
    }

    PhotoRecords Records(const QString& path, FilmReader& reader) {
        BitmapHandle frame;
        if (NeedsFrame()) {
            auto typical = TypicalFrame(reader, runner_);
            if (const auto* const error = std::get_if<Reason>(&typical)) {
                return {{}, *error};
            }
            frame = std::move(std::get<BitmapHandle>(typical));
        }
        const auto gear =
            GearFor(request_.gears, frame ? frame->metadata.photo.origin : CameraInfo());
        if (const auto* const error = std::get_if<QString>(&gear)) {
            return {{}, {ReasonCode::Words, *error}};
        }
        start_ = StartRecord(request_, path, {reader.Info().format.size, 1},
                             std::get<std::optional<GearRecord>>(gear), frame.get());
        notes_ = start_.notes;
        PhotoRecords records = RecordsFor(request_, start_.record, runner_);
        for (const Reason& note : records.notes) {
            notes_.append(ErrorText(note));
        }
        for (ImageRecord& record : records.all) {
            const FilmOptions& film = request_.options.film;
            record.Film = FilmCourse{film.from, film.to, film.keys, 0.0};
            NoteLacks(record);
        }
        notes_.removeAll(QString());
        notes_.removeDuplicates();
        return records;
    }

    void NoteLacks(const ImageRecord& record) {
        if (record.Sampling == SamplingKind::Fine) {
            notes_.append(QStringLiteral("films are sampled in the classic way"));
        }
        if (request_.options.preview) {
            notes_.append(QStringLiteral("films have no preview; --size gives them another size"));
        }
    }

    FilmContainer ContainerOfResult(const QString& path) const {
        const QString& output = request_.options.output;
        return ContainerFor(request_.options.film, output.isEmpty() ? path : output);
    }

    NameFacts FactsOf(qsizetype film, qsizetype index, const FilmReader& reader) const {
        const QStringList& films = request_.options.files;
        const auto each = RecordsOfEach(request_.options);
        return {static_cast<int>(film * each + index) + 1, static_cast<int>(films.size() * each),
                DayOf(reader.Info(), films[film])};
    }

    // Of a film that another shard converts.
    void TakeNames(qsizetype film) {
        const QString& path = request_.options.files[film];
        const std::unique_ptr<FilmReader> reader = NewFilmReader();
        if (!reader->Open(path).isEmpty()) {
            return;
        }
        Attempt([&] {
            qsizetype index = 0;
            for (const ImageRecord& record : Records(path, *reader).all) {
                targets_.Take(path, TargetOf(path, record, FactsOf(film, index++, *reader)));
            }
        });
    }

    QString TargetOf(const QString& path, const ImageRecord& record, const NameFacts& facts) {
        if (!request_.options.output.isEmpty()) {
            return request_.options.output;
        }
        const Options& options = request_.options;
        const bool keeps = options.keepEnding || options.namePattern.contains(u"{ending}");
        const QString named = keeps ? path : WithEndingOfThree(path);
        ImageRecord called = record;
        called.FileName = QFileInfo(named).fileName();
        QString target = TargetFor(request_, named, called, facts);
        target.chop(ExtensionOf(TypeFor(request_)).size());
        return target + u'.' + ToText(ContainerOfResult(path));
    }

    void ConvertRecord(const QString& path, FilmReader& reader, const ImageRecord& record,
                       qsizetype index) {
        const FilmContainer container = ContainerOfResult(path);
        FileReport report = ReportOf(path, record);
        report.gearSource = ToText(start_.reading.source);
        report.uncertain = start_.reading.doubts.Names();
        report.notes = notes_;
        const Reason named = Attempt([&] {
            report.result = TargetOf(path, record, FactsOf(film_, index, reader));
            if (request_.options.keepBoth) {
                report.result = free_.Take(report.result);
            }
        });
        if (!named.isEmpty()) {
            Fail(report, ErrorText(named));
            return;
        }
        if (const TargetRefusal taken = targets_.Take(path, report.result)) {
            Fail(report, RefusalText(request_.options, path, taken));
        } else if (targets_.IsSkipped(report.result)) {
            report.status = FileStatus::Skipped;
            reports_.Skipped(report);
        } else if (const TargetRefusal refused = targets_.Check(path, report.result, false)) {
            Fail(report, RefusalText(request_.options, path, refused));
        } else {
            Convert(reader, {report.result, record, EncodingFor(request_.options.film, container)},
                    report);
        }
    }

    void Convert(FilmReader& reader, const FilmJob& job, FileReport& report) {
        QElapsedTimer clock;
        clock.start();
        reports_.Bar().Begin(1.0F);
        FilmPorts ports{runner_, operations_ ? &*operations_ : nullptr, [this](double part) {
                            reports_.Bar().Advance(static_cast<float>(part));
                            return !StopAsked();
                        }};
        const FilmOutcome outcome = ConvertFilm(reader, job, ports);
        reports_.Bar().End();
        report.seconds = static_cast<double>(clock.elapsed()) / 1000.0;
        TellDamage(report, outcome.damage);
        if (outcome.error.Is(ReasonCode::Cancelled)) {
            return;
        }
        if (!outcome.error.isEmpty()) {
            Fail(report, ErrorText(outcome.error) + ResultAdvice(report.result, outcome.error));
            return;
        }
        report.size = outcome.size;
        report.frames = outcome.frames;
        report.bytes = QFileInfo(report.result).size();
        report.sha256 = DigestFor(request_.options, report.result);
        report.depth = QString::number(reader.Info().format.bits);
        report.notes += outcome.notes;
        for (const QString& note : outcome.notes) {
            reports_.Note(report.result, {ReasonCode::Words, note});
        }
        if (const QString cut = CutNote(job.image); !cut.isEmpty()) {
            report.notes.append(cut);
            reports_.Note(report.result, {ReasonCode::Words, cut});
        }
        ++written_;
        targets_.NoteWritten(report.photo, report.result, !outcome.damage.isEmpty());
        reports_.Written(report);
    }

    void TellDamage(FileReport& report, const Reasons& damage) {
        if (damage.isEmpty()) {
            return;
        }
        report.status = FileStatus::Damaged;
        report.reason = ErrorText(damage.front());
        for (const Reason& one : damage.first(std::min(damage.size(), mostDamageTold))) {
            reports_.Damaged(report.photo, ErrorText(one));
        }
        if (damage.size() > mostDamageTold) {
            reports_.Damaged(report.photo,
                             QStringLiteral("%1 more").arg(damage.size() - mostDamageTold));
        }
    }

    const ConvertRequest request_;
    const Console& console_;
    RunReports reports_;
    ThreadRunner runner_;
    std::optional<NotingOperations> operations_;
    ConversionTargets targets_;
    FreeNames free_;
    qsizetype film_ = 0;
    StartedRecord start_;  // of the film at hand
    QStringList notes_;
    qsizetype written_ = 0;
    bool stopped_ = false;
};

}  // namespace

int ConvertFilms(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                 const Console& console) {
    return FilmsRun(options, gears, settings, console).Go();
}

}  // namespace varnel
