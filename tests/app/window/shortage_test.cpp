// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// No memory for a picture, at every place of a slot where one is made: that is told, and the window
// goes on.

#include "app/picture/contact_sheet_box.h"
#include "app/start/application.h"
#include "pipeline/dialogs/form_morph.h"
#include "pipeline/dialogs/form_stretch.h"
#include "tests/support/dialogs.h"
#include "tests/support/picture_memory.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::PictureLimit;
using testing::Text;

const QString noMemory = Text("There is not enough memory.");

// Tries it with no picture to be had, with one, and so on, until there are enough. Returns how
// often there were too few.
int WithEveryLimit(const std::function<void()>& act, const std::function<void(int)>& check) {
    for (int pictures = 0;; ++pictures) {
        {
            const PictureLimit limit(pictures);
            act();
            if (!PictureLimit::Reached()) {
                return pictures;
            }
        }
        check(pictures);
    }
}

class ShortageTest : public ::testing::Test {
  protected:
    ShortageTest() { workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")}, {600, 400}); }
    // Nothing is left busy, and the next deed works.
    void ExpectGoesOn(int pictures) {
        QApplication::processEvents();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << pictures;
        EXPECT_TRUE(workspace.Slider("SliderEffect")->isEnabled()) << pictures;
        workspace.ClickLine(pictures % 2);
        EXPECT_TRUE(workspace.state.bitmaps.ResultBitmap) << pictures;
    }
    QString Status() { return workspace.Label("StatusText"); }

    testing::TestWindow workspace;
};

TEST_F(ShortageTest, OfThePreviewIsSaidInTheStatusOrOfAPhotoInABox) {
    const std::pair<const char*, std::function<void()>> deeds[] = {
        {"a line", [&] { workspace.ClickLine(1); }},
        {"the preview's button", [&] { workspace.Click("CmdFreeImage"); }},
        {"a slider",
         [&] {
             workspace.state.bitmaps.ResultBitmap.reset();  // else the next one takes its place
             workspace.Press("SliderAOVinput", Qt::Key_Right);
         }},
        {"the defaults", [&] { workspace.Entry("CmdSetupSetup")->trigger(); }},
    };
    for (const auto& [name, deed] : deeds) {
        const int limits = WithEveryLimit(deed, [&, name = name](int pictures) {
            EXPECT_TRUE(Status() == noMemory || workspace.notices.texts.size() == 1) << name;
            workspace.notices.texts.clear();
            ExpectGoesOn(pictures);
        });
        EXPECT_GT(limits, 0) << name;
    }
}

TEST_F(ShortageTest, OfTheRoomLeavesNoPreviewUntilThereIsMemoryAgain) {
    const QSize size = workspace.window.size();
    {
        const PictureLimit none(0);
        workspace.window.resize(size / 2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == noMemory; }));
        EXPECT_FALSE(workspace.state.bitmaps.PreviewSourceBitmap);
    }
    workspace.window.resize(size);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bool(workspace.state.bitmaps.ResultBitmap); }));
}

TEST_F(ShortageTest, ClosesTheContactSheetAndIsSaid) {
    auto* const sheet = workspace.Find<ContactSheetBox>("ContactSheet");
    const auto open = [&] {
        workspace.Entry("CmdContactSheet")->trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return sheet->IsDrawn() || !sheet->isVisible(); }));
    };
    const int limits = WithEveryLimit(open, [&](int pictures) {
        EXPECT_FALSE(sheet->isVisible()) << pictures;
        EXPECT_EQ(Status(), noMemory) << pictures;
        ExpectGoesOn(pictures);
    });
    EXPECT_GT(limits, 12);
    const PictureLimit none(0);
    workspace.window.resize(workspace.window.size() - QSize(120, 60));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !sheet->isVisible(); }));
    EXPECT_EQ(Status(), noMemory);
}

TEST_F(ShortageTest, OfTheStretchToolIsToldAndItOpensTheNextPhoto) {
    testing::NotedNotices notices;
    FormStretch form(
        workspace.state.settings, workspace.photos, [](const QString&) { return QString(); },
        workspace.chooser, workspace.state.pool, notices);
    form.show();
    const QString path = workspace.files.Path(Text("a.bmp"));
    const auto open = [&] {
        form.Open(path);
        QTest::qWait(20);  // fitting and drawing
    };
    const int limits = WithEveryLimit(open, [&](int pictures) {
        const bool said = testing::The<QLabel>(form, "LabelStatus").text() == noMemory;
        EXPECT_EQ(notices.told.filter(Text("not enough memory")).size(), said ? 0 : 1) << pictures;
        notices.told.clear();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << pictures;
    });
    EXPECT_GT(limits, 2);
    EXPECT_TRUE(testing::The<QAbstractButton>(form, "CmdSave").isEnabled());
}

TEST_F(ShortageTest, OfTheMorphStandsInThePicturesPlace) {
    testing::NotedNotices notices;
    std::unique_ptr<FormMorph> form;
    const auto open = [&] {
        form = std::make_unique<FormMorph>(
            workspace.Record(1), workspace.state.bitmaps.PreviewSourceBitmap.get(),
            workspace.state.BatchQueue, workspace.state.pool, notices, [](int) {});
        form->show();
        QApplication::processEvents();
    };
    const int limits = WithEveryLimit(open, [&](int pictures) {
        EXPECT_EQ(testing::The<QLabel>(*form, "PicLast").text(), noMemory) << pictures;
    });
    EXPECT_GT(limits, 1);
}

// An event without any handling of its own.
class Greedy : public QObject {
  public:
    bool event(QEvent* /*event*/) override {
        lack_();
        return true;
    }
    void (*lack_)() = nullptr;
};

TEST(Application, TellsOnceWhatWasShortAndGoesOn) {
    auto* const application = qobject_cast<Application*>(qApp);
    ASSERT_NE(application, nullptr);
    testing::NotedNotices notices;
    application->ShowTo(&notices);
    Greedy greedy;
    const std::pair<void (*)(), const char*> lacks[] = {
        {[] { throw std::bad_alloc(); }, "There is not enough memory.|"},
        {[] { throw std::system_error(EAGAIN, std::generic_category()); },
         "The system gives no more threads.|"}};
    for (const auto& [lack, told] : lacks) {
        greedy.lack_ = lack;
        for (int n = 0; n < 3; ++n) {
            QEvent event(QEvent::User);
            QApplication::sendEvent(&greedy, &event);
        }
        EXPECT_TRUE(notices.told.isEmpty()) << "not within the event";
        QApplication::processEvents();
        ASSERT_EQ(notices.told.size(), 1);
        EXPECT_TRUE(notices.told.takeFirst().startsWith(Text(told)));
    }
    application->ShowTo(nullptr);
}

}  // namespace
}  // namespace varnel

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    varnel::Application application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
