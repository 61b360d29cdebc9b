// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/film/film_tools.h"

#include <QEvent>
#include <QFileInfo>
#include <QLayout>
#include <atomic>
#include <chrono>
#include <future>

#include "base/error_text.h"
#include "base/shortage.h"
#include "files/file_identity.h"
#include "pipeline/conversion/films/kept_film_output.h"
#include "pipeline/output/output_name.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr auto betweenEvents = std::chrono::milliseconds(20);
constexpr float whole = 1000.0F;  // of the progress bar

}  // namespace

FilmTools::FilmTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace, SettingsStore& store, const WindowPorts& ports,
                     BatchJob& job)
    : QObject(window),
      view_(view),
      workspace_(workspace),
      ports_(ports),
      commands_(workspace, *ports.films.source),
      bar_(new FilmBar(parts.pictures->parentWidget())) {
    parts.pictures->parentWidget()->layout()->addWidget(bar_);
    bar_->OfferSaving(ports_.films.saver != nullptr);
    parts.column->installEventFilter(this);
    ConnectLine();
    ConnectButtons();
    job.Use(ports_.films.saver);
    bar_->Choose(LoadFilmOutput(store));
    job.choices.film = bar_->Output();
    connect(bar_, &FilmBar::OutputChanged, &job, [this, &job, &store] {
        job.choices.film = bar_->Output();
        SaveFilmOutput(job.choices.film, store);
    });
    connect(&commands_, &FilmCommands::Changed, this, &FilmTools::Show);
    connect(&commands_, &FilmCommands::NotOpened, this,
            [this](const Reason& reason) { error_ = ErrorText(reason); });
    connect(&commands_.Player(), &FilmPlayer::PlayingChanged, bar_, &FilmBar::ShowPlaying);
}

bool FilmTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        bar_->setEnabled(!view_.Locked());
    }
    return QObject::eventFilter(watched, event);
}

void FilmTools::ConnectLine() {
    const TimeLine* const line = bar_->Line();
    connect(line, &TimeLine::Scrubbed, this, [this](double seconds) { commands_.GoTo(seconds); });
    connect(line, &TimeLine::Stepped, this, [this](int frames) { commands_.Step(frames); });
    connect(line, &TimeLine::KeyWanted, this, [this](bool behind) { commands_.GoToKey(behind); });
    connect(line, &TimeLine::PlayWanted, this, [this] { commands_.TogglePlaying(); });
    connect(line, &TimeLine::InMoved, this, [this](double seconds) { commands_.SetIn(seconds); });
    connect(line, &TimeLine::OutMoved, this, [this](double seconds) { commands_.SetOut(seconds); });
    connect(line, &TimeLine::KeyMoved, this,
            [this](int key, double seconds) { commands_.MoveKey(key, seconds); });
    connect(line, &TimeLine::EaseChosen, this,
            [this](int key, KeyEase ease) { commands_.SetEase(key, ease); });
    connect(line, &TimeLine::KeyRemoved, this, [this](int key) { commands_.RemoveKey(key); });
    connect(line, &TimeLine::RemoveWanted, this,
            [this] { commands_.RemoveKey(commands_.KeyNow()); });
    connect(line, &TimeLine::NewKeyWanted, this, [this] { commands_.AddKey(); });
    connect(line, &TimeLine::InWanted, bar_->InButton(), &QToolButton::click);
    connect(line, &TimeLine::OutWanted, bar_->OutButton(), &QToolButton::click);
}

void FilmTools::ConnectButtons() {
    connect(bar_->PlayButton(), &QToolButton::clicked, this, [this] { commands_.TogglePlaying(); });
    connect(bar_->InButton(), &QToolButton::clicked, this,
            [this] { commands_.SetIn(commands_.Now()); });
    // Out is the first time that is left out, and this frame is the last one.
    connect(bar_->OutButton(), &QToolButton::clicked, this, [this] {
        commands_.SetOut(commands_.Now() + 1.0 / commands_.Facts().framesPerSecond);
    });
    connect(bar_->KeyButton(), &QToolButton::clicked, this, [this] {
        if (commands_.KeyNow() >= 0) {
            commands_.RemoveKey(commands_.KeyNow());
        } else {
            commands_.AddKey();
        }
    });
    connect(bar_->KeyingButton(), &QToolButton::toggled, this,
            [this](bool on) { commands_.SetKeying(on); });
    connect(bar_->SaveButton(), &QToolButton::clicked, this, &FilmTools::Save);
}

void FilmTools::Show() {
    const FilmCourse* const film = commands_.Course();
    const ImageRecord* const image = workspace_.model.list.Current();
    const bool isBroken = film == nullptr && image != nullptr && image->Film && !error_.isEmpty();
    bar_->setVisible(film != nullptr || isBroken);
    bar_->ShowError(isBroken ? error_ : QString());
    if (film == nullptr) {
        return;
    }
    error_.clear();
    const FilmFacts& facts = commands_.Facts();
    bar_->Line()->Show(facts.seconds, facts.framesPerSecond, *film, commands_.Now());
    bar_->ShowTime(commands_.Now(), facts.seconds);
    bar_->ShowKey(commands_.KeyNow() >= 0);
}

void FilmTools::Save() {
    const ImageRecord* const current = workspace_.model.list.Current();
    if (workspace_.model.activity.Busy() || commands_.Course() == nullptr) {
        return;
    }
    commands_.Player().Stop();
    const ImageRecord film = *current;
    const QString source = SourcePath(film);
    const QString proposal = ProposedName(source, ToText(ProjectionFromIndex(film.Projection))) +
                             EndingOf(bar_->Output());
    const QString path = ports_.dialogs.ChooseFilmName(proposal);
    if (path.isEmpty()) {
        return;
    }
    if (SameFile(path, source)) {
        ports_.notices.Tell(tr("Could not save %1").arg(path),
                            tr("This is the film itself; choose another name."));
        return;
    }
    const SavedFilm saved = SaveLocked(film, path);
    if (saved.error.Is(ReasonCode::Cancelled)) {
        view_.ShowStatus(tr("No film was written"));
    } else if (!saved.error.isEmpty()) {
        ports_.notices.Tell(tr("Could not save %1").arg(path), ErrorText(saved.error));
    } else {
        workspace_.model.steps.MarkWritten(film, path);
        Q_EMIT workspace_.model.PictureSaved(path);
        view_.ShowStatus(tr("Saved %1").arg(path));
        if (!saved.notes.isEmpty()) {
            ports_.notices.Tell(tr("Saved %1").arg(path), saved.notes.join(u'\n'));
        }
    }
    Q_EMIT workspace_.model.activity.Idle();
}

SavedFilm FilmTools::SaveLocked(const ImageRecord& film, const QString& path) {
    const auto busy = workspace_.model.activity.Occupy();
    const FilmOutput output = bar_->Output();
    std::atomic<bool> stopped = false;
    std::atomic<double> part = 0.0;
    view_.Lock(true);
    view_.LetCancel([&stopped] { stopped = true; });
    SavedFilm saved;
    const QString shortage = Shortage([&] {
        std::future<SavedFilm> answer = std::async(std::launch::async, [&] {
            return ports_.films.saver->Save(film, output, path, [&](double done) {
                part = done;
                return !stopped;
            });
        });
        view_.Progress().Begin(whole);
        while (answer.wait_for(betweenEvents) != std::future_status::ready) {
            view_.Progress().Advance(static_cast<float>(part.load()) * whole);
            view_.HandleEvents();
        }
        view_.Progress().End();
        saved = answer.get();
    });
    if (!shortage.isEmpty()) {
        saved.error = {ReasonCode::Words, shortage};
    }
    view_.LetCancel(nullptr);
    view_.Lock(false);
    return saved;
}

}  // namespace varnel
