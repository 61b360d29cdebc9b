// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch run: its names, its lines, pausing it, and leaving the dialog meanwhile.

#include <QFileInfo>
#include <QPixmap>
#include <QPlainTextEdit>

#include "tests/pipeline/dialogs/batch_dialog.h"

namespace varnel {
namespace {

using testing::FormBatchTest;
using testing::Text;

TEST_F(FormBatchTest, NamesFollowThePatternAndFilesMayLieNextToTheirPhotos) {
    QueuePhotos(2);
    queue(1).Width = 600;
    queue(1).Height = 400;
    Open();
    auto& pattern = The<QLineEdit>("TextNamePattern");
    EXPECT_EQ(pattern.text(), Text("{name}.{projection}{suffix}{tags}"));
    EXPECT_EQ(Label("LabelExample"), Text("01.Equidistance.BMP"));
    EXPECT_EQ(Label("LabelExpectedSize"), Text("All images: about 720 kB"));
    pattern.clear();
    QTest::keyClicks(&pattern, Text("a/{n}-{nam"));  // the slash is not taken
    EXPECT_TRUE(Label("LabelExample").contains(Text("no token {nam")));
    EXPECT_FALSE(The<QPushButton>("CmdBatchProcess").isEnabled());
    QTest::keyClicks(&pattern, Text("e}"));
    EXPECT_EQ(Label("LabelExample"), Text("a1-01.BMP"));
    Click("NextToPhotoCheck");
    EXPECT_FALSE(The<QTreeView>("Dir2").isEnabled());
    Click("CmdBatchProcess");
    EXPECT_TRUE(OutNames().isEmpty());
    EXPECT_EQ(QDir(files.Path(Text("in"))).entryList(QDir::Files).join(u' '),
              Text("01.bmp 02.bmp a1-01.BMP a2-02.BMP"));
    EXPECT_EQ(choices.pattern, Text("a{n}-{name}"));
    EXPECT_TRUE(The<QPlainTextEdit>("TextSummary")
                    .toPlainText()
                    .startsWith(Text("2 of 2 images written next to their photos")));
}

TEST_F(FormBatchTest, APausedRunWaitsAndGoesOnWhereItWas) {
    QueuePhotos(6);
    Open();
    RunAnd(2, [this] {
        Click("CmdPause");
        EXPECT_EQ(The<QPushButton>("CmdPause").text(), Text("Go on"));
        QTimer::singleShot(400, form.get(), [this] {
            EXPECT_LE(job.Done(), 3) << "six such images take a fraction of that";
            EXPECT_TRUE(job.IsRunning());
            Click("CmdPause");
        });
    });
    EXPECT_EQ(OutNames().size(), 6);
    EXPECT_EQ(The<QPushButton>("CmdPause").text(), Text("Pause"));
}

TEST_F(FormBatchTest, TheRunGoesOnWithoutTheDialogAndTakesItsEntriesAlong) {
    QueuePhotos(8);
    Open();
    RunAnd(1, [this] {
        EXPECT_TRUE(queue.Empty());
        EXPECT_EQ(lengths, QList<int>{0});
        job.Pause(true);
        Click("CmdBackground");
    });
    EXPECT_FALSE(form->isVisible());
    ASSERT_TRUE(job.IsRunning());
    queue.Append(
        testing::FisheyePhoto(files.Path(Text("in")), Text("01.bmp"), Projection::Horizon));
    Open();
    EXPECT_EQ(Buttons(), Text("CmdStop"));
    EXPECT_EQ(The<QListView>("ListQueue").model()->rowCount(), 8);
    EXPECT_EQ(The<QPushButton>("CmdPause").text(), Text("Go on"));
    Click("CmdPause");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !job.IsRunning(); }));
    EXPECT_EQ(OutNames().size(), 8);
    EXPECT_EQ(queue.UpperBound(), 1) << "what was added meanwhile stays queued";
    EXPECT_TRUE(The<QPlainTextEdit>("TextSummary").isVisible());
    Click("CmdBatchProcess");
    EXPECT_EQ(OutNames().size(), 9);
}

TEST_F(FormBatchTest, LinesHaveSmallPicturesAndNamesTheDayOfTheirPhoto) {
    QueuePhotos(2);
    Open();
    const QAbstractItemModel& lines = *The<QListView>("ListQueue").model();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !lines.index(1, 0).data(Qt::DecorationRole).value<QPixmap>().isNull(); }));
    The<QLineEdit>("TextNamePattern").setText(Text("{date}"));
    const QString today =
        QFileInfo(SourcePath(queue(1))).lastModified().date().toString(Qt::ISODate);
    EXPECT_EQ(Label("LabelExample"), today + Text(".BMP"));
    EXPECT_TRUE(Label("LabelNames").startsWith(Text("1 name collides")));
}

}  // namespace
}  // namespace varnel
