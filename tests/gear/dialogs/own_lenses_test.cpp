// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear editor with lenses that are curves.

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QDateTime>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <algorithm>
#include <span>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/dialogs/form_gear_edit.h"
#include "gear/lens/import/lensfun_data.h"
#include "gear/lens/lens_file.h"
#include "gear/store/gear_store.h"
#include "remap/projection/lens_spline.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WriteFile;

SampledLens Lens(const char* name) {
    SampledLens lens;
    lens.name = Text(name);
    lens.knots = SampledFrom([](double a) { return 8.0 * a; }, 1.6).knots;
    lens.origin.source = Text("a bench");
    return lens;
}

class OwnLenses : public ::testing::Test {
  protected:
    OwnLenses() {
        ports_.store = store_.get();
        ports_.chooseLensFile = [this] { return chosen_; };
        ports_.chooseExportFile = [this](const QString&) { return chosen_; };
    }
    void Open() {
        form_ = std::make_unique<FormGearEdit>(table_, ports_);
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <class Control>
    Control* Get(const char* name) {
        auto* control = form_->findChild<Control*>(Text(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void Choose(const char* name, const char* text) {
        Get<QComboBox>(name)->setCurrentText(Text(text));
        EXPECT_EQ(Get<QComboBox>(name)->currentText(), Text(text));
    }
    void ChooseCamera() {
        Choose("CameraBrandCombo", "Canon");
        Choose("CameraCombo", "EOS 5D");
    }
    void ChooseLens(const char* brand, const char* model) {
        Choose("LensBrandCombo", brand);
        Choose("LensCombo", model);
    }
    void Click(const char* name) { QTest::mouseClick(Get<QPushButton>(name), Qt::LeftButton); }
    void Trigger(const char* name) { Get<QAction>(name)->trigger(); }
    void Drop(const QString& path) {
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(form_.get(), &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(form_.get(), &drop);
    }
    QString Line() { return Get<QLabel>("LabelLensLine")->text(); }
    QStringList Names() {
        QStringList names;
        for (const LensFolder::Entry& entry : folder_.List().entries) {
            names.append(entry.lens->name);
        }
        return names;
    }
    // What was read in the background is there.
    bool Ends(const char* start) {
        return QTest::qWaitFor([&] { return Line().startsWith(Text(start)); });
    }
    GearRecord& Gear() { return table_(0); }

    QTemporaryDir files_;
    std::unique_ptr<SettingsStore> store_ =
        OpenFileStore(files_.filePath(Text("V.conf")), QDateTime::currentDateTime());
    LensFolder folder_ = LensFolder::Beside(store_->Path());
    QString chosen_ = files_.filePath(Text("lens.json"));
    GearEditorPorts ports_;
    GearTable table_;
    std::unique_ptr<FormGearEdit> form_;
};

TEST_F(OwnLenses, AreImportedChosenAndGiveTheGearTheirCurve) {
    ASSERT_TRUE(WriteLensFile(chosen_, Lens("mine")).reason.isEmpty());
    Open();
    ChooseCamera();
    Trigger("CmdLensImport");
    ASSERT_TRUE(Ends("\"mine\" is one of your lenses now")) << Line().toStdString();
    EXPECT_EQ(Get<QComboBox>("LensBrandCombo")->currentText(), u"My lenses");
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"mine");
    EXPECT_EQ(Get<QLabel>("LabelLensOrigin")->text(), u"a bench");
    // The axis to a thousandth of a thousandth, and the slider to whole ones as for other lenses.
    Get<QDoubleSpinBox>("FineXofset")->setValue(-4.125);
    EXPECT_EQ(Get<QLabel>("LabelXofset")->text(), Text("-4.125 ‰ hor."));
    EXPECT_EQ(Get<QSlider>("SliderXofset")->value(), -4);
    EXPECT_EQ(Gear().OfsetX, -4.125F);
    Get<QSlider>("SliderYofset")->setValue(3);
    EXPECT_EQ(Gear().OfsetY, 3.0F);
    EXPECT_EQ(Get<QDoubleSpinBox>("FineYofset")->value(), 3.0);
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearName, u"Canon EOS 5D + My lenses mine");
    EXPECT_TRUE(Gear().Lens && *Gear().Lens == Lens("mine"));
    EXPECT_EQ(Gear().OfsetX, -4.125F);
    EXPECT_EQ(Gear().LensMapScale, 0.0F);
}

TEST_F(OwnLenses, BadFilesAreToldByPlaceAndChangeNothing) {
    ASSERT_TRUE(folder_.Add(Lens("old")).isEmpty());
    QByteArray broken = LensBytes(Lens("mine"));
    broken.replace("angles_rad", "angles_deg");
    const struct {
        QByteArray bytes;
        const char* told;
    } cases[] = {
        {broken, "\"angles_rad\" is missing"},
        {"{\n\n\"a\": ,}", "line 3"},
        {"<lensdatabase>\n<lens>\n</lensdatabase>", "line 3"},
        {"<!DOCTYPE l [<!ENTITY a \"b\">]>\n<lensdatabase>&a;</lensdatabase>", "<!ENTITY"},
        {QByteArray(17 << 20, '{'), "larger than 16 MB"},
        {"a photo", "no lens file"},
    };
    Open();
    for (const auto& c : cases) {
        WriteFile(chosen_, c.bytes);
        Drop(chosen_);
        ASSERT_TRUE(Ends("Nothing was changed: ")) << c.told;
        EXPECT_TRUE(Line().contains(chosen_) && Line().contains(Text(c.told)))
            << Line().toStdString();
    }
    EXPECT_EQ(Names(), QStringList{Text("old")});
}

TEST_F(OwnLenses, FollowANewNameInTableAndSettings) {
    ASSERT_TRUE(folder_.Add(Lens("old")).isEmpty());
    table_.Resize(1);
    FillGearFromCatalogue({Text("Canon"), Text("EOS 5D"), {}, {}}, table_(1));
    GiveLens(folder_.Find(Text("old")), table_(1));
    table_(1).GearName = Text("gear");
    SaveGear(*store_, table_);
    table_(0) = table_(1);
    QString renamed;
    ports_.renamed = [&](const QString& name, const LensReference& lens) {
        renamed = name + u'>' + lens->name;
    };
    Open();
    Trigger("CmdLensRename");
    QTest::keyClicks(Get<QLineEdit>("LensNameText"), Text(" new  name"));
    QTest::keyClick(Get<QLineEdit>("LensNameText"), Qt::Key_Return);
    ASSERT_TRUE(form_->isVisible()) << "Return renames and does not close";
    EXPECT_EQ(Names(), QStringList{Text("new name")});
    EXPECT_EQ(renamed, u"old>new name");
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"new name");
    EXPECT_EQ(Get<QLabel>("LabelAdjusted")->text(), u"Values of the catalogue.");
    EXPECT_EQ(table_(1).LensModel, u"new name");
    EXPECT_EQ(store_->Get(Text("Gear"), Text("GearLensModel1"), {}), u"new name");
    Trigger("CmdLensRename");
    Get<QLineEdit>("LensNameText")->setText(Text(" "));
    Click("CmdLensName");
    EXPECT_EQ(Line(), u"Nothing was changed: a lens needs a name");
}

TEST_F(OwnLenses, AreDeletedTakenBackAndExported) {
    ASSERT_TRUE(folder_.Add(Lens("a")).isEmpty());
    Open();
    ChooseCamera();
    ChooseLens("My lenses", "a");
    Trigger("CmdLensDelete");
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(Line(), u"\"a\" was deleted.");
    EXPECT_FALSE(Get<QPushButton>("CmdAdd")->isEnabled());
    Click("CmdLensUndo");
    EXPECT_EQ(Names(), QStringList{Text("a")});
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"a");
    for (const char* file : {"x.json", "x.xml"}) {
        chosen_ = files_.filePath(Text(file));
        Trigger("CmdLensExport");
        EXPECT_TRUE(Line().startsWith(Text("Written to ") + chosen_)) << Line().toStdString();
        EXPECT_TRUE(QFile::exists(chosen_));
    }
    chosen_ = files_.filePath(Text("x.txt"));
    Trigger("CmdLensExport");
    EXPECT_TRUE(Line().startsWith(u"Not exported: ")) << Line().toStdString();
}

TEST_F(OwnLenses, ThoseThatAreNotThereStayNamed) {
    table_.Resize(1);
    FillGearFromCatalogue({Text("Canon"), Text("EOS 5D"), Text("My lenses"), Text("gone")},
                          table_(0));
    Gear().GearName = Text("gear");
    Open();
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"gone");
    EXPECT_EQ(Get<QLabel>("LabelLensOrigin")->text(), u"The file of this lens is not there.");
    Click("CmdAdd");
    EXPECT_EQ(Gear().LensModel, u"gone");
    EXPECT_TRUE(LacksLens(Gear()));
}

TEST_F(OwnLenses, LensfunsFisheyesBecomeOnesOwnWhenTaken) {
    WriteFile(files_.filePath(Text("a.xml")),
              "<lensdatabase version=\"1\"><lens><maker>Acme</maker><model>Acme 8mm</model>"
              "<cropfactor>1.5</cropfactor><type>fisheye</type><calibration>"
              "<distortion model=\"poly3\" focal=\"8\" k1=\"-0.01\"/></calibration></lens>"
              "</lensdatabase>");
    ports_.lensfun = {files_.path()};
    Open();
    ChooseCamera();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return Get<QComboBox>("LensBrandCombo")->findText(lensfunBrand) >= 0; }));
    Choose("LensBrandCombo", "lensfun");
    Get<QComboBox>("LensCombo")->setCurrentIndex(0);
    EXPECT_TRUE(Get<QLabel>("LabelLensOrigin")->text().contains(u"CC BY-SA"));
    EXPECT_EQ(Names(), QStringList()) << "nothing is kept before it is taken";
    Click("CmdAdd");
    ASSERT_EQ(Names().size(), 1);
    EXPECT_EQ(Gear().LensBrand, ownLensBrand);
    EXPECT_EQ(Gear().LensModel, Names().constFirst());
    EXPECT_TRUE(Gear().Lens);
}

TEST_F(OwnLenses, ATypicalFisheyeAndNumbersOfOnesOwnStandInForThem) {
    Open();
    ChooseCamera();
    Click("CmdTypical");
    EXPECT_EQ(Get<QComboBox>("LensBrandCombo")->currentText(), typicalLensBrand);
    EXPECT_NEAR(Gear().vAOV, 180.0F, 0.01F);
    Get<QComboBox>("LensCombo")->setCurrentIndex(1);
    EXPECT_LT(Gear().hAOV, 160.0F);
    const float angle = Gear().hAOV;
    Get<QDoubleSpinBox>("SpinMapScale")->setValue(25.5);
    EXPECT_EQ(Get<QLabel>("LabelAdjusted")->text(), u"The numbers of the lens are set by hand.");
    EXPECT_GT(Gear().hAOV, angle);
    Click("CmdAdd");
    EXPECT_EQ(Gear().LensMapScale, 25.5F);
    EXPECT_EQ(Gear().Own.LensMapScale, 25.5F);
}

// How a photo is read at once from what it is said to hold.
class OnePhoto : public PictureReader {
  public:
    void Begin(const ReadRequest& /*request*/) override {}
    bool Wait(int /*milliseconds*/) override { return true; }
    LoadedPicture Take() override {
        LoadedPicture picture;
        if (refused.isEmpty()) {
            picture.bitmap = NewBitmap({60, 40});
            std::ranges::fill(std::span(picture.bitmap->Bits(), picture.bitmap->Pitch() * 40), 200);
            picture.bitmap->metadata.photo.origin = origin;
            picture.outcome = LoadOutcome::Loaded;
            return picture;
        }
        return LoadedPicture::Refused(refused);
    }
    void Cancel() override {}
    CameraInfo origin;
    Reason refused;
};

TEST_F(OwnLenses, TheEditorReadsCameraAndLensOfAPhotoAndShowsASmallResult) {
    OnePhoto reader;
    PhotoLoader photos(reader);
    ports_.photos = &photos;
    ports_.choosePhoto = [] { return Text("x.jpg"); };
    Open();
    QLabel* const picture = Get<QLabel>("PicResult");
    const auto shown = [&] { return picture->pixmap().toImage(); };
    EXPECT_TRUE(shown().isNull());
    ChooseCamera();
    ChooseLens("Sigma", "EX 8 mm f:3.5");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !shown().isNull(); }));
    const QImage room = shown();
    Get<QDoubleSpinBox>("SpinMapScale")->setValue(9.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown() != room; }));
    EXPECT_EQ(Get<QLabel>("LabelResult")->text(), u"Of a drawn room, seen by this lens");
    reader.origin.Make = Text("NIKON CORPORATION");
    reader.origin.Model = Text("NIKON D50");
    Click("CmdFromPhoto");
    EXPECT_EQ(Get<QComboBox>("CameraCombo")->currentText(), u"D50");
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"EX 8 mm f:3.5") << "it stays";
    EXPECT_TRUE(Line().contains(u"which lens")) << Line().toStdString();
    EXPECT_EQ(Get<QLabel>("LabelResult")->text(), u"Of the photo");
    reader.refused = ReasonCode::FileEmpty;
    Click("CmdFromPhoto");
    EXPECT_TRUE(Line().startsWith(u"x.jpg: ")) << Line().toStdString();
    Get<QComboBox>("ResultCombo")->setCurrentIndex(0);
    form_.reset();  // while the small result is drawn
}

}  // namespace
}  // namespace varnel
