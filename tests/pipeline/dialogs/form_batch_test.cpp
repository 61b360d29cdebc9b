// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_batch.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>

#include "remap/encode/output_type.h"
#include "tests/pipeline/dialogs/batch_dialog.h"
#include "tests/support/settled.h"

namespace varnel {
namespace {

using testing::FormBatchTest;
using testing::Text;

TEST_F(FormBatchTest, HasItsControlsAndTheSettingsAtFirst) {
    QueuePhotos(2);
    queue(2).NameSuffix = Text("Morph0004");
    choices = {};
    settings = {400, 300, Text("PNG"), 77};
    Open();
    EXPECT_EQ(form->objectName(), Text("FormBatch"));
    const std::pair<const char*, const char*> controls[] = {
        {"Drive2", "QComboBox"},
        {"Dir2", "QTreeView"},
        {"ComboFileType", "QComboBox"},
        {"SliderJPEGcompression", "QSlider"},
        {"TextFileadditionVarnel", "QLineEdit"},
        {"TextFileadditionRectilinear", "QLineEdit"},
        {"TextFileadditionEquidistance", "QLineEdit"},
        {"TextFileadditionHorizon", "QLineEdit"},
        {"LabelImage", "QLabel"},
        {"LabelProgress", "QLabel"},
        {"ProgressImage", "QProgressBar"},
        {"CmdBatchProcess", "QPushButton"},
        {"CmdStop", "QPushButton"},
        {"CmdCancel", "QPushButton"},
        {"CmdClearBatchQue", "QPushButton"}};
    for (const auto& [name, kind] : controls) {
        const auto* const control = form->findChild<QWidget*>(Text(name));
        ASSERT_NE(control, nullptr) << name;
        EXPECT_TRUE(control->inherits(kind)) << name;
        EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
    }
    EXPECT_EQ(
        testing::Items(The<QComboBox>("ComboFileType")),
        Text("TIFF JPEG BMP PNG EXR HDR") + (OutputTypeByName(u"jxl") ? Text(" JXL") : Text("")));
    EXPECT_EQ(The<QComboBox>("ComboFileType").currentText(), Text("PNG"));
    EXPECT_EQ(The<QSlider>("SliderJPEGcompression").value(), 77);
    EXPECT_EQ(The<QSlider>("SliderJPEGcompression").minimum(), 1);
    EXPECT_EQ(The<QSlider>("SliderJPEGcompression").maximum(), 100);
    EXPECT_EQ(The<QLineEdit>("TextFileadditionHorizon").text(), QString());
    EXPECT_EQ(The<QPushButton>("CmdStop").text(), Text("Stop"));
    EXPECT_EQ(Buttons(), Text("CmdBatchProcess CmdCancel CmdClearBatchQue"));
    EXPECT_TRUE(The<QPushButton>("CmdBatchProcess").isDefault());
    EXPECT_EQ(Label("LabelFolder"), QDir::cleanPath(files.Path(Text("in"))));
    const auto* const lines = The<QListView>("ListQueue").model();
    EXPECT_EQ(lines->rowCount(), 2);
    EXPECT_EQ(lines->index(1, 0).data().toString(), Text("02.bmp (Equidistance, Morph 0004)"));
}

TEST_F(FormBatchTest, WritesTheQueueAsChosenAndEmptiesIt) {
    QueuePhotos(2);
    queue(2).Projection = 3;
    Open();
    Type("TextFileadditionEquidistance", "wi/de");  // the slash is not taken
    The<QComboBox>("ComboFileType").setCurrentIndex(1);
    QTest::keyClick(&The<QSlider>("SliderJPEGcompression"), Qt::Key_PageDown);
    EXPECT_EQ(The<QSpinBox>("SpinSliderJPEGcompression").value(), 95);
    QTest::keyClick(&The<QLineEdit>("TextFileadditionEquidistance"), Qt::Key_Return);
    EXPECT_EQ(OutNames().join(u' '), Text("01.wide.JPG 02.Horizon.JPG"));
    EXPECT_TRUE(queue.Empty());
    EXPECT_EQ(lengths, QList<int>{0});
    EXPECT_EQ(Label("LabelProgress"), Text("2 of 2 images"));
    EXPECT_EQ(Buttons(), Text("CmdBatchProcess CmdCancel CmdClearBatchQue"));
    EXPECT_FALSE(The<QPushButton>("CmdBatchProcess").isEnabled());
    EXPECT_TRUE(notices.told.isEmpty());
}

TEST_F(FormBatchTest, DuringARunOnlyStopCanBeUsed) {
    QueuePhotos(2);
    Open();
    RunAnd(1, [this] {
        EXPECT_EQ(Buttons(), Text("CmdStop"));
        EXPECT_EQ(Label("LabelImage"), Out() + Text("/02.Equidistance.BMP"));
        EXPECT_EQ(The<QListView>("ListQueue").currentIndex().row(), 1);
        QStringList usable;
        for (const QWidget* const widget : form->findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() &&
                widget->focusPolicy() != Qt::NoFocus) {
                usable.append(widget->objectName());
            }
        }
        EXPECT_EQ(usable.join(u' '), Text("ListQueue CmdBackground CmdPause CmdStop"));
        const QAbstractItemModel& lines = *The<QListView>("ListQueue").model();
        EXPECT_TRUE(
            lines.index(0, 0).data().toString().endsWith(Text("\nwritten: 01.Equidistance.BMP")));
        EXPECT_TRUE(lines.index(1, 0).data().toString().endsWith(Text("\nbeing converted")));
        Type("TextFileadditionEquidistance", "late");
    });
    EXPECT_EQ(OutNames().join(u' '), Text("01.Equidistance.BMP 02.Equidistance.BMP"));
}

TEST_F(FormBatchTest, StopEscapeAndCloseFinishTheImageAtHand) {
    const std::function<void()> ways[] = {[this] { Click("CmdStop"); },
                                          [this] { QTest::keyClick(form.get(), Qt::Key_Escape); },
                                          [this] { form->close(); }};
    for (const auto& way : ways) {
        QueuePhotos(10);
        Open();
        RunAnd(2, [&] {
            way();
            EXPECT_EQ(The<QPushButton>("CmdStop").text(), Text("Wait this image"));
            EXPECT_TRUE(form->isVisible());
        });
        EXPECT_EQ(OutNames().size(), 3);
        QDir(Out()).removeRecursively();
        QDir().mkdir(Out());
        EXPECT_TRUE(queue.Empty());
        EXPECT_EQ(Label("LabelProgress"), Text("3 of 10 images"));
        EXPECT_EQ(The<QPushButton>("CmdStop").text(), Text("Stop"));
        EXPECT_EQ(Buttons(), Text("CmdBatchProcess CmdCancel CmdClearBatchQue"));
        EXPECT_TRUE(form->isVisible()) << "the summary is to be read";
        QTest::keyClick(form.get(), Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    }
    EXPECT_EQ(lengths, (QList<int>{0, 0, 0}));
}

TEST_F(FormBatchTest, TheSummaryCanBeReadAndCopied) {
    files.Text(Text("in/text.jpg"));
    Queue(Text("text.jpg"));
    QueuePhotos(1);
    const ImageRecord photo = queue(2);
    Open();
    QStringList written;
    QObject::connect(&job, &BatchJob::Written, [&](const ImageRecord& entry, const QString& path) {
        EXPECT_EQ(entry.FileName, photo.FileName);
        written.append(path);
    });
    Click("CmdBatchProcess");
    EXPECT_EQ(written, QStringList{Out() + Text("/01.Equidistance.BMP")});
    const auto& text = The<QPlainTextEdit>("TextSummary");
    EXPECT_TRUE(text.isVisible());
    EXPECT_TRUE(text.isReadOnly());
    EXPECT_EQ(text.toPlainText(), Text("1 of 2 images written into %1\n\n1 image failed:\n"
                                       "  %2: this is not a picture of a known type\n\n"
                                       "1 file does not hold everything:\n"
                                       "  %1/01.Equidistance.BMP: BMP files hold no settings\n")
                                      .arg(Out(), files.Path(Text("in/text.jpg"))));
    Click("CmdCopy");
    EXPECT_EQ(QApplication::clipboard()->text(), text.toPlainText());
}

TEST_F(FormBatchTest, AMissingFolderIsToldAtOnceAndTheQueueStays) {
    QueuePhotos(1);
    Open();
    QDir(Out()).removeRecursively();
    Click("CmdBatchProcess");
    EXPECT_EQ(notices.told.join(u' '),
              Text("The folder %1 does not exist|Choose another folder.").arg(Out()));
    EXPECT_EQ(queue.UpperBound(), 1);
    EXPECT_TRUE(lengths.isEmpty());
}

TEST_F(FormBatchTest, ClearEmptiesTheQueueOnly) {
    QueuePhotos(3);
    Open();
    Click("CmdClearBatchQue");
    EXPECT_TRUE(queue.Empty());
    EXPECT_EQ(lengths, QList<int>{0});
    EXPECT_EQ(The<QListView>("ListQueue").model()->rowCount(), 0);
    EXPECT_FALSE(The<QPushButton>("CmdBatchProcess").isEnabled());
    EXPECT_TRUE(OutNames().isEmpty());
}

TEST_F(FormBatchTest, TellsCollisionsAndMissingSpaceBeforeTheRun) {
    QueuePhotos(2);
    files.Text(Text("out/02.all.BMP"));
    Queue(Text("02.tif"));
    Open();
    EXPECT_EQ(Label("LabelNames"),
              Text("1 name collides: of the images of one name only the last one stays."));
    Type("TextFileadditionEquidistance", "all");
    EXPECT_TRUE(Label("LabelNames").endsWith(Text("1 file in this folder will be replaced.")));
    queue(3).Projection = 0;
    The<QComboBox>("ComboFileType").setCurrentIndex(3);
    EXPECT_FALSE(The<QLabel>("LabelNames").isVisible());
    EXPECT_FALSE(The<QLabel>("LabelSpace").isVisible());
    queue.Resize(100'000);
    for (ImageRecord& entry : queue) {
        entry.Width = 32767;
        entry.Height = 32767;
    }
    The<QComboBox>("ComboFileType").setCurrentIndex(2);
    EXPECT_TRUE(
        Label("LabelSpace").startsWith(Text("The images may need up to 322.1 TB, but only ")));
}

TEST_F(FormBatchTest, RemembersTheChoicesHoweverItIsLeft) {
    QueuePhotos(1);
    choices.film.codec = Text("ffv1");  // of the film bar: the dialog has no control for it
    Open();
    Type("TextFileadditionHorizon", "sky");
    The<QComboBox>("ComboFileType").setCurrentIndex(1);
    The<QSlider>("SliderJPEGcompression").setValue(61);
    Click("Chroma444Check");
    Click("WriteMetadataCheck");
    Click("FineSamplingCheck");
    The<QLineEdit>("TextNamePattern").setText(Text("{n}"));
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(form->result(), QDialog::Rejected);
    EXPECT_TRUE(!choices.writeMetadata && choices.chroma444);
    EXPECT_EQ(choices.sampling, SamplingKind::Fine);
    settings.FileType = Text("PNG");
    Open();
    EXPECT_EQ(Label("LabelFolder"), Out());
    EXPECT_EQ(The<QComboBox>("ComboFileType").currentText(), Text("JPEG"));
    EXPECT_EQ(The<QSlider>("SliderJPEGcompression").value(), 61);
    EXPECT_EQ(The<QLineEdit>("TextFileadditionHorizon").text(), Text("sky"));
    EXPECT_EQ(The<QLineEdit>("TextNamePattern").text(), Text("{n}"));
    form->reject();
    EXPECT_TRUE(choices.chroma444 && !choices.writeMetadata);
    EXPECT_EQ(choices.sampling, SamplingKind::Fine);
    EXPECT_EQ(choices.pattern, Text("{n}"));
    EXPECT_EQ(choices.film.codec, Text("ffv1"));
    EXPECT_EQ(queue.UpperBound(), 1);
}

TEST_F(FormBatchTest, ANewFolderIsMadeNamedAndChosen) {
    QueuePhotos(1);
    QDir(Out()).mkdir(Text("Varnel"));
    Open();
    auto& tree = The<QTreeView>("Dir2");
    ASSERT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount(tree.currentIndex()) == 1; }));
    Click("CmdNewFolder");
    EXPECT_TRUE(QDir(Out() + Text("/Varnel 2")).exists());
    const auto name = [&](const QString& folder) {
        ASSERT_TRUE(QTest::qWaitFor([] { return InEditor(); }));
        EXPECT_EQ(InEditor()->text(), Text("Varnel 2"));
        QTest::keyClicks(InEditor(), folder);
        QTest::keyClick(InEditor(), Qt::Key_Return);
    };
    for (const QString& bad : {Text("Varnel"), Text("a/b"), Text("."), QString(256, u'n')}) {
        name(bad);
        EXPECT_TRUE(QTest::qWaitFor([this] { return notices.told.size() == 1; }))
            << qPrintable(bad);
        EXPECT_TRUE(notices.told.takeFirst().contains(bad));
    }
    name(Text("Wide"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Label("LabelFolder") == Out() + Text("/Wide"); }));
    EXPECT_FALSE(QTest::qWaitFor([&] { return tree.model()->rowCount() != 1; }, 300))
        << "the root alone stands at the top";
    EXPECT_EQ(tree.currentIndex().data().toString(), Text("Wide"));
    EXPECT_TRUE(tree.viewport()->rect().contains(tree.visualRect(tree.currentIndex()).center()));
    EXPECT_EQ(queue.UpperBound(), 1) << "naming a folder must not start the run";
    Click("CmdBatchProcess");
    EXPECT_TRUE(QFile::exists(Out() + Text("/Wide/01.Equidistance.BMP")));
}

TEST_F(FormBatchTest, WhereNoFolderCanBeMadeThatIsTold) {
    QueuePhotos(1);
    choices.folder = Text("/proc");
    Open();
    Click("CmdNewFolder");
    EXPECT_EQ(notices.told, QStringList(Text("No folder can be made in /proc")));
    EXPECT_EQ(Label("LabelFolder"), Text("/proc"));
}

TEST_F(FormBatchTest, TheFolderStaysInSightWhenItsNeighboursArrive) {
    QDir(Out()).mkpath(Text("a/b"));
    choices.folder = Out() + Text("/a/b");
    for (int n = 0; n < 5; ++n) {
        QueuePhotos(1);
        Open();
        EXPECT_TRUE(testing::Settle());
        const auto& tree = The<QTreeView>("Dir2");
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QRect shown = tree.visualRect(tree.currentIndex());
            return tree.viewport()->rect().contains(shown.center());
        })) << n;
        form->close();
    }
}

}  // namespace
}  // namespace varnel
