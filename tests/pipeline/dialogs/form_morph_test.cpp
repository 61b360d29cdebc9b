// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_morph.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSpinBox>

#include "remap/projection/projection_info.h"
#include "tests/support/bitmaps.h"
#include "tests/support/dialogs.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class FormMorphTest : public testing::DialogTest<FormMorph> {
  protected:
    FormMorphTest() : source(testing::PositionPicture({300, 200})) {
        image.Projection = static_cast<std::int16_t>(Projection::Rectilinear);
        image.EffectRectilinear = 80.0F;
        image.RotateX = -15.0F;
        image.TranslateY = 3.0F;
    }
    FormMorph& Open() {
        form = std::make_unique<FormMorph>(image, source.get(), queue, pool, notices,
                                           [this](int bound) { bounds.push_back(bound); });
        form->show();
        QApplication::processEvents();
        return *form;
    }
    void Add(const char* count) {
        auto& edit = The<QLineEdit>("TextNumImages");
        edit.selectAll();
        QTest::keyClicks(&edit, Text(count));
        Click("CmdAddMorphToBatch");
    }
    QImage Picture(const char* name) const {
        QApplication::processEvents();  // the timer that draws
        return The<QLabel>(name).grab().toImage();
    }

    ImageRecord image = testing::FisheyeRecord();
    BitmapHandle source;
    RecordArray<ImageRecord> queue;
    ThreadRunner pool;
    std::vector<int> bounds;
};

TEST_F(FormMorphTest, HasTheMainWindowsRangesAndStartsAtThePhotosValues) {
    Open();
    EXPECT_EQ(form->objectName(), Text("FormMorph"));
    const struct {
        const char *slider, *label;
        int minimum, maximum, page, step, value;
        const char* text;
    } rows[] = {
        {"SliderAOVoutput", "LabelAOVoutput", 60, 180, 10, 10, 90, "90° hAOV"},
        {"SliderEffect", "LabelEffect", 0, 100, 10, 1, 80, "80 %"},
        {"SliderX", "LabelRotateX", -40, 40, 10, 10, -15, "15° Up"},
        {"SliderY", "LabelRotateY", -40, 40, 10, 10, 0, "0°"},
        {"SliderZ", "LabelRotateZ", -40, 40, 10, 10, 0, "0°"},
        {"SliderXtranslate", "LabelTranslateX", -40, 40, 5, 1, 0, "0°"},
        {"SliderYtranslate", "LabelTranslateY", -40, 40, 5, 1, 3, "3% Up"},
    };
    for (const auto& row : rows) {
        for (const char* end : {"Start", "End"}) {
            const QByteArray name = QByteArray(row.slider) + end;
            const auto& slider = The<QSlider>(name);
            EXPECT_EQ((std::array{slider.minimum(), slider.maximum(), slider.pageStep(),
                                  slider.singleStep(), slider.value()}),
                      (std::array{row.minimum, row.maximum, row.page, row.step, row.value}))
                << name.constData();
            EXPECT_EQ(Label(QByteArray(row.label) + end), Text(row.text)) << name.constData();
            EXPECT_EQ(The<QSpinBox>(QByteArray("Spin") + name).value(), row.value);
            EXPECT_FALSE(slider.accessibleName().isEmpty());
        }
    }
}

TEST_F(FormMorphTest, LabelsFollowTheSlidersInTheirWords) {
    Open();
    const struct {
        const char *slider, *label;
        Qt::Key key;
        const char* text;
    } rows[] = {
        {"SliderXStart", "LabelRotateXStart", Qt::Key_End, "40° Down"},
        {"SliderYStart", "LabelRotateYStart", Qt::Key_PageDown, "10° Left"},
        {"SliderYEnd", "LabelRotateYEnd", Qt::Key_PageUp, "10° Right"},
        {"SliderZStart", "LabelRotateZStart", Qt::Key_PageDown, "10° clockwise"},
        {"SliderZEnd", "LabelRotateZEnd", Qt::Key_PageUp, "10° c.clockwise"},
        {"SliderXtranslateStart", "LabelTranslateXStart", Qt::Key_PageDown, "5% Left"},
        {"SliderXtranslateEnd", "LabelTranslateXEnd", Qt::Key_PageUp, "5% Right"},
        {"SliderYtranslateStart", "LabelTranslateYStart", Qt::Key_PageDown, "2% Down"},
        {"SliderAOVoutputEnd", "LabelAOVoutputEnd", Qt::Key_Home, "60° hAOV"},
        {"SliderEffectEnd", "LabelEffectEnd", Qt::Key_Home, "0 %"},
    };
    for (const auto& row : rows) {
        QTest::keyClick(&The<QSlider>(row.slider), row.key);
        EXPECT_EQ(Label(row.label), Text(row.text)) << row.slider;
    }
    auto& spinBox = The<QSpinBox>("SpinSliderZEnd");
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, Text("-7"));
    QTest::keyClick(&spinBox, Qt::Key_Tab);
    EXPECT_EQ(Label("LabelRotateZEnd"), Text("7° clockwise"));
    QTest::mouseDClick(&The<QLabel>("HeadingSliderZ"), Qt::LeftButton);
    EXPECT_EQ(The<QSlider>("SliderZEnd").value(), 0);
}

TEST_F(FormMorphTest, MarksWhatTheProjectionDoesNotUseAndStartsAtTheRest) {
    const struct {
        Projection projection;
        int marked;
        bool effectMarked;
        int effect;  // where its slider stands
    } rows[] = {{Projection::Varnel, 6, false, 90},
                {Projection::Rectilinear, 0, false, 80},
                {Projection::Equidistance, 7, true, 100},
                {Projection::Horizon, 6, false, 90}};
    image.EffectVarnel = 90.4F;
    for (const auto& row : rows) {
        image.Projection = static_cast<std::int16_t>(row.projection);
        Open();
        int marked = 0;
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            marked += label->text().endsWith(Text(" *")) ? 1 : 0;
        }
        EXPECT_EQ(marked, row.marked);
        EXPECT_EQ(Label("HeadingSliderEffect").endsWith(u'*'), row.effectMarked);
        EXPECT_EQ(The<QSlider>("SliderEffectStart").value(), row.effect);
        EXPECT_EQ(The<QLabel>("LabelUnused").isVisible(), row.marked > 0);
        EXPECT_TRUE(Label("LabelUnused").contains(ToText(row.projection)));
    }
}

TEST_F(FormMorphTest, AddsTheFramesBetweenTheSlidersAndTellsTheQueuesLength) {
    queue.Append(image);
    image.OutputAOV = 70.4F;  // not moved: the sequence keeps the fraction
    image.InputAOV = 170.0F;
    Open();
    QTest::keyClick(&The<QSlider>("SliderEffectStart"), Qt::Key_Home);
    QTest::keyClick(&The<QSlider>("SliderYEnd"), Qt::Key_End);
    Add("5");
    EXPECT_EQ(bounds, std::vector{6});
    ASSERT_EQ(queue.UpperBound(), 6);
    const struct {
        float effect, y;
    } frames[] = {{0.1F, 0.0F}, {20.0F, 10.0F}, {40.0F, 20.0F}, {60.0F, 30.0F}, {80.0F, 40.0F}};
    for (int i = 1; i <= 5; ++i) {
        ImageRecord expected = image;
        expected.EffectRectilinear = frames[i - 1].effect;
        expected.RotateY = frames[i - 1].y;
        expected.NameSuffix = Text("Morph000%1").arg(i);
        EXPECT_EQ(queue(1 + i), expected) << i;
    }
    EXPECT_EQ(Label("LabelAdded"), Text("5 images added, 6 in the batch que"));
    EXPECT_TRUE(form->isVisible());
    QTest::keyClick(form.get(), Qt::Key_Return);  // the default button
    EXPECT_EQ(queue.UpperBound(), 11);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(notices.told.isEmpty());
}

TEST_F(FormMorphTest, SaysWhyANumberMakesNoSequenceAndAddsNothing) {
    Open();
    const struct {
        const char *typed, *told;
    } rows[] = {
        {"many", "\"many\" is not a whole number."},
        {"1", "No images were added|Division by zero: a sequence of one frame has no steps"},
    };
    for (const auto& row : rows) {
        Add(row.typed);
        EXPECT_EQ(notices.told, QStringList{Text(row.told)});
        EXPECT_FALSE(The<QSlider>("SliderScrub").isEnabled());
        notices.told.clear();
    }
    Add("0");
    EXPECT_EQ(Label("LabelAdded"), Text("No images were added"));
    EXPECT_TRUE(notices.told.isEmpty());
    EXPECT_TRUE(queue.Empty());
    EXPECT_TRUE(bounds.empty());
}

TEST_F(FormMorphTest, ShowsTheFirstTheLastAndAnImageBetween) {
    Open();
    EXPECT_EQ(Label("LabelBetween"), Text("Image 5 of 10"));
    Add("19");  // 4 of 9 steps from the start, as before
    EXPECT_EQ(Label("LabelBetween"), Text("Image 9 of 19"));
    Add("10");
    EXPECT_EQ(Label("LabelBetween"), Text("Image 5 of 10"));
    const QImage before = Picture("PicFirst");
    EXPECT_EQ(Picture("PicLast"), before);
    QTest::keyClick(&The<QSlider>("SliderYEnd"), Qt::Key_End);
    const QImage last = Picture("PicLast");
    EXPECT_NE(last, before);
    EXPECT_EQ(Picture("PicFirst"), before);
    const QImage between = Picture("PicBetween");
    EXPECT_NE(between, before);
    EXPECT_NE(between, last);
    auto& scrub = The<QSlider>("SliderScrub");
    QTest::keyClick(&scrub, Qt::Key_End);
    EXPECT_EQ(Label("LabelBetween"), Text("Image 10 of 10"));
    EXPECT_EQ(Picture("PicBetween"), last);
    QTest::keyClick(&scrub, Qt::Key_Home);
    EXPECT_EQ(Picture("PicBetween"), before);
}

TEST_F(FormMorphTest, APhotoThatCannotBeDrawnCanStillBeQueued) {
    image.Ratio = 0.0F;
    image.Projection = 0;
    Open();
    EXPECT_TRUE(Label("PicFirst").startsWith(Text("Division by zero")));
    source.reset();
    Open();
    EXPECT_EQ(Label("PicLast"), Text("No preview"));
    Add("2");
    EXPECT_EQ(queue.UpperBound(), 2);
}

TEST_F(FormMorphTest, TheWheelMovesOnlyTheSliderWithTheFocus) {
    Open();
    ExpectWheelOnlyWithFocus(The<QSlider>("SliderYStart"), The<QLineEdit>("TextNumImages"));
}

}  // namespace
}  // namespace varnel
