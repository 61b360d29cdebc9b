// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/real_dialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include "app/dialogs/form_about.h"
#include "app/dialogs/message_boxes.h"
#include "app/dialogs/save_dialog.h"
#include "app/films/films.h"
#include "app/straighten/form_straighten.h"
#include "gear/dialogs/form_gear_edit.h"
#include "gear/dialogs/form_gear_list.h"
#include "gear/lens/import/lensfun_data.h"
#include "gear/store/gear_list.h"
#include "pipeline/conversion/films/kept_film_output.h"
#include "pipeline/dialogs/form_add_images.h"
#include "pipeline/dialogs/form_batch.h"
#include "pipeline/dialogs/form_morph.h"
#include "pipeline/dialogs/form_stretch.h"
#include "pipeline/photos/mounted_volumes.h"
#include "pipeline/photos/project_file.h"
#include "state/dialogs/form_presets.h"
#include "state/dialogs/form_save_preset.h"
#include "state/dialogs/form_setup.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

QString ProjectFilter() {
    return QObject::tr("Varnel projects (%1)").arg(u'*' + projectEnding.toString());
}

}  // namespace

bool RealDialogs::AddImages(QWidget* parent) {
    const PhotoPlaces places{QDir::homePath(),
                             QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
                             &MountedVolumes};
    // A separate reader, so that a slow small picture never delays a photo.
    const auto reader = NewReaderWithFilms({.secondsPerPhoto = 10});
    FormAddImages form(state_.Images, store_, notices_, places,
                       {*reader, state_.settings.AutoOrient}, parent);
    if (CanReadFilms()) {
        form.OfferFilms();
    }
    return form.exec() == QDialog::Accepted;
}

QString RealDialogs::LastFolder() const {
    return store_.Get(setting::LastUsed, setting::LastPath, QDir::homePath());
}

GearEditorPorts RealDialogs::EditorPorts() {
    const ImageRecord* const image = currentImage_ ? currentImage_() : nullptr;
    return {.store = &store_,
            .lensfun = LensfunFolders(),
            .chooseLensFile = &ChooseLensFile,
            .chooseExportFile = &ChooseLensExport,
            .choosePhoto = [this] { return ChoosePhoto(LastFolder()); },
            .photos = &photos_,
            .photo = state_.bitmaps.PreviewSourceBitmap.get(),
            .image = image};
}

std::vector<GearChange> RealDialogs::ManageGears(QWidget* parent) {
    FormGearList* list = nullptr;
    GearEditorPorts ports = EditorPorts();
    ports.renamed = [&list](const QString& name, const LensReference& renamed) {
        list->FollowLens(name, renamed);
    };
    FormGearList form(
        state_.Gear, store_,
        [&ports](GearTable& gears) {
            FormGearEdit editor(gears, ports, QApplication::activeWindow());
            editor.exec();
        },
        parent);
    list = &form;
    return form.exec() == QDialog::Accepted ? form.Redefined() : std::vector<GearChange>();
}

bool RealDialogs::GiveNewNumbers(const QString& gear, int photos) {
    const QString question =
        photos == 1
            ? QObject::tr("1 photo uses this gear. Give it the new numbers?")
            : QObject::tr("%1 photos use this gear. Give them the new numbers?").arg(photos);
    QMessageBox box(QMessageBox::Question, QStringLiteral("Varnel"),
                    gear + QStringLiteral("\n\n") + question, QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool RealDialogs::DefineGear(const GearRecord& known, QWidget* parent) {
    state_.Gear(0) = GearRecord();
    FormGearEdit form(state_.Gear, EditorPorts(), parent);
    form.Propose(known);
    form.exec();
    if (state_.Gear(0).GearName.isEmpty()) {
        return false;
    }
    AddEditedGear(state_.Gear);
    SaveGear(store_, state_.Gear);
    return true;
}

void RealDialogs::ChangeDefaults(QWidget* parent) {
    FormSetup form(state_.Gear, state_.settings, store_, parent);
    form.exec();
}

void RealDialogs::ProcessBatch(BatchJob& job, const QueueChanged& queueChanged, QWidget* parent) {
    FormBatch form(state_.BatchQueue, job, state_.settings, notices_, queueChanged, parent);
    form.ReadPicturesBy([] { return NewReaderWithFilms({.secondsPerPhoto = 10}); });
    QObject::connect(&form, &FormBatch::ShowInFolderWanted, parent,
                     [this](const QString& file) { ShowInFolder(file); });
    form.exec();
}

void RealDialogs::Morph(const ImageRecord& image, const QueueChanged& queueChanged,
                        QWidget* parent) {
    FormMorph form(image, state_.bitmaps.PreviewSourceBitmap.get(), state_.BatchQueue, state_.pool,
                   notices_, queueChanged, parent);
    const FilmOutput output = LoadFilmOutput(store_);
    const auto maker = NewMorphFilmMaker(state_.pool, state_.settings, output);
    form.OfferFilm({maker.get(), [this](const QString& name) { return ChooseFilmName(name); },
                    EndingOf(output)});
    form.exec();
}

void RealDialogs::Stretch(const QString& photo, QWidget* parent) {
    const auto choosePhoto = [this](const QString& folder) {
        return ChoosePhoto(folder.isEmpty() ? LastFolder() : folder);
    };
    FormStretch form(state_.settings, photos_, choosePhoto, fileChooser_, state_.pool, notices_,
                     parent);
    if (!photo.isEmpty()) {
        // Once the dialog is up: while the photo is read nothing may happen on the window below.
        QTimer::singleShot(0, &form, [&form, photo] { form.Open(photo); });
    }
    form.exec();
}

std::optional<MeasuredLensUse> RealDialogs::Straighten(std::optional<PhotoToMeasure> photo,
                                                       QWidget* parent) {
    const auto choosePhotos = [this](const QString& folder) {
        return ChoosePhotos(folder.isEmpty() ? LastFolder() : folder);
    };
    FormStraighten form(
        {photos_, choosePhotos, state_.pool,
         store_.Path().isEmpty() ? LensFolder({}) : LensFolder::Beside(store_.Path())},
        std::move(photo), parent);
    form.exec();
    return form.Use();
}

void RealDialogs::SavePreset(const ImageRecord& image, QWidget* parent) {
    FormSavePreset form(image, state_.settings, store_, parent);
    form.exec();
}

void RealDialogs::ManagePresets(QWidget* parent) {
    FormPresets form(store_, {&ChoosePresetImport, &ChoosePresetExport}, parent);
    form.exec();
}

void RealDialogs::ShowInFolder(const QString& file) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absolutePath()));
}

void RealDialogs::ShowAbout(QWidget* parent) {
    FormAbout form(parent);
    form.exec();
}

SaveFirst RealDialogs::AskToSave(const UnsavedWork& work) {
    QStringList lines;
    if (work.photos > 0) {
        lines.append(QObject::tr("Photos with unsaved adjustments: %1").arg(work.photos));
    }
    if (work.queued > 0) {
        lines.append(QObject::tr("Images waiting in the batch queue, which no project holds: %1")
                         .arg(work.queued));
    }
    lines.append(work.project.isEmpty()
                     ? QObject::tr("Save the present image list as a project first?")
                     : QObject::tr("The project %1 was changed. Save it first?").arg(work.project));
    switch (QMessageBox::question(
        QApplication::activeWindow(), QStringLiteral("Varnel"), lines.join(QStringLiteral("\n\n")),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save)) {
        case QMessageBox::Save:
            return SaveFirst::Save;
        case QMessageBox::Discard:
            return SaveFirst::DoNotSave;
        default:
            return SaveFirst::Cancel;
    }
}

Restore RealDialogs::AskToRestore(const LostList& list) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(QStringLiteral("Varnel"));
    box.setIcon(QMessageBox::Question);
    box.setText(QObject::tr("Varnel was not closed properly. Its image list of %1 is still there. "
                            "Open it again?")
                    .arg(QLocale().toString(list.written, QLocale::ShortFormat)));
    box.setInformativeText(
        QObject::tr("Photos in the list: %1. \"No\" removes it for good.").arg(list.photos));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Yes);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Restore::Yes;
        case QMessageBox::No:
            return Restore::No;
        default:
            return Restore::Later;
    }
}

QString RealDialogs::ChooseProject(const QString& folder) {
    return QFileDialog::getOpenFileName(
        QApplication::activeWindow(), QObject::tr("Open project"), folder,
        ProjectFilter() + QStringLiteral(";;") + QObject::tr("All files (*)"));
}

QString RealDialogs::ChooseProjectName(const QString& proposal) {
    SaveDialog dialog(QObject::tr("Save project as"), QFileInfo(proposal).absoluteFilePath(),
                      {ProjectFilter()});
    dialog.setDefaultSuffix(projectEnding.mid(1).toString());
    return dialog.Choose();
}

QString RealDialogs::ChooseFilmName(const QString& proposal) {
    const QString ending = QFileInfo(proposal).suffix();
    SaveDialog dialog(QObject::tr("Save film as"), QFileInfo(proposal).absoluteFilePath(),
                      {QObject::tr("Films (%1)").arg(QStringLiteral("*.mp4 *.mkv *.mov"))});
    dialog.setDefaultSuffix(ending);
    QString name = dialog.Choose();
    const QStringList endings{QStringLiteral("mp4"), QStringLiteral("mkv"), QStringLiteral("mov")};
    if (name.isEmpty() || endings.contains(QFileInfo(name).suffix(), Qt::CaseInsensitive)) {
        return name;
    }
    const QString whole = name + u'.' + ending;  // another file than the dialog asked about
    return !QFileInfo::exists(whole) || SaveDialog::AgreesToReplace(whole) ? whole : QString();
}

}  // namespace varnel
