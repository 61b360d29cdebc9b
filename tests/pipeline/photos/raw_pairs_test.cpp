// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/raw_pairs.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(RawPairsIn, AreOfOneNameInOneFolder) {
    const struct {
        const char* paths;
        const char* pairs;
    } rows[] = {{"a/1.CR2 a/1.JPG", "a/1.CR2+a/1.JPG"},
                {"a/1.jpeg a/1.nef a/2.nef", "a/1.nef+a/1.jpeg"},
                {"a/img.dng a/IMG.JPG", "a/img.dng+a/IMG.JPG"},
                {"a/1.dng b/1.jpg", ""},
                {"A/1.dng a/1.jpg", ""},
                {"a/1.jpg a/1.png a/1.tif", ""},
                {"a/1.dng a/1.nef a/1.jpg", "a/1.dng+a/1.jpg"},
                {"a/1.x.arw a/1.jpg a/1.x.jpg", "a/1.x.arw+a/1.x.jpg"},
                {"a/2.raf a/1.raf a/1.jpg a/2.jpg", "a/2.raf+a/2.jpg a/1.raf+a/1.jpg"},
                {"", ""}};
    for (const auto& row : rows) {
        QStringList pairs;
        for (const auto& [raw, jpeg] : RawPairsIn(Q(row.paths).split(u' '))) {
            pairs.append(raw + u'+' + jpeg);
        }
        EXPECT_EQ(pairs.join(u' '), Q(row.pairs)) << row.paths;
    }
}

}  // namespace
}  // namespace varnel
