// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/early_reader.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "cli/report/console.h"

namespace varnel {
namespace {

TEST(EarlyReader, GetsReadyWhereAJpegPhotoIsNamed) {
    struct Case {
        std::vector<const char*> words;
        bool starts;
    };
    for (const Case& c :
         {Case{{"a.jpg"}, true}, Case{{"--quiet", "folder.d/A.JPEG"}, true},
          Case{{"a.tif", "b.Jpg", "c.png"}, true}, Case{{}, false}, Case{{"--version"}, false},
          Case{{"a.tif"}, false}, Case{{".jpg"}, false}, Case{{"--output=a.jpg", "a.tif"}, false},
          Case{{"a.jpg.txt", "jpg"}, false}}) {
        std::vector<const char*> argv = c.words;
        argv.insert(argv.begin(), "program.jpg");
        EXPECT_EQ(EarlyReader(static_cast<int>(argv.size()), argv.data()) != nullptr, c.starts)
            << (c.words.empty() ? "no words" : c.words.back());
    }
    EXPECT_EQ(EarlyReader(0, nullptr), nullptr);
}

TEST(EarlyReader, IsTakenOnceAndThenReadersAreNew) {
    std::ostringstream nowhere;
    std::unique_ptr<PictureReader> early = NewPictureReader();
    const PictureReader* const first = early.get();
    Console console{nowhere, nowhere};
    console.early = &early;
    const std::unique_ptr<PictureReader> taken = console.TakeReader();
    EXPECT_EQ(taken.get(), first);
    EXPECT_EQ(early, nullptr);
    const std::unique_ptr<PictureReader> second = console.TakeReader();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second.get(), first);
}

}  // namespace
}  // namespace varnel
