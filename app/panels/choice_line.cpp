// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/choice_line.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "app/panels/spacing.h"
#include "remap/projection/projection_info.h"
#include "state/dialogs/wheel_guard.h"

namespace varnel {

ChoiceLine::ChoiceLine(QWidget* parent) : QWidget(parent), line_(new QHBoxLayout(this)) {
    line_->setContentsMargins({});
    line_->setSpacing(groupMargin);
    for (const ChoiceRowData& row : ChoiceRows()) {
        row.options.empty() ? AddBox(row) : AddList(row);
    }
    line_->addStretch();
}

void ChoiceLine::AddBox(const ChoiceRowData& row) {
    auto* const box = new QCheckBox(ChoiceText(row.heading), this);
    box->setObjectName(QString::fromLatin1(row.control));
    box->setToolTip(ChoiceText(row.tip));
    connect(box, &QCheckBox::clicked, this,
            [this, &row](bool on) { Q_EMIT Chosen(row.id, on ? 1 : 0); });
    setters_[static_cast<std::size_t>(row.id)] = [box](int value) { box->setChecked(value != 0); };
    controls_[static_cast<std::size_t>(row.id)] = {box};
    line_->addWidget(box);
}

void ChoiceLine::AddList(const ChoiceRowData& row) {
    auto* const label = new QLabel(ChoiceText(row.heading), this);
    auto* const list = new QComboBox(this);
    for (const ChoiceOption& option : row.options) {
        list->addItem(ChoiceText(option.text), option.value);
    }
    label->setObjectName(QStringLiteral("Label") + QLatin1StringView(row.control));
    label->setBuddy(list);
    list->setObjectName(QString::fromLatin1(row.control));
    list->setAccessibleName(label->text());
    list->setFocusPolicy(Qt::StrongFocus);
    new WheelGuard(list);
    for (QWidget* const control : std::initializer_list<QWidget*>{label, list}) {
        control->setToolTip(ChoiceText(row.tip));
        line_->addWidget(control);
    }
    connect(list, &QComboBox::activated, this,
            [this, &row, list] { Q_EMIT Chosen(row.id, list->currentData().toInt()); });
    setters_[static_cast<std::size_t>(row.id)] = [list](int value) {
        list->setCurrentIndex(list->findData(value));
    };
    controls_[static_cast<std::size_t>(row.id)] = {label, list};
}

void ChoiceLine::ShowFor(Projection projection) {
    for (const ChoiceRowData& row : ChoiceRows()) {
        for (QWidget* const control : controls_[static_cast<std::size_t>(row.id)]) {
            control->setVisible(ReadsChoice(projection, row.id));
        }
    }
    setVisible(!InfoOf(projection).choices.empty());
}

void ChoiceLine::Show(const ControlValues& values) {
    for (const ChoiceRowData& row : ChoiceRows()) {
        Show(row.id, values.Choice(row.id));
    }
}

}  // namespace varnel
