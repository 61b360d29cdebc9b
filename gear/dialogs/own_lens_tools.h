// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What can be done with the user's own lenses in the gear editor: import, rename, export, delete
// and take that back. All of it acts on the files at once. Throws std::bad_alloc only; errors are
// shown in a line.
#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPushButton>

#include "gear/dialogs/background_work.h"
#include "gear/dialogs/gear_editor_ports.h"
#include "gear/dialogs/lens_choice.h"
#include "gear/lens/import/import_lenses.h"

namespace varnel {

// Of the editor, which owns them.
struct OwnLensControls {
    QPushButton* menu;
    QLabel* line;  // what was done, or why not
    QLineEdit* name;
    QPushButton* rename;
    QPushButton* undo;
};

class OwnLensTools : public QObject {
    Q_OBJECT
  public:
    OwnLensTools(const OwnLensControls& controls, const GearEditorPorts& ports, LensChoice& choice,
                 GearTable& table, QWidget* parent);

    void Import(const QString& path);
    void ShowLine(const QString& text);

  Q_SIGNALS:
    // The lenses are others now; this one is to be chosen if its name is not empty.
    void Changed(const QString& name);
    void Renamed(const QString& name, const varnel::LensReference& renamed);

  private:
    void BuildMenu();
    void ShowState();
    const SampledLens* Chosen() const;  // of one's own; null where another lens is chosen
    void ChooseImport();
    void OnImported(const QString& path, const TakenLenses& taken);
    void AskName();
    void Rename();
    void Export();
    void Delete();
    void Undo();
    void ShowError(const Reason& reason);
    int GearsWith(const QString& lens) const;

    OwnLensControls controls_;
    GearEditorPorts ports_;
    LensChoice& choice_;
    GearTable& table_;
    QAction* import_ = nullptr;
    QAction* rename_ = nullptr;
    QAction* export_ = nullptr;
    QAction* delete_ = nullptr;
    SampledLensPointer deleted_;
    QString renaming_;
    BackgroundWork<TakenLenses> importing_{this};
};

}  // namespace varnel
