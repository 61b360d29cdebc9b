// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The photographer's workspace: what the main window does with the image list and the current
// photo. It knows no widget; the window is a view that it asks and tells.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/notices.h"
#include "base/thread_runner.h"
#include "pipeline/conversion/save_meanwhile.h"
#include "pipeline/conversion/settings_from_picture.h"
#include "pipeline/photos/contact_sheet.h"
#include "pipeline/photos/file_chooser.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/encode/save_bitmap.h"
#include "remap/render/render.h"
#include "state/adjustments/control_values.h"
#include "state/editing/history.h"
#include "state/editing/step_names.h"
#include "state/editing/working_state.h"

namespace varnel {

// Lines count from 0 here, as in a list box; -1 is none. Sizes are in device pixels.
class WorkspaceView {
  public:
    virtual ~WorkspaceView() = default;
    virtual int CurrentLine() const = 0;
    virtual std::vector<int> SelectedLines() const = 0;
    virtual ControlValues Controls() const = 0;
    virtual Projection ChosenProjection() const = 0;
    // The number of the gear in the selector and its name; 0 and empty for one that the table does
    // not have.
    virtual int ChosenGear() const = 0;
    virtual QString ChosenGearName() const = 0;
    virtual bool AutoPreview() const = 0;
    virtual bool Antialiased() const = 0;
    virtual PixelSize PreviewBox() const = 0;   // the settings' preview size on this screen
    virtual PixelSize PictureRoom() const = 0;  // the room that the window leaves for one picture
    virtual RenderProgress& Progress() = 0;

    // Makes the line current.
    virtual void ShowList(const RecordArray<ImageRecord>& images, int line) = 0;
    // The list in another shape; the current photo stays as it is shown.
    virtual void ShowLines(const RecordArray<ImageRecord>& images, int current,
                           const std::vector<int>& selected) = 0;
    virtual void ShowRecord(const ImageRecord& image) = 0;
    virtual void ShowSource(const Bitmap* bitmap) = 0;  // null empties the picture
    virtual void ShowResult(const Bitmap* bitmap) = 0;
    // The settings that the result to be shown next was made with.
    virtual void NoteDrawn(const ImageRecord& /*image*/) {}
    // What is wrong with the photo; empty when nothing is.
    virtual void ShowError(const QString& text) = 0;
    virtual void ShowStatus(const QString& text) = 0;
    virtual void HandleEvents() = 0;
    // Shown as long as what it gives lives.
    virtual std::shared_ptr<void> Hourglass() = 0;
    // While locked nothing on the window can be started and a wish to close it waits.
    virtual void Lock(bool on) = 0;
    // What the user does to cancel what runs; none takes the way to it away again.
    virtual void LetCancel(std::function<void()> cancel) = 0;
    // Nothing runs any more: what waited for that may be done.
    virtual void Idle() = 0;
};

class Workspace {
  public:
    Workspace(WorkingState& state, PhotoLoader& photos, Notices& notices, WorkspaceView& view)
        : state_(state), photos_(photos), notices_(notices), view_(view) {}

    // A line became current: loads its photo at full size, gives it its gear, shows and previews
    // it.
    void ShowLine(int line);
    // The photo at preview size, into the source picture. False when there is none, or no memory
    // for it, which the status says.
    bool RebuildThumbnail();
    // Draws the current photo's preview, if automatic preview is on.
    void Preview();
    // The same whatever automatic preview says, after storing the controls.
    void PreviewNow();
    // Draws what the controls say without storing anything: while a slider is dragged.
    void PreviewControls();

    // Stores the controls into the selected records, lets waiting events run once and previews.
    void StoreControls(bool withPreview);
    // The gear selector was used: gives its gear to the selected photos.
    void ChooseGear();
    void AdoptTile(const ContactTile& tile);  // of the contact sheet, for the selected photos
    void UseGear(int gear);                   // of the table, for the current photo
    void ApplyGear();                         // to all
    void NameGear(const QString& gear);       // the current photo's, which keeps its numbers
    // After gears were redefined. Their photos follow a new name; new numbers they get if that is
    // agreed to for the gear, as it was called, and so many photos. Else they keep what they have.
    void FollowGears(const std::vector<GearChange>& changes,
                     const std::function<bool(const QString& gear, int photos)>& agrees);
    void ApplySettings();  // of the current photo, to all

    // Those behind that many are new.
    void ImagesAdded(int before);
    // Dropped files and folders. For a picture that Varnel made of a photo, that photo with the
    // settings that made the picture; the first such one becomes current.
    void AddFiles(const QStringList& paths);
    void RemoveSelected();
    // Copies the whole list into the batch queue; returns the queue's length.
    int AddToBatchQueue();
    // The selected lines together before the target's line; the count puts them last.
    void MoveSelected(int target);
    // The list of a project file instead of the present one; the line becomes current. Without a
    // file it is a list that was kept against a crash.
    void TakeProject(const RecordArray<ImageRecord>& images, int line, const QString& project);

    void Undo();
    void Redo();
    // Makes what was changed in the records a step that can be undone; nothing changed, no step.
    // Whoever changes them calls it before anything is loaded or drawn.
    void NoteStep(StepKind kind, const StepBesides& besides = {});
    // Does what a step that is undone or done again shall do to a gear.
    void WhenGearRestored(std::function<void(const GearChange&)> then) {
        whenGearRestored_ = std::move(then);
    }
    void SealStep() { history_.Seal(); }  // what follows is another step
    // The list as it is stands in the project file.
    void MarkSaved(const QString& project);
    // A picture of a photo with these settings is in the file.
    void MarkWritten(const ImageRecord& image, const QString& file);
    const History& Steps() const { return history_; }
    void WhenStepsChanged(std::function<void()> then) {
        whenStepsChanged_.push_back(std::move(then));
    }

    // Converts the current photo at full size and writes it where the chooser says.
    void SaveAs(FileChooser& chooser);

    // The current image's record, null when there is none.
    ImageRecord* Current();
    // The same, which must be there, with all that a queued record has.
    const ImageRecord& PreparedCurrent();
    QString CurrentPath();  // empty when there is none
    // Why its photo is not there; empty when it is.
    const Reason& LoadError() const { return loadError_; }
    // Why a photo that was added could not be read, which was told then; empty for the others.
    Reason Unreadable(const QString& path) const { return unreadable_.value(path); }
    // True while a conversion runs; nothing else may be started then.
    bool Busy() const { return busy_ || rendering_; }

  private:
    bool LoadFull(int line);
    bool LoadAndReduce(int line);
    void Reduce();
    void NoteBad(const std::vector<BadFile>& bad);
    void TellBad(const std::vector<BadFile>& bad);
    void TellNotOpened(const ImageRecord& image);
    // Shows the current record's values again after something else changed them.
    void RefreshCurrent();
    void Prepare(ImageRecord& image);
    // False when the user gave it up.
    bool PrepareAll();
    int OwnGear(const ImageRecord& image) const;
    void GiveOwnGear(ImageRecord& image);
    bool KnowSize(ImageRecord& image);
    void RenderPreview(const ImageRecord& image);
    void RenderThumbnail(const ImageRecord& image);
    SaveResult RenderAndSave(const ImageRecord& image, const SaveChoice& choice,
                             const CancelFlag& cancelled);
    void TellSaved(const SaveResult& saved, const QString& name);
    void ShowInControls(const ImageRecord& image);

    void NoteStep(const QString& name, const StepKey& key, const StepBesides& besides = {});
    void NoteStored(const std::vector<int>& lines, const std::vector<ControlValues>& before);
    void Absorb();
    void TellSteps();
    void Restore(std::optional<Restored> (History::*step)());
    void ShowRestored(const Restored& restored, const ImageRecord& shown);
    void ShowNewList(int line);

    WorkingState& state_;
    PhotoLoader& photos_;
    Notices& notices_;
    WorkspaceView& view_;
    History history_{state_.Images};
    std::vector<std::function<void()>> whenStepsChanged_;
    std::function<void(const GearChange&)> whenGearRestored_;
    bool busy_ = false;
    bool rendering_ = false;
    bool saving_ = false;
    bool drawAgain_ = false;
    QHash<QString, Reason> unreadable_;
    Reason loadError_;  // why the current line's photo is not there
};

}  // namespace varnel
