// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/own_lens_tools.h"

#include <QLocale>
#include <QMenu>

#include "base/error_text.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/export/export_lens.h"
#include "gear/lens/lens_file.h"
#include "gear/store/gear_list.h"
#include "gear/store/gear_store.h"

namespace varnel {

OwnLensTools::OwnLensTools(const OwnLensControls& controls, const GearEditorPorts& ports,
                           LensChoice& choice, GearTable& table, QWidget* parent)
    : QObject(parent), controls_(controls), ports_(ports), choice_(choice), table_(table) {
    BuildMenu();
    controls_.menu->setVisible(choice_.Folder().has_value());
    ShowLine({});
    connect(controls_.rename, &QPushButton::clicked, this, &OwnLensTools::Rename);
    connect(controls_.undo, &QPushButton::clicked, this, &OwnLensTools::Undo);
}

void OwnLensTools::BuildMenu() {
    auto* const menu = new QMenu(controls_.menu);
    const auto add = [&](const char* name, const QString& text, void (OwnLensTools::*act)()) {
        QAction* const action = menu->addAction(text, this, act);
        action->setObjectName(QLatin1StringView(name));
        return action;
    };
    import_ = add("CmdLensImport", tr("&Import ..."), &OwnLensTools::ChooseImport);
    menu->addSeparator();
    rename_ = add("CmdLensRename", tr("&Rename ..."), &OwnLensTools::AskName);
    export_ = add("CmdLensExport", tr("&Export ..."), &OwnLensTools::Export);
    delete_ = add("CmdLensDelete", tr("&Delete"), &OwnLensTools::Delete);
    connect(menu, &QMenu::aboutToShow, this, &OwnLensTools::ShowState);
    controls_.menu->setMenu(menu);
}

void OwnLensTools::ShowState() {
    import_->setEnabled(!importing_.Busy() && ports_.chooseLensFile);
    rename_->setEnabled(Chosen() != nullptr);
    delete_->setEnabled(Chosen() != nullptr);
    export_->setEnabled(table_(0).Lens && ports_.chooseExportFile);
}

const SampledLens* OwnLensTools::Chosen() const {
    const GearRecord& gear = table_(0);
    return gear.LensBrand == ownLensBrand && gear.Lens ? &*gear.Lens : nullptr;
}

void OwnLensTools::ShowLine(const QString& text) {
    deleted_.reset();
    renaming_.clear();
    controls_.line->setText(text);
    controls_.line->setVisible(!text.isEmpty());
    controls_.name->hide();
    controls_.rename->hide();
    controls_.undo->hide();
}

void OwnLensTools::ShowError(const Reason& reason) {
    ShowLine(tr("Nothing was changed: %1").arg(ErrorText(reason)));
}

void OwnLensTools::ChooseImport() {
    if (const QString path = ports_.chooseLensFile(); !path.isEmpty()) {
        Import(path);
    }
}

void OwnLensTools::Import(const QString& path) {
    if (!choice_.Folder() || importing_.Busy()) {
        return;
    }
    ShowLine(tr("Reading %1 ...").arg(path));
    importing_.Start([path, folder = *choice_.Folder()](
                         const auto& /*stopped*/) { return TakeLenses(path, folder); },
                     [this, path](const TakenLenses& taken) { OnImported(path, taken); });
}

void OwnLensTools::OnImported(const QString& path, const TakenLenses& taken) {
    if (taken.names.isEmpty()) {
        ShowError(taken.reason.isEmpty() ? Reason(ReasonCode::Of, path, ReasonCode::NotEnoughMemory)
                                         : taken.reason);
        return;
    }
    choice_.Reload();
    Q_EMIT Changed(taken.names.constFirst());
    QString text = taken.names.size() == 1
                       ? tr("\"%1\" is one of your lenses now.").arg(taken.names.constFirst())
                       : tr("%1 lenses are among yours now.").arg(taken.names.size());
    if (!taken.reason.isEmpty()) {
        text += u' ' + tr("Left out: %1").arg(ErrorText(taken.reason));
    }
    ShowLine(text);
}

void OwnLensTools::AskName() {
    ShowLine(tr("New name of the lens:"));
    renaming_ = Chosen()->name;
    controls_.name->setText(renaming_);
    controls_.name->show();
    controls_.name->selectAll();
    controls_.name->setFocus();
    controls_.rename->show();
    controls_.rename->setDefault(true);  // for the Return key
}

void OwnLensTools::Rename() {
    const QString name = renaming_;
    const QString newName = controls_.name->text();
    if (const Reason reason = choice_.Folder()->Rename(name, newName); !reason.isEmpty()) {
        ShowError(reason);
        return;
    }
    choice_.Forget();
    choice_.Reload();
    const LensReference renamed = choice_.Curve(ownLensBrand, TidyLensName(newName));
    if (renamed) {
        RenameLens(table_, name, renamed);
        RenameStoredLens(*ports_.store, name, renamed->name);
        Q_EMIT Renamed(name, renamed);
        Q_EMIT Changed(renamed->name);
    }
    ShowLine({});
}

void OwnLensTools::Export() {
    const LensReference lens = table_(0).Lens;
    const QString path = ports_.chooseExportFile(lens->name);
    if (path.isEmpty()) {
        return;
    }
    const LensExport exported =
        ExportLensTo(path, *lens, static_cast<double>(table_(0).SensorWidth),
                     static_cast<double>(table_(0).SensorHeight));
    if (!exported.reason.isEmpty()) {
        ShowLine(tr("Not exported: %1").arg(ErrorText(exported.reason)));
        return;
    }
    ShowLine(exported.largestError > 0.0
                 ? tr("Written to %1; its formula is off the curve by at most %2 px.")
                       .arg(path, QLocale().toString(exported.largestError, 'f', 2))
                 : tr("Written to %1.").arg(path));
}

int OwnLensTools::GearsWith(const QString& lens) const {
    int count = 0;
    for (int n = 1; n <= table_.UpperBound(); ++n) {
        count += table_(n).LensBrand == ownLensBrand && table_(n).LensModel == lens ? 1 : 0;
    }
    return count;
}

void OwnLensTools::Delete() {
    const SampledLensPointer lens = choice_.Folder()->Find(Chosen()->name);
    const Reason reason = lens ? choice_.Folder()->Delete(lens->name) : ReasonCode::NoSuchLens;
    if (!reason.isEmpty()) {
        ShowError(reason);
        return;
    }
    choice_.Forget();
    choice_.Reload();
    Q_EMIT Changed({});
    const int gears = GearsWith(lens->name);
    ShowLine(gears == 0 ? tr("\"%1\" was deleted.").arg(lens->name)
                        : tr("\"%1\" was deleted; gears that need it: %2.")
                              .arg(lens->name, QString::number(gears)));
    deleted_ = lens;
    controls_.undo->show();
}

void OwnLensTools::Undo() {
    const SampledLensPointer lens = deleted_;
    if (const Reason reason = choice_.Folder()->Add(*lens); !reason.isEmpty()) {
        ShowError(reason);
        return;
    }
    choice_.Reload();
    Q_EMIT Changed(lens->name);
    ShowLine({});
}

}  // namespace varnel
