// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/plain_texts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QToolTip>

namespace varnel {
namespace {

TEST(PlainTexts, MarkupInBoxesLabelsAndToolTipsIsShownAsItIs) {
    const QString hostile = QStringLiteral("<img src=\"/none\">");
    PlainTexts plain;
    qApp->installEventFilter(&plain);
    QMessageBox box(QMessageBox::Information, hostile, hostile);
    box.setInformativeText(hostile);
    box.show();
    QWidget window;
    QLabel early(hostile, &window);
    QLabel meant(hostile, &window);
    meant.setTextFormat(Qt::RichText);
    window.show();
    QLabel late(hostile, &window);
    late.show();
    QToolTip::showText({}, hostile, &window);
    int found = 0;
    for (const QWidget* const widget : QApplication::allWidgets()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        if (label != nullptr && label != &meant && label->text() == hostile) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->metaObject()->className();
            ++found;
        }
    }
    EXPECT_EQ(found, 5);
    EXPECT_EQ(meant.textFormat(), Qt::RichText);
    QToolTip::hideText();
}

}  // namespace
}  // namespace varnel
