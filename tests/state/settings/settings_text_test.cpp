// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_text.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "base/error_text.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

const char* const oddTexts[] = {"118,125",
                                "a, b; c",
                                "@odd",
                                "@@",
                                "",
                                "caf\u00E9 \u2030",
                                "50%",
                                "C:\\x",
                                "\" quoted\"",
                                " both ",
                                "\u00A0no-break spaces\u00A0",
                                "\t",
                                "a\nb\rc",
                                "\001f\002g",
                                "= [x] ;",
                                "\\",
                                "; none",
                                "\u0661",
                                "%41",
                                "\\x41",
                                "'",
                                "#",
                                "\U0001F4F7",
                                "\u001F9"};

TEST(SettingsText, IsWhatQSettingsReadsAndWrites) {
    const QTemporaryDir folder;
    SettingsValues values;
    int n = 0;
    for (const char* const text : oddTexts) {
        values.Set(Text("a section \u20AC"), Text("key %1 \u00E9").arg(++n), Text(text));
        values.Set(Text("General"), Text("key%1").arg(n), Text(text));
    }
    const QString path = folder.filePath(Text("ours"));
    testing::WriteFile(path, SettingsText(values));
    const QSettings ours(path, QSettings::IniFormat);
    QSettings theirs(folder.filePath(Text("theirs")), QSettings::IniFormat);
    for (const auto& [name, text] : values.InOrder()) {
        const QString key = name.first + u'/' + name.second;
        EXPECT_EQ(ours.value(key, Text("(missing)")).toString(), text) << key.toStdString();
        theirs.setValue(key, text);
    }
    EXPECT_EQ(ours.status(), QSettings::NoError);
    theirs.sync();
    for (const QByteArray& bytes : {testing::Contents(theirs.fileName()), SettingsText(values)}) {
        const SettingsReading reading = ReadSettingsText(bytes);
        EXPECT_TRUE(reading.damage.isEmpty());
        for (const auto& [name, text] : values.InOrder()) {
            const QString* const read = reading.values.Find(name.first, name.second);
            ASSERT_NE(read, nullptr) << name.second.toStdString();
            EXPECT_EQ(*read, text) << bytes.toStdString();
        }
    }
}

TEST(SettingsText, KeepsTheOrderInWhichThingsWereSet) {
    SettingsValues values;
    values.Set(Text("b"), Text("z"), Text("1"));
    values.Set(Text("a"), Text("y"), Text("2"));
    values.Set(Text("b"), Text("x"), Text("3"));
    values.Set(Text("b"), Text("z"), Text("4"));
    const QByteArray text = SettingsText(values);
    EXPECT_TRUE(text.contains("\n\n[b]\nz=4\nx=3\n\n[a]\ny=2\n\n;")) << text.toStdString();
    EXPECT_EQ(SettingsText(ReadSettingsText(text).values), text);
}

// As a file in UTF-16 may have them.
TEST(SettingsText, KeepsHalvesOfCharacters) {
    SettingsValues values;
    for (const QString& text : {QString(QChar(0xDFFF)), QString(QChar(0xD801)) + u'a',
                                QStringLiteral("\U0001F4F7") + QChar(0xDC00)}) {
        values.Set(QStringLiteral("s"), QStringLiteral("k"), text);
        const SettingsReading again = ReadSettingsText(SettingsText(values));
        EXPECT_TRUE(again.damage.isEmpty());
        EXPECT_EQ(again.values.InOrder(), values.InOrder());
    }
}

TEST(ReadSettingsText, TakesLinesAsTypedByHand) {
    const std::pair<const char*, const char*> cases[] = {
        // and the value of the key k

        {"k=118,125", "118,125"},
        {" k = a b ", "a b"},
        {"k=a , b", "a,b"},
        {"k=\" a \"", " a "},
        {"k=a ; comment", "a"},
        {"k=\"a;b\"", "a;b"},
        {"k=", ""},
        {"k=\"\"", ""},
        {"k=a\\x41 b", "aA b"},
        {"k=\\x20 ", " "},
        {"k=\\\"a\\\"", "\"a\""},
        {"k=a=b", "a=b"},
        {"%6b=1", "1"},
        {"%U006B=2", "2"},
        {"k=1\r", "1"},
        {"k=\\101", "A"},
        {"k=\"a\" \"b\"", "a b"},
        {"[s]\nk=3", "3"},
    };
    const auto read = [](const char* line) {
        return ReadSettingsText("[s]\n" + QByteArray(line) + "\nlast=1\n");
    };
    for (const auto& [line, value] : cases) {
        const SettingsReading reading = read(line);
        EXPECT_TRUE(reading.damage.isEmpty()) << line;
        const QString* const found = reading.values.Find(Text("s"), Text("k"));
        ASSERT_NE(found, nullptr) << line;
        EXPECT_EQ(*found, Text(value)) << line;
    }
    for (const char* const line : {"k=\"open", "k", "=v", "[s\nk=5", "k=a\x01", "Gear]"}) {
        EXPECT_FALSE(read(line).damage.isEmpty()) << line;
        EXPECT_NE(read(line).values.Find(Text("s"), Text("last")), nullptr) << line;
    }
}

TEST(ReadSettingsText, MissesEveryCutButNoEdit) {
    SettingsValues values;
    for (int n = 1; n < 9; ++n) {
        values.Set(Text("s"), Text("k%1").arg(n), Text("text"));
    }
    const QByteArray whole = SettingsText(values);
    for (qsizetype length = 0; length < whole.size() - 1; ++length) {  // the last newline may go
        EXPECT_FALSE(ReadSettingsText(whole.first(length)).damage.isEmpty()) << length;
    }
    for (const auto& [from, to] : {std::pair<const char*, const char*>{"k3=text\n", ""},
                                   {"k8=text\n", "k8=else\nk9=new\n"},
                                   {"settings\n", "settings\r\n"},
                                   {"; Varnel", "\xEF\xBB\xBF; Varnel"},
                                   {"says: end of settings\n\n[s]", "gone\n\n[s]"}}) {
        const QByteArray edited = QByteArray(whole).replace(from, to);
        ASSERT_NE(edited, whole) << from;
        EXPECT_TRUE(ReadSettingsText(edited).damage.isEmpty()) << edited.toStdString();
    }
}

TEST(ReadSettingsText, SaysWhatIsWrong) {
    const struct {
        QByteArray bytes;
        const char* damage;
    } cases[] = {
        {"", "empty"},
        {"\n; nothing\n", "empty"},
        {"[s]\nk=1\n", ""},
        {"[s]\nk=1", "cut short"},
        {"[s]\nk=1\nother", "cut short"},
        {"stray\n[s]\nk=1\n", "line 1 is no setting"},
        {QByteArray(100, '\0'), "line 1 is no setting"},
        {"[s]\nk=\xE9\n", "not UTF-8 text"},
        {QByteArray("\xFF\xFE[\0s\0]\0\n\0k\0=\0001\0\n\0", 18), "not UTF-8 text"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ErrorText(ReadSettingsText(c.bytes).damage), Text(c.damage))
            << c.bytes.toStdString();
    }
    EXPECT_NE(ReadSettingsText(cases[8].bytes).values.Find(Text("s"), Text("k")), nullptr);
}

}  // namespace
}  // namespace varnel
