// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Using a dialog as a person does, and somebody who notes what it says.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "base/notices.h"

namespace varnel::testing {

class NotedNotices : public Notices {
  public:
    void Tell(const QString& text, const QString& detail) override {
        told.append(detail.isEmpty() ? text : text + u'|' + detail);
    }
    QStringList told;
};

// A control of the dialog by its name.
template <class Control>
Control& The(const QDialog& form, const char* name) {
    return *form.findChild<Control*>(QString::fromUtf8(name));
}

inline void Click(const QDialog& form, const char* button) {
    QTest::mouseClick(&The<QAbstractButton>(form, button), Qt::LeftButton);
}

// What stands in a selector.
inline QString Items(const QComboBox& combo) {
    QStringList items;
    for (int row = 0; row < combo.count(); ++row) {
        items.append(combo.itemText(row));
    }
    return items.join(u' ');
}

// One notch of the wheel over the middle of the widget.
inline void Wheel(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

// A dialog, and its controls by their names.
template <class Form>
class DialogTest : public ::testing::Test {
  protected:
    template <class Control>
    Control& The(const char* name) const {
        return testing::The<Control>(*form, name);
    }
    void Click(const char* button) const { testing::Click(*form, button); }
    QString Label(const char* name) const { return The<QLabel>(name).text(); }

    // The wheel over a slider must not move it while another control has the focus.
    void ExpectWheelOnlyWithFocus(QSlider& slider, QWidget& other) const {
        const int before = slider.value();
        other.setFocus();
        Wheel(slider);
        EXPECT_EQ(slider.value(), before);
        form->activateWindow();
        slider.setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return slider.hasFocus(); }));
        Wheel(slider);
        EXPECT_GT(slider.value(), before);
    }
    void TearDown() override { form.reset(); }  // before what it was opened on

    NotedNotices notices;
    std::unique_ptr<Form> form;
};

}  // namespace varnel::testing
