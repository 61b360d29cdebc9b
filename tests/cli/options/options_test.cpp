// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/options.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "cli/options/help_text.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/record_fields.h"
#include "tests/support/files.h"

namespace varnel {
namespace {

std::variant<Options, QString> Parse(const char* line) {
    return ParseOptions(QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts));
}

TEST(ParseOptions, EveryOptionReachesItsPlace) {
    const auto parsed = Parse(
        "varnel-convert --projection HORIZON --camera Canon/EOS --lens A/B/C --effect 50 "
        "--rotate-x -5 --translate-y 1.5 --set RotateZ=2 --set Landscape=0 --preview 400x300 "
        "--antialiased --output-dir out --type png --quality 80 --chroma 444 --no-metadata --force "
        "--no-auto-orient --keep-ending --jobs 3 --shard 2/5 --quiet a.jpg b.jpg");
    ASSERT_TRUE(std::holds_alternative<Options>(parsed)) << std::get<QString>(parsed).toStdString();
    const Options& options = std::get<Options>(parsed);
    EXPECT_EQ(options.projections, std::vector{Projection::Horizon});
    EXPECT_EQ(options.lens->brand, QStringLiteral("A"));  // split at the first slash
    EXPECT_EQ(options.lens->model, QStringLiteral("B/C"));
    ASSERT_EQ(options.adjustments.size(), 4U);  // --effect counts twice
    EXPECT_EQ(options.adjustments[2].field, QStringLiteral("RotateX"));
    EXPECT_EQ(options.adjustments[2].value, -5.0F);
    EXPECT_EQ(options.adjustments[3].value, 1.5F);
    ASSERT_EQ(options.fields.size(), 2U);
    EXPECT_EQ(options.fields[1].second, QStringLiteral("0"));
    EXPECT_EQ(options.preview->height, 300);
    EXPECT_EQ(options.type, OutputType::Png);
    EXPECT_EQ(options.quality, 80);
    EXPECT_EQ(options.chroma444, true);
    EXPECT_EQ(std::get<Options>(Parse("p --chroma 420 a")).chroma444, false);
    EXPECT_TRUE(options.antialiased && options.force && options.quiet && options.noMetadata &&
                options.noAutoOrient && options.keepEnding);
    EXPECT_EQ(options.files.size(), 2);
    EXPECT_EQ(options.jobs, 3);
    EXPECT_FALSE(IsInShard(options, 0) || IsInShard(options, 5));
    EXPECT_TRUE(IsInShard(options, 1) && IsInShard(options, 6));
}

TEST(ParseOptions, AllProjectionsAndDefaults) {
    EXPECT_EQ(std::get<Options>(Parse("p --projection all a")).projections.size(), 4U);
    const Options options = std::get<Options>(Parse("p a"));
    EXPECT_EQ(options.projections, std::vector{Projection::Varnel});
    EXPECT_FALSE(options.type || options.quality || options.preview || options.chroma444 ||
                 options.noMetadata || options.noAutoOrient);
}

TEST(ParseOptions, AMorphHasItsEnds) {
    const Options options = std::get<Options>(
        Parse("p --projection rectilinear --morph 12 --from RotateX=-7.5 --from OutputAOV=60 "
              "--to EffectRectilinear=0 a"));
    EXPECT_EQ(options.morph, 12);
    ASSERT_EQ(options.from.size(), 2U);
    EXPECT_EQ(options.from[0].field, QStringLiteral("RotateX"));
    EXPECT_EQ(options.from[0].value, -7.5F);
    EXPECT_EQ(options.to.at(0).value, 0.0F);
    // --set has the last word on the projection and so on its effect.
    EXPECT_TRUE(std::holds_alternative<Options>(
        Parse("p --morph 2 --set Projection=1 --to EffectRectilinear=5 a")));
}

struct WrongLine {
    const char *line, *told;
};

void ExpectTold(const WrongLine& row) {
    const auto parsed = Parse(row.line);
    ASSERT_TRUE(std::holds_alternative<QString>(parsed)) << row.line;
    const QString told = std::get<QString>(parsed);
    EXPECT_TRUE(told.contains(QString::fromUtf8(row.told)) && !told.contains(u'\n'))
        << row.line << ": " << told.toStdString();
}

TEST(ParseOptions, AWrongFrameIsToldInOneLineWithWhatHelps) {
    const WrongLine rows[] = {
        {"p --size 0 a", "--size needs WIDTHxHEIGHT, WIDTH or centre, 1 to 32767"},
        {"p --size -5 a", "not \"-5\""},
        {"p --size 40000x3 a", "1 to 32767"},
        {"p --size 4x3x2 a", "for example --size 4000x3000"},
        {"p --aspect 16 a", "for example --aspect 16:9"},
        {"p --aspect 1:0 a", "--aspect needs W:H"},
        {"p --crop 1,2,3 a", "--crop needs clean"},
        {"p --crop 0.5,0,0.6,1 a", "runs beyond the frame"},
        {"p --crop 0,0,0,1 a", "--crop needs clean"},
        {"p --crop 0,0,nan,1 a", "--crop needs clean"},
        {"p --crop clean:9 a", "for example --crop clean:16:9"},
        {"p --outside blue a", "--outside needs black, transparent or #rrggbb"},
        {"p --outside #12345 a", "--outside needs"},
        {"p --aspect 4:3 --crop clean:1:1 a", "give one of the two"},
        {"p --aspect 4:3 --size 40x30 a", "leave --aspect out"},
        {"p --crop clean:1:1 --size 40x30 a", "the width alone"},
        {"p --set OutputWidth=40000 a", "no value for the field OutputWidth"},
        {"p --set CropLeft=1.5 a", "no value for the field CropLeft"}};
    for (const WrongLine& row : rows) {
        ExpectTold(row);
    }
}

TEST(ParseOptions, AWrongLineIsToldInOneLineWithWhatHelps) {
    const WrongLine rows[] = {
        {"p", "no photo given; give the names"},
        {"p --nonsense a", "unknown option \"--nonsense\"; --help"},
        {"p --projektion=varnel a", "\"--projektion\"; did you mean \"--projection\"?"},
        {"p --out x a", "did you mean \"--output\"?"},
        {"p -force a", "did you mean \"--force\"?"},
        {"p --force=1 a", "--force takes no value; leave =1 out"},
        {"p --output --type png a", "--output needs a value; give --output FILE"},
        {"p a --projection", "--projection needs a value; give --projection NAMES"},
        {"p --projection flat a",
         "\"flat\"; use varnel, rectilinear, equidistance, horizon, stereographic, "},
        {"p --projection varnel,panin a", "projection \"panin\"; did you mean \"panini\"? use "},
        {"p --projection varnel, a", "unknown projection \"\"; use "},
        {"p --panini-d 1.5 a", "--panini-d needs a number from 0 to 1, not \"1.5\""},
        {"p --unroll-to 200 a", "--unroll-to needs a number from 0 to 180, not \"200\""},
        {"p --unroll-direction 0 a", "--unroll-direction needs 1 or -1, not \"0\""},
        {"p --camera-pose x a", "--camera-pose needs level, up or down, not \"x\""},
        {"p --sampling best a", "--sampling needs classic or fine, not \"best\""},
        {"p -", "-: photos do not come from standard input"},
        {"p --like - a", "--like -: photos do not come from"},
        {"p --output - a", "--output -: results do not go to standard output"},
        {"p --type gif a", "\"gif\"; use tiff, jpeg, bmp, png, exr"},
        {"p --type JPG a", "\"JPG\"; use jpeg"},
        {"p --quality 0 a", "--quality needs a whole number from 1 to 100, not \"0\""},
        {"p --quality 101 a", "from 1 to 100"},
        {"p --quality 1.5 a", "from 1 to 100"},
        {"p --jobs 0 a", "from 1 to 256"},
        {"p --shard 3 a", "--shard needs K/N"},
        {"p --shard 0/4 a", "with K from 1 to N, not \"0/4\"; for example --shard 1/4"},
        {"p --shard 5/4 a", "K from 1 to N"},
        {"p --shard 1/4/4 a", "K from 1 to N"},
        {"p --shard 1/x a", "K from 1 to N"},
        {"p --shard 1/2 --shard 2/2 a", "--shard is there twice"},
        {"p --shard 1/4 --output x a", "does not go with --output; leave one of them out"},
        {"p --shard 1/4 --film x.mp4 a", "does not go with --film"},
        {"p --shard 1/4 --stitch a", "does not go with --stitch"},
        {"p --force --skip-existing a", "exclude each other; give one"},
        {"p --chroma 422 a", "--chroma needs 444 or 420"},
        {"p --chroma 4:4:4 a", "--chroma needs 444 or 420"},
        {"p --effect 1,5 a", "not \"1,5\"; write it with a point: 1.5"},
        {"p --effect nan a", "not \"nan\"; give digits"},
        {"p --rotate-x 1e99 a", "--rotate-x needs a number"},
        {"p --preview 400 a", "for example --preview 800x600"},
        {"p --preview 0x3 a", "WIDTHxHEIGHT"},
        {"p --preview 4x3x2 a", "WIDTHxHEIGHT"},
        {"p --camera Canon --lens A/B a", "not \"Canon\"; --list-cameras"},
        {"p --lens A/ --camera A/B a", "not \"A/\"; --list-lenses"},
        {"p --camera Canon/EOS a", "give --lens BRAND/MODEL too"},
        {"p --gear g --camera A/B --lens C/D a", "exclude each other"},
        {"p --output x --output-dir y a", "exclude each other"},
        {"p --output x --keep-ending a", "leave --keep-ending out"},
        {"p --output x a b", "use --output-dir for more"},
        {"p --output x --projection all a", "use --output-dir for more"},
        {"p --output x.gif a", "end the name in .tif, .jpg, .bmp, .png, .exr"},
        {"p --set RotateZ a", "not \"RotateZ\"; for example --set RotateX=10"},
        {"p --set Rotatez=1 a", "did you mean \"RotateZ\"? fields: Width, "},
        {"p --set RotateZ=much a", "\"much\" is no value for the field RotateZ"},
        {"p --set Projection=99999 a", "no value for the field Projection"},
        {"p --morph many a", "from 2 to 32767, not \"many\""},
        {"p --morph 32768 a", "from 2 to 32767"},
        {"p --morph 1 a", "from 2 to 32767"},
        {"p --morph 2 --projection all a", "--morph takes one projection"},
        {"p --morph 2 --output x a", "use --output-dir DIR"},
        {"p --from RotateX=1 a", "need --morph N"},
        {"p --to RotateX=1 a", "need --morph N"},
        {"p --morph 2 --from RotateX a", "--from needs FIELD=VALUE"},
        {"p --morph 2 --from RotateX=far a", "--from needs a number"},
        {"p --morph 2 --from InputAOV=90 a", "cannot move \"InputAOV\"; it can move OutputAOV, "},
        {"p --morph 2 --to EffectRectilinear=5 a", "choose another --projection"}};
    for (const WrongLine& row : rows) {
        ExpectTold(row);
    }
}

TEST(ParseOptions, NumbersOfSingleProjectionsAndListsOfThem) {
    const Options options = std::get<Options>(
        Parse("p --projection little-planet,Panini,all,panini --panini-d 0.5 --camera-pose up "
              "--tunnel --unroll-direction -1 --sampling fine --set Pose=down a"));
    using enum Projection;
    EXPECT_EQ(options.projections,
              (std::vector{LittlePlanet, Panini, Varnel, Rectilinear, Equidistance, Horizon}));
    EXPECT_EQ(options.adjustments.at(0).field, QStringLiteral("PaniniD"));
    ImageRecord record;
    for (const auto& [field, value] : options.fields) {
        SetField(record, field, value);
    }
    EXPECT_EQ(record.Pose, CameraPose::Down);
    EXPECT_TRUE(record.Tunnel);
    EXPECT_EQ(record.UnrollDirection, -1);
    EXPECT_EQ(record.Sampling, SamplingKind::Fine);
}

TEST(ParseOptions, DashesInTheirPlacesAreNoMistake) {
    EXPECT_EQ(std::get<Options>(Parse("p -h")).command, Command::Help);
    const Options options = std::get<Options>(Parse("p --rotate-x -5 --output ./- -- --force"));
    EXPECT_EQ(options.adjustments.at(0).value, -5.0F);
    EXPECT_EQ(options.files, QStringList{QStringLiteral("--force")});
    EXPECT_FALSE(options.force);
}

TEST(HelpText, IsInGroupsThatFitATerminal) {
    qsizetype linesOfOption = 0;
    for (const QString& line : HelpText().split(u'\n')) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
        linesOfOption = line.startsWith(u"  --") || line.isEmpty() ? 1 : linesOfOption + 1;
        EXPECT_TRUE(linesOfOption < 3 || !line.startsWith(QString(20, u' '))) << line.toStdString();
    }
    EXPECT_TRUE(HelpText().contains(u"\n\nCamera and lens:\n  --gear <NAME>  "));
}

TEST(HelpText, TheManualPageHasEveryOption) {
    const QString page =
        QString::fromUtf8(testing::Contents(QStringLiteral(VARNEL_MANUAL "/varnel-convert.1")))
            .remove(u'\\');
    const QRegularExpression option(QStringLiteral("^  (--[a-z-]+)"),
                                    QRegularExpression::MultilineOption);
    int count = 0;
    for (const auto& match : option.globalMatch(HelpText())) {
        ++count;
        EXPECT_TRUE(page.contains(
            QRegularExpression(QStringLiteral("^\\.TP\n\\.B[IR]? %1\\b").arg(match.captured(1)),
                               QRegularExpression::MultilineOption)))
            << match.captured(1).toStdString();
    }
    EXPECT_GT(count, 20);
    const QRegularExpression code(QStringLiteral("^ +([0-9]+)  "),
                                  QRegularExpression::MultilineOption);
    count = 0;
    for (const auto& match : code.globalMatch(HelpText())) {
        ++count;
        EXPECT_TRUE(page.contains(QStringLiteral(".TP\n.B %1\n").arg(match.captured(1))))
            << match.captured(1).toStdString();
    }
    EXPECT_EQ(count, 5);
}

}  // namespace
}  // namespace varnel
