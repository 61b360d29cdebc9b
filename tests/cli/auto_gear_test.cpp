// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Each photo with the gear that took it.

#include <gtest/gtest.h>

#include <QDateTime>
#include <sstream>

#include "cli/convert.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/lens_file.h"
#include "gear/lens/lens_folder.h"
#include "gear/store/gear_store.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"
#include "tests/support/seeds/taken_photos.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::operator==;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(AutoGear, EachPhotoGetsItsOwnAndTheOthersAreNamed) {
    testing::PictureFolder files;
    const struct {
        const char *file, *model, *lens;
    } photos[] = {{"table.jpg", "NIKON D7100", "10.5 mm f/2.8"},
                  {"catalogues.jpg", "NIKON D50", "10.5 mm f/2.8"},
                  {"zoom.jpg", "NIKON D50", "24.0-70.0 mm f/2.8"},
                  {"compact.jpg", "E5700", ""}};
    for (const auto& photo : photos) {
        testing::TakenByNikon(files, Q(photo.file), photo.model, photo.lens);
    }
    MemoryStore store;
    GearTable gears;
    gears.Resize(2);
    FillGearFromCatalogue({Q("Nikon"), Q("D7100"), Q("Nikon"), Q("AF 10.5mm f/2.8G ED DX")},
                          gears(1));
    gears(1).GearName = Q("mine");
    gears(1).GearRatio = 130.0F;  // measured: not what the catalogues say
    gears(2) = gears(1);
    gears(2).GearName = Q("auto");  // a keyword, and no match
    gears(2).CameraModel = Q("D50");
    gears(2).LensModel = Q("8 mm");
    SaveGear(store, gears);
    std::ostringstream out, err;
    const auto run = [&](QStringList arguments) {
        out.str({});
        err.str({});
        arguments.prepend(Q("varnel-convert"));
        return RunConvert(arguments + QStringList{Q("--type=bmp"), Q("--force")}, store,
                          {out, err, false});
    };
    EXPECT_EQ(run({Q("--gear"), Q("auto"), files.Path(Q("table.jpg")), files.Path(Q("zoom.jpg")),
                   files.Path(Q("catalogues.jpg")), files.Path(Q("compact.jpg")),
                   files.Picture(Q("plain.bmp"), OutputType::Bmp)}),
              exitSomeFailed);
    EXPECT_EQ(out.str(),
              (files.Path(Q("table.Varnel.BMP\n")) + files.Path(Q("catalogues.Varnel.BMP\n")))
                  .toStdString());
    const char* const told[] = {
        ("zoom.jpg: no gear for it: the lens 24.0-70.0 mm f/2.8 is not in the catalogue; give "
         "--gear NAME or --camera with --lens\n"),
        ("compact.jpg: no gear for it: the camera NIKON CORPORATION E5700 is not in the catalogue; "
         "give "),
        ("plain.bmp: no gear for it: the file does not tell what took it; give --gear NAME or "
         "--camera with --lens, or --gear guess for a typical fisheye\n")};
    for (const char* const line : told) {
        EXPECT_NE(err.str().find(line), std::string::npos) << err.str();
    }
    const QByteArray byTable = Contents(files.Path(Q("table.Varnel.BMP")));
    const QByteArray byCatalogues = Contents(files.Path(Q("catalogues.Varnel.BMP")));
    run({Q("--gear"), Q("mine"), files.Path(Q("table.jpg"))});
    EXPECT_EQ(Contents(files.Path(Q("table.Varnel.BMP"))), byTable);
    run({Q("--camera"), Q("Nikon/D50"), Q("--lens"), Q("Nikon/AF 10.5mm f/2.8G ED DX"),
         files.Path(Q("catalogues.jpg"))});
    EXPECT_EQ(Contents(files.Path(Q("catalogues.Varnel.BMP"))), byCatalogues);
    EXPECT_NE(byTable, byCatalogues);
}

TEST(GuessedGear, LeavesNoPhotoOutButThoseOfOtherLenses) {
    testing::PictureFolder files;
    testing::TakenByNikon(files, Q("zoom.jpg"), "NIKON D50", "24.0-70.0 mm f/2.8");
    testing::TakenByNikon(files, Q("known.jpg"), "NIKON D50", "10.5 mm f/2.8");
    const QString plain = files.Picture(Q("plain.bmp"), OutputType::Bmp);
    MemoryStore store;
    std::ostringstream out, err;
    const auto run = [&](QStringList arguments) {
        out.str({});
        arguments = QStringList{Q("varnel-convert"), Q("--type=bmp"), Q("--force")} + arguments;
        return RunConvert(arguments, store, {out, err, false});
    };
    EXPECT_EQ(run({Q("--gear=guess"), Q("--json"), files.Path(Q("zoom.jpg")),
                   files.Path(Q("known.jpg")), plain}),
              exitSomeFailed);
    const QByteArrayList lines = QByteArray::fromStdString(out.str()).trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].contains(R"("status":"failed")"));
    EXPECT_TRUE(lines[1].contains(R"("gear_source":"exif","uncertain":[])")) << lines[1].data();
    EXPECT_TRUE(lines[2].contains(R"j("gear":"Typical fisheye (guess)","gear_source":"guess",)j"
                                  R"("uncertain":["scale","centre","curve"])"))
        << lines[2].data();
    const QString result = files.Path(Q("plain.Varnel.BMP"));
    const QByteArray guessed = Contents(result);
    EXPECT_EQ(run({Q("--gear=guess"), Q("--circle=30,20,18"), plain}), exitAllWritten);
    EXPECT_NE(Contents(result), guessed);
    const auto straight = [&](const char* circle) {
        EXPECT_EQ(run({Q("--gear=guess"), Q("--projection=rectilinear"), Q("--circle"), Q(circle),
                       plain}),
                  exitAllWritten);
        return Contents(files.Path(Q("plain.Rectilinear.BMP")));
    };
    EXPECT_NE(straight("30,20,18"), straight("30,20,9")) << "the guess is made around it";
    for (const char* circle : {"", "1,2", "1,2,x", "1,2,0", "nan,2,3", "inf,2,3", "on"}) {
        EXPECT_EQ(run({Q("--circle"), Q(circle), plain}), exitUsage) << circle;
    }
}

TEST(LensFile, TakesThePlaceOfTheGearsLensAndIsKeptInThePicture) {
    testing::PictureFolder files;
    const QString plain = files.Picture(Q("plain.bmp"), OutputType::Bmp);
    ImageRecord record = testing::FisheyeRecord();
    const QString lens = files.Path(Q("lens.json"));
    ASSERT_TRUE(WriteLensFile(lens, testing::SampledLensOf(record)).reason.isEmpty());
    MemoryStore store;
    std::ostringstream out, err;
    const auto run = [&](QStringList arguments) {
        out.str({});
        err.str({});
        arguments = QStringList{Q("varnel-convert"), Q("--force"), Q("--projection=rectilinear"),
                                Q("--json")} +
                    arguments;
        return RunConvert(arguments, store, {out, err, false});
    };
    const QString png = files.Path(Q("plain.Rectilinear.PNG"));
    EXPECT_EQ(run({Q("--lens-file"), lens, Q("--type=png"), plain}), exitAllWritten);
    EXPECT_NE(out.str().find(R"("gear_source":"measured")"), std::string::npos) << out.str();
    const QByteArray first = Contents(png);
    EXPECT_EQ(run({Q("--gear=guess"), Q("--type=png"), plain}), exitAllWritten);
    EXPECT_NE(Contents(png), first);
    // As that picture was made, without the file of the lens.
    testing::WriteFile(files.Path(Q("like.png")), first);
    QFile::remove(lens);
    EXPECT_EQ(run({Q("--like"), files.Path(Q("like.png")), Q("--type=png"), plain}),
              exitAllWritten);
    EXPECT_EQ(Contents(png), first);
    EXPECT_EQ(run({Q("--lens-file"), lens, plain}), exitUsage);
    EXPECT_NE(err.str().find("lens.json"), std::string::npos) << err.str();
    EXPECT_EQ(run({Q("--lens-file"), plain, plain}), exitUsage);
    EXPECT_EQ(run({Q("--import-lens"), lens}), exitUsage) << "the store has no folder";
}

TEST(OwnLenses, AreImportedListedAndUsedByName) {
    testing::PictureFolder files;
    const QString plain = files.Picture(Q("plain.bmp"), OutputType::Bmp);
    const QString lens = files.Path(Q("lens.json"));
    SampledLens sampled = testing::SampledLensOf(testing::FisheyeRecord());
    sampled.name = Q("8 mm");
    ASSERT_TRUE(WriteLensFile(lens, sampled).reason.isEmpty());
    const auto store =
        OpenFileStore(files.Path(Q("settings/Varnel.conf")), QDateTime::currentDateTime());
    std::ostringstream out, err;
    const auto run = [&](const QStringList& arguments) {
        out.str({});
        return RunConvert(QStringList{Q("varnel-convert")} + arguments, *store, {out, err, false});
    };
    EXPECT_EQ(run({Q("--list-lenses"), Q("My lenses")}), exitUsage);
    EXPECT_EQ(run({Q("--import-lens"), lens}), exitAllWritten) << err.str();
    EXPECT_EQ(out.str(), "My lenses/8 mm\n");
    EXPECT_EQ(run({Q("--import-lens"), lens}), exitAllWritten);
    EXPECT_EQ(run({Q("--list-lenses"), Q("My lenses")}), exitAllWritten);
    EXPECT_EQ(out.str(), "My lenses/8 mm\nMy lenses/8 mm (2)\n");
    EXPECT_EQ(run({Q("--camera=Canon/EOS 5D"), Q("--lens=My lenses/8 mm"), Q("--json"), plain}),
              exitAllWritten);
    EXPECT_NE(out.str().find(R"("gear":"Canon EOS 5D + My lenses 8 mm")"), std::string::npos);
    EXPECT_EQ(run({Q("--camera=Canon/EOS 5D"), Q("--lens=My lenses/9 mm"), plain}), exitUsage);
}

TEST(OwnLenses, AreExportedByTheEndingOfTheFile) {
    testing::PictureFolder files;
    SampledLens sampled = testing::SampledLensOf(testing::FisheyeRecord());
    sampled.name = Q("8 mm");
    sampled.unit = SampledLens::Unit::Millimetres;
    const auto store =
        OpenFileStore(files.Path(Q("settings/Varnel.conf")), QDateTime::currentDateTime());
    ASSERT_TRUE(LensFolder::Beside(store->Path()).Add(sampled).isEmpty());
    std::ostringstream out, err;
    const auto run = [&](const char* file, const QStringList& arguments) {
        out.str({});
        err.str({});
        return RunConvert(
            QStringList{Q("varnel-convert"), Q("--export-lens"), files.Path(Q(file))} + arguments,
            *store, {out, err, false});
    };
    const QString lens = Q("--lens=My lenses/8 mm"), camera = Q("--camera=Canon/EOS 5D");
    const struct {
        const char* file;
        QStringList arguments;
        int exitCode;
        const char* told;
    } cases[] = {
        {"a.json", {lens}, exitAllWritten, ""},
        {"a.json", {lens}, exitUsage, "a.json: the file exists"},
        {"a.xml", {lens}, exitUsage, "\"px_per_unit\" is missing"},
        {"a.xml", {lens, camera, Q("--json")}, exitAllWritten, ""},
        {"b.json", {Q("--lens-file"), files.Path(Q("a.xml"))}, exitAllWritten, ""},
        {"a.txt", {lens}, exitUsage, "a.txt: lenses are written to files that end in"},
        {"c.json", {Q("--lens=My lenses/9 mm")}, exitUsage, "there is no lens \"My lenses/9 mm\""},
        {"c.json", {Q("--lens=Sigma/EX 8 mm f:3.5")}, exitUsage, "there is no lens"},
        {"c.json", {}, exitUsage, "--export-lens needs the lens"},
        {"c.json", {lens, Q("--camera=Canon/EOS")}, exitUsage, "unknown camera"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(run(c.file, c.arguments), c.exitCode) << c.file << err.str();
        EXPECT_NE(err.str().find(c.told), std::string::npos) << err.str();
    }
    EXPECT_FALSE(QFile::exists(files.Path(Q("c.json"))));
    EXPECT_TRUE(Contents(files.Path(Q("a.json"))) == LensBytes(sampled));
    EXPECT_TRUE(Contents(files.Path(Q("a.xml"))).contains("<lensdatabase"));
}

TEST(OwnLenses, GiveAGearOfTheSettingsItsCurve) {
    testing::PictureFolder files;
    const QString plain = files.Picture(Q("plain.bmp"), OutputType::Bmp);
    SampledLens sampled = testing::SampledLensOf(testing::FisheyeRecord());
    sampled.name = Q("8 mm");
    const auto store =
        OpenFileStore(files.Path(Q("settings/Varnel.conf")), QDateTime::currentDateTime());
    const LensFolder folder = LensFolder::Beside(store->Path());
    ASSERT_TRUE(folder.Add(sampled).isEmpty());
    GearTable gears;
    gears.Resize(1);
    FillGearFromCatalogue({Q("Canon"), Q("EOS 5D"), {}, {}}, gears(1));
    GiveLens(std::make_shared<const SampledLens>(sampled), gears(1));
    gears(1).GearName = Q("mine");
    SaveGear(*store, gears);
    std::ostringstream out, err;
    const auto run = [&](const QStringList& arguments) {
        return RunConvert(QStringList{Q("varnel-convert"), Q("--force"), Q("--type=bmp"),
                                      Q("--projection=rectilinear"), plain} +
                              arguments,
                          *store, {out, err, false});
    };
    const QString result = files.Path(Q("plain.Rectilinear.BMP"));
    ASSERT_EQ(run({Q("--gear=mine")}), exitAllWritten) << err.str();
    const QByteArray byGear = Contents(result);
    ASSERT_EQ(run({Q("--camera=Canon/EOS 5D"), Q("--lens=My lenses/8 mm")}), exitAllWritten);
    EXPECT_EQ(Contents(result), byGear);
    ASSERT_TRUE(folder.Delete(Q("8 mm")).isEmpty());
    EXPECT_EQ(run({Q("--gear=mine")}), exitUsage);
    EXPECT_NE(err.str().find("the gear \"mine\" needs the lens \"My lenses/8 mm\""),
              std::string::npos)
        << err.str();
}

}  // namespace
}  // namespace varnel
