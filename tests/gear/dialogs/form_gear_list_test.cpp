// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/form_gear_list.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/dialogs/form_gear_edit.h"

namespace varnel {
namespace {

QString Text(const char* text) {
    return QString::fromLatin1(text);
}

// The list with an editor that a test puts in place of the real one.
class GearListForm : public ::testing::Test {
  protected:
    void Open(std::initializer_list<const char*> names, const char* defaultName) {
        for (const char* name : names) {
            table_.Resize(table_.UpperBound() + 1);
            table_(table_.UpperBound()).GearName = Text(name);
        }
        table_.DefaultGearName = Text(defaultName);
        form_ = std::make_unique<FormGearList>(table_, store_,
                                               [this](GearTable& table) { edit_(table); });
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <class Control>
    Control* Get(const char* name) {
        auto* control = form_->findChild<Control*>(Text(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void Click(const char* name) { QTest::mouseClick(Get<QPushButton>(name), Qt::LeftButton); }
    QPoint Line(int n) {
        auto* list = Get<QListWidget>("GearList");
        return list->visualItemRect(list->item(n - 1)).center();
    }
    void Select(int n) {
        QTest::mouseClick(Get<QListWidget>("GearList")->viewport(), Qt::LeftButton, {}, Line(n));
    }
    // The lines, the selected one in brackets, then the default gear.
    std::string Lines() {
        auto* list = Get<QListWidget>("GearList");
        QStringList lines;
        for (int n = 0; n < list->count(); ++n) {
            const QString text = list->item(n)->text();
            lines.append(list->item(n)->isSelected() ? u'[' + text + u']' : text);
        }
        return (lines.join(u',') + u':' + table_.DefaultGearName).toStdString();
    }
    QString Stored(const char* key) { return store_.Get(Text("Gear"), Text(key), Text("-")); }

    GearTable table_;
    MemoryStore store_;
    std::function<void(GearTable&)> edit_ = [](GearTable&) { ADD_FAILURE() << "editor shown"; };
    std::unique_ptr<FormGearList> form_;
};

TEST_F(GearListForm, HasEveryControl) {
    Open({"a", "b"}, "b");
    EXPECT_EQ(form_->objectName(), u"FormGearList");
    const struct {
        const char *name, *text;
    } cases[] = {{"CmdAddNew", "Add new"},
                 {"CmdEdit", "Redefine"},
                 {"CmdDelete", "Delete"},
                 {"CmdOK", "OK"},
                 {"CmdCancel", "Cancel"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Get<QPushButton>(c.name)->text(), Text(c.text));
        EXPECT_TRUE(Get<QPushButton>(c.name)->isVisible()) << c.name;
    }
    EXPECT_EQ(Lines(), "a,[b]:b");
}

TEST_F(GearListForm, AddsOneCombinationTwiceWithTheRealEditor) {
    Open({"a"}, "a");
    table_(0).UserAdjusted = true;  // left over from an earlier gear
    table_(0).OfsetX = 9.0F;
    edit_ = [](GearTable& table) {
        FormGearEdit editor(table);
        const auto choose = [&editor](const char* name, const char* text) {
            editor.findChild<QComboBox*>(Text(name))->setCurrentText(Text(text));
        };
        choose("CameraBrandCombo", "Canon");
        choose("CameraCombo", "EOS 5D");
        choose("LensBrandCombo", "Samyang");
        choose("LensCombo", "8 mm f/3.5");
        editor.show();
        QTest::mouseClick(editor.findChild<QPushButton*>(Text("CmdAdd")), Qt::LeftButton);
    };
    Click("CmdAddNew");
    Click("CmdAddNew");
    EXPECT_EQ(Lines(),
              "a,Canon EOS 5D + Samyang 8 mm f/3.5,[Canon EOS 5D + Samyang 8 mm f/3.5 2]:a");
    EXPECT_FALSE(table_(3).UserAdjusted);
    EXPECT_EQ(table_(3).OfsetX, 0.0F);
    EXPECT_EQ(Stored("NumGear"), u"-");
    Click("CmdOK");
    EXPECT_EQ(Stored("NumGear"), u"3");
    EXPECT_EQ(form_->result(), QDialog::Accepted);
}

TEST_F(GearListForm, AddsNothingWithoutAName) {
    Open({"a"}, "a");
    edit_ = [](GearTable& table) { table(0).CameraBrand = Text("Canon"); };
    Click("CmdAddNew");
    EXPECT_EQ(Lines(), "[a]:a");
}

TEST_F(GearListForm, RedefinesTheSelectedGearInItsPlace) {
    Open({"a", "b", "c"}, "b");
    table_(2).OfsetX = 5.0F;
    edit_ = [](GearTable& table) {
        EXPECT_EQ(table(0).GearName, u"b");
        EXPECT_EQ(table(0).OfsetX, 5.0F);
        table(0).GearName = Text("new");
        table(0).OfsetX = 6.0F;
    };
    Click("CmdEdit");
    EXPECT_EQ(Lines(), "a,[new],c:new");
    EXPECT_EQ(table_(2).OfsetX, 6.0F);
    EXPECT_TRUE(table_(0).GearName.isEmpty());
}

TEST_F(GearListForm, ADoubleClickRedefinesAndCancelKeepsTheGear) {
    Open({"a", "b"}, "a");
    int shown = 0;
    edit_ = [&shown](GearTable& table) {
        EXPECT_EQ(table(0).GearName, u"b");
        ++shown;
        FormGearEdit editor(table);
        editor.show();
        QTest::keyClick(&editor, Qt::Key_Escape);
    };
    Select(2);
    QTest::mouseDClick(Get<QListWidget>("GearList")->viewport(), Qt::LeftButton, {}, Line(2));
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(Lines(), "a,[b]:a");
    EXPECT_TRUE(table_(0).GearName.isEmpty());
}

TEST_F(GearListForm, DeletesDownToOneGear) {
    Open({"a", "b", "c"}, "c");
    QTest::keyClick(Get<QListWidget>("GearList"), Qt::Key_Delete);
    EXPECT_EQ(Lines(), "a,[b]:a");
    Select(1);
    Click("CmdDelete");
    EXPECT_EQ(Lines(), "[b]:b");
    EXPECT_FALSE(Get<QPushButton>("CmdDelete")->isVisible());
    QTest::keyClick(Get<QListWidget>("GearList"), Qt::Key_Delete);
    EXPECT_EQ(Lines(), "[b]:b");
    Click("CmdOK");
    EXPECT_EQ(Stored("GearName1"), u"b");
    EXPECT_EQ(Stored("DefaultGearName"), u"b");
}

TEST_F(GearListForm, EveryOtherWayOutTakesEverythingBack) {
    edit_ = [](GearTable& table) {
        table(0).GearName += Text("+");
        table(0).OfsetX = 6.0F;
    };
    Open({"a", "b", "c"}, "a");
    const GearRecord before = table_(2);
    const std::function<void()> ways[] = {
        [this] { Click("CmdCancel"); },
        [this] { QTest::keyClick(form_.get(), Qt::Key_Escape); },
        [this] { form_->close(); },
    };
    for (const auto& leave : ways) {
        form_ = std::make_unique<FormGearList>(table_, store_,
                                               [this](GearTable& table) { edit_(table); });
        form_->show();
        Click("CmdDelete");
        Click("CmdEdit");
        Click("CmdAddNew");
        EXPECT_EQ(Lines(), "b+,c,[+]:b+");
        leave();
        EXPECT_EQ(form_->result(), QDialog::Rejected);
        ASSERT_EQ(table_.UpperBound(), 3);
        EXPECT_EQ(table_(2), before);
        EXPECT_EQ(table_.DefaultGearName, u"a");
        EXPECT_EQ(Stored("NumGear"), u"-");
    }
}

TEST_F(GearListForm, ActsOnASelectedLineOnly) {
    Open({"a", "b"}, "a");
    Get<QListWidget>("GearList")->clearSelection();
    EXPECT_FALSE(Get<QPushButton>("CmdEdit")->isEnabled());
    EXPECT_FALSE(Get<QPushButton>("CmdDelete")->isEnabled());
    QTest::keyClick(Get<QListWidget>("GearList"), Qt::Key_Delete);
    EXPECT_EQ(Lines(), "a,b:a");
}

}  // namespace
}  // namespace varnel
