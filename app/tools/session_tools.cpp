// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/session_tools.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "base/error_text.h"
#include "pipeline/photos/project_file.h"

namespace varnel {

SessionTools::SessionTools(ProjectTools& projects, Workspace& workspace, WorkingState& state,
                           const WindowPorts& ports, QObject* parent)
    : QObject(parent),
      projects_(projects),
      workspace_(workspace),
      state_(state),
      ports_(ports),
      ended_(ports.sessions.folder.isEmpty()),
      worker_(&state.pool, TaskWeight::Light) {
    timer_.setSingleShot(true);
    timer_.setInterval(ports_.sessions.pause);
    connect(&timer_, &QTimer::timeout, this, &SessionTools::Write);
    connect(&workspace_.model.steps, &ListSteps::Changed, this, [this] { NoteChange(); });
}

void SessionTools::NoteChange() {
    if (!ended_ && !timer_.isActive()) {
        timer_.start();
    }
}

void SessionTools::Write() {
    if (writing_ && worker_.Wait(0)) {
        writing_ = false;
        if (const SaveResult result = worker_.Take(); !result) {
            NoteError(ErrorText(result.reason));
        }
    }
    if (writing_) {
        timer_.start();
    } else if (state_.Images.Empty() || !workspace_.model.steps.ChangedSinceSaved()) {
        Forget();
    } else if (!std::ranges::equal(state_.Images, written_)) {
        Begin();
    }
    ShowError();
}

// A copy of the list is written on another thread; its texts are shared.
void SessionTools::Begin() {
    if (!place_) {
        place_ = SessionPlace::Make(ports_.sessions.folder);
    }
    written_ = state_.Images;
    if (!place_) {
        NoteError(tr("no folder can be made there"));
        return;
    }
    writing_ = true;
    worker_.Begin([images = state_.Images, file = place_->File()] {
        const WriteResult result = WriteProject(file, images);
        return SaveResult{result.ok, result.reason};
    });
    timer_.start();
}

void SessionTools::Forget() {
    while (writing_ && !worker_.Wait(1000)) {
    }
    if (std::exchange(writing_, false)) {
        worker_.Take();
    }
    if (place_) {
        place_->Clear();
    }
    place_.reset();
    written_.Clear();
}

void SessionTools::End() {
    ended_ = true;
    timer_.stop();
    Forget();
}

// One list is opened; those not decided on yet are offered the next time.
void SessionTools::OfferLost() {
    if (ended_) {
        return;
    }
    for (std::unique_ptr<SessionPlace>& place : SessionPlace::Abandoned(ports_.sessions.folder)) {
        if (!Take(std::move(place))) {
            return;
        }
    }
}

// True when the next one may be offered.
bool SessionTools::Take(std::unique_ptr<SessionPlace> place) {
    const ReadProject list = OpenProject(place->File());
    if (!list.error.isEmpty()) {
        ShowDamaged(*place, list.error);
        return true;
    }
    switch (ports_.dialogs.AskToRestore({place->Written(), list.images.UpperBound()})) {
        case Restore::Yes:
            place_ = std::move(place);  // goes on in it
            projects_.Show(list, {});
            return false;
        case Restore::No:
            place->Clear();
            return true;
        case Restore::Later:
            break;
    }
    return false;
}

void SessionTools::ShowDamaged(SessionPlace& place, const QString& error) {
    const QString file = place.File();
    const QString aside = place.SetAside();
    ports_.notices.Tell(
        tr("The image list of a window that was not closed is damaged and cannot be opened"),
        QStringLiteral("%1: %2").arg(aside.isEmpty() ? file : aside, error));
}

// Only the first is shown.
void SessionTools::NoteError(const QString& reason) {
    if (!std::exchange(failed_, true)) {
        error_ = reason;
    }
}

void SessionTools::ShowError() {
    if (error_.isEmpty()) {
        return;
    }
    if (workspace_.model.activity.Busy() || QApplication::mouseButtons() != Qt::NoButton ||
        QApplication::activeModalWidget() != nullptr) {
        timer_.start();
        return;
    }
    ports_.notices.Tell(
        tr("The image list cannot be kept against a crash in %1").arg(ports_.sessions.folder),
        std::exchange(error_, QString()));
}

}  // namespace varnel
