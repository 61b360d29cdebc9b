// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_run.h"

#include <QCoreApplication>
#include <cerrno>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "pipeline/output/save_wish.h"
#include "pipeline/photos/raw_pairs.h"
#include "remap/image/photo_date.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

QString RefusalText(TargetError error, const QString& path, const Reason& damage) {
    switch (error) {
        case TargetError::IsFolder:
            return Texts::tr("could not write %1: %2")
                .arg(path, ErrorText({ReasonCode::SystemError, EISDIR}));
        case TargetError::IsThePhoto:
            return Texts::tr("%1 is the photo itself").arg(path);
        case TargetError::IsPhotoOfRun:
            return Texts::tr("%1 is one of the queued photos").arg(path);
        case TargetError::DamagedPhoto:
            return Texts::tr("the photo is damaged (%1) and does not replace the older %2")
                .arg(ErrorText(damage), path);
        case TargetError::None:
        case TargetError::IsResultOfRun:  // the batch's rules let these be replaced
        case TargetError::Exists:
            break;
    }
    return {};
}

QString FailureText(const Conversion& conversion, const ConversionOutcome& outcome) {
    switch (outcome.end) {
        case ConversionEnd::Refused:
            return RefusalText(outcome.refusal.error, conversion.target, conversion.damage);
        case ConversionEnd::NotSaved:
            return Texts::tr("could not write %1: %2")
                .arg(conversion.target, ErrorText(outcome.reason));
        case ConversionEnd::NotRead:
        case ConversionEnd::NoRecords:
        case ConversionEnd::NotConverted:
        case ConversionEnd::Written:
        case ConversionEnd::Skipped:
            break;
    }
    return ErrorText(outcome.reason);
}

// Entries that follow one another and have the same photo, as frames of a sequence do, are records
// of one photo of the run.
class Batch : public ConversionObserver {
  public:
    Batch(RecordArray<ImageRecord>& queue, const BatchChoices& choices, BatchObserver& observer)
        : queue_(queue), choices_(choices), observer_(observer) {
        for (int entry = 1; entry <= queue_.UpperBound(); ++entry) {
            const QString path = SourcePath(queue_(entry));
            if (photos_.isEmpty() || path != photos_.last()) {
                photos_.append(path);
                firstEntries_.append(entry);
            }
        }
        firstEntries_.append(queue_.UpperBound() + 1);
        choices_.paired = PairedPhotos(queue_);
        summary_.folder = choices_.nextToPhoto ? QString() : choices_.folder;
        summary_.queued = queue_.UpperBound();
    }

    // Photos that follow one another in one run, and each film by itself.
    BatchSummary Go(const ConversionPorts& ports, FilmSaver* films) {
        ConversionTargets targets(photos_, {});
        bool stopped = false;
        while (first_ < photos_.size() && !stopped) {
            qsizetype end = first_;
            while (end < photos_.size() && !IsFilm(end)) {
                ++end;
            }
            if (end > first_) {
                stopped = ConvertPhotos(end, targets, ports);
            } else {
                stopped = ConvertFilms(targets, films);
                ++end;
            }
            first_ = end;
        }
        return std::move(summary_);
    }

  private:
    bool IsFilm(qsizetype photo) const { return queue_(firstEntries_[photo]).Film.has_value(); }
    qsizetype PhotoOf(const Conversion& conversion) const { return first_ + conversion.photo; }
    int EntryOf(const Conversion& conversion) const {
        return firstEntries_[PhotoOf(conversion)] + static_cast<int>(conversion.index);
    }

    bool ConvertPhotos(qsizetype end, ConversionTargets& targets, const ConversionPorts& ports) {
        const ConversionPlan plan{
            .photos = photos_.mid(first_, end - first_),
            .records =
                [this](qsizetype photo, const LoadedPicture& picture) {
                    return Records(first_ + photo, picture);
                },
            .target = [this](const Conversion& conversion) { return Target(conversion); },
            .output = {EncodingOf(choices_), choices_.writeMetadata, choices_.writeSettings},
            .drawsByRows = choices_.lessMemory};
        return RunConversions(plan, targets, *this, ports).stopped;
    }

    // The entries of the film at hand.
    bool ConvertFilms(ConversionTargets& targets, FilmSaver* films) {
        for (int entry = firstEntries_[first_]; entry < firstEntries_[first_ + 1]; ++entry) {
            if (StopAsked()) {
                return true;
            }
            Conversion conversion;
            conversion.index = entry - firstEntries_[first_];
            conversion.record = AsSaved(queue_(entry), choices_.sampling);
            const Reason error = Attempt([&] { ConvertFilm(conversion, targets, films); });
            if (!error.isEmpty()) {
                NoteFailure(conversion, ErrorText(error));
            }
            NoteDone();
        }
        return false;
    }

    void ConvertFilm(Conversion& conversion, ConversionTargets& targets, FilmSaver* films) {
        const QString& film = photos_[first_];
        conversion.target = Target(conversion);
        TargetRefusal refusal = targets.Take(film, conversion.target);
        refusal = refusal ? refusal : targets.Check(film, conversion.target, false);
        if (refusal) {
            NoteFailure(conversion, RefusalText(refusal.error, conversion.target, {}));
            return;
        }
        Begun(conversion);
        if (films == nullptr) {
            NoteFailure(conversion, Texts::tr("this program cannot write films"));
            return;
        }
        Progress().Begin(1.0F);
        const SavedFilm saved =
            films->Save(conversion.record, choices_.film, conversion.target, [this](double part) {
                Progress().Advance(static_cast<float>(part));
                return !StopAsked();  // a film may take long: it is given up
            });
        Progress().End();
        if (!saved.error.isEmpty()) {
            NoteFailure(
                conversion,
                Texts::tr("could not write %1: %2").arg(conversion.target, ErrorText(saved.error)));
            return;
        }
        targets.NoteWritten(film, conversion.target, false);
        NoteWritten(conversion, saved.notes.isEmpty()
                                    ? Reason()
                                    : Reason(ReasonCode::Words, saved.notes.join(u"; ")));
    }

    QString Target(const Conversion& conversion) const {
        return BatchPath(conversion.record, choices_,
                         FactsOf(queue_, EntryOf(conversion), choices_, days_));
    }

    ConversionRecords Records(qsizetype photo, const LoadedPicture& picture) {
        if (NamesDay(choices_.pattern)) {
            days_.insert(photos_[photo], PhotoDate(picture.bitmap->metadata.photo, photos_[photo]));
        }
        ConversionRecords records;
        for (int entry = firstEntries_[photo]; entry < firstEntries_[photo + 1]; ++entry) {
            TakeSize({SizeOf(picture.bitmap.get()), picture.orientation}, queue_(entry));
            records.all.push_back(AsSaved(queue_(entry), choices_.sampling));
        }
        return records;
    }

    void Begun(const Conversion& conversion) override {
        if (!conversion.target.isEmpty()) {
            observer_.Naming(conversion.target);
        }
    }

    RenderProgress& Progress() override { return observer_.Progress(); }

    void Ended(const Conversion& conversion, const ConversionOutcome& outcome) override {
        if (outcome.end == ConversionEnd::NotRead || outcome.end == ConversionEnd::NoRecords) {
            FailAll(PhotoOf(conversion), FailureText(conversion, outcome));
            return;
        }
        if (outcome.end == ConversionEnd::Written) {
            NoteWritten(conversion, outcome.note);
        } else {
            NoteFailure(conversion, FailureText(conversion, outcome));
        }
        NoteDone();
    }

    bool StopAsked() override { return observer_.StopAsked(); }

    void FailAll(qsizetype photo, const QString& error) {
        for (int entry = firstEntries_[photo]; entry < firstEntries_[photo + 1]; ++entry) {
            summary_.failures.push_back({photos_[photo], error});
            observer_.EntryEnded(entry, false, error);
            NoteDone();
            if (StopAsked()) {
                return;
            }
        }
    }

    void NoteFailure(const Conversion& conversion, const QString& error) {
        summary_.failures.push_back({photos_[PhotoOf(conversion)], error});
        observer_.EntryEnded(EntryOf(conversion), false, error);
    }

    void NoteWritten(const Conversion& conversion, const Reason& note) {
        const QString& path = conversion.target;
        if (!note.isEmpty()) {
            summary_.notes.push_back({path, note});
        }
        if (summary_.written.contains(path) && !summary_.replaced.contains(path)) {
            summary_.replaced.append(path);
        }
        summary_.written.append(path);
        summary_.entries.append(EntryOf(conversion));
        observer_.EntryEnded(EntryOf(conversion), true, path);
        if (!conversion.damage.isEmpty()) {
            summary_.damaged.push_back(
                {photos_[PhotoOf(conversion)], ErrorText(conversion.damage)});
        }
    }

    void NoteDone() {
        ++summary_.done;
        observer_.Done(summary_.done, summary_.queued);
    }

    RecordArray<ImageRecord>& queue_;
    BatchChoices choices_;
    BatchObserver& observer_;
    QStringList photos_;
    QList<int> firstEntries_;  // of each photo, and one past the last
    PhotoDays days_;
    BatchSummary summary_;
    qsizetype first_ = 0;  // photo of those at hand
};

}  // namespace

QString BatchFolder(const ImageRecord& entry, const BatchChoices& choices) {
    return !choices.nextToPhoto     ? choices.folder
           : entry.Folder.isEmpty() ? QStringLiteral("/")
                                    : entry.Folder;
}

QString BatchPath(const ImageRecord& entry, const BatchChoices& choices, const NameFacts& facts) {
    const PhotoEnding ending =
        choices.paired.contains(SourcePath(entry)) ? PhotoEnding::Kept : PhotoEnding::Cut;
    const QString path =
        PathByPattern(AsSaved(entry, choices.sampling), BatchFolder(entry, choices),
                      {PatternOf(choices), choices.additions, ending}, choices.type, facts);
    return entry.Film ? path.chopped(ExtensionOf(choices.type).size()) + EndingOf(choices.film)
                      : path;
}

QSet<QString> PairedPhotos(const RecordArray<ImageRecord>& queue) {
    QStringList photos;
    for (const ImageRecord& entry : queue) {
        photos.append(SourcePath(entry));
    }
    QSet<QString> paired;
    for (const auto& [raw, jpeg] : RawPairsIn(photos)) {
        paired << raw << jpeg;
    }
    return paired;
}

NameFacts FactsOf(const RecordArray<ImageRecord>& queue, int entry, const BatchChoices& choices,
                  const PhotoDays& days) {
    NameFacts facts{entry, queue.UpperBound(), {}};
    if (NamesDay(choices.pattern)) {
        const QString path = SourcePath(queue(entry));
        const auto day = days.constFind(path);
        facts.day = day != days.constEnd() ? *day : PhotoDate({}, path);
    }
    return facts;
}

BatchSummary RunBatch(RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                      BatchObserver& observer, const ConversionPorts& ports, FilmSaver* films) {
    return Batch(queue, choices, observer).Go(ports, films);
}

}  // namespace varnel
