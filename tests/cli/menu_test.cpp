// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Free names, and what a click on photos converts them with.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sstream>

#include "cli/convert.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/store/gear_store.h"
#include "tests/support/files.h"
#include "tests/support/seeds/taken_photos.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;

class ForMenu : public ::testing::Test {
  protected:
    using RunFunction = int(const QStringList&, SettingsStore&, const Console&);
    int Run(RunFunction* run, const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return run(QStringList{Text("varnel")} + arguments, store_, {out_, err_, false});
    }
    // Of the written files, without their folder.
    QString Names() const {
        QStringList names;
        for (const QString& path : QString::fromStdString(out_.str()).split(u'\n')) {
            names.append(path.section(u'/', -1));
        }
        return names.join(u' ').trimmed();
    }
    void DefineGear(const char* lens) {
        GearTable gears;
        gears.Resize(1);
        FillGearFromCatalogue({Text("Nikon"), Text("D7100"), Text("Nikon"), Text(lens)}, gears(1));
        gears(1).GearName = Text("mine");
        SaveGear(store_, gears);
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

TEST_F(ForMenu, KeepBothGivesNamesThatNothingHas) {
    const QString jpg = files_.Picture(Text("a.jpg"), OutputType::Jpeg);
    const QString png = files_.Picture(Text("a.png"), OutputType::Png);
    const QStringList options{Text("--gear=guess"), Text("--type=bmp"), Text("--keep-both")};
    EXPECT_EQ(Run(&RunConvert, options + QStringList{jpg, png}), exitAllWritten) << err_.str();
    EXPECT_EQ(Names(), Text("a.Varnel.BMP a.Varnel-2.BMP")) << "two photos of one name";
    const QByteArray first = Contents(files_.Path(Text("a.Varnel.BMP")));
    QFile::link(Text("nowhere"), files_.Path(Text("a.Varnel-3.BMP")));
    QDir(files_.Path({})).mkdir(Text("a.Varnel-4.BMP"));
    EXPECT_EQ(Run(&RunConvert, options + QStringList{Text("--effect=50"), jpg}), exitAllWritten);
    EXPECT_EQ(Names(), Text("a.Varnel-5.BMP")) << "a link and a folder have names, too";
    EXPECT_EQ(Contents(files_.Path(Text("a.Varnel.BMP"))), first);
    EXPECT_NE(Contents(files_.Path(Text("a.Varnel-5.BMP"))), first);
    EXPECT_EQ(Run(&RunConvert, options + QStringList{Text("--output"), jpg, jpg}), exitAllWritten);
    EXPECT_EQ(Names(), Text("a-2.jpg")) << "not even the photo's own name";
    for (const char* other : {"--force", "--skip-existing", "--shard=1/2", "--film=x.mp4"}) {
        EXPECT_EQ(Run(&RunConvert, options + QStringList{Text(other), jpg}), exitUsage) << other;
    }
}

TEST_F(ForMenu, AClickTakesThePresetAndElseRectilinear) {
    const QString photo = files_.Picture(Text("a.jpg"), OutputType::Jpeg);
    const std::pair<const char*, const char*> rows[] = {
        {"", "a.Rectilinear.BMP"},
        {"--preset=whole circle", "a.Varnel.BMP"},
        {"--preset=Real estate", "a.Rectilinear-2.BMP"},
        {"--projection=horizon", "a.Horizon.BMP"},
        {"--like=a.Varnel.BMP", ""},  // which holds no settings
        {"--preset=Realestate", ""},
        {"--list-presets", ""},
        {"--film=x.mp4", ""},
    };
    for (const auto& [option, name] : rows) {
        const QString given = Text(option);
        const int exitCode =
            Run(&RunConvertForMenu, (given.isEmpty() ? QStringList() : QStringList{given}) +
                                        QStringList{Text("--type=bmp"), Text("--"), photo});
        EXPECT_EQ(Names(), Text(name)) << option;
        EXPECT_EQ(exitCode, *name == '\0' ? exitUsage : exitAllWritten) << option << err_.str();
    }
}

// The photo's own gear, else the default one if the photo may be by it, else a guess; none for a
// lens that is no fisheye.
TEST_F(ForMenu, AClickTakesTheGearThatThePhotoTells) {
    const struct {
        const char *model, *lens, *defaultLens, *gear;
    } rows[] = {
        {"NIKON D7100", "", nullptr, "Typical fisheye (guess)"},
        {"NIKON D7100", "", "AF 10.5mm f/2.8G ED DX", "mine"},
        {"NIKON D50", "", "AF 10.5mm f/2.8G ED DX", "Typical fisheye (guess)"},
        {"NIKON D50", "10.5 mm f/2.8", nullptr, "Nikon D50 + Nikon AF 10.5mm f/2.8G ED DX"},
        {"NIKON D7100", "24.0-70.0 mm f/2.8", "AF 10.5mm f/2.8G ED DX", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.model) + ", " + row.lens);
        store_ = MemoryStore();
        if (row.defaultLens != nullptr) {
            DefineGear(row.defaultLens);
        }
        testing::TakenByNikon(files_, Text("n.jpg"), row.model, row.lens);
        const int exitCode = Run(&RunConvertForMenu,
                                 {Text("--type=bmp"), Text("--json"), files_.Path(Text("n.jpg"))});
        const QString said = QString::fromStdString(out_.str());
        EXPECT_EQ(said.section(Text("\"gear\":\""), 1).section(u'"', 0, 0), Text(row.gear))
            << said.toStdString();
        EXPECT_EQ(exitCode, *row.gear == '\0' ? exitSomeFailed : exitAllWritten) << err_.str();
    }
    EXPECT_EQ(err_.str().find("--"), std::string::npos) << "no advice on options: " << err_.str();
    const QString plain = files_.Picture(Text("plain.jpg"), OutputType::Jpeg);
    DefineGear("AF 10.5mm f/2.8G ED DX");
    Run(&RunConvertForMenu, {Text("--type=bmp"), Text("--json"), plain});
    EXPECT_NE(out_.str().find("\"gear\":\"mine\""), std::string::npos) << "no EXIF at all";
}

}  // namespace
}  // namespace varnel
