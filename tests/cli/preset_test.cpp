// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Presets and patterns of names on the command line.

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <sstream>

#include "cli/convert.h"
#include "remap/image/photo_date.h"
#include "state/adjustments/presets.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class PresetOption : public ::testing::Test {
  protected:
    PresetOption() { QDir(files_.Path({})).mkdir(Text("out")); }
    int Run(const char* options, const QStringList& photos) {
        err_.str({});
        out_.str({});
        QStringList arguments{Text("varnel-convert"),      Text("--camera"),
                              Text("Canon/EOS 5D"),        Text("--lens"),
                              Text("Sigma/EX 8 mm f:3.5"), Text("--output-dir"),
                              files_.Path(Text("out"))};
        for (QString option : Text(options).split(u' ', Qt::SkipEmptyParts)) {
            arguments.append(option.replace(u'_', u' '));
        }
        return RunConvert(arguments + photos, store_, {out_, err_, false});
    }
    // And removes them.
    QString Written() {
        QDir out(files_.Path(Text("out")));
        const QStringList names = out.entryList(QDir::Files, QDir::Name);
        for (const QString& name : names) {
            out.remove(name);
        }
        return names.join(u' ');
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

TEST_F(PresetOption, SetsWhatItNamesAndOtherOptionsWin) {
    SaveOwnPresets(store_, {{Text("Mine"),
                             {{Text("Projection"), Text("Rectilinear")},
                              {Text("RotateY"), Text("-5")},
                              {preset::FileType, Text("PNG")},
                              {preset::NamePattern, Text("x{tags}_{n}")}}}});
    const QString photo = files_.Picture(Text("IMG.jpg"), OutputType::Jpeg);
    const std::pair<const char*, const char*> rows[] = {
        {"--preset real_estate", "IMG.Rectilinear_hAOV090.TIF"},
        {"--preset REAL_ESTATE --output-aov 100 --type bmp", "IMG.Rectilinear_hAOV100.BMP"},
        {"--preset group_photo", "IMG.Rectilinear_hAOV075_Eff080.TIF"},
        {"--preset group_photo --projection horizon", "IMG.Horizon.TIF"},
        {"--preset mine", "x_hAOV130_LR-5_1.PNG"},
        {"--preset mine --name {projection} --rotate-y 0", "Rectilinear.PNG"},
        {"--preset horizon_strip --effect 50 --set Projection=Varnel", "IMG.Varnel_Eff050.TIF"},
    };
    for (const auto& [options, written] : rows) {
        EXPECT_EQ(Run(options, {photo}), exitAllWritten) << options << err_.str();
        EXPECT_EQ(Written(), Text(written)) << options;
    }
    EXPECT_EQ(Run("--preset reel_estate", {photo}), exitUsage);
    for (const char* name : {"reel estate", "Real estate", "Horizon strip", "\"Mine\""}) {
        EXPECT_NE(err_.str().find(name), std::string::npos) << err_.str();
    }
    EXPECT_EQ(Run("--preset whole_circle --morph 2 --to EffectRectilinear=5", {photo}), exitUsage);
    EXPECT_EQ(Run("--list-presets", {}), exitAllWritten);
    EXPECT_EQ(out_.str(), "Real estate\nGroup photo\nWhole circle\nHorizon strip\nMine\n");
}

TEST_F(PresetOption, NamesFollowThePatternAndSkippedResultsKeepTheirNumbers) {
    QStringList photos;
    for (int n = 0; n < 5; ++n) {
        photos.append(files_.Picture(Text("p%1.jpg").arg(n), OutputType::Jpeg));
    }
    EXPECT_EQ(Run("--projection all --name {n}-{name}.{ending}", photos), exitAllWritten)
        << err_.str();
    EXPECT_TRUE(Written().startsWith(Text("01-p0.jpg.TIF 02-p0.jpg.TIF 03")));
    EXPECT_EQ(Run("--name {n}", {photos[1]}), exitAllWritten);
    EXPECT_EQ(Run("--name {n} --skip-existing", {photos[0], photos[1]}), exitAllWritten);
    EXPECT_EQ(Written(), Text("1.TIF 2.TIF"));
    EXPECT_EQ(Run("--name same", photos), exitSomeFailed);
    EXPECT_EQ(Written(), Text("same.TIF"));
    EXPECT_EQ(Run("--name {date}", {photos[0]}), exitAllWritten);
    EXPECT_EQ(Written(), PhotoDate({}, photos[0]).toString(Qt::ISODate) + Text(".TIF"));
    for (const char* bad : {"--name a/b", "--name {what}", "--name a\\b"}) {
        EXPECT_EQ(Run(bad, photos), exitUsage) << bad;
        EXPECT_NE(err_.str().find("--name: "), std::string::npos) << err_.str();
    }
}

}  // namespace
}  // namespace varnel
