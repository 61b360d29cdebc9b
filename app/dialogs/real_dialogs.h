// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's dialogs, shown on the screen. Throws std::bad_alloc only.
#pragma once

#include "app/view/dialogs.h"
#include "gear/dialogs/gear_editor_ports.h"
#include "state/editing/working_state.h"
#include "state/settings/settings_store.h"

namespace varnel {

class RealDialogs : public Dialogs {
  public:
    RealDialogs(WorkingState& state, SettingsStore& store, PictureReader& reader,
                PhotoLoader& photos, Notices& notices, FileChooser& fileChooser)
        : state_(state),
          store_(store),
          reader_(reader),
          photos_(photos),
          notices_(notices),
          fileChooser_(fileChooser) {}
    bool AddImages(QWidget* parent) override;
    std::vector<GearChange> ManageGears(QWidget* parent) override;
    bool GiveNewNumbers(const QString& gear, int photos) override;
    bool DefineGear(const GearRecord& known, QWidget* parent) override;
    void ChangeDefaults(QWidget* parent) override;
    void ProcessBatch(BatchJob& job, const QueueChanged& queueChanged, QWidget* parent) override;
    void Morph(const ImageRecord& image, const QueueChanged& queueChanged,
               QWidget* parent) override;
    void Stretch(const QString& photo, QWidget* parent) override;
    std::optional<MeasuredLensUse> Straighten(std::optional<PhotoToMeasure> photo,
                                              QWidget* parent) override;
    void SavePreset(const ImageRecord& image, QWidget* parent) override;
    void ManagePresets(QWidget* parent) override;
    void ShowInFolder(const QString& file) override;
    void ShowAbout(QWidget* parent) override;
    SaveFirst AskToSave(const UnsavedWork& work) override;
    Restore AskToRestore(const LostList& list) override;
    QString ChooseProject(const QString& folder) override;
    QString ChooseProjectName(const QString& proposal) override;
    QString ChooseFilmName(const QString& proposal) override;

    // What every gear editor works with.
    GearEditorPorts EditorPorts();
    // How they get to know the current photo's record; null for none.
    void Use(std::function<const ImageRecord*()> currentImage) {
        currentImage_ = std::move(currentImage);
    }

  private:
    QString LastFolder() const;

    WorkingState& state_;
    SettingsStore& store_;
    PictureReader& reader_;
    PhotoLoader& photos_;  // the same reader, with the window's way of waiting
    Notices& notices_;
    FileChooser& fileChooser_;
    std::function<const ImageRecord*()> currentImage_;
};

}  // namespace varnel
