// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/projection_chooser.h"

#include "remap/projection/projection_info.h"
#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

constexpr int columns = 3;
constexpr int moreId = 4;  // of the button for all without one of their own

bool HasButton(Projection projection) {
    return InfoOf(projection).basic;
}

}  // namespace

ProjectionChooser::ProjectionChooser(QGridLayout* grid, QWidget* parent)
    : QObject(parent), buttons_(new QButtonGroup(parent)) {
    buttons_->setObjectName(QStringLiteral("OptionRemap"));
    AddButtons(grid, parent);
    AddMore(grid, parent);
    buttons_->button(0)->setChecked(true);
    connect(buttons_, &QButtonGroup::idClicked, this,
            [this](int id) { Q_EMIT Chosen(id == moreId ? FromList() : ProjectionFromIndex(id)); });
    connect(list_, &QComboBox::activated, this, [this] {
        more_->setChecked(true);
        Q_EMIT Chosen(FromList());
    });
}

void ProjectionChooser::AddButtons(QGridLayout* grid, QWidget* parent) {
    for (const Projection projection : AllProjections()) {
        if (!HasButton(projection)) {
            continue;
        }
        const int index = static_cast<int>(projection);
        auto* const button = new QRadioButton(TitleOf(projection), parent);
        button->setObjectName(QStringLiteral("OptionRemap_%1").arg(index));
        button->setToolTip(TipOf(projection));
        buttons_->addButton(button, index);
        grid->addWidget(button, index / columns, index % columns);
    }
}

void ProjectionChooser::AddMore(QGridLayout* grid, QWidget* parent) {
    more_ = new QRadioButton(tr("More"), parent);
    list_ = new QComboBox(parent);
    for (const Projection projection : AllProjections()) {
        if (!HasButton(projection)) {
            list_->addItem(TitleOf(projection), static_cast<int>(projection));
            list_->setItemData(list_->count() - 1, TipOf(projection), Qt::ToolTipRole);
        }
    }
    more_->setObjectName(QStringLiteral("OptionRemapMore"));
    more_->setToolTip(tr("The projections of the list beside it"));
    buttons_->addButton(more_, moreId);
    list_->setObjectName(QStringLiteral("ProjectionCombo"));
    list_->setAccessibleName(tr("More projections"));
    list_->setMaxVisibleItems(list_->count());
    list_->setFocusPolicy(Qt::StrongFocus);
    new WheelGuard(list_);
    connect(list_, &QComboBox::currentIndexChanged, this,
            [this] { list_->setToolTip(TipOf(FromList())); });
    list_->setToolTip(TipOf(FromList()));
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list_->setMinimumContentsLength(11);
    grid->addWidget(more_, moreId / columns, moreId % columns);
    grid->addWidget(list_, moreId / columns, moreId % columns + 1);
    grid->setColumnStretch(columns - 1, 1);
}

Projection ProjectionChooser::FromList() const {
    return ProjectionFromIndex(list_->currentData().toInt());
}

void ProjectionChooser::Show(Projection projection) {
    const int index = static_cast<int>(projection);
    if (!HasButton(projection)) {
        list_->setCurrentIndex(list_->findData(index));
    }
    buttons_->button(HasButton(projection) ? index : moreId)->setChecked(true);
}

}  // namespace varnel
