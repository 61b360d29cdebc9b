// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frames "Remap" and "Refine equipment parameters": projection, sliders and preview choices.
// Throws nothing.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <array>
#include <utility>
#include <vector>

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
    QCheckBox* AutoPreview() const { return autoPreview_; }
    QCheckBox* Antialiased() const { return antialiased_; }
    QPushButton* PreviewButton() const { return preview_; }
    QPushButton* ApplyToAll() const { return applyToAll_; }
    QButtonGroup* Projections() const { return projections_; }

  private:
    QWidget* MakeProjections(QGroupBox* remap);
    QWidget* MakePreviewChoices(QWidget* parent);
    void AddRow(QLayout* layout, SliderId id);
    void AddGroupLabel(QLayout* layout, const char* name, SliderId first);

    QButtonGroup* projections_;
    QCheckBox* autoPreview_ = nullptr;
    QCheckBox* antialiased_ = nullptr;
    QPushButton* preview_ = nullptr;
    QPushButton* applyToAll_ = nullptr;
    std::array<SliderRow*, 8> rows_{};
    // Headings of the rotation and shift sliders, each with its first slider.
    std::vector<std::pair<QLabel*, SliderId>> groupLabels_;
};

}  // namespace varnel
