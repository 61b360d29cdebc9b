// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The modal windows that the main window can open, as a port: tests answer instead of them. Throws
// std::bad_alloc only.
#pragma once

#include <QDateTime>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "app/looks/theme.h"
#include "app/workspace/film/film_source.h"
#include "base/notices.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/store/gear_store.h"
#include "pipeline/conversion/batch_job.h"
#include "pipeline/conversion/films/film_saver.h"
#include "pipeline/photos/file_chooser.h"
#include "pipeline/photos/photo_loader.h"

namespace varnel {

// Called with the batch queue's new length.
using QueueChanged = std::function<void(int)>;

// What is lost when the window closes, or another list replaces the present one.
struct UnsavedWork {
    QString project;  // file name of the project that was changed; empty: none
    int photos = 0;   // with adjustments that are in no project and in no picture
    int queued = 0;   // images in the batch queue
};

// The answer to the question whether the list shall be saved first.
enum class SaveFirst { Save, DoNotSave, Cancel };

// The image list of a window that was not closed.
struct LostList {
    QDateTime written;
    int photos = 0;
};

// What is to be done with it: open it, remove it, or ask again at the next start.
enum class Restore { Yes, No, Later };

// A photo whose lens is to be measured. The bitmap may share its pixels with another one.
struct PhotoToMeasure {
    QString path;
    std::shared_ptr<const Bitmap> bitmap;
    ImageRecord record;  // with its gear; a guess says so by its name
};

// What to do with a lens that was measured.
struct MeasuredLensUse {
    LensReference lens;   // never none
    bool forAll = false;  // all photos of the same camera and lens, not the current one alone
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // True when photos were added to the image list.
    virtual bool AddImages(QWidget* parent) = 0;
    // The gears that were redefined.
    virtual std::vector<GearChange> ManageGears(QWidget* parent) = 0;
    // Whether that many photos shall have the new numbers of their gear.
    virtual bool GiveNewNumbers(const QString& gear, int photos) = 0;
    // Begins with what is known of the gear: names, and numbers if there is a ratio. True when it
    // was added to the table.
    virtual bool DefineGear(const GearRecord& known, QWidget* parent) = 0;
    virtual void ChangeDefaults(QWidget* parent) = 0;
    // The queue's entries go to the job when its run begins; shows the run under way, if one is.
    virtual void ProcessBatch(BatchJob& job, const QueueChanged& queueChanged, QWidget* parent) = 0;
    // For a photo that is prepared as for the queue.
    virtual void Morph(const ImageRecord& image, const QueueChanged& queueChanged,
                       QWidget* parent) = 0;
    // Begins with the photo under the path; empty for none.
    virtual void Stretch(const QString& photo, QWidget* parent) = 0;
    // Begins with the photo, whose record can be given the lens, or without one. Nothing when no
    // photo of the list is to have a lens.
    virtual std::optional<MeasuredLensUse> Straighten(std::optional<PhotoToMeasure> photo,
                                                      QWidget* parent) = 0;
    // Offers to save the photo's settings as a preset of the user.
    virtual void SavePreset(const ImageRecord& image, QWidget* parent) = 0;
    virtual void ManagePresets(QWidget* parent) = 0;
    // Shows the file among the others of its folder, in the system's file manager.
    virtual void ShowInFolder(const QString& file) = 0;
    virtual void ShowAbout(QWidget* parent) = 0;
    virtual SaveFirst AskToSave(const UnsavedWork& work) = 0;
    virtual Restore AskToRestore(const LostList& list) = 0;
    // Paths of project files, to be opened or written; empty when cancelled.
    virtual QString ChooseProject(const QString& folder) = 0;
    virtual QString ChooseProjectName(const QString& proposal) = 0;
    // Of a film that is to be written, with its ending; what is there may be replaced. Empty when
    // cancelled.
    virtual QString ChooseFilmName(const QString& proposal) = 0;
};

// Everything besides itself through which the main window communicates with the user.
struct WindowPorts {
    PhotoLoader& photos;
    Notices& notices;
    GearPrompt& gearPrompt;
    FileChooser& fileChooser;
    Dialogs& dialogs;
    // Makes what reads the list's small pictures; without it there are none.
    std::function<std::unique_ptr<PictureReader>()> newSmallReader = nullptr;
    // Where image lists are kept against a crash; without a folder they are not.
    struct {
        QString folder = {};
        int pause = 3000;  // ms from a change until it is kept
    } sessions = {};
    // Makes what reads added photos for their gear; without it they get the default gear.
    std::function<std::unique_ptr<PictureReader>()> newGearReader = nullptr;
    // Of the application; without one its colours stay as they are.
    ThemeKeeper* theme = nullptr;
    // The screen's colour profile, empty for sRGB; without it that is taken.
    std::function<QByteArray()> screenProfile = nullptr;
    // What reads and what writes films; without them there are only photos.
    struct {
        FilmSource* source = nullptr;
        FilmSaver* saver = nullptr;
    } films = {};
};

}  // namespace varnel
