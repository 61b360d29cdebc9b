// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The user guide's window, and that the controls which the guide names are there, in its language.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextBlock>

#include "app/dialogs/form_guide.h"
#include "app/tools/guide_tools.h"
#include "remap/projection/projection_info.h"
#include "tests/app/film/fake_film.h"
#include "tests/support/test_window.h"
#include "translations/window_language.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

QString StartPage(const char* language = "en") {
    return GuideStartPage(QCoreApplication::applicationDirPath(), Q(language));
}

QStringList Pages(const char* language = "en") {
    return QFileInfo(StartPage(language)).dir().entryList({Q("*.md")}, QDir::Files);
}

QString TextOf(const QString& path) {
    return QString::fromUtf8(testing::Contents(path));
}

QString PageText(const QString& page, const char* language = "en") {
    return TextOf(QFileInfo(StartPage(language)).dir().filePath(page));
}

QStringList Matches(const QString& text, const char* pattern) {
    QStringList found;
    for (const auto& match : QRegularExpression(Q(pattern)).globalMatch(text)) {
        found.append(match.captured(1));
    }
    return found;
}

QString Plain(QString text) {
    return text.remove(u'&').section(u'\t', 0, 0);
}

// Menu entries as "File, Exit", and the texts of all controls, those of the dialogs included.
QStringList ShownTexts(testing::TestWindow& workspace) {
    QStringList texts;
    for (const QMenu* const menu : workspace.window.findChildren<QMenu*>()) {
        for (const QAction* const entry : menu->actions()) {
            texts.append(Plain(menu->title()) + Q(", ") + Plain(entry->text()));
        }
    }
    for (const QWidget* const widget : workspace.window.findChildren<QWidget*>()) {
        for (const char* const property : {"text", "title"}) {
            texts.append(Plain(widget->property(property).toString()));
        }
    }
    QDirIterator forms(Q(VARNEL_TREE), {Q("*.ui")}, QDir::Files, QDirIterator::Subdirectories);
    while (forms.hasNext()) {
        const QString form = TextOf(forms.next());
        const QByteArray context = Matches(form, "<class>(.*)</class>").value(0).toUtf8();
        for (QString text :
             Matches(form, R"re(name="(?:text|title)">\s*<string[^>]*>([^<]+)<)re")) {
            text.replace(Q("&amp;"), Q("&"));
            texts.append(Plain(QCoreApplication::translate(context, text.toUtf8())));
        }
    }
    return texts;
}

class EachGuide : public ::testing::TestWithParam<const char*> {
  public:
    static QString Page(const QString& page) { return PageText(page, GetParam()); }

  private:
    WindowLanguage language_{*qApp, Q(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(Guides, EachGuide, ::testing::Values("en", "de"),
                         [](const auto& language) { return std::string(language.param); });

TEST_P(EachGuide, NamesOnlyControlsAndMenuEntriesThatAreThere) {
    testing::FakeFilm film;
    testing::TestWindow workspace{nullptr, {}, Restore::Later, {nullptr, {}, &film, nullptr}};
    const QStringList shown = ShownTexts(workspace);
    EXPECT_EQ(Pages(GetParam()), Pages());
    for (const QString& page : Pages(GetParam())) {
        for (const QString& name : Matches(Page(page), R"(\*\*([^*]+)\*\*)")) {
            EXPECT_TRUE(shown.contains(QString(name).replace(u'\n', u' ')))
                << qPrintable(page) << ": " << qPrintable(name);
        }
    }
}

// The first key of every entry, and all keys without an entry. Escape leaves many things; the
// defaults have a key on some desktops only.
QStringList RealKeys(const QWidget& window) {
    QStringList keys;
    for (const QAction* const action : window.findChildren<QAction*>()) {
        if (action->objectName() != Q("CmdSetupSetup")) {
            keys.append(action->shortcut().toString(QKeySequence::PortableText));
        }
    }
    for (const QShortcut* const shortcut : window.findChildren<QShortcut*>()) {
        keys.append(shortcut->key().toString(QKeySequence::PortableText));
    }
    keys.removeAll(QString());
    keys.removeAll(Q("Esc"));
    keys.sort();
    return keys;
}

// Those of one cell after the other: "Ctrl+O, Del", "Ctrl+1 to Ctrl+4". Others are no shortcuts.
QStringList ToldKeys(const QStringList& cells) {
    static const QRegularExpression isKey(
        Q(R"(^((Ctrl|Alt|Shift)\+)+\S$|^F\d+$|^Del$|^PgUp$|^PgDown$)"));
    static const QRegularExpression range(Q(R"(^(.*)(\d) to .*(\d)$)"));
    QStringList keys;
    for (const QString& cell : cells) {
        for (const QString& told : cell.split(Q(", "))) {
            const auto row = range.match(told);
            for (int n = row.captured(2).toInt(); n <= row.captured(3).toInt(); ++n) {
                keys.append(row.hasMatch() ? row.captured(1) + QString::number(n) : told);
            }
        }
    }
    keys = keys.filter(isKey);
    keys.sort();
    return keys;
}

// As they stand on an English keyboard.
QStringList InEnglish(QStringList cells) {
    for (const auto& [other, english] : {std::pair{"Strg", "Ctrl"},
                                         {"Umschalt", "Shift"},
                                         {"Entf", "Del"},
                                         {"Bild auf", "PgUp"},
                                         {"Bild ab", "PgDown"},
                                         {" bis ", " to "}}) {
        cells.replaceInStrings(Q(other), Q(english));
    }
    return cells;
}

TEST_P(EachGuide, TellsEveryKeyOfTheWindowAndNoOther) {
    testing::TestWindow workspace;
    const QString table =
        Page(Q("steering.md")).section(QRegularExpression(Q("## (Keys|Tasten)")), 1);
    EXPECT_EQ(ToldKeys(InEnglish(Matches(table, R"((?m)^\| ([^|]+) \|)"))),
              RealKeys(workspace.window));
}

TEST(ManualPage, TellsEveryKeyOfTheWindowAndNoOther) {
    testing::TestWindow workspace;
    QString manual = TextOf(Q(VARNEL_TREE "/packaging/man/varnel.1.in"));
    manual = manual.section(Q(".SH KEYS"), 1).section(Q(".SH OPTIONS"), 0, 0).remove(u'\\');
    EXPECT_EQ(ToldKeys(Matches(manual, R"((?m)^\.B (.+)$)")), RealKeys(workspace.window));
}

TEST_P(EachGuide, AndTheManualPageTellOfEveryProjection) {
    const QString manual =
        TextOf(Q(VARNEL_TREE "/packaging/man/varnel-convert.1.in")).remove(u'\\');
    for (const Projection projection : AllProjections()) {
        const QString title = TitleOf(projection);
        EXPECT_TRUE(Page(Q("projections.md")).contains(Q("\n## ") + title + u'\n'))
            << qPrintable(title);
        const QString key = KeyOf(projection).toLower();
        EXPECT_TRUE(manual.contains(Q("\n.IP ") + key)) << qPrintable(key);
    }
}

TEST(Guide, OpensFromTheAboutMenuOnceAndTellsWhereItIsMissing) {
    testing::TestWindow workspace;
    for (int times = 0; times < 2; ++times) {
        workspace.Entry("CmdGuide")->trigger();
    }
    const auto forms = workspace.window.findChildren<FormGuide*>();
    ASSERT_EQ(forms.size(), 1);
    EXPECT_TRUE(forms.front()->isVisible());
    EXPECT_TRUE(workspace.notices.texts.isEmpty());
    EXPECT_EQ(GuideStartPage(workspace.files.Path(Q("bin")), Q("de")), QString());
    QDir(workspace.files.Path({})).mkpath(Q("share/varnel/guide"));
    testing::WriteFile(workspace.files.Path(Q("share/varnel/guide/index.md")), "# Here");
    EXPECT_EQ(GuideStartPage(workspace.files.Path(Q("bin")), Q("de")),
              QFileInfo(workspace.files.Path(Q("share/varnel/guide/index.md"))).absoluteFilePath());
}

TEST(Guide, IsInTheLanguageOfTheWindowWhereItIsTranslated) {
    const struct {
        const char* language;
        const char* page;
        const char* picture;  // seen from the page
    } cases[] = {{"de", "/guide/de/index.md", "../pictures/scene-varnel.jpg"},
                 {"fr", "/guide/index.md", "pictures/window.jpg"},
                 {"../guide/de", "/guide/index.md", "pictures/window.jpg"}};
    for (const auto& c : cases) {
        QMainWindow window;
        QMenu* const about = window.menuBar()->addMenu(Q("About"));
        about->addAction(Q("About"))->setObjectName(Q("CmdAboutAbout"));
        testing::FakeNotices notices;
        new GuideTools(&window, notices, Q(c.language));
        window.findChild<QAction*>(Q("CmdGuide"))->trigger();
        auto* const text = window.findChild<GuideText*>();
        ASSERT_NE(text, nullptr) << c.language;
        EXPECT_TRUE(text->source().path().endsWith(Q(c.page))) << c.language;
        const QVariant picture = text->loadResource(QTextDocument::ImageResource, Q(c.picture));
        EXPECT_FALSE(picture.value<QImage>().isNull()) << c.language;
    }
}

TEST(Guide, GoesBackAndForwardScalesPicturesAndFindsOnOtherPages) {
    FormGuide form(StartPage());
    form.resize(500, 500);
    form.show();
    auto* const text = form.findChild<GuideText*>();
    const auto page = [text] { return text->source().fileName(); };
    const auto click = [&form](const char* name) {
        form.findChild<QPushButton*>(Q(name))->click();
    };
    auto* const wanted = form.findChild<QLineEdit*>();
    const auto find = [wanted](const char* words) {
        wanted->setFocus();
        wanted->setText(Q(words));
        QTest::keyClick(wanted, Qt::Key_Return);
    };
    find("orthographic");
    EXPECT_EQ(page(), Q("measure-by-tape.md"));
    EXPECT_EQ(text->textCursor().selectedText(), Q("orthographic"));
    find("no such word anywhere");
    EXPECT_EQ(page(), Q("measure-by-tape.md"));
    const double margin = text->document()->documentMargin();
    click("CmdGuideBack");
    EXPECT_EQ(page(), Q("index.md"));
    EXPECT_EQ(text->document()->documentMargin(), margin);
    EXPECT_EQ(text->document()->lastBlock().blockFormat().lineHeightType(),
              QTextBlockFormat::LineDistanceHeight);
    click("CmdGuideForward");
    text->moveCursor(QTextCursor::Start);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(page(), Q("measure-by-tape.md"));
    click("CmdGuideContents");
    EXPECT_EQ(page(), Q("index.md"));
    find("Magnification map");
    const QVariant picture =
        text->loadResource(QTextDocument::ImageResource, QUrl(Q("pictures/window.jpg")));
    EXPECT_GT(picture.value<QImage>().width(), 200);
    EXPECT_LT(picture.value<QImage>().width(), text->viewport()->width());
}

}  // namespace
}  // namespace varnel
