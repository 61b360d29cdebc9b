// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert.h"

#include <gtest/gtest.h>

#include <QDir>
#include <sstream>

#include "gear/store/gear_store.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::operator==;

// Runs varnel-convert with a store of its own.
class Convert : public ::testing::Test {
  protected:
    int Run(const QStringList& arguments) {
        out_.str({});
        err_.str({});
        return RunConvert(QStringList{QStringLiteral("varnel-convert")} + arguments, store_,
                          {out_, err_, false});
    }
    int RunWithGear(const QStringList& arguments) {
        return Run(QStringList{QStringLiteral("--camera"), QStringLiteral("Canon/EOS 5D"),
                               QStringLiteral("--lens"), QStringLiteral("Sigma/EX 8 mm f:3.5")} +
                   arguments);
    }
    QStringList Lines() const {
        return QString::fromStdString(out_.str()).split(u'\n', Qt::SkipEmptyParts);
    }
    bool ErrorHas(const char* text) const { return err_.str().find(text) != std::string::npos; }
    QStringList FilesIn(const QString& folder) const {
        return QDir(files_.Path(folder)).entryList(QDir::Files);
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST_F(Convert, WritesEveryProjectionBesideThePhotoAndNamesThem) {
    const QString photo = files_.Picture(Q("IMG.jpg"), OutputType::Jpeg);
    EXPECT_EQ(RunWithGear({Q("--projection"), Q("all"), photo}), exitAllWritten);
    // The first-run type is the text "JPG", which means TIFF.
    const QStringList expected{
        files_.Path(Q("IMG.Varnel.TIF")), files_.Path(Q("IMG.Rectilinear.TIF")),
        files_.Path(Q("IMG.Equidistance.TIF")), files_.Path(Q("IMG.Horizon.TIF"))};
    EXPECT_EQ(Lines(), expected);
    for (const QString& name : expected) {
        const LoadedPicture written = testing::LoadPicture(name);
        ASSERT_EQ(written.outcome, LoadOutcome::Loaded);
        EXPECT_EQ(SizeOf(written.bitmap.get()).width, 60);
    }
    EXPECT_TRUE(err_.str().empty());
}

TEST_F(Convert, AFolderGetsTheBatchNames) {
    const QString photo = files_.Picture(Q("IMG.jpg"), OutputType::Jpeg);
    QDir(files_.Path({})).mkdir(Q("out"));
    EXPECT_EQ(RunWithGear({Q("--projection=rectilinear"), Q("--output-dir"), files_.Path(Q("out")),
                           Q("--output-aov=95"), Q("--rotate-y=-5"), Q("--type=png"), photo}),
              exitAllWritten);
    EXPECT_EQ(FilesIn(Q("out")), QStringList{Q("IMG.Rectilinear_hAOV095_LR-5.PNG")});
    EXPECT_EQ(RunWithGear({Q("--output-dir"), files_.Path(Q("nowhere")), photo}), exitUsage);
    EXPECT_TRUE(ErrorHas("nowhere"));
}

TEST_F(Convert, ExistingFilesAreKeptUnlessForcedAndThePhotoAlways) {
    const QString photo = files_.Picture(Q("IMG.bmp"), OutputType::Bmp);
    const QString target = files_.Text(Q("target.bmp"));
    const QByteArray before = Contents(target);
    EXPECT_EQ(RunWithGear({Q("--output"), target, photo}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("target.bmp: the file exists; --force replaces it"));
    EXPECT_EQ(Contents(target), before);
    EXPECT_EQ(RunWithGear({Q("--force"), Q("--output"), target, photo}), exitAllWritten);
    EXPECT_NE(Contents(target), before);
    const QByteArray original = Contents(photo);
    EXPECT_EQ(RunWithGear({Q("--force"), Q("--output"), photo, photo}), exitSomeFailed);
    EXPECT_EQ(Contents(photo), original);
    // Nor is another photo of the same run replaced, before or after its turn.
    const QString other = files_.Picture(Q("IMG.Varnel.TIF"), OutputType::Tiff);
    const QByteArray untouched = Contents(other);
    for (const QStringList& photos : {QStringList{photo, other}, QStringList{other, photo}}) {
        EXPECT_EQ(RunWithGear(QStringList{Q("--force")} + photos), exitSomeFailed);
        EXPECT_TRUE(ErrorHas("IMG.Varnel.TIF: this is one of the photos to convert"));
        EXPECT_EQ(Contents(other), untouched);
    }
}

TEST_F(Convert, BadPhotosAreNamedAndTheOthersDone) {
    const QString good = files_.Picture(Q("good.png"), OutputType::Png);
    const QString text = files_.Text(Q("text.jpg"));
    EXPECT_EQ(RunWithGear({files_.Path(Q("none.jpg")), text, good}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("none.jpg: there is no such file"));
    EXPECT_TRUE(ErrorHas("text.jpg: this is not a picture of a known type"));
    EXPECT_EQ(Lines(), QStringList{files_.Path(Q("good.Varnel.TIF"))});
}

TEST_F(Convert, ManyJobsDoAndSayWhatOneDoes) {
    QStringList photos;
    for (int n = 0; n < 12; ++n) {
        photos.append(files_.Picture(Q("%1.png").arg(n), OutputType::Png, {60 + 40 * n, 50}));
    }
    photos.insert(3, files_.Text(Q("text.jpg")));
    photos.insert(7, files_.Path(Q("none.jpg")));
    photos.insert(9, files_.Cut(Q("cut.bmp"), files_.Picture(Q("b.bmp"), OutputType::Bmp), 70));
    photos.append(photos.first());  // would be written twice
    std::vector<std::string> said;
    QByteArrayList written;
    for (const char* jobs : {"1", "2", "8"}) {
        const QString folder = files_.Path(Q("out"));
        QDir(folder).removeRecursively();
        QDir().mkdir(folder);
        EXPECT_EQ(RunWithGear(QStringList{Q("--jobs"), Q(jobs), Q("--projection"), Q("all"),
                                          Q("--output-dir"), folder} +
                              photos),
                  exitSomeFailed);
        said.push_back(out_.str() + err_.str());
        QByteArray all;
        for (const QString& name : FilesIn(Q("out"))) {
            all += name.toUtf8() + Contents(folder + u'/' + name);
        }
        written.append(all);
    }
    EXPECT_EQ(said[0], said[1]);
    EXPECT_EQ(said[0], said[2]);
    EXPECT_TRUE(written[0] == written[1] && written[0] == written[2]);
    EXPECT_TRUE(written[0].size() > 13 * 4 * 1000);
}

TEST_F(Convert, OneFileUnderTwoNamesIsNotWrittenTwice) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png, {900, 600});
    QString other = photo;
    other.insert(other.lastIndexOf(u'/'), Q("/."));
    for (const char* jobs : {"1", "2"}) {
        QFile::remove(files_.Path(Q("IMG.Varnel.TIF")));
        EXPECT_EQ(RunWithGear({Q("--jobs"), Q(jobs), photo, other}), exitSomeFailed);
        EXPECT_TRUE(ErrorHas("the same photo has this result already; give each")) << jobs;
        EXPECT_EQ(Lines().size(), 1);
    }
}

TEST_F(Convert, SkipExistingDoesOnlyWhatIsMissing) {
    const QStringList photos{files_.Picture(Q("a.png"), OutputType::Png),
                             files_.Picture(Q("b.png"), OutputType::Png)};
    const QString older = files_.Text(Q("a.Varnel.TIF"));
    const QStringList arguments = QStringList{Q("--skip-existing"), Q("--projection"), Q("all")};
    EXPECT_EQ(RunWithGear(arguments + photos), exitAllWritten);
    EXPECT_EQ(Lines().size(), 7);
    EXPECT_EQ(Contents(older), "this is no picture\n");
    QFile::remove(files_.Path(Q("b.Horizon.TIF")));
    EXPECT_EQ(RunWithGear(arguments + photos), exitAllWritten);
    EXPECT_EQ(Lines(), QStringList{files_.Path(Q("b.Horizon.TIF"))});
    EXPECT_EQ(RunWithGear(arguments + photos + QStringList{files_.Path(Q("none.png"))}),
              exitSomeFailed);
    EXPECT_TRUE(ErrorHas("none.png: there is no such file"));
}

TEST_F(Convert, ADamagedPhotoIsToldAndNeverReplacesAFile) {
    const QString whole = files_.Picture(Q("whole.jpg"), OutputType::Jpeg, {300, 200});
    const QString cut = files_.Cut(Q("cut.jpg"), whole, 60);
    EXPECT_EQ(RunWithGear({cut}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("cut.jpg: damaged: "));
    const QString target = files_.Text(Q("target.bmp"));
    EXPECT_EQ(RunWithGear({Q("--force"), Q("--output"), target, cut}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("a damaged photo does not replace an existing file"));
    EXPECT_EQ(Contents(target), Q("this is no picture\n").toUtf8());
}

TEST_F(Convert, AnImpossibleNumberIsNamedAndNothingIsWritten) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png);
    EXPECT_EQ(RunWithGear({Q("--set"), Q("Ratio=0"), photo}), exitSomeFailed);
    EXPECT_TRUE(ErrorHas("IMG.Varnel.TIF: Division by zero: Ratio is 0"));
    EXPECT_EQ(FilesIn({}), QStringList{Q("IMG.png")});
}

TEST_F(Convert, ANumberThatNoNameCanHoldEndsOnlyItsPhoto) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png);
    EXPECT_EQ(RunWithGear({Q("--projection=rectilinear"), Q("--rotate-y=1e30"), Q("--output-dir"),
                           files_.Path({}), photo}),
              exitSomeFailed);
    EXPECT_TRUE(ErrorHas("IMG.png: Overflow: a rotation angle"));
}

TEST_F(Convert, TwoPhotosWithOneResultNameLoseNothing) {
    for (const char* folder : {"a", "b", "out"}) {
        QDir(files_.Path({})).mkdir(Q(folder));
    }
    const QString photo = files_.Picture(Q("a/y.jpg"), OutputType::Jpeg);
    const struct {
        QString other;
        const char* advice;
    } pairs[] = {{files_.Picture(Q("a/y.png"), OutputType::Png), "--keep-ending tells them apart"},
                 {files_.Picture(Q("b/y.jpg"), OutputType::Jpeg), "into different folders"}};
    const QString folder = files_.Path(Q("out"));
    const QStringList all{Q("--projection=all"), Q("--output-dir"), folder};
    for (const auto& [other, advice] : pairs) {
        const QString refused = Q("/y.Varnel.TIF: ") + other + Q(" was not converted, ") + photo +
                                Q(" of this command has the same result name; ");
        for (const char* option : {"--force", "--skip-existing", "--quiet"}) {
            QDir(folder).removeRecursively();
            QDir().mkdir(folder);
            // Once with nothing in the folder, once with all the results of an earlier run, once
            // with some of them.
            for (const bool removes : {false, false, true}) {
                if (removes) {
                    QFile::remove(folder + Q("/y.Horizon.TIF"));
                }
                EXPECT_EQ(RunWithGear(all + QStringList{Q(option), photo, other}), exitSomeFailed);
                EXPECT_TRUE(ErrorHas(qPrintable(refused)) && ErrorHas(advice)) << err_.str();
                EXPECT_EQ(FilesIn(Q("out")).size(), 4);
            }
        }
    }
    for (const char* jobs : {"--jobs=1", "--jobs=2"}) {
        EXPECT_EQ(RunWithGear({Q(jobs), Q("--keep-ending"), Q("--skip-existing"), Q("--output-dir"),
                               folder, photo, pairs[0].other}),
                  exitAllWritten)
            << err_.str();
    }
    EXPECT_TRUE(FilesIn(Q("out")).contains(Q("y.jpg.Varnel.TIF")));
    EXPECT_TRUE(FilesIn(Q("out")).contains(Q("y.png.Varnel.TIF")));
    EXPECT_EQ(RunWithGear({Q("--keep-ending"), photo}), exitAllWritten);
    EXPECT_EQ(Lines(), QStringList{photo + Q(".Varnel.TIF")});
    EXPECT_EQ(RunWithGear({Q("--keep-ending"), Q("--morph=2"), photo}), exitAllWritten);
    EXPECT_EQ(Lines().value(1), photo + Q(".Varnel_Morph0002.TIF"));
    // As on a card that does not tell small from capital letters.
    QFile::link(folder + Q("/y.Varnel.TIF"), folder + Q("/Y.Varnel.TIF"));
    EXPECT_EQ(RunWithGear({Q("--skip-existing"), Q("--output-dir"), folder, photo,
                           files_.Picture(Q("a/Y.png"), OutputType::Png)}),
              exitSomeFailed);
    EXPECT_TRUE(ErrorHas("/a/Y.png was not converted, "));
    // No photo has no results.
    EXPECT_EQ(
        RunWithGear({files_.Text(Q("b/z.aae")), files_.Picture(Q("b/z.png"), OutputType::Png)}),
        exitSomeFailed);
    EXPECT_EQ(Lines(), QStringList{files_.Path(Q("b/z.Varnel.TIF"))});
    // All of one photo's results under one name.
    EXPECT_EQ(RunWithGear({Q("--projection=all"), Q("--skip-existing"), Q("--set=Projection=1"),
                           pairs[0].other}),
              exitSomeFailed);
    EXPECT_TRUE(ErrorHas("a/y.Rectilinear.TIF: the same photo has this result already"));
}

TEST_F(Convert, WithoutAGearItSaysHowToGiveOne) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png);
    EXPECT_EQ(Run({photo}), exitUsage);
    EXPECT_TRUE(ErrorHas("no gear is defined; give --camera BRAND/MODEL with --lens BRAND/MODEL"));
    EXPECT_EQ(Run({Q("--gear"), Q("mine"), photo}), exitUsage);
    EXPECT_EQ(
        Run({Q("--camera"), Q("Canon/Nothing"), Q("--lens"), Q("Sigma/EX 8 mm f:3.5"), photo}),
        exitUsage);
    EXPECT_TRUE(ErrorHas("unknown camera \"Canon/Nothing\"; --list-cameras Canon shows all"));
}

TEST_F(Convert, StoredGearsServeByNameAndByDefault) {
    GearTable table;
    table.Resize(2);
    for (const int n : {1, 2}) {
        table(n).GearName = Q(n == 1 ? "one" : "two");
        table(n).CameraBrand = Q("Canon");
        table(n).CameraModel = Q("EOS 5D");
        table(n).LensBrand = Q("Sigma");
        table(n).LensModel = Q("EX 8 mm f:3.5");
        table(n).GearRatio = n == 1 ? 150.0F : 100.0F;
        table(n).hAOV = 180.0F;
    }
    table.DefaultGearName = Q("two");
    SaveGear(store_, table);
    EXPECT_EQ(Run({Q("--list-gears")}), exitAllWritten);
    EXPECT_EQ(Lines(), (QStringList{Q("one"), Q("two")}));

    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png);
    const auto picture = [&](const QStringList& options, const char* name) {
        EXPECT_EQ(Run(options + QStringList{Q("--output"), files_.Path(Q(name)), photo}),
                  exitAllWritten)
            << err_.str();
        return Contents(files_.Path(Q(name)));
    };
    const QByteArray byDefault = picture({}, "default.bmp");
    EXPECT_EQ(byDefault, picture({Q("--gear"), Q("two")}, "two.bmp"));
    EXPECT_NE(byDefault, picture({Q("--gear"), Q("one")}, "one.bmp"));
    // --set comes after everything else.
    EXPECT_EQ(byDefault, picture({Q("--gear"), Q("one"), Q("--set"), Q("Ratio=100")}, "set.bmp"));
}

TEST_F(Convert, APreviewHasItsSizeAndFollowsAntialiasing) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png, {300, 200});
    const auto preview = [&](const QStringList& options, const char* name) {
        EXPECT_EQ(RunWithGear(options + QStringList{Q("--preview=60x60"), Q("--output"),
                                                    files_.Path(Q(name)), photo}),
                  exitAllWritten);
        return testing::LoadPicture(files_.Path(Q(name))).bitmap;
    };
    const BitmapHandle plain = preview({}, "plain.bmp");
    EXPECT_EQ(SizeOf(plain.get()).width, 60);
    EXPECT_EQ(SizeOf(plain.get()).height, 40);
    preview({Q("--antialiased")}, "smooth.bmp");
    EXPECT_NE(Contents(files_.Path(Q("plain.bmp"))), Contents(files_.Path(Q("smooth.bmp"))));
}

TEST_F(Convert, AMorphWritesTheFramesThatSingleConversionsWouldGive) {
    const QString photo = files_.Picture(Q("IMG.png"), OutputType::Png);
    const QStringList rectilinear{Q("--type"),      Q("bmp"),          Q("--projection"),
                                  Q("rectilinear"), Q("--output-aov"), Q("95")};
    EXPECT_EQ(RunWithGear(rectilinear + QStringList{Q("--morph"), Q("3"), Q("--from"),
                                                    Q("EffectRectilinear=0"), Q("--to"),
                                                    Q("RotateY=-5"), photo}),
              exitAllWritten)
        << err_.str();
    const QStringList names{files_.Path(Q("IMG.Rectilinear_Morph0001_hAOV095_Eff000.BMP")),
                            files_.Path(Q("IMG.Rectilinear_Morph0002_hAOV095_Eff050_LR-2.BMP")),
                            files_.Path(Q("IMG.Rectilinear_Morph0003_hAOV095_LR-5.BMP"))};
    EXPECT_EQ(Lines(), names);
    const struct {
        const char *effect, *y;
    } frames[] = {{"0.1", "0"}, {"50", "-2.5"}, {"100", "-5"}};
    for (int i = 0; i < 3; ++i) {
        const QString single = files_.Path(Q("single.bmp"));
        RunWithGear(rectilinear + QStringList{Q("--force"), Q("--output"), single, Q("--effect"),
                                              Q(frames[i].effect), Q("--rotate-y"), Q(frames[i].y),
                                              photo});
        EXPECT_EQ(Contents(names[i]), Contents(single)) << i;
    }
    // Existing frames stay without --force; into a folder go the same names.
    EXPECT_EQ(RunWithGear(rectilinear +
                          QStringList{Q("--morph=2"), Q("--from=EffectRectilinear=0"), photo}),
              exitSomeFailed);
    EXPECT_TRUE(ErrorHas("IMG.Rectilinear_Morph0001_hAOV095_Eff000.BMP: the file exists"));
    QDir(files_.Path({})).mkdir(Q("out"));
    EXPECT_EQ(RunWithGear({Q("--type=bmp"), Q("--morph=2"), Q("--to=EffectVarnel=0"),
                           Q("--output-dir"), files_.Path(Q("out")), photo}),
              exitAllWritten);
    EXPECT_EQ(FilesIn(Q("out")),
              (QStringList{Q("IMG.Varnel_Morph0001.BMP"), Q("IMG.Varnel_Morph0002_Eff000.BMP")}));
}

TEST_F(Convert, OptionsOverrideTheSettingsForColourAndMetadata) {
    const QString photo = files_.Picture(Q("IMG.jpg"), OutputType::Jpeg);
    testing::WriteFile(photo, testing::Described(Contents(photo)));
    const struct {
        const char *full, *metadata;  // the settings
        QStringList options;
        int sampling;  // of the brightness beside the colour
        bool exif;
    } rows[] = {{"0", "1", {}, 0x22, true},
                {"1", "1", {}, 0x11, true},
                {"0", "1", {Q("--chroma=444")}, 0x11, true},
                {"1", "0", {Q("--chroma=420")}, 0x22, false},
                {"0", "1", {Q("--no-metadata")}, 0x22, false}};
    for (const auto& row : rows) {
        store_.Save(Q("setting"), Q("JPEGchroma444"), Q(row.full));
        store_.Save(Q("setting"), Q("WriteMetadata"), Q(row.metadata));
        const QString target = files_.Path(Q("out.jpg"));
        EXPECT_EQ(
            RunWithGear(QStringList{Q("--force"), Q("--output"), target, photo} + row.options),
            exitAllWritten);
        const QByteArray file = Contents(target);
        const qsizetype frame = file.lastIndexOf("\xFF\xC0");  // a thumbnail has one, too
        ASSERT_GT(frame, 0);
        EXPECT_EQ(file[frame + 11], row.sampling);
        EXPECT_EQ(file.contains("Exif"), row.exif);
        EXPECT_TRUE(file.contains("ICC_PROFILE"));
    }
}

TEST_F(Convert, ListsAreReadyForTheOptions) {
    EXPECT_EQ(Run({Q("--list-cameras"), Q("GoPro")}), exitAllWritten);
    EXPECT_EQ(Lines(), QStringList{Q("GoPro/Hero 3 Black")});
    EXPECT_EQ(Run({Q("--list-cameras")}), exitAllWritten);
    EXPECT_EQ(Lines().size(), 479);
    EXPECT_EQ(Run({Q("--list-lenses")}), exitAllWritten);
    EXPECT_EQ(Lines().size(), 52);
    EXPECT_EQ(Run({Q("--list-lenses"), Q("Nobody")}), exitUsage);
}

}  // namespace
}  // namespace varnel
