// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window at 1920 x 1080 with a photo of 24 megapixels: from an event to the painted frame,
// and from the last change to the sharp picture. Run with QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>

#include "app/picture/screen_pictures.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

// Notes when the widget has been painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }
    void Wait() {
        painted_ = false;
        while (!painted_) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();  // the paint event comes before the painting
    }

  private:
    bool painted_ = false;
};

// Another one each time, or nothing would be drawn.
int NextTilt() {
    static int steps = 0;
    return ++steps % 40;
}

TestWindow& Window(const char* view) {
    static auto* const workspace = [] {
        auto* const made = new TestWindow;  // as long as the program
        made->window.resize(1918, 1040);
        made->AddPhotos({QStringLiteral("photo.bmp")}, {6000, 4000});
        return made;
    }();
    workspace->Entry(view)->trigger();
    workspace->Click("OptionRemap_1");
    testing::Settle();
    return *workspace;
}

// A slider is dragged: each step to the painted draft.
void Drag(benchmark::State& state, const char* view) {
    TestWindow& workspace = Window(view);
    PaintWatch watch(workspace.Find("PicSmallTo"));
    QSlider* const slider = workspace.Slider("SliderX");
    slider->setSliderDown(true);
    for (auto _ : state) {
        slider->setSliderPosition(NextTilt());
        watch.Wait();
    }
    slider->setSliderDown(false);
    testing::Settle();
}

// From the last change to the sharp picture, the wait for rest included.
void Rest(benchmark::State& state, const char* view) {
    TestWindow& workspace = Window(view);
    auto* const sharp = workspace.window.findChild<ScreenPictures*>();
    for (auto _ : state) {
        bool done = false;
        const auto connection =
            QObject::connect(sharp, &ScreenPictures::Finished, [&done] { done = true; });
        workspace.Slider("SliderX")->setValue(NextTilt());
        QElapsedTimer time;
        time.start();
        while (!done) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
        state.SetIterationTime(static_cast<double>(time.nsecsElapsed()) * 1e-9);
        QObject::disconnect(connection);
    }
}

BENCHMARK_CAPTURE(Drag, split, "CmdViewSplit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Drag, result, "CmdViewResult")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rest, split, "CmdViewSplit")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(Rest, result, "CmdViewResult")->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace varnel

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
