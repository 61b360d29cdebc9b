// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// --shard and --files-from: several runs that share photos out.

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <sstream>

#include "cli/convert.h"
#include "cli/options/options.h"
#include "tests/support/files.h"
#include "tests/support/seeds/jpeg_files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;

class Shards : public ::testing::Test {
  protected:
    // What became of each result, by its photo; the folder's name is left out.
    std::map<std::string, std::string> Run(const QStringList& arguments, const QString& folder) {
        std::ostringstream out, err;
        QDir(files_.Path({})).mkpath(folder);
        RunConvert(QStringList{Text("varnel-convert"), Text("--json"), Text("--output-dir"),
                               files_.Path(folder)} +
                       arguments,
                   store_, {out, err, false});
        std::map<std::string, std::string> told;
        for (const QByteArray& line : QByteArray::fromStdString(out.str()).split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            const QString result = QFileInfo(object[u"result"].toString()).fileName();
            if (!line.isEmpty()) {
                told[(object[u"file"].toString() + u' ' + result).toStdString()] =
                    (object[u"status"].toString() + u' ' + object[u"sha256"].toString() + u' ' +
                     object[u"reason"].toString().replace(folder, Text("FOLDER")))
                        .toStdString();
            }
        }
        return told;
    }
    std::map<QString, QByteArray> Outputs(const QString& folder) const {
        std::map<QString, QByteArray> outputs;
        for (const QString& name : QDir(files_.Path(folder)).entryList(QDir::Files)) {
            outputs[name] = Contents(files_.Path(folder) + u'/' + name);
        }
        return outputs;
    }
    // One run of all against as many as there are shards.
    void ExpectSame(const QStringList& arguments, int count) {
        const QString whole = Text("whole %1").arg(runs_), parts = Text("parts %1").arg(runs_);
        ++runs_;
        const auto expected = Run(arguments, whole);
        std::map<std::string, std::string> told;
        std::size_t lines = 0;
        for (int number = count; number > 0; --number) {  // in any order
            const auto of =
                Run(QStringList{Text("--shard=%1/%2").arg(number).arg(count)} + arguments, parts);
            told.insert(of.begin(), of.end());
            lines += of.size();
        }
        EXPECT_EQ(told, expected) << arguments.join(u' ').toStdString();
        EXPECT_EQ(lines, expected.size()) << "each photo belongs to one shard";
        EXPECT_TRUE(Outputs(parts) == Outputs(whole)) << arguments.join(u' ').toStdString();
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    int runs_ = 0;
};

TEST_F(Shards, TogetherMakeWhatOneRunMakes) {
    QDir(files_.Path({})).mkpath(Text("b"));
    QStringList photos;
    for (const char* name : {"x.jpg", "y.jpg", "b/y.jpg", "y.png", "z.jpeg", "z.x.jpg", "b/x.jpg",
                             "b/z.jpeg", "w.jpg", "b/none"}) {
        photos << files_.Picture(Text(name), OutputType::Jpeg);
    }
    photos << files_.Path(Text("none.jpg")) << files_.Text(Text("text.jpg"))
           << files_.Cut(Text("cut.bmp"), files_.Picture(Text("c.bmp"), OutputType::Bmp), 70)
           << files_.Picture(Text("text.png"), OutputType::Png);
    const QString list = files_.Path(Text("list"));
    testing::WriteFile(list, photos.join(u'\n').toUtf8() + '\n');
    const QString zeros = files_.Path(Text("zeros"));
    testing::WriteFile(zeros, photos.join(QChar(u'\0')).toUtf8());
    const QStringList gear{Text("--camera=Canon/EOS 5D"), Text("--lens=Sigma/EX 8 mm f:3.5")};
    for (const char* words :
         {"--jobs=1", "--type=png --projection=all", "--skip-existing", "--keep-ending",
          "--name={projection}-{n} --morph=2", "--name={name}", "--name=same", "--name={date}"}) {
        ExpectSame(gear + Text(words).split(u' ') + photos, 2);
    }
    ExpectSame(gear + photos, 20);
    ExpectSame(gear + QStringList{Text("--files-from"), list}, 3);
    ExpectSame(gear + QStringList{Text("--files-from"), zeros}, 3);
    EXPECT_GE(Outputs(Text("parts 0")).size(), 7U);
    // A gear of each photo's own is in the names.
    ExpectSame(QStringList{Text("--gear=guess"), Text("--projection=rectilinear")} + photos, 2);
}

TEST_F(Shards, AListThatCannotBeReadOrNamesNothingIsTold) {
    testing::WriteFile(files_.Path(Text("empty")), "\n\n");
    for (const auto& [list, told] : {std::pair{"empty", "no photo is named there"},
                                     {"nowhere", "No such file"},
                                     {".", "--files-from"}}) {
        const auto parsed =
            ParseOptions({Text("p"), Text("--files-from"), files_.Path(Text(list))});
        ASSERT_TRUE(std::holds_alternative<QString>(parsed)) << list;
        EXPECT_TRUE(std::get<QString>(parsed).contains(Text(told)))
            << std::get<QString>(parsed).toStdString();
    }
}

TEST_F(Shards, EachLineHasTheHashOfTheWholeFile) {
    const QString small = files_.Picture(Text("small.png"), OutputType::Png);
    const QString large = files_.Picture(Text("large.png"), OutputType::Png, {2400, 2000});
    const QStringList gear{Text("--camera=Canon/EOS 5D"), Text("--lens=Sigma/EX 8 mm f:3.5")};
    int n = 0;
    for (const char* words : {"--type=tiff", "--type=jpeg", "--type=bmp --jobs=1", "--stitch"}) {
        const QString folder = Text("hashes %1").arg(n++);
        const QStringList given =
            words[2] == 's' ? QStringList{large, large} : QStringList{small, large};
        const auto told = Run(gear + Text(words).split(u' ') + given, folder);
        for (const auto& [name, bytes] : Outputs(folder)) {
            const QString hash = QString::fromLatin1(
                QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
            const QString& file = name;  // clang 14 takes no part of a pair into a lambda
            EXPECT_TRUE(std::ranges::any_of(told, [&](const auto& one) {
                return QString::fromStdString(one.first).endsWith(file) &&
                       QString::fromStdString(one.second).contains(hash);
            })) << name.toStdString();
        }
        EXPECT_GE(Outputs(folder).size(), words[2] == 's' ? 1U : 2U);
    }
    // What is not written has none.
    const auto skipped = Run(
        gear + QStringList{Text("--skip-existing"), Text("--type=tiff"), small}, Text("hashes 0"));
    ASSERT_EQ(skipped.size(), 1U);
    EXPECT_EQ(skipped.begin()->second, "skipped  ");
}

}  // namespace
}  // namespace varnel
