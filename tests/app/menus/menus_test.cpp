// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sstream>

#include "app/menus/install_menu.h"
#include "app/menus/menu_entries.h"
#include "app/menus/thunar_actions.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;
using testing::WriteFile;

PhotoMenu Menu(std::initializer_list<const char*> presets) {
    Presets named;
    for (const char* name : presets) {
        named.push_back({Text(name), {}});
    }
    return MenuOf(named, Text("varnel"));
}

QByteArray Changed(const QByteArray& list, const PhotoMenu& menu) {
    const auto changed = ThunarActions(list, menu, Text("de"));
    const auto* const error = std::get_if<QString>(&changed);
    return error != nullptr ? "error: " + error->toUtf8() : std::get<QByteArray>(changed);
}

const QByteArray terminal =
    "<action>\n  <name>Open <![CDATA[</action> ]]>&amp; h\xC3\xB6re</name>\n"
    "  <unique-id>1234-1</unique-id>\n  <command>x %f</command>\n  <directories/>\n</action>\n";

// What is not by Varnel keeps its bytes, and taking the entries away gives the list as it was.
TEST(ThunarActions, KeepsWhatIsThere) {
    const std::pair<const char*, QByteArray> lists[] = {
        {"as Thunar writes it",
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<actions>\n" + terminal + "</actions>\n"},
        {"without an end of line", "<actions>\n" + terminal + "</actions>"},
        {"indented", "<actions>\n  " + terminal + "  </actions>  \n"},
        {"other ends of lines", "<actions>\r\n<action>\r\n</action>\r\n</actions>\r\n"},
        {"with a type and comments",
         "<!DOCTYPE actions [ <!ELEMENT actions (action)+> <!ELEMENT action (icon)*> ]>\n"
         "<!-- <action> --><actions a='b'>\n<!-- </actions> <unique-id>varnel-x -->\n" +
             terminal + "\n\n</actions>\n<!-- end -->"},
        {"another's id",
         "<actions>\n<action><unique-id>my varnel-1</unique-id></action>\n</actions>\n"},
    };
    const PhotoMenu menu = Menu({"Real estate", "\xC3\x84 <1> & '50%'"});
    for (const auto& [what, list] : lists) {
        SCOPED_TRACE(what);
        const QByteArray with = Changed(list, menu);
        EXPECT_EQ(with.count("<unique-id>varnel-"), 2 + list.count("<unique-id>varnel-"));
        EXPECT_TRUE(with.contains("<name xml:lang=\"de\">Immobilie</name>"));
        EXPECT_TRUE(with.contains("<submenu>Mit Varnel geraderichten</submenu>"));
        EXPECT_EQ(Changed(with, menu), with) << "again";
        EXPECT_EQ(Changed(with, PhotoMenu()), list) << "and away";
        EXPECT_EQ(Changed(Changed(with, Menu({"One"})), menu), with) << "after other presets";
    }
    EXPECT_EQ(Changed("<actions/>", menu).count("<action>"), 2);
    EXPECT_EQ(Changed("", menu).count("<action>"), 2);
}

TEST(ThunarActions, ABrokenListIsNamed) {
    const std::pair<QByteArray, const char*> lists[] = {
        {"<actions>\n<action>\n</actions>\n", "line 3: "},
        {"<actions>\n<action></action>\n", "line 3: "},
        {"<menu>\n</menu>\n", "it begins with <menu>"},
        {"no list", "line 1: "},
        {QByteArray("\xFF\xFE<\0a\0", 6), "line 1: "},
        {"<!DOCTYPE actions [<!ENTITY e "
         "\"<action>\">]>\n<actions>\n<unique-id>varnel-1</unique-id>\n"
         "</actions>\n<!-- ",
         "line "},
    };
    for (const auto& [list, reason] : lists) {
        const QByteArray said = Changed(list, Menu({"One"}));
        EXPECT_TRUE(said.startsWith("error: ") && said.contains(reason)) << said.constData();
    }
}

TEST(MenuEntries, ThePackageHasThoseOfTheBuiltInPresets) {
    const PhotoMenu menu = MenuOf(BuiltInPresets(), Text("varnel"));
    const QString folder = Text(VARNEL_TREE "/packaging/menus/");
    EXPECT_EQ(Contents(folder + Text("varnel.desktop")), ServiceMenu(menu));
    EXPECT_EQ(Contents(folder + Text("varnel.nemo_action")), NemoAction(menu));
    EXPECT_TRUE(Contents(Text(VARNEL_TREE "/packaging/varnel.desktop"))
                    .contains("x-varnel-project;" + PhotoMimeTypes().toUtf8() + "\n"))
        << "the same types as the program opens";
}

TEST(MenuEntries, CommandsAreQuotedForTheirReader) {
    const struct {
        const char *program, *preset, *desktop, *shell;
    } rows[] = {
        {"varnel", "", "varnel --beside -- %F", "varnel --beside -- %F"},
        {"varnel", "a b", "varnel --beside --preset \"a b\" -- %F",
         "varnel --beside --preset 'a b' -- %F"},
        {"varnel", R"(5% "x" $y `z` \)",
         R"(varnel --beside --preset "5%% \"x\" \$y \`z\` \\" -- %F)",
         R"(varnel --beside --preset '5%% "x" $y `z` \' -- %F)"},
        {"/my apps/V", "it's", "\"/my apps/V\" --beside --preset \"it's\" -- %F",
         R"('/my apps/V' --beside --preset 'it'\''s' -- %F)"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(DesktopCommand(Text(row.program), Text(row.preset)), Text(row.desktop));
        EXPECT_EQ(ShellCommand(Text(row.program), Text(row.preset)), Text(row.shell));
    }
}

class InstalledMenu : public ::testing::Test {
  protected:
    InstalledMenu() {
        places_.data = folder_.filePath(Text("data"));
        places_.config = folder_.filePath(Text("config"));
        places_.program = Text("varnel");
    }
    int Install() {
        Forget();
        return InstallMenu(store_, places_, {out_, err_, false, "varnel"});
    }
    int Remove() {
        Forget();
        return RemoveMenu(places_, {out_, err_, false, "varnel"});
    }
    QString List() const { return places_.config + Text("/Thunar/uca.xml"); }
    QString Services() const { return places_.data + Text("/kio/servicemenus/varnel.desktop"); }
    qsizetype NemoActions() const {
        return QDir(places_.data + Text("/nemo/actions")).entryList(QDir::Files).size();
    }

    QTemporaryDir folder_;
    MenuPlaces places_;
    MemoryStore store_;
    std::ostringstream out_, err_;

  private:
    void Forget() {
        out_.str({});
        err_.str({});
    }
};

TEST_F(InstalledMenu, FollowsThePresetsAndGoesAwayAgain) {
    places_.thunarOfAll = folder_.filePath(Text("all.xml"));
    WriteFile(places_.thunarOfAll, "<actions>\n" + terminal + "</actions>\n");
    SaveOwnPresets(store_, {{Text("Mine"), {{Text("RotateY"), Text("5")}}}});
    EXPECT_EQ(Install(), exitAllWritten) << err_.str();
    EXPECT_TRUE(Contents(List()).contains(terminal)) << "the system's entries would be gone";
    EXPECT_TRUE(Contents(List()).contains("<name>Mine</name>"));
    EXPECT_TRUE(Contents(Services()).contains("\nName=Mine\n"));
    EXPECT_TRUE(QFileInfo(Services()).isExecutable()) << "KDE refuses others";
    EXPECT_EQ(NemoActions(), 5);
    SaveOwnPresets(store_, {});
    EXPECT_EQ(Install(), exitAllWritten);
    EXPECT_FALSE(Contents(List()).contains("Mine"));
    EXPECT_EQ(NemoActions(), 4);
    EXPECT_EQ(Remove(), exitAllWritten);
    EXPECT_FALSE(QFileInfo::exists(List()) || QFileInfo::exists(Services()) || NemoActions() > 0);
    EXPECT_EQ(Remove(), exitAllWritten);
    EXPECT_EQ(out_.str(), "") << "there is nothing any more";
}

TEST_F(InstalledMenu, FilesThatAreNotItsOwnStayAndTheOthersAreDone) {
    for (const QByteArray& list : {QByteArray("<actions>\n<action>\n"), QByteArray()}) {
        QDir().mkpath(places_.config + Text("/Thunar"));
        QDir().mkpath(QFileInfo(Services()).path());
        WriteFile(List(), list);
        WriteFile(Services(), "[Desktop Entry]\n");
        for (const bool installs : {true, false}) {
            EXPECT_EQ(installs ? Install() : Remove(), exitSomeFailed);
            EXPECT_EQ(Contents(List()), list);
            EXPECT_EQ(Contents(Services()), "[Desktop Entry]\n");
            EXPECT_EQ(NemoActions(), installs ? 4 : 0);
            EXPECT_NE(
                err_.str().find(List().toStdString() + ": this is no list of Thunar's actions ("),
                std::string::npos)
                << err_.str();
            EXPECT_NE(err_.str().find("varnel.desktop: it is not by Varnel; it was left as it is"),
                      std::string::npos)
                << err_.str();
        }
    }
}

TEST_F(InstalledMenu, BeginsNoListWhereThereIsNoThunar) {
    places_.hasThunar = false;
    EXPECT_EQ(Install(), exitAllWritten);
    EXPECT_FALSE(QFileInfo::exists(places_.config));
    places_.hasThunar = true;
    EXPECT_EQ(Install(), exitAllWritten);
    EXPECT_EQ(Contents(List()).count("<action>"), 4);
}

}  // namespace
}  // namespace varnel
