// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The real dialogs for saving take a name as it stands in them, however odd.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "app/dialogs/message_boxes.h"
#include "app/dialogs/real_dialogs.h"
#include "pipeline/output/output_name.h"
#include "pipeline/photos/project_file.h"
#include "tests/support/answers.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Answers;
using testing::Text;

// Types the name, unless there is none, and accepts.
Answers::Answer Accept(const QString& name = {}) {
    return [name](QDialog* dialog) {
        auto* const edit = dialog->findChild<QLineEdit*>(Text("fileNameEdit"));
        ASSERT_NE(edit, nullptr);
        if (!name.isEmpty()) {
            edit->setText(name);
        }
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

TEST(SaveDialog, ProposesAndGivesTheNameAsItStands) {
    const testing::PictureFolder folder;
    QDir(folder.Path({})).mkpath(Text("te.Horizon/de\"ep"));
    SaveFileDialog chooser;
    for (const char* photo :
         {"quo\"te.png", "\"all\".png", "\".png", "a\"b\"c.png", "01", ".jpg", ".a.jpg", "a..jpg",
          "a .jpg", " a.jpg", "100%1.jpg", "~.jpg", "~root.jpg", "a\nb.jpg", "a\\b.jpg", "\\b.jpg",
          "a;b*?.jpg", "\xC3\xA4&.jpg"}) {
        const QString proposal = ProposedName(folder.Path(Text(photo)), Projection::Horizon);
        const Answers answers({Accept()});
        const auto choice = chooser.ChooseSave({proposal, 4});
        ASSERT_TRUE(choice) << photo;
        EXPECT_EQ(choice->name.toStdString(), proposal.toStdString());
        EXPECT_EQ(choice->filterIndex, 4);
    }
    const struct {
        QString typed, expected;
    } rows[] = {
        {Text("a\"b"), folder.Path(Text("a\"b"))},
        {folder.Path(Text("te.Horizon/a\"b.PNG")), folder.Path(Text("te.Horizon/a\"b.PNG"))},
        {Text("te.Horizon/x"), folder.Path(Text("te.Horizon/x"))}};
    for (const auto& [typed, expected] : rows) {
        const Answers answers({Accept(typed)});
        EXPECT_EQ(chooser.ChooseSave({folder.Path(Text("p")), 1})->name, expected);
    }
}

TEST(SaveDialog, ThePanelMakesNameExampleAndSize) {
    const testing::PictureFolder folder;
    SaveFileDialog chooser;
    SaveOffer offer;
    offer.wish.encoding = {OutputType::Jpeg, 90};
    offer.pixels = 24e6;
    offer.samples = SampleKind::Word;  // more than JPEG holds
    offer.pattern = Text("{name}");
    offer.photoFolder = folder.Path(Text("sub"));
    offer.nameBy = [](const SaveWish& wish) {
        const bool fine = wish.sampling == SamplingKind::Fine;
        return wish.pattern.isEmpty() ? Text("usual") : wish.pattern + Text(fine ? "?" : "!");
    };
    const Answers answers({[&](QDialog* dialog) {
        const auto label = [dialog](const char* name) {
            return dialog->findChild<QLabel*>(Text(name))->text();
        };
        auto* const edit = dialog->findChild<QLineEdit*>(Text("fileNameEdit"));
        auto* const pattern = dialog->findChild<QLineEdit*>(Text("TextNamePattern"));
        EXPECT_EQ(label("LabelExample"), Text("usual.JPG"));
        EXPECT_EQ(label("LabelExpectedSize"), Text("about 2.6 MB, 8 bits"));
        EXPECT_FALSE(dialog->findChild<QComboBox*>(Text("ComboFileType"))->isVisible());
        edit->setText(Text("by hand"));
        dialog->findChild<QSlider*>(Text("SliderJPEGcompression"))->setValue(75);
        EXPECT_EQ(edit->text(), Text("by hand"));
        pattern->setText(Text("{n}"));
        EXPECT_EQ(edit->text(), Text("{n}!"));
        auto* const fine = dialog->findChild<QCheckBox*>(Text("FineSamplingCheck"));
        fine->click();
        EXPECT_EQ(edit->text(), Text("{n}?"));
        fine->click();
        EXPECT_EQ(label("LabelExample"), Text("{n}!.JPG"));
        QTest::keyClick(edit, Qt::Key_Return);
    }});
    const auto choice = chooser.ChooseSave({folder.Path(Text("usual")), 2, offer});
    ASSERT_TRUE(choice && choice->output);
    EXPECT_EQ(choice->name, folder.Path(Text("{n}!")));
    EXPECT_EQ(choice->output->wish.encoding.quality, 75);
    EXPECT_EQ(choice->output->wish.pattern, Text("{n}"));
}

TEST(MessageBoxes, WarnAndAreWideEnoughToRead) {
    const QString path = Text("/a/b.jpg: ");
    const QString reason = Text("damaged, and that in more words than are good for a line; ");
    MessageBoxes notices;
    for (const QString& detail : {path + reason, path + reason.repeated(5)}) {
        const Answers answers({[&](QDialog* dialog) {
            const auto* const box = qobject_cast<QMessageBox*>(dialog);
            EXPECT_EQ(box->icon(), QMessageBox::Warning);
            const int characters = box->width() / box->fontMetrics().averageCharWidth();
            EXPECT_GT(characters, 60);
            EXPECT_LT(characters, 90);
            dialog->accept();
        }});
        notices.Tell(Text("Could not open image"), detail);
    }
}

TEST(SaveDialog, AProjectMayHaveQuotesAndIsReplacedWhenAgreedOnly) {
    const testing::PictureFolder folder;
    WorkingState state;
    MemoryStore store;
    MessageBoxes notices;
    SaveFileDialog chooser;
    PhotoLoader photos(testing::Reader());
    RealDialogs dialogs(state, store, testing::Reader(), photos, notices, chooser);
    const QString project = folder.Text(Text("a \"b\"") + projectEnding.toString());
    QDialog* asking = nullptr;
    const auto press = [](QDialog* box, QMessageBox::StandardButton button) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(box)->button(button), Qt::LeftButton);
    };
    const Answers answers({[&](QDialog* dialog) {
                               asking = dialog;
                               Accept(Text("a \"b\""))(dialog);
                           },
                           [&](QDialog* box) {
                               press(box, QMessageBox::No);
                               QTimer::singleShot(0, asking, [&] { Accept()(asking); });
                           },
                           [&](QDialog* box) {
                               EXPECT_TRUE(asking->isVisible());
                               press(box, QMessageBox::Yes);
                           }});
    EXPECT_EQ(dialogs.ChooseProjectName(folder.Path(Text("x"))).toStdString(),
              project.toStdString());
}

}  // namespace
}  // namespace varnel
