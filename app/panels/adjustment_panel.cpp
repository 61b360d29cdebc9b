// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/adjustment_panel.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "app/panels/named_button.h"
#include "app/panels/spacing.h"
#include "app/panels/title_corner.h"
#include "remap/projection/projection_info.h"

namespace varnel {

AdjustmentPanel::AdjustmentPanel(QWidget* parent) : QWidget(parent) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(groupGap);
    column->addWidget(MakeRemap());
    folds_ = {MakeTranspose(), MakeRefine(), MakePreview()};
    for (FoldGroup* const fold : folds_) {
        column->addWidget(fold);
    }
    AlignNumbers();
    ShowFor(AllProjections().front());
}

QGroupBox* AdjustmentPanel::MakeRemap() {
    auto* const remap = new TitleCornerBox(tr("Remap"), this);
    remap->setObjectName(QStringLiteral("FrameRemap"));
    QWidget* const whole = MakeWholePhoto(remap);
    remap->SetCorner(whole);
    auto* const column = new QVBoxLayout(remap);
    column->setContentsMargins(groupMargin, 0, groupMargin, rowGap);
    column->setSpacing(rowGap);
    auto* const projections = new QWidget(remap);
    auto* const grid = new QGridLayout(projections);
    grid->setContentsMargins({});
    grid->setSpacing(rowGap);
    projections_ = new ProjectionChooser(grid, projections);
    column->addWidget(projections);
    choices_ = new ChoiceLine(remap);
    column->addWidget(choices_);
    for (const SliderId id :
         {SliderId::AovOutput, SliderId::Effect, SliderId::PaniniD, SliderId::PaniniSqueeze,
          SliderId::UnrollStart, SliderId::UnrollFrom, SliderId::UnrollTo}) {
        AddRow(column, id);
    }
    QLabel* const rotate = MakeGroupLabel("LabelRotate1", SliderId::X);
    column->addWidget(rotate);
    groups_.emplace_back(rotate, SliderId::X);
    AddRow(column, SliderId::X);
    AddRow(column, SliderId::Y);
    AddRow(column, SliderId::Z);
    return remap;
}

FoldGroup* AdjustmentPanel::MakeTranspose() {
    auto* const group = new FoldGroup("FrameTranslate", GroupName(SliderId::XTranslate), this);
    group->SetLabel(MakeGroupLabel("LabelTranslate1", SliderId::XTranslate));
    groups_.emplace_back(group, SliderId::XTranslate);
    AddRow(group->Column(), SliderId::XTranslate);
    AddRow(group->Column(), SliderId::YTranslate);
    return group;
}

FoldGroup* AdjustmentPanel::MakeRefine() {
    auto* const group = new FoldGroup("Frame1", tr("Refine equipment parameters"), this);
    AddRow(group->Column(), SliderId::AovInput);
    return group;
}

QWidget* AdjustmentPanel::MakeWholePhoto(QGroupBox* remap) {
    auto* const box = new QWidget(remap);
    auto* const line = new QHBoxLayout(box);
    line->setContentsMargins({});
    line->setSpacing(rowGap);
    applyToAll_ =
        NamedButton("CmdApplyAll2", tr("Apply to all"),
                    tr("Gives every photo in the list these settings and this gear"), box);
    // The gear has a button of the same text.
    applyToAll_->setAccessibleName(
        QStringLiteral("%1: %2").arg(remap->title(), applyToAll_->text()));
    resetPhoto_ =
        NamedButton("CmdResetPhoto", tr("Reset photo"),
                    tr("Gives all sliders of this photo the values of its gear again"), box);
    for (QPushButton* const button : {applyToAll_, resetPhoto_}) {
        button->setFixedHeight(fontMetrics().height() + rowGap);  // about the title's
        line->addWidget(button);
    }
    return box;
}

FoldGroup* AdjustmentPanel::MakePreview() {
    auto* const group = new FoldGroup("FramePreview", tr("Preview"), this);
    auto* const grid = new QGridLayout;
    grid->setSpacing(rowGap);
    group->Column()->addLayout(grid);
    autoPreview_ = new QCheckBox(tr("Auto preview"), group->Body());
    autoPreview_->setObjectName(QStringLiteral("CheckAutoPreview"));
    autoPreview_->setToolTip(tr("Redraws the preview after every change"));
    autoPreview_->setChecked(true);
    antialiased_ = new QCheckBox(tr("Antialiased"), group->Body());
    antialiased_->setObjectName(QStringLiteral("CheckAntialiased"));
    antialiased_->setToolTip(tr("Smooths the preview; saved pictures are always smooth"));
    antialiased_->setChecked(true);
    preview_ = new QPushButton(tr("Preview"), group->Body());
    preview_->setObjectName(QStringLiteral("CmdFreeImage"));
    preview_->setToolTip(tr("Draws the preview now"));
    grid->addWidget(autoPreview_, 0, 0);
    grid->addWidget(antialiased_, 1, 0);
    grid->addWidget(preview_, 0, 1, 2, 1, Qt::AlignRight);
    return group;
}

void AdjustmentPanel::AddRow(QLayout* layout, SliderId id) {
    const auto& table = SliderRows();
    for (std::size_t n = 0; n < table.size(); ++n) {
        if (table[n].id == id) {
            rows_[n] = new SliderRow(table[n], this);
            layout->addWidget(rows_[n]);
            AddDot(*rows_[n]);
        }
    }
}

// Behind the number, half way between its two lines.
void AdjustmentPanel::AddDot(SliderRow& row) {
    const SliderRowData& facts = row.Data();
    const QString heading = QCoreApplication::translate("Sliders", facts.startCaption);
    auto* const dot = new ResetDot(QString::fromLatin1(facts.slider),
                                   facts.heading == nullptr ? heading : SpokenName(facts), &row);
    auto* const grid = qobject_cast<QGridLayout*>(row.layout());
    grid->addWidget(dot, 0, grid->columnCount(), 2, 1, Qt::AlignCenter);
    dots_[static_cast<std::size_t>(facts.id)] = dot;
}

// One column, whatever the ranges are; and room for every caption, so that nothing is pushed out of
// sight while a slider moves.
void AdjustmentPanel::AlignNumbers() {
    int widest = 0;
    for (const QAbstractSpinBox* const number : findChildren<QAbstractSpinBox*>()) {
        widest = std::max(widest, number->sizeHint().width());
    }
    for (QAbstractSpinBox* const number : findChildren<QAbstractSpinBox*>()) {
        number->setMinimumWidth(widest);
    }
    for (const SliderRow* const row : rows_) {
        const SliderRowData& facts = row->Data();
        auto* const caption = row->findChild<QLabel*>(QString::fromLatin1(facts.valueLabel));
        for (const Projection projection : AllProjections()) {
            const ControlRange range = RangeOf(facts.id, projection);
            for (const double end : {range.minimum + 0.1, range.maximum - 0.1}) {
                const int room =
                    caption->fontMetrics().horizontalAdvance(SliderCaption(facts, end));
                caption->setMinimumWidth(std::max(caption->minimumWidth(), room));
            }
        }
    }
}

QLabel* AdjustmentPanel::MakeGroupLabel(const char* name, SliderId first) {
    auto* const label = new QLabel(GroupName(first), this);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

SliderRow* AdjustmentPanel::Row(SliderId id) const {
    for (SliderRow* const row : rows_) {
        if (row->Data().id == id) {
            return row;
        }
    }
    return nullptr;
}

void AdjustmentPanel::Show(const ControlValues& values) {
    const Projection projection = ProjectionFromIndex(values.projection);
    ShowFor(projection);
    choices_->Show(values);
    for (SliderRow* const row : rows_) {
        if (const std::optional<double> value = ValueOf(row->Data().id, values)) {
            row->Show(*value);
        }
    }
}

void AdjustmentPanel::ShowFor(Projection projection) {
    projections_->Show(projection);
    choices_->ShowFor(projection);
    for (SliderRow* const row : rows_) {
        row->SetRange(RangeOf(row->Data().id, projection), ReachOf(row->Data().id, projection));
        row->SetShown(ShownWith(row->Data(), projection));
    }
    for (const auto& [group, first] : groups_) {
        group->setVisible(ShownWith(SliderRowOf(first), projection));
    }
}

}  // namespace varnel
