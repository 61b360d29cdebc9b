// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/photo_gear.h"

#include <gtest/gtest.h>

#include <QSet>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/from_photo/exif_names.h"
#include "gear/from_photo/gear_offer.h"
#include "gear/from_photo/photo_lens.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

std::string Name(const CatalogueEntry& entry) {
    return (entry.brand + u'/' + entry.model).toStdString();
}

TEST(CameraFromExif, KnowsTheCamerasInTheirMakersSpelling) {
    const struct {
        const char *make, *model, *camera;
    } cases[] = {
        {"Canon", "Canon EOS 5D", "Canon/EOS 5D"},
        {"Canon", "Canon EOS 5D Mark II", "Canon/EOS 5D-mkII"},
        {"", "canon eos 5d mark ii", "Canon/EOS 5D-mkII"},
        {"Canon", "EOS 5D Mark IV", "Canon/EOS 5D-mkIV"},
        {"Canon", "Canon EOS-1D Mark II N", "Canon/EOS 1D-mkII N"},
        {"Canon", "Canon EOS-1Ds Mark III", "Canon/EOS 1Ds-mkIII"},
        {"Canon", "Canon EOS-1D X", "Canon/EOS 1D X"},
        {"Canon", "Canon EOS 6D Mark II", "Canon/EOS 6D-mkII"},
        {"Canon", "Canon EOS 300D DIGITAL", "Canon/EOS 300D"},
        {"Canon", "Canon EOS DIGITAL REBEL", "Canon/EOS 300D"},
        {"Canon", "Canon EOS Kiss Digital", "Canon/EOS 300D"},
        {"Canon", "Canon EOS Kiss Digital X", "Canon/EOS 400D"},
        {"Canon", "Canon EOS REBEL T3i", "Canon/EOS 600D"},
        {"Canon", "Canon EOS M2", "Canon/EOS M2"},
        {"Canon", "Canon EOS M50m2", "Canon/EOS M50-mkII"},
        {"Canon", "Canon EOS R6m2", "Canon/EOS R6-mkII"},
        {"NIKON CORPORATION", "NIKON D7100", "Nikon/D7100"},
        {"NIKON CORPORATION", "NIKON D50", "Nikon/D50"},
        {"NIKON CORPORATION", "NIKON D2X", "Nikon/D2x"},
        {"NIKON CORPORATION", "NIKON Z 6", "Nikon/Z 6"},
        {"NIKON CORPORATION", "NIKON Z 6_2", "Nikon/Z 6II"},
        {"NIKON CORPORATION", "NIKON 1 J1", "Nikon/1 J1"},
        {"SONY", "ILCE-7S", "Sony/Alpha 7S"},
        {"SONY", "ILCE-7", "Sony/Alpha 7"},
        {"SONY", "ILCE-7RM3A", "Sony/Alpha 7R III"},
        {"SONY", "ILCE-7RM5", "Sony/Alpha 7R V"},
        {"SONY", "ILCE-6400", "Sony/Alpha 6400"},
        {"SONY", "ILCA-77M2", "Sony/Alpha 77 II"},
        {"SONY", "SLT-A77V", "Sony/SLT-A77"},
        {"SONY", "ILME-FX30", "Sony/FX30"},
        {"SONY", "ILCE-QX1", "Sony/QX1"},
        {"FUJIFILM", "X-T30 II", "Fuji/X-T30 II"},
        {"FUJIFILM", "GFX50S II", "Fuji/GFX 50S II"},
        {"FUJIFILM", "FinePixS2Pro", "Fuji/FinePix S2 Pro"},
        {"OLYMPUS IMAGING CORP.  ", "E-M1           ", "Olympus/OM-D E-M1"},
        {"OLYMPUS CORPORATION", "E-M5MarkII", "Olympus/OM-D E-M5 Mark II"},
        {"OLYMPUS IMAGING CORP.", "E-PL1s", "Olympus/PEN E-PL1s"},
        {"OLYMPUS CORPORATION", "PEN-F", "Olympus/PEN-F"},
        {"OM Digital Solutions", "OM-1", "OM System/OM-1"},
        {"OM Digital Solutions", "E-P7", "Olympus/PEN E-P7"},
        {"PENTAX Corporation", "PENTAX *ist DS2", "Pentax/*ist DS2"},
        {"PENTAX", "PENTAX K-5 II", "Pentax/K-5 II"},
        {"RICOH IMAGING COMPANY, LTD.", "PENTAX K-1 Mark II", "Pentax/K-1 II"},
        {"Panasonic", "DMC-G85", "Panasonic/Lumix DMC-G80"},
        {"Panasonic", "DC-GH5M2", "Panasonic/Lumix DC-GH5 II"},
        {"Leica Camera AG", "M9 Digital Camera", "Leica/M9"},
        {"LEICA CAMERA AG", "LEICA M MONOCHROM (Typ 246)", "Leica/M Monochrom (Typ 246)"},
        {"SAMSUNG TECHWIN CO., LTD.", "GX10", "Samsung/GX-10"},
        {"SAMSUNG", "EK-GN120", "Samsung/Galaxy NX"},
        {"SIGMA", "SIGMA SD1 Merrill", "Sigma/SD1 Merrill"},
        {"GoPro", "HERO3-Black Edition", "GoPro/Hero 3 Black"},
        {"EASTMAN KODAK COMPANY", "DCS Pro SLR/n", "Kodak/DCS Pro SLR/n"},
        {"KONICA MINOLTA", "MAXXUM 7D", "Konica Minolta/Dynax 7D"},
        {"SEIKO EPSON CORP.", "R-D1", "Epson/R-D1"},
        {"Parrot", "Bebop Drone", "Drones/Parrot Bebop"},
        // Cameras of the same makers that are not there.
        {"NIKON", "E5700", "/"},
        {"GoPro", "HERO3+ Silver Edition", "/"},
        {"SONY", "ILCE-7CM2", "/"},
        {"Canon", "Canon EOS R5m2", "/"},
        {"Sample", "Varnel Sample", "/"},
        {"SONY", "EOS 5D", "/"},
        {"", "", "/"},
        {"Canon", "", "/"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Name(CameraFromExif(Q(c.make), Q(c.model))), c.camera) << c.model;
    }
}

// What the maker writes for a model of the catalogue, by the general rules of its house.
QString ExifModel(const QString& brand, QString model) {
    model.replace(Q("-mk"), Q(" Mark "));
    if (brand == u"Canon") {
        return Q("Canon ") + model.replace(Q("EOS 1D"), Q("EOS-1D"));
    }
    if (brand == u"Nikon") {
        return Q("NIKON ") + model.toUpper();
    }
    if (brand == u"Olympus") {
        return model.remove(Q("OM-D ")).remove(Q("PEN ")).replace(Q(" Mark "), Q("Mark"));
    }
    if (brand == u"Panasonic") {
        return model.remove(Q("Lumix "));
    }
    if (brand == u"Pentax" || brand == u"Sigma" || brand == u"Leica") {
        return brand.toUpper() + u' ' + model;
    }
    if (brand == u"Sony" && model.startsWith(Q("Alpha "))) {
        const QStringList parts = model.split(u' ');
        const QString mark = parts.value(2);
        return Q("ILCE-") + parts[1] +
               (mark.isEmpty() ? QString()
                               : u'M' + QString::number(mark == u"V"    ? 5
                                                        : mark == u"IV" ? 4
                                                                        : mark.size()));
    }
    return model;
}

TEST(CameraFromExif, ReachesEveryCameraAndNoTwoByOneSpelling) {
    int reached = 0;
    for (const MakeName& make : MakeNames()) {
        const QString brand = QStringView(make.brand).toString();
        ASSERT_FALSE(FillCameraModels(brand).isEmpty()) << brand.toStdString();
        QSet<QString> forms;
        for (const QString& model : FillCameraModels(brand)) {
            const CatalogueEntry row{brand, model};
            const CatalogueEntry found =
                CameraFromExif(QStringView(make.words).toString(), ExifModel(brand, model));
            EXPECT_EQ(Name(found), Name(row));
            forms.insert(CameraNormalForm(brand, model));
        }
        EXPECT_EQ(forms.size(), FillCameraModels(brand).size()) << brand.toStdString();
        reached += static_cast<int>(forms.size());
    }
    EXPECT_GE(reached, 479 - 9);  // some by two makers; sizes are no cameras
    for (const CameraAlias& alias : CameraAliases()) {
        const QString brand = QStringView(alias.brand).toString();
        const QString exif = QStringView(alias.exif).toString();
        EXPECT_TRUE(FindCamera(brand, QStringView(alias.model).toString())) << exif.toStdString();
        for (const QString& model : FillCameraModels(brand)) {
            EXPECT_NE(CameraNormalForm(brand, model), CameraNormalForm(brand, exif));
        }
    }
}

struct LensCase {
    const char *make, *model, *lensMake, *lensModel;
    float focal, fNumber;
    const char* lens;
};

CameraInfo Origin(const LensCase& c) {
    return {Q(c.make), Q(c.model), Q(c.lensMake), Q(c.lensModel), c.focal, c.fNumber};
}

TEST(LensesFromExif, NamesTheOneLensThatTookThePhoto) {
    const char *canon = "Canon EOS 6D", *nikon = "NIKON D7100", *sony = "SONY ILCE-7";
    const LensCase cases[] = {
        {"", canon, "", "EF8-15mm f/4L FISHEYE USM", 8, 8, "Canon/EF 8-15 mm f:4.0 at 8 mm"},
        {"", canon, "", "EF8-15mm f/4L FISHEYE USM", 12.4F, 8, "Canon/EF 8-15 mm f:4.0 at 12 mm"},
        {"", canon, "", "EF8-15mm f/4L FISHEYE USM +1.4x", 21, 8, "/"},
        {"", canon, "", "EF15mm f/2.8 Fisheye", 15, 8, "Canon/EF 15 mm f:2.8"},
        {"", canon, "", "Sigma 8mm F3.5 EX DG Circular Fisheye", 8, 8, "Sigma/EX 8 mm f:3.5"},
        {"", canon, "", "Sigma 8mm f/4 EX Circular Fisheye", 8, 8, "Sigma/EX 8 mm f:4.0"},
        {"", canon, "SIGMA", "15mm F2.8 DIAGONAL FISHEYE", 15, 8, "Sigma/EX 15 mm f:2.8"},
        {"", canon, "", "15mm F1.4 DG DN DIAGONAL FISHEYE", 15, 8, "/"},
        {"", nikon, "", "Sigma 4.5mm F2.8 EX DC HSM Circular Fisheye", 5, 22,
         "Sigma/EX 4.5 mm f:2.8"},
        {"", nikon, "", "10.5 mm f/2.8", 10.5F, 8, "Nikon/AF 10.5mm f/2.8G ED DX"},
        {"", nikon, "", "16.0 mm f/2.8", 16, 8, "Nikon/AF 16mm f/2.8D"},
        {"", nikon, "", "10.0-17.0 mm f/3.5-4.5", 13, 8, "Tokina/10-17 mm f/3.5-4.5 at 13 mm"},
        {"", "PENTAX K-5", "", "smc PENTAX-DA FISH-EYE 10-17mm F3.5-4.5 ED [IF]", 10, 8,
         "Tokina/10-17 mm f/3.5-4.5 at 10 mm"},
        {"", nikon, "", "8.0-15.0 mm f/3.5-4.5", 8, 8, "/"},
        {"", nikon, "", "8.0 mm f/3.5", 8, 8, "/"},  // two makers have such a lens
        {"", canon, "", "8mm", 8, 4, "/"},
        {"", sony, "", "SAMYANG 8mm", 8, 8, "/"},
        {"", sony, "", "SAMYANG 8mm", 8, 2.8F, "Samyang/8 mm f/2.8"},
        {"", sony, "", "Rokinon 12mm f/2.8", 12, 8, "Samyang/12 mm f/2.8"},
        {"", sony, "", "7artisans 7.5mm f/3.5", 7.5F, 8, "/"},
        {"", sony, "Meike", "7.5mm f/3.5", 7.5F, 8, "/"},
        {"Panasonic", "DMC-GX7", "", "LUMIX G FISHEYE 8/F3.5", 8, 8, "Panasonic/Lumix G 8mm f/3.5"},
        {"OLYMPUS", "E-M1", "", "OLYMPUS M.8mm F1.8", 8, 8, "/"},
        {"OLYMPUS", "E-3", "", "OLYMPUS 8mm Lens", 8, 8, "Olympus/Zuiko ED 8mm f/3.5"},
        {"SAMSUNG", "NX300", "", "Samsung NX 10mm F3.5 Fisheye", 10, 8, "Samsung/10 mm f/3.5"},
        {"SONY", "SLT-A77V", "", "Minolta/Sony AF 16mm F2.8 Fisheye", 16, 8,
         "Sony/SAL 16 mm f/2.8"},
        {"SONY", "NEX-7", "", "E 16mm F2.8", 16, 8, "/"},  // not a fisheye
        {"SONY", "NEX-7", "SONY", "E 16mm F2.8", 16, 8, "/"},
        {"", canon, "", "EF24-105mm f/4L IS USM", 65, 5.6F, "/"},
        {"", canon, "", "EF-S10-18mm f/4.5-5.6 IS STM", 10, 8, "/"},
        {"", nikon, "", "AF-S DX VR Zoom-Nikkor 18-105mm f/3.5-5.6G ED", 18, 8, "/"},
        {"", nikon, "", "Yasuhara Madoka 7.3mm", 0, 0, "Yasuhara/Madoka 7.3 mm f/4.0"},
        {"", canon, "", "Entaniya M12 220", 0, 0, "Entaniya/M12 220"},
        // Only the focal length.
        {"", "NIKON D50", "", "", 10.5F, 20, "Nikon/AF 10.5mm f/2.8G ED DX"},
        {"", nikon, "", "", 5, 22, "Sigma/EX 4.5 mm f:2.8"},
        {"", nikon, "", "", 8, 8, "/"},
        {"", nikon, "", "", 14, 8, "/"},
        {"", canon, "", "", 15, 8, "/"},
        {"", canon, "", "", 12, 8, "/"},
        {"", canon, "", "", 5, 8, "/"},
        {"", sony, "", "----", 0, 0, "/"},
        {"", sony, "", "", 16, 8, "/"},
        {"SONY", "DSLR-A100", "", "DT 0mm F0 SAM", 0, 0, "/"},
        {"SONY", "DSLR-A100", "", "", 16, 8, "Sony/SAL 16 mm f/2.8"},
        {"GoPro", "HERO3-Black Edition", "", "", 2.8F, 2.8F, "GoPro/Hero 3 Black"},
    };
    for (const LensCase& c : cases) {
        const CatalogueEntry camera = CameraFromExif(Q(c.make), Q(c.model));
        ASSERT_TRUE(camera.IsKnown()) << c.model;
        EXPECT_EQ(Name(LensesFromExif(Origin(c), camera).lens), c.lens)
            << c.model << " " << c.lensModel << " " << c.focal;
    }
}

// As the catalogue itself names them.
TEST(LensesFromExif, ReachesEveryLens) {
    for (const QString& brand : FillLensBrands()) {
        for (const QString& model : FillLensModels(brand)) {
            CameraInfo origin;
            origin.LensModel = brand + u' ' + model;
            EXPECT_EQ(Name(LensesFromExif(origin, {Q("Canon"), Q("EOS 6D")}).lens),
                      Name({brand, model}));
        }
    }
}

CameraInfo Taken(const char* make, const char* model, const char* lens = "", float focal = 0) {
    return {Q(make), Q(model), {}, Q(lens), focal};
}

GearTable Table(const std::vector<GearNames>& gears) {
    GearTable table;
    for (const GearNames& names : gears) {
        table.Resize(table.UpperBound() + 1);
        FillGearFromCatalogue(names, table(table.UpperBound()));
        table(table.UpperBound()).GearName = QString::number(table.UpperBound());
    }
    return table;
}

const GearNames nikonSigma{Q("Nikon"), Q("D7100"), Q("Sigma"), Q("EX 4.5 mm f:2.8")};
const GearNames nikonOwn{Q("Nikon"), Q("D7100"), Q("Nikon"), Q("AF 10.5mm f/2.8G ED DX")};
const GearNames canonSigma{Q("Canon"), Q("EOS 6D-mkII"), Q("Sigma"), Q("EX 8 mm f:3.5")};
const GearNames canonPeleng{Q("Canon"), Q("EOS 6D-mkII"), Q("Peleng"), Q("PELENG 8mm f/3.5")};
const CameraInfo nikonPhoto{Q("NIKON CORPORATION"), Q("NIKON D7100"), {}, {}, 5, 22};
const CameraInfo canonPhoto{Q("Canon"), Q("Canon EOS 6D Mark II"), {}, Q("8mm"), 8, 4};

TEST(GearOfPhoto, TakesTheOneGearThatFitsOrSaysWhyNone) {
    CameraInfo zoom = canonPhoto;
    zoom.LensModel = Q("EF24-105mm f/4L IS USM");
    CameraInfo silent = canonPhoto;
    silent.LensModel.clear();
    silent.FocalLength = 0;
    CameraInfo ordinary = silent;
    ordinary.FocalLength = 50;
    const struct {
        CameraInfo origin;
        std::vector<GearNames> gears;
        int gear;
        GearLack lack;
        const char* said;
    } cases[] = {
        {nikonPhoto, {canonSigma, nikonOwn, nikonSigma}, 3, GearLack::None, ""},
        {nikonPhoto, {nikonOwn}, 0, GearLack::DefinedGear, "no gear has this camera"},
        {canonPhoto, {nikonSigma, canonSigma}, 2, GearLack::None, ""},
        {canonPhoto, {canonSigma, canonPeleng}, 0, GearLack::OneGear, "which gear"},
        {canonPhoto, {}, 0, GearLack::DefiniteLens, "which lens"},
        {silent, {canonSigma}, 1, GearLack::None, ""},
        {ordinary, {canonSigma}, 0, GearLack::DefiniteLens, "which lens"},
        {zoom, {canonSigma}, 0, GearLack::KnownLens, "the lens EF24-105mm f/4L IS USM is not"},
        {Taken("NIKON", "E5700"), {}, 0, GearLack::KnownCamera, "the camera NIKON E5700 is not"},
        {{}, {canonSigma}, 0, GearLack::Origin, "does not tell what"},
    };
    for (const auto& c : cases) {
        const PhotoGear found = GearOfPhoto(c.origin, Table(c.gears));
        EXPECT_EQ(found.gear, c.gear) << c.said;
        EXPECT_EQ(found.lack, c.lack) << c.said;
        EXPECT_TRUE(found.said.contains(Q(c.said))) << found.said.toStdString();
        EXPECT_EQ(found.said.isEmpty(), c.gear > 0);
    }
    GearTable twice = Table({nikonSigma, nikonSigma});
    twice.DefaultGearName = Q("2");
    EXPECT_EQ(GearOfPhoto(nikonPhoto, twice).gear, 2);
}

TEST(OfferFor, OffersOnlyWhatThePhotoDoesNotHaveYet) {
    const struct {
        CameraInfo origin;
        GearNames current;
        int gear;
        bool define;
        const char* line;
        const char* doubt = "";  // none when it is not the photo's gear
    } cases[] = {
        {nikonPhoto, canonSigma, 2, false, "Taken with NIKON D7100, Sigma EX 4.5 mm f:2.8"},
        {nikonPhoto, nikonSigma, 0, false, "Taken with NIKON D7100, Sigma EX 4.5 mm f:2.8",
         " (cropped?)"},
        // Another camera with the same sensor will do.
        {nikonPhoto,
         {Q("Nikon"), Q("D7000"), nikonSigma.lensBrand, nikonSigma.lensModel},
         2,
         false,
         "Taken with NIKON D7100, Sigma EX 4.5 mm f:2.8",
         " (cropped?)"},
        {Taken("NIKON", "NIKON D50", "10.5 mm f/2.8"), canonSigma, 0, true,
         "Taken with NIKON D50, 10.5 mm f/2.8"},
        {Taken("SONY", "ILCE-7S", "----"), canonSigma, 0, true, "Taken with SONY ILCE-7S"},
        {Taken("Canon", "Canon EOS 6D", "EF24-105mm f/4L IS USM", 65), nikonOwn, 0, false,
         "Taken with Canon EOS 6D, EF24-105mm f/4L IS USM"},
        {Taken("NIKON", "E5700", "", 8.9F), canonSigma, 0, false, "Taken with NIKON E5700, 8.9 mm",
         " (camera not in the list)"},
        {{}, canonSigma, 0, false, ""},
    };
    const GearTable table = Table({canonSigma, nikonSigma});
    for (const auto& c : cases) {
        ImageRecord image;
        image.CameraBrand = c.current.cameraBrand;
        image.CameraModel = c.current.cameraModel;
        image.LensBrand = c.current.lensBrand;
        image.LensModel = c.current.lensModel;
        image.Width = image.Height = 1600;  // cropped, when that gear took it
        image.SensorWidth = 23.5F;
        image.SensorHeight = 15.6F;
        const GearOffer offer = OfferFor(c.origin, table, image);
        const bool told = *c.line != '\0';
        const bool fits = *c.doubt != '\0';
        EXPECT_EQ(offer.line, Q(c.line) + Q(c.doubt));
        EXPECT_EQ(offer.error, told && !fits ? Q("Not this photo's gear") : QString()) << c.line;
        EXPECT_EQ(offer.reason.contains(Q("1.00 : 1")), fits) << c.line;
        EXPECT_EQ(offer.gear, c.gear) << c.line;
        EXPECT_EQ(offer.define, c.define) << c.line;
    }
}

TEST(OfferFor, TellsOfAnOwnLensThatIsNotThere) {
    ImageRecord image;
    image.LensBrand = ownLensBrand;
    image.LensModel = QStringLiteral("gone");
    EXPECT_EQ(OfferFor({}, {}, image).error, u"The lens \"gone\" is not there");
}

TEST(ShapeError, DoubtsPicturesThatAreNoWholeSensor) {
    const struct {
        std::int16_t width, height;
        float sensorWidth, sensorHeight;
        bool doubted;
    } cases[] = {{6000, 4000, 23.5F, 15.6F, false}, {4000, 6000, 23.5F, 15.6F, false},
                 {1600, 1600, 35.9F, 24.0F, true},  {1920, 1080, 6.17F, 4.55F, true},
                 {0, 0, 23.5F, 15.6F, false},       {600, 400, 0.0F, 0.0F, false}};
    for (const auto& c : cases) {
        ImageRecord image;
        image.Width = c.width;
        image.Height = c.height;
        image.SensorWidth = c.sensorWidth;
        image.SensorHeight = c.sensorHeight;
        EXPECT_EQ(!ShapeError(image).isEmpty(), c.doubted) << c.width << " x " << c.height;
    }
}

TEST(NamesPlainLens, IsForLensesThatAreKnownNotToBeFisheyes) {
    const struct {
        const char16_t* lens;
        bool plain;
    } rows[] = {{u"EF24-105mm f/4L IS USM", true},
                {u"iPhone back camera 4.2mm f/1.8", true},
                {u"7.5mm f/2.8 Fisheye", false},
                {u"EF8-15mm f/4L FISHEYE USM", false},
                {u"10.5 mm f/2.8", false},
                {u"", false},
                {u"----", false},
                {u"0.0 mm f/0.0", false}};
    for (const auto& row : rows) {
        CameraInfo origin;
        origin.Make = QStringLiteral("NIKON CORPORATION");
        origin.Model = QStringLiteral("NIKON D9999");
        origin.LensModel = QString::fromUtf16(row.lens);
        EXPECT_EQ(NamesPlainLens(origin), row.plain) << origin.LensModel.toStdString();
    }
}

}  // namespace
}  // namespace varnel
