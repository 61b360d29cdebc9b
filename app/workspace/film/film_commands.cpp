// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/film/film_commands.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>

#include "film/keys/film_keys.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/moved_fields.h"

namespace varnel {

namespace {

// Of the sliders' numbers those that move and that the projection reads.
bool IsRead(const MovedField& moved, Projection projection) {
    return std::ranges::any_of(SliderRows(), [&](const SliderRowData& row) {
        if (row.id == SliderId::Effect) {
            return EffectReadBy(projection) == moved.field;
        }
        const ControlField* const control = FieldOf(row.id);
        return control != nullptr && control->field == moved.field && Reads(projection, row.id);
    });
}

}  // namespace

FilmCommands::FilmCommands(Workspace& workspace, FilmSource& source)
    : workspace_(workspace), model_(workspace.model), source_(source), player_(source) {
    connect(&model_.activity, &Activity::Idle, this, &FilmCommands::FollowList);
    connect(&model_.activity, &Activity::Idle, this, [this] {
        if (late_) {
            QTimer::singleShot(0, this, &FilmCommands::ShowLate);  // not within what drew
        }
    });
    connect(&model_.steps, &ListSteps::RecordsRestored, this, [this] {
        if (const ImageRecord* const image = Film()) {
            known_ = *image;
            QTimer::singleShot(0, this, &FilmCommands::GoToRecord);
        }
    });
    connect(&model_.list, &ImageSelection::Refilled, this, &FilmCommands::FollowList);
    connect(&model_.steps, &ListSteps::Changed, this, &FilmCommands::FollowSteps);
    connect(&player_, &FilmPlayer::FrameReady, this, &FilmCommands::ShowFrame);
    connect(&player_, &FilmPlayer::PlayingChanged, this, [this](bool playing) {
        if (playing) {
            antialiased_ = model_.controls.Antialiased();
        }
        model_.controls.SetAntialiased(!playing && antialiased_);  // a draft
        if (!playing) {
            workspace_.preview.Preview();
        }
        Q_EMIT Changed();
    });
}

ImageRecord* FilmCommands::Film() const {
    ImageRecord* const image = model_.list.Current();
    const bool isOpen = image != nullptr && image->Film && !player_.Path().isEmpty() &&
                        SourcePath(*image) == player_.Path();
    return isOpen ? image : nullptr;
}

const FilmCourse* FilmCommands::Course() const {
    const ImageRecord* const image = Film();
    return image != nullptr ? &*image->Film : nullptr;
}

double FilmCommands::Out() const {
    const FilmCourse* const film = Course();
    return film != nullptr ? film->out.value_or(Facts().seconds) : 0.0;
}

// A line became current, or was loaded again, or the list is another one.
void FilmCommands::FollowList() {
    const Bitmap* const photo = model_.state.bitmaps.FullSourceBitmap.get();
    const ImageRecord* const image = model_.list.Current();
    if (following_ || model_.activity.Busy() ||
        (Film() != nullptr && photo == shown_ && line_ == model_.list.CurrentLine())) {
        return;
    }
    const QScopedValueRollback following(following_, true);
    line_ = model_.list.CurrentLine();
    shown_ = photo;
    if (image != nullptr && image->Film && photo != nullptr) {
        Open(*image);
    } else if (!player_.Path().isEmpty()) {
        player_.Close();
        Q_EMIT Changed();
    }
}

void FilmCommands::Open(const ImageRecord& image) {
    known_ = image;
    const QString path = SourcePath(image);
    const Reason reason = path == player_.Path() ? Reason() : player_.Open(path);
    if (!reason.isEmpty()) {
        Q_EMIT NotOpened(reason);
    }
    QTimer::singleShot(0, this, &FilmCommands::GoToRecord);
    Q_EMIT Changed();
}

// To where the record's numbers are from.
void FilmCommands::GoToRecord() {
    if (const ImageRecord* const image = Film()) {
        known_ = *image;
        player_.GoTo(image->Film->at);
        Q_EMIT Changed();  // its keys may be others though it stands where it stood
    }
}

// What the user changed on a film that stands becomes part of its keys, within the same step.
void FilmCommands::FollowSteps() {
    ImageRecord* const image = Film();
    if (following_ || image == nullptr || *image == known_) {
        return;
    }
    const QScopedValueRollback following(following_, true);
    TakeChanges(*image);
    known_ = *image;
    Q_EMIT Changed();
}

void FilmCommands::TakeChanges(ImageRecord& image) {
    if (!known_.Film || SourcePath(image) != SourcePath(known_)) {
        return;
    }
    FilmCourse& film = *image.Film;
    bool changed = false;
    for (const MovedField& moved : movedFields) {
        const bool isKeyed = Moves(film.keys, moved.name) || keying_;
        if (isKeyed && image.*moved.field != known_.*moved.field) {
            SetKey(film.keys, film.at, Reach(), moved.name, image.*moved.field);
            changed = true;
        }
    }
    if (changed) {
        model_.steps.Absorb();
    }
}

// The numbers of another time are no step of the user.
void FilmCommands::TakeNumbers(ImageRecord& image, double seconds) {
    FilmCourse film = *image.Film;
    if (film.at != seconds) {
        model_.steps.Seal();  // a slider's moves at two times are two steps
    }
    film.at = seconds;
    image = RecordAt(image, film.keys, seconds);
    image.Film = std::move(film);
    known_ = image;
    const QScopedValueRollback following(following_, true);
    model_.steps.Absorb();
    model_.ShowInControls(image);
}

void FilmCommands::ShowFrame(double seconds) {
    ImageRecord* const image = Film();
    if (image == nullptr) {
        return;
    }
    if (model_.activity.Busy()) {
        late_ = seconds;
        return;
    }
    late_.reset();
    BitmapHandle picture = source_.Picture();
    if (picture == nullptr) {
        return;
    }
    Bitmaps& bitmaps = model_.state.bitmaps;
    if (bitmaps.FullSourceBitmap) {
        picture->metadata = bitmaps.FullSourceBitmap->metadata;  // the film's
    }
    bitmaps.FullSourceBitmap = std::move(picture);
    shown_ = bitmaps.FullSourceBitmap.get();
    bitmaps.PreviewSourceBitmap.reset();
    if (workspace_.photo.RebuildThumbnail()) {
        TakeNumbers(*image, seconds);
        workspace_.preview.Preview();
    }
    Q_EMIT Changed();
}

void FilmCommands::ShowLate() {
    if (late_) {
        ShowFrame(*late_);
    }
}

void FilmCommands::TogglePlaying() {
    const FilmCourse* const film = Course();
    if (player_.IsPlaying()) {
        player_.Stop();
    } else if (film != nullptr) {
        const bool isAtEnd = Now() + 2.0 * player_.FrameSeconds() > Out();
        if (isAtEnd || Now() < film->in) {
            player_.GoTo(film->in);
        }
        player_.Play(Out());
    }
}

void FilmCommands::Step(int frames) {
    player_.GoTo(Now() + frames * player_.FrameSeconds());
}

void FilmCommands::GoToKey(bool behind) {
    const FilmCourse* const film = Course();
    if (film == nullptr) {
        return;
    }
    double place = behind ? Facts().seconds : 0.0;
    for (const FilmKey& key : film->keys) {
        const double way = behind ? key.time - Now() : Now() - key.time;
        if (way > Reach() && way < std::abs(place - Now())) {
            place = key.time;
        }
    }
    player_.GoTo(place);
}

// A change of the course by itself, as a step.
void FilmCommands::Note(StepKind kind) {
    ImageRecord* const image = Film();
    {
        const QScopedValueRollback following(following_, true);
        model_.steps.Note(kind);
        model_.steps.Seal();
    }
    TakeNumbers(*image, image->Film->at);
    workspace_.preview.Preview();
    Q_EMIT Changed();
}

void FilmCommands::SetIn(double seconds) {
    if (ImageRecord* const image = Film()) {
        FilmCourse& film = *image->Film;
        film.in = std::max(seconds, 0.0);
        film.out = film.out && *film.out <= film.in ? std::nullopt : film.out;
        Note(StepKind::FilmPart);
    }
}

void FilmCommands::SetOut(double seconds) {
    if (ImageRecord* const image = Film()) {
        FilmCourse& film = *image->Film;
        film.out = std::max(seconds, player_.FrameSeconds());
        film.in = film.in >= *film.out ? 0.0 : film.in;
        if (*film.out >= Facts().seconds && Facts().seconds > 0.0) {
            film.out.reset();
        }
        Note(StepKind::FilmPart);
    }
}

void FilmCommands::SetKeying(bool on) {
    keying_ = on;
    Q_EMIT Changed();
}

void FilmCommands::AddKey() {
    if (ImageRecord* const image = Film()) {
        FilmCourse& film = *image->Film;
        const Projection projection = ProjectionFromIndex(image->Projection);
        for (const MovedField& moved : movedFields) {
            if (IsRead(moved, projection)) {
                SetKey(film.keys, film.at, Reach(), moved.name, image->*moved.field);
            }
        }
        Note(StepKind::Keys);
    }
}

int FilmCommands::MoveKey(int key, double seconds) {
    ImageRecord* const image = Film();
    if (image == nullptr || key < 0 || static_cast<std::size_t>(key) >= image->Film->keys.size()) {
        return -1;
    }
    FilmKeys& keys = image->Film->keys;
    const auto moved = varnel::MoveKey(keys, keys.cbegin() + key, seconds, Reach());
    const auto place = static_cast<int>(moved - keys.cbegin());
    Note(StepKind::Keys);
    return place;
}

void FilmCommands::RemoveKey(int key) {
    ImageRecord* const image = Film();
    if (image != nullptr && key >= 0 && static_cast<std::size_t>(key) < image->Film->keys.size()) {
        varnel::RemoveKey(image->Film->keys, image->Film->keys.cbegin() + key);
        Note(StepKind::Keys);
    }
}

void FilmCommands::SetEase(int key, KeyEase ease) {
    ImageRecord* const image = Film();
    if (image != nullptr && key >= 0 && static_cast<std::size_t>(key) < image->Film->keys.size()) {
        image->Film->keys[static_cast<std::size_t>(key)].ease = ease;
        Note(StepKind::Keys);
    }
}

int FilmCommands::KeyNow() const {
    const FilmCourse* const film = Course();
    if (film == nullptr) {
        return -1;
    }
    const auto key = KeyNear(film->keys, film->at, Reach());
    return key == film->keys.end() ? -1 : static_cast<int>(key - film->keys.begin());
}

}  // namespace varnel
