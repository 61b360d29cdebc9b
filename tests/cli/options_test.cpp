// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

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
        "--no-auto-orient --jobs 3 --quiet a.jpg b.jpg");
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
                options.noAutoOrient);
    EXPECT_EQ(options.files.size(), 2);
    EXPECT_EQ(options.jobs, 3);
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

TEST(ParseOptions, AWrongLineIsToldInOneLine) {
    for (const char* line : {"p",
                             "p --nonsense a",
                             "p --projection flat a",
                             "p --projection",
                             "p --type gif a",
                             "p --quality 0 a",
                             "p --jobs 0 a",
                             "p --force --skip-existing a",
                             "p --quality 101 a",
                             "p --chroma 422 a",
                             "p --chroma 4:4:4 a",
                             "p --quality 1.5 a",
                             "p --effect 1,5 a",
                             "p --effect nan a",
                             "p --rotate-x 1e99 a",
                             "p --preview 400 a",
                             "p --preview 0x3 a",
                             "p --preview 4x3x2 a",
                             "p --camera Canon --lens A/B a",
                             "p --camera Canon/EOS a",
                             "p --gear g --camera A/B --lens C/D a",
                             "p --output x --output-dir y a",
                             "p --output x a b",
                             "p --output x --projection all a",
                             "p --set RotateZ a",
                             "p --set Nonsense=1 a",
                             "p --set RotateZ=much a",
                             "p --set Projection=99999 a",
                             "p --morph many a",
                             "p --morph 32768 a",
                             "p --morph 1 a",
                             "p --morph 0 a",
                             "p --morph 2 --projection all a",
                             "p --morph 2 --output x a",
                             "p --from RotateX=1 a",
                             "p --to RotateX=1 a",
                             "p --morph 2 --from RotateX a",
                             "p --morph 2 --from RotateX=far a",
                             "p --morph 2 --from InputAOV=90 a",
                             "p --morph 2 --to EffectRectilinear=5 a"}) {
        const auto parsed = Parse(line);
        ASSERT_TRUE(std::holds_alternative<QString>(parsed)) << line;
        EXPECT_FALSE(std::get<QString>(parsed).isEmpty()) << line;
        EXPECT_FALSE(std::get<QString>(parsed).contains(u'\n')) << line;
    }
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
}

}  // namespace
}  // namespace varnel
