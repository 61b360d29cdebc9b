// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The ports of the main window, answered with real windows. Throws nothing but for want of memory.
#pragma once

#include <QStringList>
#include <QWidget>

#include "app/workspace/workspace.h"
#include "base/notices.h"
#include "gear/dialogs/gear_editor_ports.h"
#include "gear/store/gear_store.h"

namespace varnel {

// Plain modal message boxes with an OK button, above whatever window is active. Tell is for errors,
// Inform for information.
class MessageBoxes : public Notices {
  public:
    static void Inform(const QString& text);
    void Tell(const QString& text, const QString& detail) override;
};

// Asks for the first gear with the gear editor. Only the shortcut that quits the program ends it
// without one.
class FirstGearPrompt : public GearPrompt {
  public:
    void Explain(const QString& text) override;
    bool DefineGear(GearTable& table) override;
    // What the editor works with from now on.
    void Use(const GearEditorPorts& ports) { ports_ = ports; }

  private:
    GearEditorPorts ports_;
    bool quitWanted_ = false;
};

// The platform's file dialog with the four file types.
class SaveFileDialog : public FileChooser {
  public:
    std::optional<SaveChoice> ChooseSave(const SaveChoice& proposal) override;
    bool AgreesToReplace(const QString& name) override;
};

// The path of a photo, asked for with the platform's file dialog; empty when cancelled.
QString ChoosePhoto(const QString& folder);
QStringList ChoosePhotos(const QString& folder);
// The path of a file of lenses to import, and of one to export a lens of that name to.
QString ChooseLensFile();
QString ChooseLensExport(const QString& lens);
// The path of a file of presets to import, and of one to export them to.
QString ChoosePresetImport();
QString ChoosePresetExport();

}  // namespace varnel
