// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/export/export_lens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/error_text.h"
#include "gear/lens/import/import_lenses.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

SampledLens Lens(double (*radius)(double), SampledLens::Unit unit) {
    SampledLens lens;
    lens.name = Text("Acme \"8 <mm>\" & more");
    lens.unit = unit;
    lens.knots = SampledFrom(radius, 1.6).knots;
    lens.centre = LensCentre{3010.25, 1990.5, {6000, 4000}};
    lens.pixelsPerUnit = 250.0;
    lens.origin.source = Text("a -- test");
    return lens;
}

SampledLens Real() {
    SampledLens lens = Lens([](double a) { return 8.0 * a * (1.0 - 0.03 * a * a); },
                            SampledLens::Unit::Millimetres);
    lens.red = ColourShift{0.002, 0.001, -0.0005};
    return lens;
}

// The largest distance in pixels between a lens and what was exported and read back.
double Between(const SampledLens& lens, const SampledLens& other) {
    const LensSpline one(lens), back(other);
    double largest = 0.0;
    for (double a = 0.0; a < std::min(one.FieldLimit(), back.FieldLimit()); a += 0.01) {
        largest =
            std::max(largest, std::abs(*lens.pixelsPerUnit * one.RadiusAt(a) -
                                       other.pixelsPerUnit.value_or(250.0) * back.RadiusAt(a)));
    }
    return largest;
}

TEST(ExportLens, ReadsBackWithinTheErrorThatItStates) {
    for (const LensFormat format : {LensFormat::OpenCv, LensFormat::Lensfun}) {
        const SampledLens lens = Real();
        const LensExport exported = ExportLens(lens, format, PictureOf(lens));
        const ImportedLenses back = ImportLensesFrom(exported.bytes, Text("x"));
        ASSERT_EQ(back.lenses.size(), 1)
            << exported.bytes.data() << ErrorText(back.reason).toStdString();
        EXPECT_LT(exported.largestError, 0.5);
        EXPECT_LE(exported.meanError, exported.largestError);
        EXPECT_LT(Between(lens, back.lenses[0]), exported.largestError + 0.02);
        EXPECT_GT(back.lenses[0].FieldLimit(), 1.4);
    }
}

TEST(ExportLens, FindsTheFormulaThatACurveComesFrom) {
    const SampledLens fourPowers =
        Lens([](double a) { return 10.0 * a * (1.0 + a * a * (0.05 - 0.02 * a * a)); },
             SampledLens::Unit::CircleRadii);
    const LensExport openCv = ExportLens(fourPowers, LensFormat::OpenCv, PictureOf(fourPowers));
    EXPECT_LT(openCv.largestError, 0.01);
    const SampledLens back = ImportLensesFrom(openCv.bytes, Text("x")).lenses[0];
    EXPECT_EQ(back.name, Text("Acme '8 <mm>' & more"));
    EXPECT_NEAR(back.centre->x, 3010.25, 1e-9);
    EXPECT_NEAR(back.centre->y, 1990.5, 1e-9);

    const SampledLens stereographic =
        Lens([](double a) { return 16.0 * std::tan(a / 2.0); }, SampledLens::Unit::Millimetres);
    const LensExport lensfun =
        ExportLens(stereographic, LensFormat::Lensfun, PictureOf(stereographic));
    EXPECT_LT(lensfun.largestError, 0.01);
    EXPECT_TRUE(lensfun.bytes.contains("<type>stereographic</type>"));
    EXPECT_EQ(ImportLensesFrom(lensfun.bytes, Text("x")).lenses[0].name, stereographic.name);
}

TEST(ExportLens, TakesTheColoursAlong) {
    const SampledLens lens = Real();
    const LensExport exported = ExportLens(lens, LensFormat::Lensfun, PictureOf(lens));
    const SampledLens back = ImportLensesFrom(exported.bytes, Text("x")).lenses[0];
    const auto at = [](const ColourShift& shift, double a) {
        return a * (shift.first + a * a * (shift.third + a * a * shift.fifth));
    };
    for (double a = 0.0; a < 1.5; a += 0.1) {
        EXPECT_NEAR(at(*back.red, a) * 250.0, at(*lens.red, a) * 250.0, 0.05) << a;
        EXPECT_NEAR(at(*back.blue, a) * 250.0, 0.0, 1e-6);
    }
}

TEST(ExportLens, SaysWhatThePictureLacks) {
    SampledLens lens = Real();
    const auto error = [&](LensFormat format) {
        return ErrorText(ExportLens(lens, format, PictureOf(lens)).reason).toStdString();
    };
    lens.unit = SampledLens::Unit::CircleRadii;
    EXPECT_EQ(error(LensFormat::Lensfun), "\"px_per_mm\" is missing");
    lens.pixelsPerUnit.reset();
    EXPECT_EQ(error(LensFormat::OpenCv), "\"px_per_unit\" is missing");
    EXPECT_EQ(ImportLensesFrom(ExportLens(lens, LensFormat::Json, {}).bytes, Text("x")).lenses,
              QList{lens});
}

}  // namespace
}  // namespace varnel
