// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_stretch.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include "tests/support/chooser.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/settled.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::The;
using testing::operator==;
using testing::Text;

class FormStretchTest : public ::testing::Test {
  protected:
    FormStretchTest()
        : photo(files.Picture(Text("IMG.bmp"), OutputType::Bmp, {200, 101})),
          form(
              settings, photos,
              [this](const QString& folder) {
                  folders.append(folder);
                  return chosen;
              },
              chooser, pool, notices) {
        form.show();
        QApplication::processEvents();
    }
    QString Label(const char* name) const { return The<QLabel>(form, name).text(); }
    QImage View() {
        EXPECT_TRUE(testing::Settle());  // fitting and drawing
        return The<QWidget>(form, "PicStretch").grab().toImage();
    }
    bool CanSave() const { return The<QPushButton>(form, "CmdSave").isEnabled(); }
    void OpenPhoto() {
        chosen = photo;
        testing::Click(form, "CmdOpen");
    }
    void Drop(const QList<QUrl>& urls) {
        QMimeData dropped;
        dropped.setUrls(urls);
        const QPoint middle = form.rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&form, &enter);
        if (enter.isAccepted()) {
            QDropEvent drop(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&form, &drop);
        }
    }

    testing::PictureFolder files;
    QString photo, chosen;
    QStringList folders;
    GeneralSettings settings;
    testing::FakeChooser chooser;
    testing::NotedNotices notices;
    PhotoLoader photos{testing::Reader()};
    ThreadRunner pool;
    FormStretch form;
};

TEST_F(FormStretchTest, SlidersAndSpinBoxesShowTheSameAndLabelsSayTheSide) {
    EXPECT_EQ(form.objectName(), Text("FormStretch"));
    const struct {
        const char *slider, *spinBox, *label, *heading, *positive, *negative;
    } rows[] = {{"SliderStrength", "SpinSliderStrength", "LabelStrength", "HeadingSliderStrength",
                 "10 % wider", "90 % narrower"},
                {"SliderMiddle", "SpinSliderMiddle", "LabelMiddle", "HeadingSliderMiddle",
                 "10 % up", "90 % down"}};
    for (const auto& row : rows) {
        auto& slider = The<QSlider>(form, row.slider);
        EXPECT_EQ((std::array{slider.minimum(), slider.maximum(), slider.value()}),
                  (std::array{-100, 100, 0}));
        EXPECT_EQ(Label(row.label), Text("0 %"));
        QTest::keyClick(&slider, Qt::Key_PageUp);
        EXPECT_EQ(Label(row.label), Text(row.positive));
        auto& spinBox = The<QSpinBox>(form, row.spinBox);
        EXPECT_EQ(spinBox.value(), 10);
        spinBox.selectAll();
        QTest::keyClicks(&spinBox, Text("-90"));
        QTest::keyClick(&spinBox, Qt::Key_Tab);
        EXPECT_EQ(slider.value(), -90);
        EXPECT_EQ(Label(row.label), Text(row.negative));
        QTest::mouseDClick(&The<QLabel>(form, row.heading), Qt::LeftButton);
        EXPECT_EQ(slider.value(), 0);
    }
}

TEST_F(FormStretchTest, OpensByButtonAndByDropAndKeepsThePhotoWhenAnotherFails) {
    const QImage empty = View();
    EXPECT_FALSE(CanSave());
    testing::Click(form, "CmdOpen");  // cancelled
    EXPECT_FALSE(CanSave());
    OpenPhoto();
    EXPECT_EQ(folders, (QStringList{{}, {}}));
    EXPECT_EQ(Label("LabelFile"), Text("IMG.bmp"));
    EXPECT_EQ(Label("LabelStatus"), Text("200 x 101 pixels"));
    EXPECT_TRUE(CanSave());
    EXPECT_NE(View(), empty);

    chosen = files.Text(Text("none.jpg"));
    testing::Click(form, "CmdOpen");
    EXPECT_EQ(folders.last(), QFileInfo(photo).absolutePath());
    EXPECT_EQ(notices.told, QStringList{Text("Could not open image|") + chosen +
                                        Text(": this is not a picture of a known type")});
    EXPECT_EQ(Label("LabelFile"), Text("IMG.bmp"));

    const QUrl other = QUrl::fromLocalFile(files.Picture(Text("other.png"), OutputType::Png));
    Drop({other, other});
    Drop({QUrl(Text("https://varnel.example/a.jpg"))});
    EXPECT_EQ(Label("LabelFile"), Text("IMG.bmp"));
    Drop({other});
    EXPECT_EQ(Label("LabelFile"), Text("other.png"));
}

TEST_F(FormStretchTest, ThePreviewFollowsBothSlidersAndComesBack) {
    OpenPhoto();
    const QImage plain = View();
    auto& strength = The<QSlider>(form, "SliderStrength");
    QTest::keyClick(&strength, Qt::Key_End);
    const QImage wide = View();
    EXPECT_NE(wide, plain);
    QTest::keyClick(&The<QSlider>(form, "SliderMiddle"), Qt::Key_End);
    EXPECT_NE(View(), wide);
    QTest::mouseDClick(&The<QLabel>(form, "HeadingSliderStrength"), Qt::LeftButton);
    QTest::mouseDClick(&The<QLabel>(form, "HeadingSliderMiddle"), Qt::LeftButton);
    EXPECT_EQ(View(), plain);
}

TEST_F(FormStretchTest, SavesTheStretchedPhotoUnderTheChosenName) {
    settings.FileType = Text("BMP");
    OpenPhoto();
    The<QSlider>(form, "SliderStrength").setValue(100);
    testing::Click(form, "CmdSave");  // cancelled
    EXPECT_EQ(chooser.proposed.name, photo.chopped(3) + Text("Stretch"));
    EXPECT_EQ(chooser.proposed.filterIndex, 3);
    chooser.answer = chooser.proposed;
    testing::Click(form, "CmdSave");
    const QString saved = photo.chopped(3) + Text("Stretch.BMP");
    EXPECT_EQ(Label("LabelStatus"), Text("Saved ") + saved);
    const BitmapHandle result = testing::LoadPicture(saved).bitmap;
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(SizeOf(result.get()).width, 200);
    // Columns count from 0 in blue: the middle row as it was, the top row all of the two in the
    // middle, 99 and 100, whose blend rounds down.
    EXPECT_TRUE((testing::PixelAt(result.get(), 10, 50) == PixelColor{10, 50, 7, 0}));
    EXPECT_TRUE((testing::PixelAt(result.get(), 10, 100) == PixelColor{99, 100, 7, 0}));
    EXPECT_TRUE(CanSave());

    The<QSlider>(form, "SliderStrength").setValue(0);
    testing::Click(form, "CmdSave");  // there already; not to be replaced
    EXPECT_EQ(chooser.asked, QStringList{saved});
    EXPECT_TRUE((testing::PixelAt(testing::LoadPicture(saved).bitmap.get(), 10, 100) ==
                 PixelColor{99, 100, 7, 0}));
    EXPECT_TRUE(notices.told.isEmpty());
}

TEST_F(FormStretchTest, SaysWhatTheSavedFileDoesNotHold) {
    const BitmapHandle bitmap = testing::PositionPicture({20, 10});
    PhotoMetadata titled;
    titled.xmp =
        "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' dc:source='a'/>"
        "</rdf:RDF></x:xmpmeta>";
    bitmap->metadata.photo = titled;
    ASSERT_TRUE(SaveBitmap(OutputType::Tiff, bitmap.get(), photo));
    settings.FileType = Text("BMP");
    OpenPhoto();
    testing::Click(form, "CmdSave");
    chooser.answer = chooser.proposed;
    testing::Click(form, "CmdSave");
    EXPECT_TRUE(Label("LabelStatus").endsWith(Text("BMP, BMP files hold no metadata")))
        << Label("LabelStatus").toStdString();
}

TEST_F(FormStretchTest, NeverReplacesThePhotoAndSaysWhyAFileCannotBeWritten) {
    OpenPhoto();
    const QByteArray before = testing::Contents(photo);
    chooser.agrees = true;
    chooser.answer = SaveChoice{photo, 3};
    testing::Click(form, "CmdSave");
    EXPECT_EQ(notices.told, QStringList{Text("Could not save ") + photo +
                                        Text("|This is the photo itself; choose another name.")});
    EXPECT_EQ(testing::Contents(photo), before);
    chooser.answer = SaveChoice{files.Path(Text("nowhere/a.bmp")), 3};
    testing::Click(form, "CmdSave");
    EXPECT_TRUE(
        notices.told.last().startsWith(Text("Could not save ") + chooser.answer->name + u'|'));
    EXPECT_TRUE(CanSave());
}

TEST_F(FormStretchTest, ASaveCanBeCancelledWhileItIsWritten) {
    photo = files.Picture(Text("large.bmp"), OutputType::Bmp, {2000, 1500});
    OpenPhoto();
    chooser.answer = SaveChoice{files.Path(Text("out.png")), 4};
    auto& bar = The<QProgressBar>(form, "BarStretch");
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (bar.isVisible() && bar.maximum() == 0) {
            The<QPushButton>(form, "CmdCancelSave").click();
        }
    });
    look.start(0);
    testing::Click(form, "CmdSave");
    look.stop();
    EXPECT_FALSE(QFileInfo::exists(chooser.answer->name));
    EXPECT_EQ(Label("LabelStatus"), Text("Cancelled, nothing was saved"));
    EXPECT_TRUE(notices.told.isEmpty());
    EXPECT_TRUE(CanSave());
    testing::Click(form, "CmdSave");
    EXPECT_TRUE(QFileInfo::exists(chooser.answer->name));
}

TEST_F(FormStretchTest, EscapeClosesButNotBeforeASaveHasEnded) {
    OpenPhoto();
    chooser.answer = SaveChoice{files.Path(Text("out.bmp")), 3};
    bool visibleAfterEscape = false;
    QTimer::singleShot(0, &form, [&] {  // has its turn when the save handles waiting events
        EXPECT_FALSE(CanSave());
        QTest::keyClick(&form, Qt::Key_Escape);
        visibleAfterEscape = form.isVisible();
    });
    testing::Click(form, "CmdSave");
    EXPECT_TRUE(visibleAfterEscape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(QFileInfo::exists(chooser.answer->name));
}

}  // namespace
}  // namespace varnel
