// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Days with Varnel on a real window with its real dialogs, driven by input events. The first:
// define a gear, add photos, look at every projection, save in every type. Later ones: a batch, a
// morph sequence, a stretched photo. Pictures of them are kept where VARNEL_SCREENSHOTS says.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTreeView>

#include "app/dialogs/message_boxes.h"
#include "app/dialogs/real_dialogs.h"
#include "app/panels/side_panels.h"
#include "app/window/main_window.h"
#include "remap/encode/output_type.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "state/settings/setting_names.h"
#include "tests/support/answers.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/screenshots.h"
#include "tests/support/settled.h"

namespace varnel {
namespace {

using testing::Answers;
using testing::KeepPicture;
using testing::SampleFolder;
using testing::Settle;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

template <class Widget>
Widget* Find(QObject* parent, const char* name) {
    Widget* const found = parent->findChild<Widget*>(Q(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

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
    auto* const result = Find<QLabel>(dialog, "PicResult");
    EXPECT_TRUE(QTest::qWaitFor([result] { return !result->pixmap().isNull(); }));
    KeepPicture(dialog, "gear-editor.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdAdd"), Qt::LeftButton);
}

void AddEveryPhoto(QDialog* dialog) {
    auto* const files = Find<QAbstractItemView>(dialog, "File1");
    EXPECT_TRUE(QTest::qWaitFor([files] { return files->model()->rowCount() == 4; }));
    files->setFocus();
    files->selectAll();
    EXPECT_TRUE(QTest::qWaitFor([files] {
        // Photos are none of them square, file types' icons are.
        const auto* const list = qobject_cast<QListWidget*>(files);
        const QSize icon = list->item(2)->icon().actualSize(list->iconSize());
        return icon.width() != icon.height();
    }));
    KeepPicture(dialog, "add-images.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdAddImages"), Qt::LeftButton);
}

// Picks a file type, types a name and accepts.
Answers::Answer SaveUnder(const QString& name, OutputType type, const char* proposal) {
    return [name, type, proposal](QDialog* dialog) {
        auto* const files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        EXPECT_TRUE(files->selectedFiles().value(0).endsWith(Q(proposal)));
        Choose(dialog, "fileTypeCombo", qPrintable(FilterOf(type)));
        EXPECT_TRUE(files->selectedFiles().value(0).endsWith(Q(proposal)));
        Find<QLineEdit>(files, "fileNameEdit")->setText(name);
        QTest::keyClick(files, Qt::Key_Return);
    };
}

// Page steps of a slider with the keyboard.
void Page(QObject* parent, const char* slider, Qt::Key key, int times) {
    auto* const widget = Find<QSlider>(parent, slider);
    widget->setFocus();
    for (int n = 0; n < times; ++n) {
        QTest::keyClick(widget, key);
    }
}

// Writes the queue as BMP files into a new folder "Varnel" beside the first photo.
Answers::Answer RunBatchInto(const char* picture) {
    return [picture](QDialog* dialog) {
        EXPECT_EQ(dialog->objectName(), Q("FormBatch"));
        // Photos that are read for long put a box of their own in front.
        EXPECT_TRUE(QTest::qWaitFor([dialog] {
            return QApplication::activeModalWidget() == dialog && dialog->isActiveWindow();
        }));
        QTest::mouseClick(Find<QPushButton>(dialog, "CmdNewFolder"), Qt::LeftButton);
        // The tree makes the folder and edits its name, which may stay.
        const auto* const tree = dialog->findChild<QTreeView*>();
        EXPECT_TRUE(QTest::qWaitFor([tree] {
            const auto* const edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            return edit != nullptr && tree->isAncestorOf(edit);
        }));
        if (QWidget* const name = QApplication::focusWidget()) {
            QTest::keyClick(name, Qt::Key_Return);
        }
        QApplication::processEvents();
        Choose(dialog, "ComboFileType", "BMP");
        KeepPicture(dialog, (Q(picture) + Q(".png")).toUtf8());
        QTest::mouseClick(Find<QPushButton>(dialog, "CmdBatchProcess"), Qt::LeftButton);
        KeepPicture(dialog, (Q(picture) + Q("-summary.png")).toUtf8());
        EXPECT_TRUE(
            Find<QPlainTextEdit>(dialog, "TextSummary")->toPlainText().contains(Q("/Varnel")));
        QTest::mouseClick(Find<QPushButton>(dialog, "CmdCancel"), Qt::LeftButton);
    };
}

void MorphOverThreeFrames(QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), Q("FormMorph"));
    Page(dialog, "SliderYStart", Qt::Key_PageDown, 2);
    Page(dialog, "SliderYEnd", Qt::Key_PageUp, 1);
    Page(dialog, "SliderAOVoutputEnd", Qt::Key_PageDown, 4);
    auto* const count = Find<QLineEdit>(dialog, "TextNumImages");
    count->selectAll();
    QTest::keyClicks(count, Q("3"));
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdAddMorphToBatch"), Qt::LeftButton);
    KeepPicture(dialog, "morph.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdClose"), Qt::LeftButton);
}

void StretchAndSave(QDialog* dialog) {
    EXPECT_EQ(dialog->objectName(), Q("FormStretch"));
    Page(dialog, "SliderStrength", Qt::Key_PageUp, 4);
    EXPECT_EQ(Find<QSlider>(dialog, "SliderStrength")->value(), 40);
    EXPECT_TRUE(Settle());  // the preview is drawn
    KeepPicture(dialog, "stretch.png");
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdSave"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>(dialog, "CmdClose"), Qt::LeftButton);
}

// The BMP file that a single conversion of the photo gives.
QByteArray Converted(const ImageRecord& image) {
    const testing::PictureFolder folder;
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = testing::LoadPicture(SourcePath(image)).bitmap;
    SilentProgress silent;
    RenderContext workspace{bitmaps};
    Render(ProjectionFromIndex(image.Projection), image, SizeKind::Large, silent, workspace);
    EXPECT_TRUE(SaveBitmap(OutputType::Bmp, bitmaps.ResultBitmap.get(), folder.Path(Q("single"))));
    return testing::Contents(folder.Path(Q("single")));
}

class Story : public ::testing::Test {
  protected:
    void Click(const char* name) {
        QTest::mouseClick(Find<QAbstractButton>(&window_, name), Qt::LeftButton);
        QApplication::processEvents();
    }
    void Move(const char* slider, Qt::Key key, int times) { Page(&window_, slider, key, times); }
    void DefineTheFirstGear() {
        prompt_.Use(dialogs_.EditorPorts());
        const Answers answers({&PressOk, &DefineGear});
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
        ASSERT_TRUE(QTest::qWaitFor([this] { return state_.Gear.UpperBound() == 1; }, 20000));
    }
    // Takes copies of sample photos, drops them on the window and shows the last one.
    void DropPhotos(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names) {
            QFile::copy(SampleFolder() + u'/' + name, Path(name));
            paths.append(Path(name));
        }
        window_.AddFiles(paths);
        Find<QListWidget>(&window_, "ImageList1")
            ->setCurrentRow(static_cast<int>(names.size()) - 1);
    }
    // Opens a menu with the mouse and takes an entry with the keyboard.
    void TakeFromMenu(const char* menu, int entry) {
        for (QAction* const action : window_.menuBar()->actions()) {
            if (action->text() == QCoreApplication::translate("WindowParts", menu)) {
                QTest::mouseClick(window_.menuBar(), Qt::LeftButton, {},
                                  window_.menuBar()->actionGeometry(action).center());
                for (int n = 0; n < entry; ++n) {
                    QTest::keyClick(action->menu(), Qt::Key_Down);
                }
                QTest::keyClick(action->menu(), Qt::Key_Return);
            }
        }
    }
    QString SaveCaption() { return Find<QGroupBox>(&window_, "FrameSave")->title(); }
    QString Path(const QString& name) const { return folder_.Path(name); }
    // What the batch wrote.
    QStringList Written() const {
        return QDir(Path(Q("Varnel"))).entryList(QDir::Files, QDir::Name);
    }
    QByteArray WrittenFile(const char* name) const {
        return testing::Contents(Path(Q("Varnel/") + Q(name)));
    }

    testing::PictureFolder folder_;
    WorkingState state_;
    const std::unique_ptr<SettingsStore> file_ =
        OpenFileStore(folder_.Path(Q("conf/V.conf")), QDateTime::currentDateTime());
    SettingsStore& store_ = *file_;
    MessageBoxes notices_;
    FirstGearPrompt prompt_;
    SaveFileDialog chooser_;
    PhotoLoader photos_{testing::Reader()};
    RealDialogs dialogs_{state_, store_, testing::Reader(), photos_, notices_, chooser_};
    MDIForm1 window_{state_, store_, {photos_, notices_, prompt_, chooser_, dialogs_}};
};

TEST_F(Story, FromTheFirstStartToSavedPictures) {
    store_.Save(setting::LastUsed, setting::LastDrive, Q("/"));
    store_.Save(setting::LastUsed, setting::LastPath, SampleFolder());
    window_.resize(1200, 860);
    DefineTheFirstGear();
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
    for (const OutputType type : AllOutputTypes()) {
        const QString name = SampleFolder() + Q("/saved.Rectilinear") + ExtensionOf(type);
        const Answers answers({SaveUnder(name, type, "sample-circular.Rectilinear")});
        Click("CommandSaveFreeimage");
        const LoadedPicture saved = testing::LoadPicture(name);
        EXPECT_EQ(saved.outcome, LoadOutcome::Loaded) << name.toStdString();
        EXPECT_EQ(SizeOf(saved.bitmap.get()).width, 900);
    }
}

TEST_F(Story, ABatchOfTwoPhotosWithSettingsOfTheirOwn) {
    DefineTheFirstGear();
    DropPhotos({Q("sample-circular-upright.jpg"), Q("sample-circular.jpg")});
    Click("OptionRemap_1");
    Move("SliderY", Qt::Key_PageUp, 1);
    Click("CommandAddToBatchQue");
    EXPECT_EQ(SaveCaption(), SavePanel::tr("Save / batch process ") + u'2');
    Move("SliderY", Qt::Key_PageUp, 2);  // does not reach the queue
    const RecordArray<ImageRecord> queued = state_.BatchQueue;
    {
        const Answers answers({RunBatchInto("batch")});
        Click("CmdBatchProcess");
    }
    EXPECT_EQ(SaveCaption(), SavePanel::tr("Save"));
    const char* const names[] = {"sample-circular-upright.Varnel.BMP",
                                 "sample-circular.Rectilinear_hAOV130_LR10.BMP"};
    EXPECT_EQ(Written(), (QStringList{Q(names[0]), Q(names[1])}));
    EXPECT_EQ(queued(1).Projection, 0);
    EXPECT_EQ(queued(2).RotateY, 10.0F);
    for (const int n : {1, 2}) {
        EXPECT_EQ(WrittenFile(names[n - 1]), Converted(queued(n))) << names[n - 1];
    }
}

TEST_F(Story, AMorphOfThreeFramesGoesThroughTheBatch) {
    DefineTheFirstGear();
    DropPhotos({Q("sample-circular.jpg")});
    Click("OptionRemap_1");
    {
        const Answers answers({&MorphOverThreeFrames});
        TakeFromMenu("&Tools", 1);
    }
    EXPECT_EQ(SaveCaption(), SavePanel::tr("Save / batch process ") + u'3');
    {
        const Answers answers({RunBatchInto("batch-morph")});
        Click("CmdBatchProcess");
    }
    const struct {
        const char* name;
        float aov, left;
    } frames[] = {{"sample-circular.Rectilinear_Morph0001_hAOV130_LR-20.BMP", 130.0F, -20.0F},
                  {"sample-circular.Rectilinear_Morph0002_hAOV110_LR-5.BMP", 110.0F, -5.0F},
                  {"sample-circular.Rectilinear_Morph0003_hAOV090_LR10.BMP", 90.0F, 10.0F}};
    EXPECT_EQ(Written().size(), 3);
    for (const auto& frame : frames) {
        ImageRecord image = state_.Images(1);
        image.OutputAOV = frame.aov;
        image.RotateY = frame.left;
        EXPECT_EQ(WrittenFile(frame.name), Converted(image)) << frame.name;
    }
}

TEST_F(Story, TheCurrentPhotoIsStretchedAndSaved) {
    DefineTheFirstGear();
    DropPhotos({Q("sample-circular.jpg")});
    const QString name = Path(Q("stretched.PNG"));
    {
        const Answers answers(
            {&StretchAndSave, SaveUnder(name, OutputType::Png, "sample-circular.Stretch")});
        TakeFromMenu("&Tools", 2);
    }
    const LoadedPicture photo = testing::LoadPicture(Path(Q("sample-circular.jpg")));
    const LoadedPicture saved = testing::LoadPicture(name);
    ASSERT_EQ(saved.outcome, LoadOutcome::Loaded);
    // The photo is 900 x 601 pixels; row 450 is half way from the middle to the top:
    // 1 - 0.4 (1 - cos 45°) = 0.88284.
    const auto greenAt = [](const LoadedPicture& picture, int x) {
        return static_cast<double>(testing::PixelAt(picture.bitmap.get(), x, 450).green);
    };
    EXPECT_NEAR(greenAt(saved, 200), 0.77 * greenAt(photo, 229) + 0.23 * greenAt(photo, 230), 1.5);
    EXPECT_NEAR(greenAt(saved, 600), 0.63 * greenAt(photo, 582) + 0.37 * greenAt(photo, 583), 1.5);
}

}  // namespace
}  // namespace varnel
