// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/start_arguments.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

std::variant<StartRequest, QString> Parse(const char* line) {
    return ParseStartArguments(QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts));
}

TEST(ParseStartArguments, TellsWindowConversionHelpAndVersionApart) {
    struct Case {
        const char* line;
        StartMode mode;
        const char* files;
    };
    for (const Case& c :
         {Case{"", StartMode::Window, ""}, Case{"varnel", StartMode::Window, ""},
          Case{"varnel --open", StartMode::Window, ""},
          Case{"varnel --open a.jpg b.jpg", StartMode::Window, "a.jpg b.jpg"},
          Case{"varnel --open -- --odd.jpg", StartMode::Window, "--odd.jpg"},
          Case{"varnel trip.varnel", StartMode::Window, "trip.varnel"},
          Case{"varnel --open trip.Varnel", StartMode::Window, "trip.Varnel"},
          Case{"varnel a.jpg", StartMode::Convert, "a.jpg"},
          Case{"varnel b.jpg a.jpg b.jpg", StartMode::Convert, "b.jpg a.jpg b.jpg"},
          Case{"varnel -a.jpg -", StartMode::Convert, "-a.jpg -"},
          Case{"varnel -- --help --", StartMode::Convert, "--help --"},
          Case{"varnel --help", StartMode::Help, ""},
          Case{"varnel a.jpg --help", StartMode::Help, ""},
          Case{"varnel --version --help", StartMode::Help, ""},
          Case{"varnel --beside --help -- a.jpg", StartMode::Beside, "--help -- a.jpg"},
          Case{"varnel a.jpg -- --beside", StartMode::Convert, "a.jpg --beside"},
          Case{"varnel --install-menu", StartMode::InstallMenu, ""},
          Case{"varnel --remove-menu", StartMode::RemoveMenu, ""},
          Case{"varnel --version", StartMode::Version, ""}}) {
        const auto parsed = Parse(c.line);
        ASSERT_TRUE(std::holds_alternative<StartRequest>(parsed)) << c.line;
        const StartRequest expected{c.mode,
                                    QString::fromUtf8(c.files).split(u' ', Qt::SkipEmptyParts)};
        EXPECT_EQ(std::get<StartRequest>(parsed), expected) << c.line;
    }
}

TEST(ParseStartArguments, AWrongLineIsToldInOneLine) {
    struct Case {
        const char* line;
        const char* text;
    };
    for (const Case& c :
         {Case{"varnel --", "no photo given; see --help"},
          Case{"varnel --gear mine a.jpg", "unknown option \"--gear\"; see --help"},
          Case{"varnel --open=a.jpg", "unknown option \"--open=a.jpg\"; see --help"},
          Case{"varnel --install-menu a.jpg", "--install-menu stands alone; see --help"},
          Case{"varnel a.jpg --beside", "unknown option \"--beside\"; see --help"},
          Case{"varnel --OPEN a.jpg", "unknown option \"--OPEN\"; see --help"},
          Case{"varnel --help --nonsense", "unknown option \"--nonsense\"; see --help"}}) {
        const auto parsed = Parse(c.line);
        ASSERT_TRUE(std::holds_alternative<QString>(parsed)) << c.line;
        EXPECT_EQ(std::get<QString>(parsed), QString::fromUtf8(c.text)) << c.line;
    }
}

}  // namespace
}  // namespace varnel
