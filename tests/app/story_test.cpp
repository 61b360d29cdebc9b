// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A first day with Varnel on a real window with its real dialogs, driven by input events: define a
// gear, add photos, look at every projection, save in every type. Pictures of it are kept where
// VARNEL_SCREENSHOTS says.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "app/main_window.h"
#include "app/message_boxes.h"
#include "app/real_dialogs.h"
#include "pipeline/load_picture.h"
#include "pipeline/output_type.h"
#include "state/setting_names.h"
#include "tests/support/screenshots.h"

namespace varnel {
namespace {

using testing::KeepPicture;
using testing::SampleFolder;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

template <class Widget>
Widget* Find(QObject* parent, const char* name) {
    Widget* const found = parent->findChild<Widget*>(Q(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

// Answers the modal windows that come up, one after the other, as a person in front of them would.
class Answers {
  public:
    using Answer = std::function<void(QDialog*)>;
    explicit Answers(std::vector<Answer> answers) : answers_(std::move(answers)) {
        timer_.setInterval(30);
        QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
        timer_.start();
    }
    ~Answers() { EXPECT_EQ(next_, answers_.size()) << "a window that was expected did not come"; }

  private:
    void Look() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || next_ == answers_.size()) {
            return;
        }
        timer_.stop();
        answers_[next_++](dialog);
        timer_.start();
    }
    std::vector<Answer> answers_;
    std::size_t next_ = 0;
    QTimer timer_;
};

void PressOk(QDialog* dialog) {
    QTest::mouseClick(qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Ok), Qt::LeftButton);
}

void Choose(QDialog* dialog, const char* combo, const char* text) {
    auto* const box = Find<QComboBox>(dialog, combo);
    box->setFocus();
    for (int tries = 0; tries < 200 && box->currentText() != Q(text); ++tries) {
        QTest::keyClick(box, Qt::Key_Down);
    }
    EXPECT_EQ(box->currentText(), Q(text));
}

void DefineGear(QDialog* dialog) {
    Choose(dialog, "CameraBrandCombo", "Canon");
    Choose(dialog, "CameraCombo", "EOS 5D");
    Choose(dialog, "LensBrandCombo", "Sigma");
    Choose(dialog, "LensCombo", "EX 8 mm f:3.5");
    KeepPicture(dialog, "gear-editor.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdAdd"), Qt::LeftButton);
}

void AddEveryPhoto(QDialog* dialog) {
    auto* const files = Find<QAbstractItemView>(dialog, "File1");
    EXPECT_TRUE(QTest::qWaitFor([files] { return files->model()->rowCount() == 4; }));
    files->setFocus();
    files->selectAll();
    QTest::qWait(500);  // for the small previews
    KeepPicture(dialog, "add-images.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdAddImages"), Qt::LeftButton);
}

// Picks a file type, types a name and accepts.
Answers::Answer SaveUnder(const QString& name, OutputType type) {
    return [name, type](QDialog* dialog) {
        auto* const files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        EXPECT_TRUE(files->selectedFiles().value(0).endsWith(Q("sample-circular.Rectilinear")));
        Choose(dialog, "fileTypeCombo", qPrintable(FilterOf(type)));
        EXPECT_TRUE(files->selectedFiles().value(0).endsWith(Q(".Rectilinear")));
        Find<QLineEdit>(files, "fileNameEdit")->setText(name);
        QTest::keyClick(files, Qt::Key_Return);
    };
}

class Story : public ::testing::Test {
  protected:
    void Click(const char* name) {
        QTest::mouseClick(Find<QAbstractButton>(&window_, name), Qt::LeftButton);
        QApplication::processEvents();
    }
    // Page steps with the keyboard.
    void Move(const char* slider, Qt::Key key, int times) {
        auto* const widget = Find<QSlider>(&window_, slider);
        widget->setFocus();
        for (int n = 0; n < times; ++n) {
            QTest::keyClick(widget, key);
        }
    }

    WorkingState state_;
    MemoryStore store_;
    MessageBoxes notices_;
    FirstGearPrompt prompt_;
    SaveFileDialog chooser_;
    RealDialogs dialogs_{state_, store_, notices_};
    MDIForm1 window_{state_, store_, {notices_, prompt_, chooser_, dialogs_}};
};

TEST_F(Story, FromTheFirstStartToSavedPictures) {
    store_.Save(setting::LastUsed, setting::LastDrive, Q("/"));
    store_.Save(setting::LastUsed, setting::LastPath, SampleFolder());
    window_.resize(1200, 860);
    {
        const Answers answers({&PressOk, &DefineGear});
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
        ASSERT_TRUE(QTest::qWaitFor([this] { return state_.Gear.UpperBound() == 1; }, 20000));
    }
    KeepPicture(&window_, "empty.png");
    {
        const Answers answers({&AddEveryPhoto});
        Click("Command1");
    }
    ASSERT_EQ(state_.Images.UpperBound(), 4);
    // The list is sorted by name: the upright circle comes first.
    auto* const list = Find<QListWidget>(&window_, "ImageList1");
    for (int line = 0; line < list->count(); ++line) {
        if (list->item(line)->text() == Q("sample-circular.jpg")) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(line)).center());
        }
    }
    KeepPicture(&window_, "varnel.png");
    Click("OptionRemap_2");
    KeepPicture(&window_, "equidistance.png");
    Click("OptionRemap_3");
    KeepPicture(&window_, "horizon.png");
    Click("OptionRemap_1");
    Move("SliderAOVoutput", Qt::Key_PageDown, 2);
    Move("SliderY", Qt::Key_PageUp, 1);
    Move("SliderX", Qt::Key_PageDown, 1);
    KeepPicture(&window_, "rectilinear.png");
    const ImageRecord* image = nullptr;
    for (const ImageRecord& candidate : state_.Images) {
        image = candidate.SettingsApplied ? &candidate : image;
    }
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->FileName, Q("sample-circular.jpg"));
    EXPECT_EQ(image->OutputAOV, 110.0F);
    EXPECT_EQ(image->RotateY, 10.0F);
    EXPECT_EQ(image->RotateX, -10.0F);
    for (const OutputType type : allOutputTypes) {
        const QString name = SampleFolder() + Q("/saved.Rectilinear") + ExtensionOf(type);
        const Answers answers({SaveUnder(name, type)});
        Click("CommandSaveFreeimage");
        const LoadedPicture saved = LoadPicture(name);
        EXPECT_EQ(saved.outcome, LoadOutcome::Loaded) << name.toStdString();
        EXPECT_EQ(SizeOf(saved.bitmap.get()).width, 900);
    }
}

}  // namespace
}  // namespace varnel
