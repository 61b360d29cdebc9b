// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// --json: every line of standard output is an object, whatever the files are called.

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <csignal>
#include <sstream>

#include "cli/convert.h"
#include "tests/support/files.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Json : public ::testing::Test {
  protected:
    int Run(const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return RunConvert(QStringList{Q("varnel-convert"), Q("--json"), Q("--type=bmp"),
                                      Q("--camera=Canon/EOS 5D"), Q("--lens=Sigma/EX 8 mm f:3.5")} +
                              arguments,
                          store_, {out_, err_, false, "varnel-convert", &stop_});
    }
    QList<QJsonObject> Lines() const {
        QList<QJsonObject> objects;
        for (const QByteArray& line : QByteArray::fromStdString(out_.str()).split('\n')) {
            if (!line.isEmpty()) {
                QJsonParseError error;
                objects.append(QJsonDocument::fromJson(line, &error).object());
                EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
                EXPECT_EQ(objects.last().size(), 16) << line.toStdString();
            }
        }
        return objects;
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::atomic<int> stop_ = 0;
    std::ostringstream out_, err_;
};

TEST_F(Json, TellsOfEveryResultInOrder) {
    const QString odd = files_.Picture(Q("a \"b\"\n\xC3\xA4\\.png"), OutputType::Png);
    const QStringList photos{
        odd,
        files_.Path(Q("none.png")),
        files_.Cut(Q("cut.bmp"), files_.Picture(Q("b.bmp"), OutputType::Bmp), 70),
        files_.Picture(Q("there.png"), OutputType::Png),
        files_.Picture(Q("there.jpg"), OutputType::Jpeg),
        files_.Picture(Q("last.png"), OutputType::Png)};
    const char* const statuses[] = {"converted", "converted", "failed",   "damaged",
                                    "damaged",   "skipped",   "skipped",  "failed",
                                    "failed",    "converted", "converted"};
    for (const char* jobs : {"--jobs=1", "--jobs=3"}) {
        for (const QString& name : QDir(files_.Path({})).entryList({Q("*.BMP")}, QDir::Files)) {
            if (name.contains(u"Varnel") || name.contains(u"Morph")) {
                QFile::remove(files_.Path(name));
            }
        }
        files_.Text(Q("there.Varnel_Morph0001.BMP"));
        files_.Text(Q("there.Varnel_Morph0002.BMP"));
        EXPECT_EQ(Run(QStringList{Q(jobs), Q("--morph=2"), Q("--skip-existing")} + photos),
                  exitSomeFailed);
        const QList<QJsonObject> lines = Lines();
        ASSERT_EQ(lines.size(), 11) << out_.str();
        for (int n = 0; n < 11; ++n) {
            EXPECT_EQ(lines[n][u"status"].toString(), Q(statuses[n])) << n;
        }
        EXPECT_EQ(lines[0][u"file"].toString(), odd);
        EXPECT_EQ(lines[0][u"width"].toInt(), 60);
        EXPECT_EQ(lines[0][u"height"].toInt(), 40);
        EXPECT_EQ(lines[0][u"depth"].toString(), Q("8"));
        EXPECT_TRUE(lines[2][u"depth"].isNull());
        EXPECT_EQ(lines[0][u"projection"].toString(), Q("varnel"));
        EXPECT_EQ(lines[0][u"gear"].toString(), Q("Canon EOS 5D + Sigma EX 8 mm f:3.5"));
        EXPECT_EQ(lines[0][u"gear_source"].toString(), Q("given"));
        EXPECT_EQ(QFileInfo(lines[1][u"result"].toString()).size(), lines[1][u"bytes"].toInt());
        EXPECT_EQ(lines[2][u"reason"].toString(), Q("there is no such file"));
        EXPECT_TRUE(lines[2][u"result"].isNull() && lines[2][u"bytes"].isNull());
        EXPECT_TRUE(lines[3][u"reason"].toString().startsWith(u"damaged: "));
        EXPECT_TRUE(lines[5][u"result"].toString().endsWith(u"there.Varnel_Morph0001.BMP"));
        EXPECT_EQ(lines[7][u"result"], lines[5][u"result"]);
        EXPECT_TRUE(lines[7][u"reason"].toString().contains(u"/there.png of this command has"));
    }
    // People read the same on the other stream, a line each, with the line break shown.
    EXPECT_EQ(Run({odd}), exitAllWritten);
    EXPECT_EQ(Run({odd}), exitSomeFailed);
    EXPECT_NE(err_.str().find("a \"b\"\\n\xC3\xA4\\.Varnel.BMP: the file exists; --force"),
              std::string::npos)
        << err_.str();
    EXPECT_EQ(Lines().at(0)[u"status"].toString(), Q("failed"));
    // A disk that is full, say.
    out_.setstate(std::ios::badbit);
    EXPECT_EQ(Run({Q("--force"), odd}), exitSomeFailed);
    EXPECT_NE(err_.str().find("the standard output could not be written"), std::string::npos);
}

TEST_F(Json, ARefusedCommandLinePrintsNothing) {
    for (const char* line : {"--nonsense a", "--list-lenses Nobody", "--list-gears", "-",
                             "--output-dir /nowhere a", "--gear x a"}) {
        EXPECT_EQ(Run(Q(line).split(u' ')), exitUsage) << line;
        EXPECT_EQ(out_.str(), "") << line;
    }
}

TEST_F(Json, AStoppedRunDoesNothingMoreAndSaysHowToGoOn) {
    const QString photo = files_.Picture(Q("a.png"), OutputType::Png);
    stop_ = SIGTERM;
    const struct {
        const char *option, *told;
    } rows[] = {{"--quiet", "stopped, 0 of 1 pictures are written; with --skip-existing the same"},
                {"--force", "with --skip-existing instead of --force"},
                {"--skip-existing", "written; the same command does the rest"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Run({Q(row.option), photo}), 143);
        EXPECT_NE(err_.str().find(row.told), std::string::npos) << err_.str();
        EXPECT_TRUE(Lines().isEmpty());
    }
    EXPECT_EQ(QDir(files_.Path({})).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

}  // namespace
}  // namespace varnel
