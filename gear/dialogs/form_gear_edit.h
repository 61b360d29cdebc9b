// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear editor: defines the scratch gear, element 0 of the table, from a camera and a lens. A
// scratch gear that has a name is redefined, else a new one is made. After the dialog has closed an
// empty name means that nothing was defined. A lens with a curve that is not one of the user's own
// becomes one when the gear is confirmed. Throws nothing but for want of memory.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>

#include "gear/dialogs/background_work.h"
#include "gear/dialogs/gear_adjusters.h"
#include "gear/dialogs/gear_editor_ports.h"
#include "gear/dialogs/gear_result.h"
#include "gear/dialogs/lens_choice.h"
#include "gear/dialogs/own_lens_tools.h"
#include "gear/store/gear_entry.h"
#include "state/records/gear_record.h"

namespace Ui {
class FormGearEdit;
}

namespace varnel {

class FormGearEdit : public QDialog {
    Q_OBJECT

  public:
    explicit FormGearEdit(GearTable& table, const GearEditorPorts& ports = {},
                          QWidget* parent = nullptr);
    ~FormGearEdit() override;

    // Starts a new gear with the known names and numbers; names that are in no catalogue are left
    // open.
    void Propose(const GearRecord& known);
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void ConnectChoice();
    void ConnectNameText();
    void Open();
    void SelectNames(const GearNames& names);
    void Choose();
    void Refresh();
    void ConnectLenses();
    void OfferLenses();
    void OnLensesChanged(const QString& name);
    void OnLensRenamed(const QString& name, const LensReference& renamed);
    void ChooseLens(const QString& brand, const QString& model);
    bool KeepLens();
    void SetUpResult();
    void ShowResult();
    void ReadPhoto();
    void TakeOrigin(const CameraInfo& origin);
    void UseCatalogue();
    void Confirm();
    void ShowState();
    void ShowPromptPale();
    bool NameIsPrompt() const;
    bool BothChosen() const;
    GearNames ChosenNames() const;

    std::unique_ptr<Ui::FormGearEdit> ui_;
    GearTable& table_;
    GearEditorPorts ports_;
    LensChoice choice_;
    OwnLensTools* ownLenses_ = nullptr;
    GearResult* result_ = nullptr;
    GearRecord opened_;  // the gear when the dialog was opened
    GearAdjusters* adjusters_ = nullptr;
    QString prompt_;
    bool isNew_ = true;
    BackgroundWork<QList<SampledLens>> lensfun_{this};
};

}  // namespace varnel
