// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window with everybody it talks to replaced, and ways to use it as a person does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QTest>
#include <vector>

#include "app/tools/column/list_tools.h"
#include "app/window/main_window.h"
#include "gear/catalogue/gear_catalogue.h"
#include "tests/support/chooser.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"

namespace varnel::testing {

class FakeNotices : public Notices {
  public:
    void Tell(const QString& text, const QString& detail) override {
        texts.append(text);
        details.append(detail);
    }
    QStringList texts, details;
};

// Defines the same two gears each time: a circular and a full-frame fisheye.
class FakeGearPrompt : public GearPrompt {
  public:
    void Explain(const QString& text) override { explained.append(text); }
    bool DefineGear(GearTable& table) override {
        if (quit) {
            return false;
        }
        const GearNames names{QStringLiteral("Canon"), QStringLiteral("EOS 5D"),
                              QStringLiteral("Sigma"), QStringLiteral("EX 8 mm f:3.5")};
        FillGearFromCatalogue(names, table(0));
        table(0).GearName = BuiltGearName(names);
        return true;
    }
    QStringList explained;
    bool quit = false;
};

class FakeDialogs : public Dialogs {
  public:
    bool AddImages(QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormAddImages"));
        return onAdd && onAdd();
    }
    std::vector<GearChange> ManageGears(QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormGearList"));
        return onManage ? onManage() : std::vector<GearChange>();
    }
    bool GiveNewNumbers(const QString& gear, int photos) override {
        opened.append(QStringLiteral("%1: %2").arg(gear).arg(photos));
        return givesNewNumbers;
    }
    bool DefineGear(const GearRecord& known, QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormGearEdit"));
        return onDefine && onDefine(known);
    }
    void ChangeDefaults(QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormSetup"));
        if (onDefaults) {
            onDefaults();
        }
    }
    void ProcessBatch(BatchJob& job, const QueueChanged& queueChanged,
                      QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormBatch"));
        if (onBatch) {
            onBatch(job);
        }
        if (onQueue) {
            onQueue(queueChanged);
        }
    }
    void Morph(const ImageRecord& image, const QueueChanged& queueChanged,
               QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormMorph"));
        morphed = image;
        if (onQueue) {
            onQueue(queueChanged);
        }
    }
    void Stretch(const QString& photo, QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormStretch"));
        stretched.append(photo);
    }
    std::optional<MeasuredLensUse> Straighten(std::optional<PhotoToMeasure> photo,
                                              QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormStraighten"));
        return onStraighten ? onStraighten(std::move(photo)) : std::nullopt;
    }
    void SavePreset(const ImageRecord& image, QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormSavePreset ") + image.FileName);
    }
    void ManagePresets(QWidget* /*parent*/) override {
        opened.append(QStringLiteral("FormPresets"));
    }
    void ShowInFolder(const QString& file) override { shownInFolder.append(file); }
    void ShowAbout(QWidget* /*parent*/) override { opened.append(QStringLiteral("FormAbout")); }
    SaveFirst AskToSave(const UnsavedWork& work) override {
        opened.append(QStringLiteral("AskToSave ") + work.project);
        unsaved = work;
        return saveFirst;
    }
    Restore AskToRestore(const LostList& list) override {
        lost.push_back(list);
        return restore;
    }
    QString ChooseProject(const QString& /*folder*/) override { return project; }
    QString ChooseProjectName(const QString& /*proposal*/) override { return project; }
    QString ChooseFilmName(const QString& proposal) override {
        opened.append(QStringLiteral("ChooseFilmName ") + proposal);
        return film;
    }
    QStringList opened;
    QStringList shownInFolder;
    SaveFirst saveFirst = SaveFirst::Cancel;
    QString project;  // the path that is chosen
    QString film;     // likewise
    std::function<bool()> onAdd;
    std::function<std::vector<GearChange>()> onManage;
    bool givesNewNumbers = true;
    std::function<bool(const GearRecord&)> onDefine;
    std::function<void()> onDefaults;
    std::function<std::optional<MeasuredLensUse>(std::optional<PhotoToMeasure>)> onStraighten;
    std::function<void(const QueueChanged&)> onQueue;  // of the batch and the morph dialog
    std::function<void(BatchJob&)> onBatch;
    UnsavedWork unsaved;
    std::vector<LostList> lost;
    Restore restore = Restore::Later;
    ImageRecord morphed;
    QStringList stretched;
};

// Reads as the programs do, but lets something happen first.
class SlowReader : public PictureReader {
  public:
    void Begin(const ReadRequest& request) override {
        asked_ = static_cast<bool>(meanwhile);
        Reader().Begin(request);
    }
    bool Wait(int milliseconds) override {
        if (std::exchange(asked_, false)) {
            meanwhile();
            return false;
        }
        return Reader().Wait(milliseconds);
    }
    LoadedPicture Take() override { return Reader().Take(); }
    void Cancel() override { Reader().Cancel(); }
    std::function<void()> meanwhile;

  private:
    bool asked_ = false;
};

// How the window starts, where a test wants it otherwise.
struct TestStart {
    NewSmallReader newGearReader = nullptr;  // added photos keep the default gear without it
    QStringList files = {};
    FilmSource* films = nullptr;
    FilmSaver* filmSaver = nullptr;
};

class TestWindow {
  public:
    // The list's small pictures come when there is a reader for them; it is kept against a crash
    // when there is a folder.
    explicit TestWindow(const NewSmallReader& newSmallReader = nullptr,
                        const QString& sessionFolder = {}, Restore restore = Restore::Later,
                        const TestStart& start = {})
        : window(state, store,
                 {photos,
                  notices,
                  prompt,
                  chooser,
                  dialogs,
                  newSmallReader,
                  {sessionFolder, 20},
                  start.newGearReader,
                  nullptr,
                  nullptr,
                  {start.films, start.filmSaver}}) {
        dialogs.restore = restore;
        window.OpenAtStart(start.files);
        window.resize(1200, 900);
        window.show();
        QApplication::processEvents();
    }
    template <class Widget = QWidget>
    Widget* Find(const char* name) {
        Widget* const found = window.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QSlider* Slider(const char* name) { return Find<QSlider>(name); }
    QString Label(const char* name) { return Find<QLabel>(name)->text(); }
    void Click(const char* name) {
        auto* const button = Find<QAbstractButton>(name);
        button->click();
    }
    // By its button, or by the list of those without one.
    void ChooseProjection(Projection projection) {
        const int index = static_cast<int>(projection);
        if (auto* const own =
                window.findChild<QAbstractButton*>(QStringLiteral("OptionRemap_%1").arg(index))) {
            own->click();
            return;
        }
        auto* const list = Find<QComboBox>("ProjectionCombo");
        list->setCurrentIndex(list->findData(index));
        Q_EMIT list->activated(list->currentIndex());
    }
    QAction* Entry(const char* name) {
        return window.findChild<QAction*>(QString::fromLatin1(name));
    }
    // Clicks in the list as with the mouse.
    void ClickLine(int line, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        auto* const list = Find<QListWidget>("ImageList1");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers,
                          list->visualItemRect(list->item(line)).center());
    }
    void Press(const char* name, Qt::Key key) {
        QWidget* const widget = Find(name);
        widget->setFocus();
        QTest::keyClick(widget, key);
    }
    // Position pictures, 60 x 40 unless said otherwise; the list takes them as if dropped.
    void AddPhotos(const QStringList& names, PixelSize size = {60, 40}) {
        QStringList paths;
        for (const QString& name : names) {
            paths.append(files.Picture(name, OutputType::Bmp, size));
        }
        window.AddFiles(paths);
    }
    // One more gear like the first, under another name and with another angle of view.
    void AddGear(const QString& name, float hAov) {
        GearRecord gear = state.Gear(1);
        gear.GearName = name;
        gear.hAOV = hAov;
        state.Gear.Resize(state.Gear.UpperBound() + 1);
        state.Gear(state.Gear.UpperBound()) = gear;
        Entry("CmdSetupEquipment")->trigger();
    }
    QImage Shown(const char* picture) { return Find(picture)->grab().toImage(); }
    ImageRecord& Record(int n) { return state.Images(n); }

    PictureFolder files;
    WorkingState state;
    MemoryStore store;
    FakeNotices notices;
    FakeGearPrompt prompt;
    FakeChooser chooser;
    FakeDialogs dialogs;
    SlowReader reader;
    PhotoLoader photos{reader, nullptr, &state.settings};
    MDIForm1 window;
};

}  // namespace varnel::testing
