// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Image lists that outlive the crash of their window.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QSettings>

#include "pipeline/photos/project_file.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

class Session : public ::testing::Test {
  protected:
    // A window that keeps its list below the folder of this test.
    std::unique_ptr<TestWindow> Window(Restore restore = Restore::Later) const {
        return std::make_unique<TestWindow>(nullptr, sessions, restore);
    }
    // The lists that are kept.
    QStringList Kept() const {
        QStringList lists;
        for (QDirIterator next(sessions, {Text("list.varnel")}, QDir::Files,
                               QDirIterator::Subdirectories);
             next.hasNext();) {
            lists.append(next.next());
        }
        return lists;
    }
    bool ComesToKeep(int count) const {
        return QTest::qWaitFor([&] { return Kept().size() == count; }, 30000);
    }
    // What a window leaves behind that is killed.
    void Crash(const QStringList& photos, int aov) const {
        const auto window = Window();
        QStringList paths;
        for (const QString& photo : photos) {
            paths.append(files.Picture(photo, OutputType::Bmp));
        }
        window->window.AddFiles(paths);
        window->Slider("SliderAOVinput")->setValue(aov);
        const auto holds = [aov](const QString& list) {
            return OpenProject(list).images(1).InputAOV == static_cast<float>(aov);
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return std::ranges::any_of(Kept(), holds); }));
    }

    testing::PictureFolder files;
    QString sessions = files.Path(Text("state/varnel/sessions"));
};

// The program itself, with its state, settings and pictures in the folder.
class Started {
  public:
    Started(const testing::PictureFolder& files, const QStringList& arguments) {
        QSettings settings(files.Path(Text("config/Varnel/Varnel.conf")), QSettings::IniFormat);
        const std::pair<const char*, const char*> values[] = {
            {"Gear/NumGear", "1"},
            {"Gear/DefaultGearName", "mine"},
            {"Gear/GearName1", "mine"},
            {"Gear/GearCameraBrand1", "Canon"},
            {"Gear/GearCameraModel1", "EOS 5D"},
            {"Gear/GearLensBrand1", "Sigma"},
            {"Gear/GearLensModel1", "EX 8 mm f:3.5"},
            {"Revision/RevisionAge", "9999"}};  // no reminder
        for (const auto& [key, value] : values) {
            settings.setValue(Text(key), Text(value));
        }
        settings.sync();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Text("XDG_CONFIG_HOME"), files.Path(Text("config")));
        environment.insert(Text("XDG_STATE_HOME"), files.Path(Text("state")));
        environment.insert(Text("QT_QPA_PLATFORM"), Text("offscreen"));
        process_.setProcessEnvironment(environment);
        process_.start(Text(VARNEL_PROGRAM), arguments);
    }
    ~Started() { Kill(); }
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;
    int Wait() {
        EXPECT_TRUE(process_.waitForFinished(60000));
        return process_.exitCode();
    }
    void Kill() {
        process_.kill();  // SIGKILL
        process_.waitForFinished(10000);
    }

  private:
    QProcess process_;
};

TEST_F(Session, AListWhoseProgramWasKilledIsOfferedAndThatOfALivingOneIsNot) {
    const QString photo = files.Picture(Text("a.bmp"), OutputType::Bmp);
    Started first(files, {Text("--open"), photo});
    ASSERT_TRUE(ComesToKeep(1));
    Started second(files, {Text("--open"), photo, photo});
    ASSERT_TRUE(ComesToKeep(2));
    EXPECT_TRUE(Window()->dialogs.lost.empty());
    first.Kill();
    const QDateTime killed = QDateTime::currentDateTime();

    const QString result = files.Path(Text("a.Varnel.TIF"));
    EXPECT_EQ(Started(files, {photo}).Wait(), 0);  // converts, and looks at no list
    EXPECT_TRUE(QFile::exists(result));
    Started third(files, {Text("--open"), photo});  // asks nothing, or it would not get there
    ASSERT_TRUE(ComesToKeep(3));
    third.Kill();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Window()->dialogs.lost.size() == 1; }));

    const auto window = Window(Restore::Yes);
    ASSERT_EQ(window->dialogs.lost.size(), 1U);  // one at a time
    EXPECT_EQ(window->dialogs.lost[0].photos, 1);
    EXPECT_LT(killed.secsTo(window->dialogs.lost[0].written), 60);
    EXPECT_EQ(SourcePath(window->Record(1)), photo);
    EXPECT_EQ(window->Entry("CmdEditUndo")->text(), Text("&Undo open the list again"));
    second.Kill();
}

TEST_F(Session, WhatWasAdjustedComesBackAsUnsavedWorkAndNoRemovesIt) {
    Crash({Text("a.bmp"), Text("b.bmp")}, 101);
    Crash({Text("c.bmp")}, 102);
    {
        const auto window = Window(Restore::Later);
        EXPECT_EQ(window->dialogs.lost.size(), 1U);  // the newest
        EXPECT_EQ(window->dialogs.lost[0].photos, 1);
        EXPECT_TRUE(window->state.Images.Empty());
    }
    {
        const auto window = Window(Restore::Yes);
        ASSERT_EQ(window->state.Images.UpperBound(), 1);
        EXPECT_EQ(window->Record(1).InputAOV, 102.0F);
        EXPECT_TRUE(window->window.isWindowModified());
        EXPECT_EQ(Kept().size(), 2);  // it crashes again
    }
    {
        const auto window = Window(Restore::No);
        EXPECT_EQ(window->dialogs.lost.size(), 2U);
        EXPECT_EQ(Kept(), QStringList());
    }
    EXPECT_TRUE(Window()->dialogs.lost.empty());
}

TEST_F(Session, NothingIsKeptThatIsSavedOrTheUserLetGo) {
    const auto window = Window();
    window->AddPhotos({Text("a.bmp")});
    ASSERT_TRUE(ComesToKeep(1));
    window->dialogs.project = files.Path(Text("trip.varnel"));
    window->Entry("CmdSaveProject")->trigger();
    EXPECT_TRUE(ComesToKeep(0));
    window->Slider("SliderAOVinput")->setValue(99);
    EXPECT_TRUE(ComesToKeep(1));
    EXPECT_EQ(OpenProject(Kept().value(0)).images(1), window->Record(1));
    window->Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(ComesToKeep(0));
    window->Entry("CmdEditRedo")->trigger();
    EXPECT_TRUE(ComesToKeep(1));
    window->dialogs.saveFirst = SaveFirst::DoNotSave;
    EXPECT_TRUE(window->window.close());
    EXPECT_TRUE(Kept().isEmpty());
    EXPECT_EQ(QDir(sessions).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(Session, ADamagedListIsToldAndSetAside) {
    Crash({Text("a.bmp")}, 101);
    Crash({Text("b.bmp")}, 102);
    const QString broken = Kept().value(0);
    testing::WriteFile(broken, testing::Contents(broken).chopped(5));
    const auto window = Window(Restore::Yes);
    ASSERT_EQ(window->notices.texts.size(), 1);
    const QString aside = window->notices.details[0].section(Text(": "), 0, 0);
    EXPECT_TRUE(QFile::exists(aside)) << aside.toStdString();
    EXPECT_EQ(window->state.Images.UpperBound(), 1);  // the other one
    EXPECT_TRUE(Window()->notices.texts.isEmpty());
}

TEST_F(Session, AFolderThatCannotBeMadeIsToldOnce) {
    testing::WriteFile(files.Path(Text("state")), "no folder");
    const auto window = Window();
    for (const char* const name : {"a.bmp", "b.bmp", "c.bmp"}) {
        window->AddPhotos({Text(name)});
        QTest::qWait(60);  // three times as long as a list waits to be kept
    }
    EXPECT_EQ(window->notices.texts,
              QStringList{Text("The image list cannot be kept against a crash in ") + sessions});
    EXPECT_TRUE(window->window.close());
}

}  // namespace
}  // namespace varnel
