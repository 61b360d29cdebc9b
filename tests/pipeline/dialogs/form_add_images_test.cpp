// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_add_images.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>

#include "state/settings/setting_names.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/settled.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// A small world: volume A with photos and a folder, volume B with one file, and the program in A.
class FormAddImagesTest : public testing::DialogTest<FormAddImages> {
  protected:
    FormAddImagesTest() {
        const QDir root(folder.Path({}));
        root.mkpath(Text("A/photos/inner"));
        root.mkpath(Text("A/empty"));
        root.mkpath(Text("B"));
        for (const char* name : {"c.txt", "b.JPG", "a.png"}) {
            folder.Picture(Text("A/photos/") + Text(name), OutputType::Png);
        }
        folder.Text(Text("B/x.bmp"));
        volumes = {{A(), {}, VolumeKind::Fixed}, {B(), {}, VolumeKind::Removable}};
        store.Save(setting::LastUsed, setting::LastDrive, A());
        store.Save(setting::LastUsed, setting::LastPath, Photos());
    }
    QString A() const { return QDir::cleanPath(folder.Path(Text("A"))); }
    QString B() const { return QDir::cleanPath(folder.Path(Text("B"))); }
    QString Photos() const { return A() + Text("/photos"); }

    void Open() {
        form = std::make_unique<FormAddImages>(
            images, store, notices, PhotoPlaces{B(), Photos(), [this] { return volumes; }},
            SmallPictures{testing::Reader()});
        form->show();
    }
    // A click on a line of the file list.
    void Pick(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        auto& list = The<QListWidget>("File1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(row)).center());
    }
    QString Files() const {
        QStringList names;
        for (int row = 0; row < The<QListWidget>("File1").count(); ++row) {
            names.append(The<QListWidget>("File1").item(row)->text());
        }
        return names.join(u' ');
    }
    QString ShownFolder() const {
        const auto& tree = The<QTreeView>("Dir1");
        return tree.currentIndex().data(QFileSystemModel::FilePathRole).toString();
    }
    QString Drive() const { return The<QComboBox>("Drive1").currentText(); }
    QString Stored(const QString& key) const { return store.Get(setting::LastUsed, key, {}); }
    // Runs single turns of the event loop until that line has its preview; false after 5 s.
    bool WaitForPreview(int row) const {
        const QDeadlineTimer end(5000);
        while (!HasPreview(row) && !end.hasExpired()) {
            QCoreApplication::processEvents();
        }
        return HasPreview(row);
    }
    // Whether the middle of a line's icon has the colours of the test picture (red is always 7).
    bool HasPreview(int row) const {
        const QImage icon =
            The<QListWidget>("File1").item(row)->icon().pixmap(QSize(60, 40)).toImage();
        return icon.size() == QSize(60, 40) && qRed(icon.pixel(30, 20)) == 7;
    }

    testing::PictureFolder folder;
    RecordArray<ImageRecord> images;
    MemoryStore store;
    std::vector<Volume> volumes;
};

TEST_F(FormAddImagesTest, StartsWherePhotosWereLastLookedFor) {
    Open();
    EXPECT_EQ(form->objectName(), Text("FormAddImages"));
    EXPECT_EQ(ShownFolder(), Photos());
    EXPECT_EQ(Drive(), A() + Text(" (fixed)"));
    EXPECT_EQ(The<QComboBox>("Drive1").itemText(1), B() + Text(" (removable)"));
    EXPECT_EQ(Files(), Text("a.png b.JPG"));
    EXPECT_TRUE(The<QRadioButton>("Option1").isChecked());
    EXPECT_EQ(The<QListWidget>("File1").selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_TRUE(The<QPushButton>("CmdAddImages").isDefault());
}

TEST_F(FormAddImagesTest, StartsAtTheLastDriveWhateverTheFolder) {
    store.Save(setting::LastUsed, setting::LastDrive, B());
    Open();
    EXPECT_EQ(ShownFolder(), Photos());
    EXPECT_EQ(Drive(), B() + Text(" (removable)"));
}

TEST_F(FormAddImagesTest, FilesFollowFolderDriveAndPattern) {
    Open();
    Click("Option2");
    EXPECT_EQ(Files(), Text("a.png b.JPG c.txt"));
    Click("Option1");
    EXPECT_EQ(Files(), Text("a.png b.JPG"));
    The<QComboBox>("Drive1").setFocus();
    QTest::keyClick(&The<QComboBox>("Drive1"), Qt::Key_Down);
    EXPECT_EQ(ShownFolder(), B());
    EXPECT_EQ(Files(), Text("x.bmp"));
    Click("CmdPictures");
    EXPECT_EQ(ShownFolder(), Photos());
    EXPECT_EQ(Drive(), A() + Text(" (fixed)"));
    Click("CmdHome");
    EXPECT_EQ(Files(), Text("x.bmp"));
    EXPECT_EQ(Label("LabelFolder"), B());
    EXPECT_TRUE(notices.told.isEmpty());
}

TEST_F(FormAddImagesTest, ADriveThatIsGoneIsToldAndTheFolderStays) {
    volumes.push_back({folder.Path(Text("gone")), {}, VolumeKind::Optical});
    for (const int choice : {1, 2}) {
        Open();
        volumes[1].ready = false;
        const QString path = volumes[static_cast<std::size_t>(choice)].path;
        The<QComboBox>("Drive1").setCurrentIndex(choice);
        EXPECT_EQ(notices.told, QStringList(Text("Drive ") + path + Text(" is not availabe")));
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(ShownFolder(), Photos());
        EXPECT_EQ(Drive(), A() + Text(" (fixed)"));
        notices.told.clear();
    }
}

TEST_F(FormAddImagesTest, AddsTheSelectedInListOrderAndRemembersThePlace) {
    store.Save(setting::LastUsed, setting::LastPath, A());
    Open();
    Click("CmdPictures");
    Click("Option2");
    Pick(2);
    Pick(0, Qt::ControlModifier);
    EXPECT_EQ(Label("LabelCount"), Text("2 of 3 selected"));
    Click("CmdAddImages");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
    ASSERT_EQ(images.UpperBound(), 2);
    EXPECT_EQ(SourcePath(images(1)), Photos() + Text("/a.png"));
    EXPECT_EQ(SourcePath(images(2)), Photos() + Text("/c.txt"));
    EXPECT_EQ(Stored(setting::LastDrive), A());
    EXPECT_EQ(Stored(setting::LastPath), Photos());
}

TEST_F(FormAddImagesTest, WithoutASelectionOrCancelledNothingChanges) {
    for (const char* button : {"CmdAddImages", "CmdCancel", ""}) {
        Open();
        Click("CmdHome");
        if (*button != '\0') {
            Click(button);
        } else {
            Pick(0);
            QTest::keyClick(form.get(), Qt::Key_Escape);
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->result(), QDialog::Rejected);
        EXPECT_TRUE(images.Empty());
        EXPECT_EQ(Stored(setting::LastDrive), A());
        EXPECT_EQ(Stored(setting::LastPath), Photos());
    }
}

TEST_F(FormAddImagesTest, EnterAddsTheSelectedAndADoubleClickTheOneBelowIt) {
    Open();
    Pick(0);
    QTest::keyClick(&The<QListWidget>("File1"), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&The<QListWidget>("File1"), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(images.UpperBound(), 2);
    Open();
    Pick(1);
    auto& list = The<QListWidget>("File1");
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualItemRect(list.item(1)).center());
    EXPECT_FALSE(form->isVisible());
    ASSERT_EQ(images.UpperBound(), 3);
    EXPECT_EQ(images(3).FileName, Text("b.JPG"));
}

TEST_F(FormAddImagesTest, OpensForTheFirstTimeInThePicturesUnlessThereAreNone) {
    store = MemoryStore();
    Open();
    EXPECT_EQ(ShownFolder(), Photos());
    QDir(Photos()).removeRecursively();
    Open();
    EXPECT_EQ(ShownFolder(), B());
}

TEST_F(FormAddImagesTest, EnterInTheFoldersOpensThemAndNotTheList) {
    Open();
    Pick(0);
    ASSERT_TRUE(testing::Settle());  // folders arrive by and by
    auto& tree = The<QTreeView>("Dir1");
    tree.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&tree] { return tree.hasFocus(); }));
    const bool wasOpen = tree.isExpanded(tree.currentIndex());
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_NE(tree.isExpanded(tree.currentIndex()), wasOpen);
    EXPECT_TRUE(images.Empty());
}

TEST_F(FormAddImagesTest, PreviewsComeOnePerTurnWhileItIsOpen) {
    Open();
    Click("Option2");
    folder.Text(Text("A/photos/a.png"));  // no picture any more: its plain icon stays
    EXPECT_EQ(Files(), Text("a.png b.JPG c.txt")) << "the list does not wait for pictures";
    EXPECT_FALSE(HasPreview(1));
    ASSERT_TRUE(WaitForPreview(1));
    EXPECT_FALSE(HasPreview(2)) << "the next one has its own turn";
    form->hide();
    EXPECT_FALSE(QTest::qWaitFor([this] { return HasPreview(2); }, 100));
    form->show();
    ASSERT_TRUE(WaitForPreview(2));
    EXPECT_FALSE(HasPreview(0));
    EXPECT_FALSE(The<QListWidget>("File1").item(0)->icon().isNull());
}

}  // namespace
}  // namespace varnel
