// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/form_gear_list.h"

#include <QShortcut>
#include <algorithm>
#include <utility>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/store/gear_store.h"
#include "ui_form_gear_list.h"

namespace varnel {

FormGearList::FormGearList(GearTable& table, SettingsStore& store, EditGear editGear,
                           QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormGearList>()),
      table_(table),
      origins_(table),
      store_(store),
      editGear_(std::move(editGear)) {
    ui_->setupUi(this);
    connect(ui_->CmdAddNew, &QPushButton::clicked, this, &FormGearList::AddNew);
    connect(ui_->CmdEdit, &QPushButton::clicked, this, &FormGearList::Redefine);
    connect(ui_->CmdDelete, &QPushButton::clicked, this, &FormGearList::Delete);
    connect(ui_->CmdOK, &QPushButton::clicked, this, &FormGearList::SaveAndClose);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &FormGearList::reject);
    auto* deleteKey = new QShortcut(QKeySequence(QKeySequence::Delete), ui_->GearList);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &FormGearList::Delete);
    connect(ui_->GearList, &QListWidget::itemDoubleClicked, this, &FormGearList::Redefine);
    connect(ui_->GearList, &QListWidget::itemSelectionChanged, this, &FormGearList::ShowState);
    Refresh(std::max(1, table_.Find(table_.DefaultGearName)));
}

FormGearList::~FormGearList() = default;

void FormGearList::AddNew() {
    table_(0) = GearRecord();
    editGear_(table_);
    if (!table_(0).GearName.isEmpty()) {
        origins_.NoteAdded();
        Refresh(AddEditedGear(table_));
    }
}

void FormGearList::Redefine() {
    const int n = Selected();
    if (n == 0) {
        return;
    }
    table_(0) = table_(n);
    editGear_(table_);
    if (!table_(0).GearName.isEmpty()) {
        ReplaceWithEditedGear(table_, n);
        Refresh(n);
    }
    table_(0).GearName.clear();
}

void FormGearList::Delete() {
    const int n = Selected();
    if (n == 0 || !MayDeleteGear(table_)) {
        return;
    }
    DeleteGear(table_, n);
    origins_.NoteDeleted(n);
    Refresh(std::min(n, table_.UpperBound()));
}

void FormGearList::SaveAndClose() {
    SaveGear(store_, table_);
    accept();
}

// Also for Escape and for the window's close button.
void FormGearList::reject() {
    table_ = origins_.Before();
    QDialog::reject();
}

void FormGearList::Refresh(int selected) {
    ui_->GearList->clear();
    for (int n = 1; n <= table_.UpperBound(); ++n) {
        auto* line = new QListWidgetItem(table_(n).GearName, ui_->GearList);
        line->setToolTip(BuiltGearName(NamesOf(table_(n))));
        if (IsDefaultGear(table_, n)) {
            QFont bold = font();
            bold.setBold(true);
            line->setFont(bold);
            line->setData(Qt::AccessibleDescriptionRole, tr("The gear of new photos"));
        }
    }
    ui_->GearList->setCurrentRow(selected - 1);
    ShowState();
}

void FormGearList::ShowState() {
    ui_->CmdDelete->setVisible(MayDeleteGear(table_));
    ui_->CmdOK->setVisible(table_.UpperBound() > 0);
    ui_->CmdEdit->setEnabled(Selected() != 0);
    ui_->CmdDelete->setEnabled(Selected() != 0);
}

int FormGearList::Selected() const {
    const QList<QListWidgetItem*> lines = ui_->GearList->selectedItems();
    return lines.isEmpty() ? 0 : ui_->GearList->row(lines.first()) + 1;
}

}  // namespace varnel
