// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The straighten dialog, on a photo of the sample room by a lens that nobody listed.

#include "app/straighten/form_straighten.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>

#include "gear/lens/lens_file.h"
#include "remap/analysis/straighten/great_circle.h"
#include "remap/analysis/straighten/view_bend.h"
#include "samples/fisheye_shot.h"
#include "state/adjustments/measured_lens.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/settled.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

FisheyeShot Shot() {
    FisheyeShot shot;
    shot.size = {1000, 1000};
    shot.pixelsPerMillimetre = 42.0;
    shot.centreX = 503.0;
    shot.centreY = 498.0;
    shot.circleRadius = 11.0;
    shot.curve = {14.0F, 0.6F};  // not the typical one
    shot.samples = 2;
    return shot;
}

// The camera looks aside and down: straight along a room no edge tells of angles.
Ray InRoom(const Ray& ray) {
    const double down = 0.2, aside = 0.5;
    const Ray level{ray.x, std::cos(down) * ray.y - std::sin(down) * ray.z,
                    std::sin(down) * ray.y + std::cos(down) * ray.z};
    return {std::cos(aside) * level.x + std::sin(aside) * level.z, level.y,
            std::cos(aside) * level.z - std::sin(aside) * level.x};
}

LensView Truth() {
    const FisheyeShot shot = Shot();
    return ViewOfFormula(shot.kind, shot.curve, shot.pixelsPerMillimetre,
                         {shot.centreX + 0.5, shot.centreY + 0.5});
}

class Straightening : public testing::DialogTest<FormStraighten> {
  protected:
    void SetUp() override {
        room = files.Path(Q("room.png"));
        const BitmapHandle picture =
            TakeFisheye([](const Ray& ray) { return LookAt(InRoom(ray)); }, Shot());
        ASSERT_TRUE(SaveBitmap(OutputType::Png, picture.get(), room));
    }
    // On the room, of which nothing is known; measured.
    void Open() {
        form = std::make_unique<FormStraighten>(
            FormStraighten::Ports{photos, [this](const QString&) { return chosen; }, pool, lenses},
            std::nullopt);
        form->show();
        chosen = {room};
        Click("CmdAddPhotos");
        ASSERT_TRUE(Measured());
    }
    bool Measured() {
        return QTest::qWaitFor([this] { return !form->Model().Measuring(); }, 60'000) &&
               testing::Settle();
    }
    const EdgeOnPhoto& Edge(std::size_t n) const { return form->Model().Edges()[n]; }
    void ClickAt(const EdgePoint& place, Qt::MouseButton button = Qt::LeftButton) {
        auto& view = The<EdgeView>("PicEdges");
        const QPointF point(place.x, Shot().size.height - place.y);
        QTest::mouseClick(&view, button, {}, view.ToWidget().map(point).toPoint());
    }
    bool FiguresHave(const char* text) const {
        return The<QLabel>("LabelFigures").text().contains(Q(text));
    }

    testing::PictureFolder files;
    QString room;
    QStringList chosen;
    PhotoLoader photos{testing::Reader()};
    ThreadRunner pool;
    LensFolder lenses{files.Path(Q("lenses"))};
};

TEST_F(Straightening, MeasuresTheLensAndFollowsTheEdges) {
    Open();
    ASSERT_GE(form->Model().Edges().size(), 20U);
    EXPECT_EQ(The<QTableWidget>("EdgeTable").rowCount(),
              static_cast<int>(form->Model().Edges().size()));
    ASSERT_TRUE(form->Model().HasLens());
    EXPECT_TRUE(FiguresHave("Expected bend"));
    EXPECT_TRUE(FiguresHave("Angles not fixed"));
    // What is shown beside it is what was measured.
    const auto known = KnownLensOf(form->Model().Straightened(0));
    ASSERT_TRUE(known);
    EXPECT_LT(ViewBend(Truth(), known->view), 6.0);
    // A click in the middle of the longest edge.
    const EdgeTrace longest = Edge(0).trace;
    ClickAt(longest.points[longest.points.size() / 2]);
    EXPECT_TRUE(Edge(0).away);
    EXPECT_TRUE(form->Model().Measuring());
    ASSERT_TRUE(Measured());
    EXPECT_FALSE(Edge(0).result);
    // Two clicks near its ends trace it again.
    const std::size_t before = form->Model().Edges().size();
    ClickAt(longest.points.front());
    EXPECT_TRUE(Label("LabelStatus").contains(Q("other end")));
    ClickAt(longest.points.back());
    ASSERT_TRUE(Measured());
    ASSERT_EQ(form->Model().Edges().size(), before + 1);
    EXPECT_NEAR(Span(Edge(before).trace), Span(longest), 0.12 * Span(longest));
    ASSERT_TRUE(Edge(before).result);
    EXPECT_LT(Edge(before).result->rms, 0.3);
    // Where nothing is, nothing is traced, and it says so.
    ClickAt({20.0, 20.0});
    ClickAt({20.0, 120.0});
    ASSERT_TRUE(Measured());
    EXPECT_EQ(form->Model().Edges().size(), before + 1);
    EXPECT_TRUE(Label("LabelStatus").contains(Q("No edge was found")));
}

TEST_F(Straightening, TagsFixTheAngles) {
    Open();
    const LensView truth = Truth();
    for (std::size_t n = 0; n < form->Model().Edges().size(); ++n) {
        const Ray normal = InRoom(FitGreatCircle(truth, Edge(n).trace.points).normal);
        const char* const tag = std::fabs(normal.y) < 0.004   ? "CmdTagUpright"
                                : std::fabs(normal.x) < 0.004 ? "CmdTagLevel"
                                : std::fabs(normal.z) < 0.004 ? "CmdTagAway"
                                                              : nullptr;
        if (tag != nullptr && Edge(n).result && Edge(n).result->used) {
            The<QTableWidget>("EdgeTable").selectRow(static_cast<int>(n));
            Click(tag);
        }
    }
    ASSERT_TRUE(Measured());
    EXPECT_FALSE(FiguresHave("Angles not fixed"));
    const LensView& lens = form->Model().Result()->solved->lens;
    EXPECT_NEAR(lens.curve.At(truth.curve.Radius(0.9)).angle, 0.9, 0.01);
}

TEST_F(Straightening, KeepsTheLensUnderItsName) {
    Open();
    The<QLineEdit>("EditName").setText(Q("mine"));
    Click("CmdSaveLens");
    const SampledLensPointer kept = lenses.Find(Q("mine"));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->origin.photos, QStringList{Q("room.png")});
    EXPECT_FALSE(kept->red);
    Click("CmdSaveLens");
    EXPECT_FALSE(Label("LabelStatus").contains(Q("now among")));
    Click("CheckColour");
    ASSERT_TRUE(Measured());
    EXPECT_TRUE(form->Model().Lens({})->red);
    // A photo of another size is left out, and closing ends what runs.
    chosen = {files.Picture(Q("small.bmp"), OutputType::Bmp), room};
    Click("CmdAddPhotos");
    EXPECT_EQ(form->Model().Photos().size(), 2U);
    EXPECT_TRUE(Label("LabelStatus").contains(Q("small.bmp")));
    EXPECT_TRUE(form->Model().Measuring());
    Click("CmdClose");
    EXPECT_FALSE(form->Use());
}

}  // namespace
}  // namespace varnel
