// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/form_about.h"

#include <FreeImage.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace varnel {
namespace {

TEST(FormAbout, ShowsTheVersionsOfProgramAndImageLibrary) {
    const FormAbout form;
    EXPECT_EQ(form.objectName(), QStringLiteral("FormAbout"));
    const auto text = [&](const char* name) {
        const auto* const label = form.findChild<QLabel*>(QString::fromLatin1(name));
        return label == nullptr ? QStringLiteral("no such label") : label->text();
    };
    EXPECT_EQ(text("LabelRevision"), QStringLiteral("Revision " VARNEL_VERSION));
    EXPECT_EQ(text("LabelFreeimage"), QStringLiteral("FreeImage"));
    EXPECT_EQ(text("LabelFreeimageVersion"),
              QStringLiteral("Version ") + QString::fromLatin1(FreeImage_GetVersion()));
    EXPECT_TRUE(text("LabelCopyright").contains(QStringLiteral("Varnel developers")));
    EXPECT_TRUE(text("LabelCopyright").contains(QStringLiteral("GPL-3.0-or-later")));
    EXPECT_TRUE(text("LabelLensDataNotice").contains(QStringLiteral("CC BY-SA 3.0")));
}

TEST(FormAbout, ClosesByButtonEnterAndEscape) {
    const auto closesBy = [](const std::function<void(FormAbout&, QPushButton&)>& act) {
        FormAbout form;
        form.show();
        auto* const close = form.findChild<QPushButton*>(QStringLiteral("Command1"));
        act(form, *close);
        return !form.isVisible();
    };
    EXPECT_FALSE(closesBy([](FormAbout&, QPushButton&) {}));
    EXPECT_TRUE(closesBy(
        [](FormAbout&, QPushButton& close) { QTest::mouseClick(&close, Qt::LeftButton); }));
    EXPECT_TRUE(
        closesBy([](FormAbout& form, QPushButton&) { QTest::keyClick(&form, Qt::Key_Return); }));
    EXPECT_TRUE(
        closesBy([](FormAbout& form, QPushButton&) { QTest::keyClick(&form, Qt::Key_Escape); }));
}

TEST(FormAbout, ShowsThePictureOfTheProgramIfThereIsOne) {
    QPixmap red(64, 64);
    red.fill(Qt::red);
    for (const bool given : {false, true}) {
        QApplication::setWindowIcon(given ? QIcon(red) : QIcon());
        FormAbout form;
        form.show();
        EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("LabelIcon"))->isVisible(), given);
    }
    QApplication::setWindowIcon({});
}

}  // namespace
}  // namespace varnel
