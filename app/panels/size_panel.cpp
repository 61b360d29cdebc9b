// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/size_panel.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include "app/panels/named_button.h"
#include "app/panels/spacing.h"
#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

void ShowIn(QComboBox& box, const QString& key) {
    const QSignalBlocker blocker(&box);
    const int choice = box.findData(key);
    box.setCurrentIndex(choice);
    if (choice < 0) {
        box.setEditText(key);
    }
    box.lineEdit()->setModified(false);
}

}  // namespace

SizePanel::SizePanel(QWidget* parent) : FoldGroup("FrameSize", tr("Size and crop"), parent) {
    sizes_ = AddChoices("SizeCombo", tr("Size"),
                        tr("As large as the photo, or another size or shape: type a width "
                           "(4000), both sides (4000x3000) or a shape (16:9)"),
                        {{"", tr("As the photo")},
                         {"centre", tr("As sharp as the photo's middle")},
                         {"1:1", tr("Square, 1:1")},
                         {"4:3", QStringLiteral("4:3")},
                         {"3:2", QStringLiteral("3:2")},
                         {"16:9", QStringLiteral("16:9")},
                         {"2:1", QStringLiteral("2:1")},
                         {"3:1", QStringLiteral("3:1")}});
    outsides_ = AddChoices("OutsideCombo", tr("Outside"),
                           tr("What the result has where the photo shows nothing; type a colour as "
                              "#rrggbb. Transparent needs PNG or TIFF."),
                           {{"black", tr("Black")},
                            {"transparent", tr("Transparent")},
                            {"#ffffff", tr("White")},
                            {"#808080", tr("Grey")}});
    crop_ = NamedButton("CmdCrop", tr("Crop ..."),
                        tr("Shows all of the result and what is cut out of it"), Body());
    crop_->setCheckable(true);
    Column()->addWidget(crop_);
    Report(sizes_, &SizePanel::SizeWanted);
    Report(outsides_, &SizePanel::OutsideWanted);
}

QComboBox* SizePanel::AddChoices(const char* name, const QString& label, const QString& tip,
                                 std::initializer_list<Choice> choices) {
    auto* const box = new QComboBox(Body());
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(label);
    box->setToolTip(tip);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setCompleter(nullptr);
    box->setFocusPolicy(Qt::StrongFocus);
    new WheelGuard(box);
    for (const Choice& choice : choices) {
        box->addItem(choice.text, QString::fromLatin1(choice.key));
    }
    auto* const heading = new QLabel(label, Body());
    heading->setBuddy(box);
    auto* const row = new QHBoxLayout;
    row->setSpacing(rowGap);
    row->addWidget(heading);
    row->addWidget(box, 1);
    Column()->addLayout(row);
    return box;
}

void SizePanel::Report(QComboBox* box, Signal wanted) {
    connect(box, &QComboBox::activated, this, [this, box, wanted](int choice) {
        box->lineEdit()->setModified(false);
        Q_EMIT(this->*wanted)(box->itemData(choice).toString());
    });
    connect(box->lineEdit(), &QLineEdit::editingFinished, this, [this, box, wanted] {
        if (box->lineEdit()->isModified()) {
            box->lineEdit()->setModified(false);
            Q_EMIT(this->*wanted)(box->lineEdit()->text());
        }
    });
}

void SizePanel::ShowSize(const QString& size) {
    ShowIn(*sizes_, size);
}

void SizePanel::ShowOutside(const QString& outside) {
    ShowIn(*outsides_, outside);
}

}  // namespace varnel
