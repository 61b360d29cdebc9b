// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The morph dialog's film.

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <new>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/shortage.h"
#include "pipeline/dialogs/form_morph.h"
#include "ui_form_morph.h"

namespace varnel {

namespace {

QString ProposedFilm(const ImageRecord& image, const QString& ending) {
    const QFileInfo photo(SourcePath(image));
    return photo.path() + u'/' + photo.completeBaseName() + QStringLiteral("_Morph") + ending;
}

}  // namespace

void FormMorph::OfferFilm(MorphFilmPorts film) {
    film_ = std::move(film);
    const bool offered = film_.maker != nullptr;
    for (QWidget* const control : std::initializer_list<QWidget*>{
             ui_->CheckFilm, ui_->SpinFramesPerSecond, ui_->LabelLength}) {
        control->setVisible(offered);
    }
    ui_->BarFilm->hide();
    ui_->CmdCancelFilm->hide();
    if (offered) {
        connect(ui_->CheckFilm, &QCheckBox::toggled, this, &FormMorph::ShowFilmChoice);
        connect(ui_->SpinFramesPerSecond, &QDoubleSpinBox::valueChanged, this,
                &FormMorph::ShowFilmChoice);
        connect(ui_->CmdCancelFilm, &QPushButton::clicked, this, [this] { stopped_ = true; });
    }
}

void FormMorph::ShowFilmChoice() {
    const bool film = ui_->CheckFilm->isChecked();
    const double seconds = FrameCount() / ui_->SpinFramesPerSecond->value();
    ui_->SpinFramesPerSecond->setEnabled(film);
    ui_->LabelLength->setText(film && FrameCount() > 0
                                  ? tr("%1 seconds").arg(locale().toString(seconds, 'f', 1))
                                  : QString());
    ui_->CmdAddMorphToBatch->setText(film ? tr("&Write film ...") : tr("&Add to batch que"));
    ui_->CmdAddMorphToBatch->setToolTip(
        film ? tr("Asks for a name and writes the sequence as a film")
             : tr("Puts every image of the sequence into the batch queue, where \"Process batch "
                  "que\" writes them"));
    ui_->CmdAddMorphToBatch->setAccessibleName(film ? tr("Write the sequence as a film")
                                                    : tr("Add the sequence to the batch queue"));
}

void FormMorph::AddOrWrite() {
    if (!ui_->CheckFilm->isChecked()) {
        AddFrames();
    } else if (const std::optional<int> N = TypedCount()) {
        WriteFilm(*N);
    }
}

void FormMorph::WriteFilm(int N) {
    if (N < 2) {
        notices_.Tell(tr("A film needs two images or more"), QString());
        return;
    }
    const QString path = film_.chooseName(ProposedFilm(image_, film_.ending));
    if (path.isEmpty()) {
        return;
    }
    ui_->BarFilm->setRange(0, N);
    ui_->BarFilm->setValue(0);
    LetChoose(false);
    const Reason reason = MakeFilm({image_, ends_, N, ui_->SpinFramesPerSecond->value(), path});
    LetChoose(true);
    const QString name = QFileInfo(path).fileName();
    ui_->LabelAdded->setText(reason.isEmpty() ? tr("The film %1 was written").arg(name)
                                              : tr("No film was written"));
    if (!reason.isEmpty() && !reason.Is(ReasonCode::Cancelled)) {
        notices_.Tell(tr("Could not save %1").arg(path), ErrorText(reason));
    }
    if (std::exchange(closeWanted_, false)) {
        QDialog::reject();
    }
}

Reason FormMorph::MakeFilm(const MorphFilm& film) {
    stopped_ = false;
    try {
        return film_.maker->Make(film, [this](int frames) {
            ui_->BarFilm->setValue(frames);
            QCoreApplication::processEvents();
            return !stopped_;
        });
    } catch (const RunTimeError& error) {
        return ReasonFor(error);
    } catch (const std::bad_alloc&) {
        return ReasonCode::NotEnoughMemory;
    }
}

// All that would change the film is locked while it is written.
void FormMorph::LetChoose(bool on) {
    writing_ = !on;
    for (QWidget* const control :
         std::initializer_list<QWidget*>{ui_->FramePairs, ui_->CheckFilm, ui_->SpinFramesPerSecond,
                                         ui_->TextNumImages, ui_->CmdAddMorphToBatch}) {
        control->setEnabled(on);
    }
    ui_->BarFilm->setVisible(!on);
    ui_->CmdCancelFilm->setVisible(!on);
    ShowFilmChoice();
}

void FormMorph::reject() {
    stopped_ = closeWanted_ = writing_;
    if (!writing_) {
        QDialog::reject();
    }
}

}  // namespace varnel
