// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that are added as raw file and as JPEG.

#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class PairToolsTest : public ::testing::Test {
  protected:
    QStringList Listed() {
        QStringList names;
        for (const ImageRecord& image : window_.state.Images) {
            names.append(image.FileName);
        }
        return names;
    }
    QString Photo(const char* name) { return window_.files.Picture(Text(name), OutputType::Jpeg); }
    bool Shows() { return window_.Find("BarPairs")->isVisible(); }

    testing::TestWindow window_;
};

TEST_F(PairToolsTest, TheLineTakesTheJpegFilesOutAndUndoBringsThemBack) {
    window_.window.AddFiles({Photo("1.dng"), Photo("1.jpg"), Photo("2.jpg")});
    EXPECT_TRUE(Shows());
    EXPECT_EQ(window_.Label("LabelPairs"), Text("1 photo was added as RAW and as JPEG"));
    window_.window.AddFiles({Photo("3.JPG"), Photo("3.NEF"), Photo("4.nef"), Photo("4.jpg")});
    EXPECT_EQ(window_.Label("LabelPairs"), Text("2 photos were added as RAW and as JPEG"));
    window_.ClickLine(3);
    window_.Click("CmdPairsRawOnly");
    EXPECT_EQ(Listed().join(u' '), Text("1.dng 1.jpg 2.jpg 3.NEF 4.nef"));
    EXPECT_EQ(window_.window.findChild<QListWidget*>(Text("ImageList1"))->currentRow(), 3);
    EXPECT_FALSE(Shows());
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Listed().size(), 7);
}

TEST_F(PairToolsTest, TheLineGoesWhenItIsClosedOrNoLongerTrue) {
    window_.window.AddFiles({Photo("1.dng"), Photo("1.jpg")});
    window_.Click("CmdPairsClose");
    EXPECT_FALSE(Shows());
    EXPECT_EQ(Listed().size(), 2);
    window_.window.AddFiles({Photo("2.jpg"), Photo("2.dng")});
    EXPECT_TRUE(Shows());
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_FALSE(Shows());
    window_.window.AddFiles({Photo("3.jpg")});
    EXPECT_FALSE(Shows());
}

}  // namespace
}  // namespace varnel
