// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What it takes to add a projection: a map and a row. The program of this test is linked with a
// list of its own, which has one more than Varnel ships; it has to appear wherever the others do.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <sstream>

#include "base/thread_runner.h"
#include "cli/convert.h"
#include "pipeline/conversion/morph_sequence.h"
#include "pipeline/dialogs/form_batch.h"
#include "pipeline/output/output_name.h"
#include "pipeline/photos/contact_sheet.h"
#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/smooth_map.h"
#include "remap/render/reference/render.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"
#include "tests/support/test_window.h"

namespace varnel {

namespace {

constexpr Projection slant{14};

// A picture that leans; how far follows the output angle of view.
class SlantMap : public SmoothMap {
  public:
    struct Formula {
        double lean;
        SourceOffset At(double x, double y) const { return {x + lean * y, 0.9137 * y}; }
    };

    SlantMap(const ImageRecord& image, const Frames& frames)
        : SmoothMap(frames.source, frames.output),
          formula_{static_cast<double>(image.OutputAOV) / 100.0} {}
    SourceOffset At(int x, int y) const override { return formula_.At(x, y); }
    std::unique_ptr<SmoothNodes> Nodes() const override {
        return std::make_unique<NodesBy<Formula>>(formula_);
    }

  private:
    Formula formula_;
};

std::unique_ptr<ProjectionMap> MakeSlant(const ImageRecord& image, const Frames& frames) {
    return std::make_unique<SlantMap>(image, frames);
}

constexpr std::array slantControls{ControlUse{SliderId::AovOutput, true, ControlRange{10, 90}}};
constexpr std::array slantHandles{FramePoint{0.0, 0.0}, FramePoint{1.0, 1.0}};
constexpr std::array slantTags{NameTag{u"_lean", &ImageRecord::OutputAOV, "OutputAOV", 2}};

constexpr ProjectionInfo slantRow{
    .id = slant,
    .key = u"Slant",
    .name = u"Slant",
    .title = "Slant",
    .tip = "Leans",
    .controls = slantControls,
    .frame = {SliderId::AovOutput, false, slantHandles},
    .tags = slantTags,
    .sheet = {SliderId::AovOutput, false, {20.0, 50.0, 80.0}},
    .Make = MakeSlant,
};

}  // namespace

std::span<const ProjectionInfo> ProjectionRows() {
    static const std::vector<ProjectionInfo> rows = [] {
        const auto shipped = ShippedProjections();
        std::vector<ProjectionInfo> all(shipped.begin(), shipped.end());
        all.push_back(slantRow);
        return all;
    }();
    return rows;
}

namespace {

using testing::Compare;
using testing::FisheyeRecord;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

ImageRecord SlantRecord() {
    ImageRecord record = FisheyeRecord();
    record.Projection = 14;
    record.OutputAOV = 41.3F;
    record.FileName = Q("IMG.jpg");
    return record;
}

TEST(FifthProjection, HasANameANumberAndTags) {
    EXPECT_EQ(ShippedProjections().size(), 14U);
    EXPECT_EQ(AllProjections().back(), slant);
    EXPECT_EQ(ProjectionFromText(u"slant"), slant);
    EXPECT_EQ(ProjectionFromIndex(14), slant);
    EXPECT_EQ(ProjectionFromIndex(15), Projection::Horizon);
    EXPECT_EQ(BatchName(SlantRecord(), Q("/o"), {}, OutputType::Jpeg),
              Q("/o/IMG.Slant_lean41.JPG"));
}

TEST(FifthProjection, IsDrawnAndMeasuredByWhatDrawsAndMeasuresAll) {
    const auto drawn = [](auto render, SizeKind kind, PixelSize size) {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = testing::PhotoLike({301, 200});
        bitmaps.PreviewSourceBitmap = testing::PhotoLike({301, 200});
        SilentProgress silent;
        RenderContext context{bitmaps};
        context.output = [size](const SourceFrame& photo) { return Resized(photo, size); };
        render(slant, SlantRecord(), kind, silent, context);
        return std::move(bitmaps.ResultBitmap);
    };
    for (const PixelSize size : {PixelSize{301, 200}, PixelSize{150, 100}}) {
        for (const SizeKind kind : {SizeKind::Large, SizeKind::Thumbnails}) {
            const BitmapHandle engine = drawn(&Render, kind, size);
            const auto difference =
                Compare(engine.get(), drawn(&reference::Render, kind, size).get());
            EXPECT_LE(difference.largest, 1);
            EXPECT_LT(difference.share, 0.01);
        }
    }
    const InverseMapping places(slant, SlantRecord(), {301, 200});
    const auto place = places.At(160, 120);
    ASSERT_TRUE(place);
    EXPECT_DOUBLE_EQ(place->x, 160.0 + 20.0 * static_cast<double>(41.3F) / 100.0);
    EXPECT_DOUBLE_EQ(place->y, 100.0 + 20.0 * 0.9137);
}

TEST(FifthProjection, IsOnTheContactSheetAndInSequences) {
    const std::vector<ContactTile> tiles = ContactTiles(SlantRecord());
    ASSERT_EQ(tiles.size(), 45U);
    EXPECT_EQ(tiles[43].title, Q("Slant 50° hAOV"));
    EXPECT_EQ(tiles[43].record.OutputAOV, 50.0F);
    MorphEnds ends = EndsFrom(SlantRecord());
    ends.start.OutputAOV = 40.0F;
    ends.end.OutputAOV = 60.0F;
    EXPECT_EQ(MorphFrame(SlantRecord(), ends, 2, 3).OutputAOV, 50.0F);
}

TEST(FifthProjection, IsAnOptionOfTheWindowWithItsControls) {
    testing::TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")});
    auto* const list = workspace.Find<QComboBox>("ProjectionCombo");
    EXPECT_EQ(list->itemText(list->findData(14)), Q("Slant"));
    workspace.ChooseProjection(slant);
    EXPECT_EQ(workspace.Record(1).Projection, 14);
    EXPECT_TRUE(workspace.Slider("SliderAOVoutput")->isVisible());
    EXPECT_EQ(workspace.Slider("SliderAOVoutput")->maximum(), 90);
    EXPECT_FALSE(workspace.Slider("SliderX")->isVisible());
    EXPECT_FALSE(workspace.Slider("SliderEffect")->isVisible());
    workspace.Click("OptionRemap_1");
    EXPECT_EQ(workspace.Slider("SliderAOVoutput")->maximum(), 180);
}

TEST(FifthProjection, HasABoxForItsNameInTheBatchDialogAndIsWritten) {
    testing::PictureFolder files;
    files.Picture(Q("IMG.bmp"), OutputType::Bmp);
    RecordArray<ImageRecord> queue;
    queue.Append(SlantRecord());
    queue(1).Folder = QDir::cleanPath(files.Path({}));
    queue(1).FileName = Q("IMG.bmp");
    BatchJob job;
    job.choices.folder = queue(1).Folder;
    job.choices.type = OutputType::Bmp;
    GeneralSettings settings;
    testing::FakeNotices notices;
    FormBatch form(queue, job, settings, notices, [](int) {});
    form.show();
    auto* const box = form.findChild<QLineEdit*>(Q("TextFileadditionSlant"));
    ASSERT_NE(box, nullptr);
    box->setText(Q("leans"));
    form.findChild<QAbstractButton*>(Q("CmdBatchProcess"))->click();
    EXPECT_TRUE(QFile::exists(files.Path(Q("IMG.leans_lean41.BMP"))));
}

TEST(FifthProjection, IsTakenByTheCommandLine) {
    testing::PictureFolder files;
    MemoryStore store;
    std::ostringstream out;
    std::ostringstream err;
    const auto run = [&](const QStringList& arguments) {
        return RunConvert(QStringList{Q("varnel-convert")} + arguments, store, {out, err, false});
    };
    const QString photo = files.Picture(Q("IMG.bmp"), OutputType::Bmp);
    EXPECT_EQ(run({Q("--camera"), Q("Canon/EOS 5D"), Q("--lens"), Q("Sigma/EX 8 mm f:3.5"),
                   Q("--projection"), Q("slant"), photo}),
              exitAllWritten)
        << err.str();
    EXPECT_TRUE(QFile::exists(files.Path(Q("IMG.Slant.TIF"))));
    run({Q("--help")});
    EXPECT_NE(out.str().find("unrolled\n  slant\n  all "), std::string::npos) << out.str();
    run({Q("--projection"), Q("round"), photo});
    EXPECT_NE(err.str().find("unrolled, slant or all"), std::string::npos) << err.str();
}

}  // namespace
}  // namespace varnel
