// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frame "Remap" and the groups below it that fold: projection, sliders and preview choices.
// Throws nothing.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <array>
#include <utility>
#include <vector>

#include "app/panels/fold_group.h"
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
    // Shows the sliders and labels of a projection and hides the others.
    void ShowFor(Projection projection);
    const std::array<SliderRow*, 8>& Rows() const { return rows_; }
    SliderRow* Row(SliderId id) const;
    ResetDot* Dot(SliderId id) const { return dots_[static_cast<std::size_t>(id)]; }
    QCheckBox* AutoPreview() const { return autoPreview_; }
    QCheckBox* Antialiased() const { return antialiased_; }
    QPushButton* PreviewButton() const { return preview_; }
    QPushButton* ApplyToAll() const { return applyToAll_; }
    QPushButton* ResetPhoto() const { return resetPhoto_; }
    QButtonGroup* Projections() const { return projections_; }
    const std::array<FoldGroup*, 3>& Folds() const { return folds_; }

  private:
    QGroupBox* MakeRemap();
    FoldGroup* MakeTranspose();
    FoldGroup* MakeRefine();
    FoldGroup* MakePreview();
    QWidget* MakeProjections(QGroupBox* remap);
    void AddRow(QLayout* layout, SliderId id);
    void AddDot(SliderRow& row);
    void AlignNumbers();
    QLabel* MakeGroupLabel(const char* name, SliderId first);

    QButtonGroup* projections_;
    QCheckBox* autoPreview_ = nullptr;
    QCheckBox* antialiased_ = nullptr;
    QPushButton* preview_ = nullptr;
    QPushButton* applyToAll_ = nullptr;
    QPushButton* resetPhoto_ = nullptr;
    std::array<SliderRow*, 8> rows_{};
    std::array<ResetDot*, 8> dots_{};  // by the sliders' numbers
    std::array<FoldGroup*, 3> folds_{};
    // What stands around the rotation and shift sliders, each with its first slider.
    std::vector<std::pair<QWidget*, SliderId>> groups_;
};

}  // namespace varnel
