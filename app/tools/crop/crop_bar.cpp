// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/crop/crop_bar.h"

#include <QLayout>
#include <array>

#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

constexpr double anyShape = 0.0;
constexpr double frameShape = -1.0;

struct Sides {
    int width, height;
};
constexpr std::array shapes{Sides{1, 1},  Sides{5, 4}, Sides{4, 3}, Sides{3, 2},
                            Sides{16, 9}, Sides{2, 1}, Sides{3, 1}, Sides{4, 5},
                            Sides{3, 4},  Sides{2, 3}, Sides{9, 16}};

}  // namespace

CropBar::CropBar(QWidget* parent) : LineBar("BarCrop", "LabelCrop", parent) {
    Text().setToolTip(
        tr("Drag the corners, the sides or the crop itself; arrow keys move it, with "
           "Shift they widen it, plus and minus do on all sides"));
    AddShapes();
    clean_ = Add("CmdCropClean", tr("Clean"),
                 tr("The largest part in which the photo is everywhere"), &CropBar::CleanWanted);
    Add("CmdCropAll", tr("Whole frame"), tr("Cuts nothing off"), &CropBar::AllWanted);
    Add("CmdCropDone", tr("Done"), tr("Shows the result as it is saved"), &CropBar::Done);
}

void CropBar::AddShapes() {
    shapes_ = new QComboBox(this);
    shapes_->setObjectName(QStringLiteral("CropShapeCombo"));
    shapes_->setAccessibleName(tr("Shape of the crop"));
    shapes_->setToolTip(tr("Width and height of the crop"));
    shapes_->setFocusPolicy(Qt::StrongFocus);
    new WheelGuard(shapes_);
    shapes_->addItem(tr("Any shape"), anyShape);
    shapes_->addItem(tr("As the frame"), frameShape);
    for (const Sides& sides : shapes) {
        shapes_->addItem(QStringLiteral("%1:%2").arg(sides.width).arg(sides.height),
                         static_cast<double>(sides.width) / sides.height);
    }
    layout()->addWidget(shapes_);
    connect(shapes_, &QComboBox::activated, this, &CropBar::ShapeChosen);
}

QPushButton* CropBar::Add(const char* name, const QString& text, const QString& tip,
                          void (CropBar::*signal)()) {
    QPushButton* const button = AddButton(name, text, tip);
    connect(button, &QPushButton::clicked, this, signal);
    return button;
}

double CropBar::Shape(double frame) const {
    const double chosen = shapes_->currentData().toDouble();
    return chosen == frameShape ? frame : chosen;
}

}  // namespace varnel
