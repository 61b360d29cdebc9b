// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frame "Remap" and the groups below it that fold: projection, sliders and preview choices.
// Throws nothing.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <array>
#include <utility>
#include <vector>

#include "app/panels/choice_line.h"
#include "app/panels/fold_group.h"
#include "app/panels/projection_chooser.h"
#include "app/panels/reset_dot.h"
#include "app/panels/slider_row.h"

namespace varnel {

class AdjustmentPanel : public QWidget {
    Q_OBJECT
  public:
    explicit AdjustmentPanel(QWidget* parent = nullptr);

    // Checks the projection's button, shows what belongs to it and sets every slider, without
    // signals of the rows.
    void Show(const ControlValues& values);
    // Shows the sliders, labels and choices of a projection and hides the others.
    void ShowFor(Projection projection);
    const std::array<SliderRow*, sliderCount>& Rows() const { return rows_; }
    SliderRow* Row(SliderId id) const;
    ResetDot* Dot(SliderId id) const { return dots_[static_cast<std::size_t>(id)]; }
    QCheckBox* AutoPreview() const { return autoPreview_; }
    QCheckBox* Antialiased() const { return antialiased_; }
    QPushButton* PreviewButton() const { return preview_; }
    QPushButton* ApplyToAll() const { return applyToAll_; }
    QPushButton* ResetPhoto() const { return resetPhoto_; }
    ProjectionChooser* Projections() const { return projections_; }
    ChoiceLine* Choices() const { return choices_; }
    const std::array<FoldGroup*, 3>& Folds() const { return folds_; }

  private:
    QGroupBox* MakeRemap();
    FoldGroup* MakeTranspose();
    FoldGroup* MakeRefine();
    FoldGroup* MakePreview();
    QWidget* MakeWholePhoto(QGroupBox* remap);
    void AddRow(QLayout* layout, SliderId id);
    void AddDot(SliderRow& row);
    void AlignNumbers();
    QLabel* MakeGroupLabel(const char* name, SliderId first);

    ProjectionChooser* projections_ = nullptr;
    ChoiceLine* choices_ = nullptr;
    QCheckBox* autoPreview_ = nullptr;
    QCheckBox* antialiased_ = nullptr;
    QPushButton* preview_ = nullptr;
    QPushButton* applyToAll_ = nullptr;
    QPushButton* resetPhoto_ = nullptr;
    std::array<SliderRow*, sliderCount> rows_{};
    std::array<ResetDot*, sliderCount> dots_{};  // by the sliders' numbers
    std::array<FoldGroup*, 3> folds_{};
    // What stands around the rotation and shift sliders, each with its first slider.
    std::vector<std::pair<QWidget*, SliderId>> groups_;
};

}  // namespace varnel
