// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/line_bar.h"

#include <QHBoxLayout>

namespace varnel {

LineBar::LineBar(const char* name, const char* label, QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)) {
    setObjectName(QString::fromLatin1(name));
    text_->setObjectName(QString::fromLatin1(label));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);  // the pictures get the rest
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(9, 4, 9, 4);
    row->addWidget(text_, 1);
    hide();
}

QPushButton* LineBar::AddButton(const char* name, const QString& text, const QString& tip) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(tip);
    layout()->addWidget(button);
    return button;
}

}  // namespace varnel
