// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/form_about.h"

#include "remap/image/image_library.h"
#include "ui_form_about.h"

namespace varnel {

FormAbout::FormAbout(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::FormAbout>()) {
    ui_->setupUi(this);
    ui_->LabelRevision->setText(tr("Revision %1").arg(QStringLiteral(VARNEL_VERSION)));
    ui_->LabelFreeimageVersion->setText(tr("Version %1").arg(LibraryVersion()));
    ui_->LabelFreeimageNotice->setText(LibraryNotice());
    QFont title = ui_->LabelTitle->font();
    title.setPointSizeF(title.pointSizeF() * 1.8);
    title.setBold(true);
    ui_->LabelTitle->setFont(title);
    ShowIcon();
    connect(ui_->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

FormAbout::~FormAbout() = default;

void FormAbout::ShowIcon() {
    const QIcon icon = windowIcon();
    ui_->LabelIcon->setVisible(!icon.isNull());
    ui_->LabelIcon->setPixmap(icon.pixmap(QSize(64, 64), devicePixelRatioF()));
}

}  // namespace varnel
