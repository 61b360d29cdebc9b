// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/import_lenses.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cmath>
#include <functional>
#include <numbers>

#include "base/error_text.h"
#include "gear/lens/import/lensfun_data.h"
#include "gear/lens/lens_file.h"
#include "remap/projection/lens_spline.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;
using Formula = std::function<double(double)>;

constexpr double circle = 2700.0;  // pixels at 24 megapixels
constexpr double degree = std::numbers::pi / 180.0;

double OddPowers(double a, double k1, double k2, double k3 = 0.0, double k4 = 0.0) {
    return a + k1 * std::pow(a, 3) + k2 * std::pow(a, 5) + k3 * std::pow(a, 7) +
           k4 * std::pow(a, 9);
}

struct Row {
    const char* kind;
    QByteArray file;
    const char* name;
    Formula radius;     // of an angle; millimetres or pixels
    double perUnit;     // of those by the lens's unit; 0: as the lens says
    double leastField;  // degrees
};

const QByteArray openCv =
    "%YAML:1.0\n---\n# made by hand\ncalibration_time: \"Mon 1 Jan\"\nimage_width: 1920\n"
    "image_height: 1080\ncamera_matrix: !!opencv-matrix\n   rows: 3\n   cols: 3\n   dt: d\n"
    "   data: [ 5.8e+02, 0., 9.6e+02, 0.,\n       5.82e+02, 5.4e+02, 0., 0., 1. ]\n"
    "distortion_coefficients: !!opencv-matrix\n   rows: 4\n   cols: 1\n   dt: d\n"
    "   data: [ 0.03, -0.012, 2.5e-03, -4e-04 ]\n";

QByteArray Lensfun(const char* type, const char* inner, const char* more = "") {
    return QByteArray(
               "<?xml version=\"1.0\"?>\n<!DOCTYPE lensdatabase SYSTEM \"x.dtd\">\n"
               "<lensdatabase version=\"1\"><lens><maker>Acme</maker>"
               "<model>Acme 10mm</model><model lang=\"de\">Zehn</model><type>") +
           type + "</type>" + more + "<cropfactor>1.5</cropfactor><calibration>\n" + inner +
           "</calibration></lens></lensdatabase>";
}

// Radii in millimetres from those in halves of the shorter side, for a crop factor of 1.5 at 3:2.
Formula InHalves(double focal, Formula design, Formula polynomial) {
    return [=](double a) { return 8.0 * polynomial(focal / 8.0 * design(a)); };
}

const Formula equisolid = [](double a) { return 2.0 * std::sin(a / 2.0); };
const Formula stereographic = [](double a) { return 2.0 * std::tan(a / 2.0); };
const Formula equidistant = [](double a) { return a; };
const Formula thoby = [](double a) { return 1.47 * std::sin(0.713 * a); };
const Formula plain = [](double r) { return r; };
const Formula ptlens = [](double r) {
    return -0.02 * std::pow(r, 4) + 0.03 * std::pow(r, 3) - 0.04 * r * r + 1.03 * r;
};

std::vector<Row> Rows() {
    return {
        {"OpenCV YAML", openCv, "camera",
         [](double a) { return 581.0 * OddPowers(a, 0.03, -0.012, 0.0025, -0.0004); }, 0.0, 70.0},
        {"OpenCV JSON",
         R"({"image_width": 1920, "image_height": 1080, "camera_matrix": {"type_id":
             "opencv-matrix", "rows": 3, "cols": 3, "dt": "d", "data": [580, 0, 960, 0, 582, 540, 0, 0, 1]},
             "distortion_coefficients": {"data": [0.09, -0.04, 0.017, -0.004]}})",
         "camera", [](double a) { return 581.0 * OddPowers(a, 0.09, -0.04, 0.017, -0.004); }, 0.0,
         70.0},
        {"Kalibr",
         "cam0:\n  cam_overlaps: [1]\n  camera_model: pinhole\n"
         "  distortion_coeffs: [-0.01, -0.02,\n    0.004, -0.0005]\n"
         "  distortion_model: equidistant\n  intrinsics: [300.0, 300.0, 370.0, 230.5]\n"
         "  resolution: [752, 480]\n  T_cam_imu:\n  - [1.0, 0.0]\n  - [0.0, 1.0]\n",
         "camera cam0", [](double a) { return 300.0 * OddPowers(a, -0.01, -0.02, 0.004, -0.0005); },
         0.0, 60.0},
        {"Gyroflow",
         R"({"camera_brand": "Acme", "camera_model": "Go 9", "lens_model": "Wide",
             "calib_dimension": {"w": 2704, "h": 2028}, "fisheye_params": {"RMS_error": 0.5,
             "camera_matrix": [[1190, 0, 1352], [0, 1190, 1014], [0, 0, 1]],
             "distortion_coeffs": [0.04, 0.02, -0.015, 0.003]}})",
         "Acme Go 9 Wide",
         [](double a) { return 1190.0 * OddPowers(a, 0.04, 0.02, -0.015, 0.003); }, 0.0, 60.0},
        {"lensfun ptlens",
         Lensfun("equisolid",
                 "<distortion model=\"ptlens\" focal=\"10\" a=\"-.02\" b=\".03\" c=\"-.04\"/>"),
         "Acme 10mm", InHalves(10.0, equisolid, ptlens), 1.0, 80.0},
        {"lensfun real focal",
         Lensfun("fisheye_stereographic",
                 "<distortion model=\"ptlens\" focal=\"10\" a=\"-.02\" b=\".03\" c=\"-.04\"/>"
                 "<real-focal-length focal=\"10\" real-focal=\"9.27\"/>"),
         "Acme 10mm", InHalves(9.0, stereographic, ptlens), 1.0, 70.0},
        {"lensfun poly3",
         Lensfun("fisheye", "<distortion model=\"poly3\" focal=\"10\" k1=\"0.01\"/>"), "Acme 10mm",
         InHalves(10.0, equidistant, [](double r) { return 0.99 * r + 0.01 * r * r * r; }), 1.0,
         70.0},
        {"lensfun poly5",
         Lensfun("fisheye_thoby",
                 "<distortion model=\"poly5\" focal=\"10\" k1=\"0.01\" k2=\"-.004\"/>"),
         "Acme 10mm", InHalves(10.0, thoby, [](double r) { return OddPowers(r, 0.01, -0.004); }),
         1.0, 80.0},
        {"lensfun without distortion", Lensfun("orthographic", "", "<focal value=\"11\"/>"),
         "Acme 10mm",
         InHalves(
             11.0, [](double a) { return std::sin(a); }, plain),
         1.0, 89.0},
        {"Hugin",
         "# project\np f2 w3000 h1500 v360\n"
         "i w4000 h6000 f21 v120 Eev8 a-0.02 b0.03 c-0.04 d10 e-20 g0 n\"a b w1.jpg\"\n"
         "i w4000 h6000 f21 v=0 a=0 b=0 c=0 d=0 e=0 n\"b.jpg\"\nv v0\n",
         "camera",
         [](double a) {
             const double focal = 1.0 / (2.0 * std::sin(30.0 * degree));  // in halves of the side
             return 2000.0 * ptlens(focal * equisolid(a));
         },
         0.0, 90.0},
        {"LCP",
         "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" xmlns:rdf=\"r\" xmlns:stCamera=\"s\"><rdf:RDF>"
         "<rdf:Description><rdf:Seq><rdf:li><rdf:Description stCamera:LensPrettyName=\"Acme 8\""
         " stCamera:ImageWidth=\"6000\" stCamera:ImageLength=\"4000\" stCamera:FocalLength=\"8\""
         " stCamera:SensorFormatFactor=\"1.5\"><stCamera:FisheyeModel>"
         "<rdf:Description stCamera:FocalLengthX=\"0.36\" stCamera:ImageXCenter=\"0.501\""
         " stCamera:RadialDistortParam1=\"-0.02\" stCamera:RadialDistortParam2=\"-0.003\">"
         "<stCamera:ChromaticRedGreenModel><rdf:Description stCamera:FocalLengthX=\"9\"/>"
         "</stCamera:ChromaticRedGreenModel></rdf:Description></stCamera:FisheyeModel>"
         "</rdf:Description></rdf:li></rdf:Seq></rdf:Description></rdf:RDF></x:xmpmeta>",
         "Acme 8", [](double a) { return 0.36 * 24.0 * OddPowers(a, -0.02, -0.003); }, 1.0, 80.0},
        {"LCP of elements",
         "<rdf:RDF xmlns:rdf=\"r\" xmlns:s=\"s\"><rdf:li rdf:parseType=\"Resource\">"
         "<s:AlternateLensIDs><rdf:Seq><rdf:li>7</rdf:li></rdf:Seq></s:AlternateLensIDs>"
         "<s:Model>Body</s:Model><s:Lens>Acme 9</s:Lens><s:ImageWidth>4000</s:ImageWidth>"
         "<s:ImageLength>6000</s:ImageLength><s:FisheyeModel rdf:parseType=\"Resource\">"
         "<s:FocalLengthX>0.36</s:FocalLengthX><s:RadialDistortParam1>0.02</s:RadialDistortParam1>"
         "<s:ChromaticGreenModel rdf:parseType=\"Resource\"><s:FocalLengthX>1</s:FocalLengthX>"
         "</s:ChromaticGreenModel><s:RadialDistortParam2>0.001</s:RadialDistortParam2>"
         "</s:FisheyeModel></rdf:li></rdf:RDF>",
         "Acme 9", [](double a) { return 0.36 * 6000.0 * OddPowers(a, 0.02, 0.001); }, 0.0, 80.0},
    };
}

TEST(ImportLenses, AgreesWithTheFormulaOfItsSource) {
    for (const Row& row : Rows()) {
        const ImportedLenses imported = ImportLensesFrom(row.file, Text("/a/camera.txt"));
        ASSERT_EQ(imported.lenses.size(), 1)
            << row.kind << ": " << ErrorText(imported.reason).toStdString();
        EXPECT_TRUE(imported.reason.isEmpty()) << row.kind;
        const SampledLens& lens = imported.lenses[0];
        EXPECT_EQ(lens.name.toStdString(), row.name) << row.kind;
        EXPECT_EQ(lens.origin.kind, LensOrigin::Kind::Imported);
        EXPECT_FALSE(lens.origin.source.isEmpty());
        EXPECT_GT(lens.FieldLimit(), row.leastField * degree) << row.kind;
        const double unit = row.perUnit > 0.0 ? row.perUnit : *lens.pixelsPerUnit;
        const LensSpline spline(lens);
        const double pixels = circle / spline.RadiusAtLimit();
        for (double angle = 0.0; angle <= lens.FieldLimit(); angle += 0.001) {
            ASSERT_NEAR(spline.RadiusAt(angle) * pixels, row.radius(angle) / unit * pixels, 0.05)
                << row.kind << angle;
        }
    }
}

TEST(ImportLenses, CentresLieWherePixelsDo) {
    const auto centre = [](std::size_t row) {
        return ImportLensesFrom(Rows()[row].file, Text("a")).lenses[0].centre.value();
    };
    EXPECT_EQ(centre(0), (LensCentre{960.5, 539.5, {1920, 1080}}));
    EXPECT_EQ(centre(9), (LensCentre{2010.0, 3020.0, {4000, 6000}}));
    EXPECT_EQ(centre(10), (LensCentre{3006.0, 2000.0, {6000, 4000}}));
}

TEST(ImportLenses, TakesTheColoursOfLensfun) {
    const ImportedLenses imported = ImportLensesFrom(
        Lensfun("equisolid",
                "<distortion model=\"ptlens\" focal=\"10\" a=\"0\" b=\"0\" c=\"0\"/>"
                "<tca model=\"poly3\" focal=\"10\" br=\"-0.0001\" cr=\"0.0002\" vr=\"1.0004\"/>"),
        Text("a"));
    ASSERT_EQ(imported.lenses.size(), 1);
    const SampledLens& lens = imported.lenses[0];
    const LensSpline spline(lens);
    const double pixels = circle / spline.RadiusAtLimit();
    for (double a = 0.0; a <= lens.FieldLimit(); a += 0.01) {
        const double r = spline.RadiusAt(a) / 8.0;
        EXPECT_NEAR(OddPowers(a, 0.0, 0.0) * lens.red->first + lens.red->third * std::pow(a, 3) +
                        lens.red->fifth * std::pow(a, 5),
                    8.0 * r * (0.0004 + 0.0002 * r - 0.0001 * r * r), 0.05 / pixels);
    }
    EXPECT_EQ(lens.blue, ColourShift{});
}

TEST(ImportLenses, EndsTheFieldWhereTheFormulaTurnsBackOrRefusesIt) {
    QByteArray file = openCv;
    file.replace("0.03, -0.012, 2.5e-03, -4e-04", "-0.15, 0, 0, 0");
    const ImportedLenses ends = ImportLensesFrom(file, Text("a"));
    ASSERT_EQ(ends.lenses.size(), 1);
    EXPECT_NEAR(ends.lenses[0].FieldLimit(), std::sqrt(1.0 / 0.45), 0.01);
    file.replace("-0.15, 0, 0, 0", "-1.0, 0, 0, 0");
    EXPECT_EQ(ErrorText(ImportLensesFrom(file, Text("a.yml")).reason).toStdString(),
              "a: the lens's curve turns back at 33.1 degrees");
    file.replace("-1.0, 0, 0, 0", "0, 0, 0, 1e4");
    EXPECT_EQ(ErrorText(ImportLensesFrom(file, Text("a.yml")).reason).toStdString(),
              "a: the lens's curve is not made of 16 usable points");
}

TEST(ImportLenses, NamesWhatIsWrong) {
    const auto rows = Rows();
    const auto changed = [](QByteArray file, const char* from, const char* to) {
        EXPECT_TRUE(file.contains(from)) << from;
        return file.replace(from, to);
    };
    const QByteArray lensfun = rows[6].file;
    const struct {
        QByteArray file;
        const char* error;
    } cases[] = {
        {"hello\nworld\n", "this is no lens file of a known kind"},
        {"{\"a\": 1}", "this is no lens file of a known kind"},
        {"<svg/>", "this is no lens file of a known kind"},
        {changed(openCv, "image_width", "width_of_image"), "a: \"image_size\" is missing"},
        {changed(openCv, "-4e-04 ]", "-4e-04, 0 ]"),
         "a: \"distortion_coefficients\" has a value that cannot be used"},
        {changed(openCv, "-4e-04 ]", "-4e-04"),
         "line 17: \"data: [ 0.03, -0.012, 2.5e-03, -4e-04\" has a value that cannot be used"},
        {changed(openCv, "1920", "1e30"), "a: \"width, height\" has a value that cannot be used"},
        {changed(openCv, "5.82e+02", "9e+02"), "a: \"fx, fy\" has a value that cannot be used"},
        {changed(openCv, "dt: d", "dt: d\n      x"),
         "line 11: \"x\" has a value that cannot be used"},
        {changed(rows[2].file, "equidistant", "radtan"),
         "a cam0: the lens model \"radtan\" is not known"},
        {changed(rows[2].file, "[300.0, 300.0,", "["),
         "a cam0: \"cam0.intrinsics\" has a value that cannot be used"},
        {changed(rows[3].file, "\"w\": 2704,", ""),
         "Acme Go 9 Wide: \"calib_dimension.image_size\" is missing"},
        {changed(lensfun, "\"0.01\"", "\"x\""), "line 4: \"k1\" has a value that cannot be used"},
        {changed(lensfun, "poly3", "acm"), "Acme 10mm: the lens model \"acm\" is not known"},
        {changed(lensfun, "<type>fisheye", "<type>rectilinear"), "there is no fisheye lens in it"},
        {changed(rows[9].file, "v120", "vx"), "a: line 3: \"v\" has a value that cannot be used"},
        {changed(rows[9].file, "a=0", "a=7"), "line 4: \"a\" has a value that cannot be used"},
        {changed(rows[10].file, "FocalLengthX=\"0.36\"", "F=\"1\""),
         "Acme 8: \"FocalLengthX\" is missing"},
        {QByteArray(1000, '<'), "line 1: "},
    };
    for (const auto& one : cases) {
        const ImportedLenses imported = ImportLensesFrom(one.file, Text("a"));
        EXPECT_TRUE(imported.lenses.isEmpty()) << one.error;
        const std::string error = ErrorText(imported.reason).toStdString();
        EXPECT_EQ(error.substr(0, std::max<std::size_t>(8, std::strlen(one.error))), one.error);
    }
}

TEST(ImportLenses, ExpandsNoEntitiesAndNestsNotTooDeep) {
    const QByteArray entities =
        "<!DOCTYPE lensdatabase [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
        "<lensdatabase><lens><model>&b;</model></lens></lensdatabase>";
    EXPECT_TRUE(ImportLensesFrom(entities, Text("a")).reason.Is(ReasonCode::AtLine));
    for (const char* const start : {"distortion: ", "dist:\n"}) {
        for (const char* const opening : {"[", "{a: ", "- "}) {
            const QByteArray deep = start + QByteArray(opening).repeated(100'000);
            EXPECT_TRUE(ImportLensesFrom(deep, Text("a")).lenses.isEmpty());
        }
    }
}

TEST(ImportLenses, ReadsFilesByTheirContents) {
    const QTemporaryDir folder;
    SampledLens lens = ImportLensesFrom(openCv, Text("/a/b.yml")).lenses[0];
    const QString path = folder.filePath(Text("lens.xml"));
    ASSERT_TRUE(WriteLensFile(path, lens));
    EXPECT_EQ(ImportLenses(path).lenses, QList{lens});
    EXPECT_EQ(ErrorText(ImportLenses(path + u'x').reason).toStdString(),
              path.toStdString() + "x: there is no such file");
}

// Where the package of lensfun's data is installed.
TEST(Lensfun, ListsTheFisheyesOfItsPackage) {
    const QList<SampledLens> lenses = LensfunFisheyes({Text("/usr/share/lensfun/version_1")});
    if (lenses.isEmpty()) {
        GTEST_SKIP() << "lensfun's data are not installed";
    }
    EXPECT_GE(lenses.size(), 28);
    for (const SampledLens& lens : lenses) {
        EXPECT_TRUE(CurveError(lens.knots).isEmpty());
        EXPECT_TRUE(lens.origin.source.contains(Text("CC BY-SA 3.0")));
    }
}

}  // namespace
}  // namespace varnel
