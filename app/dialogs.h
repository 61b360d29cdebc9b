// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The modal windows that the main window can open, as a port: tests answer for them.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "app/desk.h"
#include "gear/gear_catalogue.h"
#include "gear/gear_store.h"

namespace varnel {

// Hears the batch queue's new length.
using QueueChanged = std::function<void(int)>;

// The answer to the question whether the list shall be saved before another one takes its place.
enum class SaveFirst { Save, DoNotSave, Cancel };

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
    virtual void ProcessBatch(const QueueChanged& queueChanged, QWidget* parent) = 0;
    // For a photo that is prepared as for the queue.
    virtual void Morph(const ImageRecord& image, const QueueChanged& queueChanged,
                       QWidget* parent) = 0;
    // Begins with the photo under the path; empty for none.
    virtual void Stretch(const QString& photo, QWidget* parent) = 0;
    virtual void ShowAbout(QWidget* parent) = 0;
    // Of the project with this file name; empty when the list belongs to none.
    virtual SaveFirst AskToSave(const QString& project) = 0;
    // Paths of project files, to be opened or written; empty when cancelled.
    virtual QString ChooseProject(const QString& folder) = 0;
    virtual QString ChooseProjectName(const QString& proposal) = 0;
};

// Everything through which the main window speaks to the user besides itself.
struct WindowPorts {
    PhotoLoader& photos;
    Notices& notices;
    GearPrompt& gearPrompt;
    FileChooser& fileChooser;
    Dialogs& dialogs;
    // Makes what reads the list's small pictures; without it there are none.
    std::function<std::unique_ptr<PictureReader>()> newSmallReader = nullptr;
};

}  // namespace varnel
