// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_morph.h"

#include <QCoreApplication>
#include <QSpinBox>
#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/rounding.h"
#include "base/run_time_error.h"
#include "base/shortage.h"
#include "pipeline/dialogs/slider_binding.h"
#include "remap/display/paint.h"
#include "remap/image/preview_size.h"
#include "remap/render/render.h"
#include "ui_form_morph.h"

namespace varnel {

namespace {

constexpr PixelSize pictureBox{240, 180};  // logical pixels
// Drawn larger than shown: a projection that magnifies would be a blur otherwise.
constexpr double drawnLarger = 2.0;

// The sliders of the dialog, in its order, and the value that each pair of them moves.
struct Pair {
    SliderId id;
    float MorphValues::*value;
};
constexpr std::array pairs{
    Pair{SliderId::AovOutput, &MorphValues::OutputAOV},
    Pair{SliderId::Effect, &MorphValues::effect},
    Pair{SliderId::PaniniD, &MorphValues::PaniniD},
    Pair{SliderId::PaniniSqueeze, &MorphValues::PaniniSqueeze},
    Pair{SliderId::UnrollStart, &MorphValues::UnrollStart},
    Pair{SliderId::UnrollFrom, &MorphValues::UnrollFrom},
    Pair{SliderId::UnrollTo, &MorphValues::UnrollTo},
    Pair{SliderId::X, &MorphValues::RotateX},
    Pair{SliderId::Y, &MorphValues::RotateY},
    Pair{SliderId::Z, &MorphValues::RotateZ},
    Pair{SliderId::XTranslate, &MorphValues::TranslateX},
    Pair{SliderId::YTranslate, &MorphValues::TranslateY},
};

// What most projections read is there for all, marked where it has no use.
bool HasPair(Projection projection, SliderId id) {
    return id < SliderId::PaniniD || Reads(projection, id);
}

float FactorOf(SliderId id) {
    const ControlField* const field = FieldOf(id);
    return field == nullptr ? 1.0F : static_cast<float>(field->factor);
}

// As on the main window, but here the shifts read in degrees while they are 0, too.
QString MorphCaption(const SliderRowData& facts, int value) {
    return value == 0 && facts.zero != nullptr ? QStringLiteral("0°") : SliderCaption(facts, value);
}

QString Translated(const char* text) {
    return QCoreApplication::translate("Sliders", text);
}

// Where a slider stands for a value, rounded as on the main window.
int PlaceOf(const SliderRowData& facts, const ControlRange& range, float value) {
    const double number = std::isnan(value) ? 0.0 : static_cast<double>(value);
    return CLng(std::clamp<double>(number, range.minimum, range.maximum), facts.slider);
}

QString HeadingName(const SliderRowData& facts) {
    return QStringLiteral("Heading") + QLatin1StringView(facts.slider);
}

QSlider* MakeSlider(const SliderRowData& facts, const ControlRange& range, QWidget* parent) {
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setRange(range.minimum, range.maximum);
    slider->setSingleStep(facts.smallChange);
    slider->setPageStep(facts.largeChange);
    slider->setTickInterval(facts.tickInterval);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setToolTip(Translated(facts.tip));
    return slider;
}

QPixmap InPictureBox(const QImage& image, double ratio) {
    const QSize box = QSize(pictureBox.width, pictureBox.height) * ratio;
    const bool fits = image.width() <= box.width() && image.height() <= box.height();
    QPixmap pixmap = QPixmap::fromImage(
        fits ? image : image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

void AddGroupLabel(QGridLayout& grid, int gridRow, const QString& text) {
    auto* const label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setContentsMargins(0, 6, 0, 0);
    grid.addWidget(label, gridRow, 0);
}

}  // namespace

FormMorph::FormMorph(const ImageRecord& image, const Bitmap* previewSource,
                     RecordArray<ImageRecord>& queue, ThreadRunner& pool, Notices& notices,
                     std::function<void(int)> queueChanged, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormMorph>()),
      image_(image),
      ends_(EndsFrom(image)),
      queue_(queue),
      notices_(notices),
      queueChanged_(std::move(queueChanged)),
      pool_(pool) {
    ui_->setupUi(this);
    BuildPairs();
    MarkUnused();
    SetUpPictures(previewSource);
    OfferFilm({});
    ConnectControls();
    ShowFrameCount();
    ui_->SliderScrub->setValue((ui_->SliderScrub->maximum() + 1) / 2);
}

FormMorph::~FormMorph() = default;

void FormMorph::BuildPairs() {
    // The captions change their length while sliders move; the columns must not.
    const int widest = fontMetrics().horizontalAdvance(QStringLiteral("180° c.clockwise"));
    ui_->LayoutPairs->setColumnMinimumWidth(3, widest);
    ui_->LayoutPairs->setColumnMinimumWidth(7, widest);
    int gridRow = 1;  // below "Start" and "End"
    for (const Pair& pair : pairs) {
        if (!HasPair(ItsProjection(), pair.id)) {
            continue;
        }
        if (pair.id == SliderId::X || pair.id == SliderId::XTranslate) {
            AddGroupLabel(*ui_->LayoutPairs, gridRow++, GroupName(pair.id));
        }
        AddPair(SliderRowOf(pair.id), pair.value, gridRow++);
    }
    QWidget* before = ui_->SliderScrub;
    const auto controls = ui_->FramePairs->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* const control : controls) {
        if (control->focusPolicy() != Qt::NoFocus) {
            setTabOrder(before, control);
            before = control;
        }
    }
    setTabOrder(before, ui_->TextNumImages);
}

void FormMorph::AddPair(const SliderRowData& facts, float MorphValues::*value, int gridRow) {
    auto* const heading = new QLabel(Translated(facts.heading), ui_->FramePairs);
    heading->setObjectName(HeadingName(facts));
    heading->setAccessibleName(SpokenName(facts));
    heading->setToolTip(Translated(facts.tip));
    ui_->LayoutPairs->addWidget(heading, gridRow, 0);
    const QList<QSlider*> both{AddEnd(facts, {gridRow, 1}, First, ends_.start.*value),
                               AddEnd(facts, {gridRow, 5}, Last, ends_.end.*value)};
    heading->setBuddy(both.constFirst());
    if (facts.resets) {
        ResetByDoubleClick(*heading, both);
    }
}

QSlider* FormMorph::AddEnd(const SliderRowData& facts, GridPlace place, Picture picture,
                           float& value) {
    const QString end = picture == First ? QStringLiteral("Start") : QStringLiteral("End");
    const ControlRange range = RangeOf(facts.id, ItsProjection());
    QSlider* const slider = MakeSlider(facts, range, ui_->FramePairs);
    slider->setObjectName(QLatin1StringView(facts.slider) + end);
    slider->setAccessibleName(
        (picture == First ? tr("%1 at the start") : tr("%1 at the end")).arg(SpokenName(facts)));
    // The sequence keeps what the photo has, fractions and all, until the slider is moved.
    const bool unknown = facts.id == SliderId::Effect && !Reads(ItsProjection(), facts.id);
    const float factor = FactorOf(facts.id);
    const int shown = unknown ? facts.start : PlaceOf(facts, range, value * factor);
    slider->setValue(shown);
    auto* const spinBox = new QSpinBox(ui_->FramePairs);
    spinBox->setObjectName(QStringLiteral("Spin") + slider->objectName());
    Bind(*slider, *spinBox);
    auto* const label = new QLabel(MorphCaption(facts, shown), ui_->FramePairs);
    label->setObjectName(QLatin1StringView(facts.valueLabel) + end);
    ui_->LayoutPairs->addWidget(slider, place.row, place.column);
    ui_->LayoutPairs->addWidget(spinBox, place.row, place.column + 1);
    ui_->LayoutPairs->addWidget(label, place.row, place.column + 2);
    connect(slider, &QSlider::valueChanged, this,
            [this, label, picture, factor, &facts, &value](int now) {
                value = static_cast<float>(now) / factor;
                label->setText(MorphCaption(facts, now));
                DrawLater(picture);
                DrawLater(Between);
            });
    return slider;
}

void FormMorph::MarkUnused() {
    bool any = false;
    for (const Pair& pair : pairs) {
        const SliderRowData& facts = SliderRowOf(pair.id);
        if (HasPair(ItsProjection(), facts.id) && !Reads(ItsProjection(), facts.id)) {
            auto* const heading = findChild<QLabel*>(HeadingName(facts));
            heading->setText(heading->text() + QStringLiteral(" *"));
            heading->setForegroundRole(QPalette::PlaceholderText);
            any = true;
        }
    }
    ui_->LabelUnused->setText(
        tr("* The projection %1 does not use this.").arg(TitleOf(ItsProjection())));
    ui_->LabelUnused->setForegroundRole(QPalette::PlaceholderText);
    ui_->LabelUnused->setVisible(any);
}

void FormMorph::SetUpPictures(const Bitmap* previewSource) {
    for (QLabel* const label : {ui_->PicFirst, ui_->PicBetween, ui_->PicLast}) {
        label->setMinimumSize(pictureBox.width, pictureBox.height);
        label->setWordWrap(true);
    }
    if (previewSource != nullptr) {
        const double ratio = devicePixelRatioF() * drawnLarger;
        const PixelSize box{CLng(pictureBox.width * ratio, ReasonCode::Side),
                            CLng(pictureBox.height * ratio, ReasonCode::Side)};
        const QString shortage = Shortage([&] {
            bitmaps_.PreviewSourceBitmap =
                ReducedCopy(previewSource, PreviewSize(SizeOf(previewSource), box, box));
        });
        noPreview_ = shortage.isEmpty() ? noPreview_ : shortage;
    }
    for (const Picture picture : {First, Between, Last}) {
        DrawLater(picture);
    }
}

void FormMorph::ConnectControls() {
    drawTimer_.setSingleShot(true);
    drawTimer_.setInterval(0);
    connect(&drawTimer_, &QTimer::timeout, this, &FormMorph::DrawPending);
    connect(ui_->TextNumImages, &QLineEdit::textChanged, this, &FormMorph::ShowFrameCount);
    connect(ui_->SliderScrub, &QSlider::valueChanged, this, [this] {
        ShowBetweenTitle();
        DrawLater(Between);
    });
    connect(ui_->CmdAddMorphToBatch, &QPushButton::clicked, this, &FormMorph::AddOrWrite);
    connect(ui_->CmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

int FormMorph::FrameCount() const {
    const auto count = FrameCountFromText(ui_->TextNumImages->text());
    const int* const N = std::get_if<int>(&count);
    return N != nullptr && *N >= 2 ? *N : 0;
}

void FormMorph::ShowFrameCount() {
    const int N = FrameCount();
    ui_->LabelAdded->clear();
    ui_->SliderScrub->setEnabled(N > 0);
    if (N > 0) {
        const int before = ui_->SliderScrub->maximum();
        const double way = (ui_->SliderScrub->value() - 1.0) / std::max(before - 1, 1);
        ui_->SliderScrub->setRange(1, N);
        ui_->SliderScrub->setPageStep(std::max(N / 10, 1));
        ui_->SliderScrub->setValue(1 + CLng(way * (N - 1), ReasonCode::ImageNumber));
    }
    ShowBetweenTitle();
    ShowFilmChoice();
    DrawLater(Between);
}

void FormMorph::ShowBetweenTitle() {
    const int N = FrameCount();
    ui_->LabelBetween->setText(N > 0 ? tr("Image %1 of %2").arg(ui_->SliderScrub->value()).arg(N)
                                     : tr("Between"));
}

void FormMorph::DrawLater(Picture picture) {
    pending_[picture] = true;
    drawTimer_.start();
}

void FormMorph::DrawPending() {
    const std::array<bool, 3> pending = std::exchange(pending_, {});
    if (pending[First]) {
        Draw(*ui_->PicFirst, 1, 2);
    }
    if (pending[Between]) {
        Draw(*ui_->PicBetween, ui_->SliderScrub->value(), FrameCount());
    }
    if (pending[Last]) {
        Draw(*ui_->PicLast, 2, 2);
    }
}

void FormMorph::Draw(QLabel& label, int i, int N) {
    if (!bitmaps_.PreviewSourceBitmap || N == 0) {
        label.setText(noPreview_);
        return;
    }
    SilentProgress silent;
    RenderContext context{bitmaps_, [] { return true; }, &pool_};
    QString message;
    try {
        message = Shortage([&] {
            Render(ItsProjection(), MorphFrame(image_, ends_, i, N), SizeKind::Thumbnails, silent,
                   context);
            label.setPixmap(
                InPictureBox(ImageOf(bitmaps_.ResultBitmap.get()), devicePixelRatioF()));
        });
    } catch (const RunTimeError& error) {
        message = ErrorText(ReasonFor(error));
    }
    if (!message.isEmpty()) {
        label.setText(message);
    }
}

std::optional<int> FormMorph::TypedCount() {
    const auto count = FrameCountFromText(ui_->TextNumImages->text());
    ui_->TextNumImages->setFocus();
    ui_->TextNumImages->selectAll();
    if (const auto* error = std::get_if<QString>(&count)) {
        notices_.Tell(*error, QString());
        return std::nullopt;
    }
    return std::get<int>(count);
}

void FormMorph::AddFrames() {
    const std::optional<int> count = TypedCount();
    if (!count) {
        return;
    }
    const int N = *count;
    try {
        AddMorph(queue_, image_, ends_, N);
    } catch (const RunTimeError& error) {
        notices_.Tell(tr("No images were added"), ErrorText(ReasonFor(error)));
        return;
    } catch (const std::bad_alloc&) {
        notices_.Tell(tr("No images were added"), ShortageText(Scarce::Memory));
        return;
    }
    if (N < 1) {
        ui_->LabelAdded->setText(tr("No images were added"));
        return;
    }
    ui_->LabelAdded->setText(
        tr("%1 images added, %2 in the batch que").arg(N).arg(queue_.UpperBound()));
    queueChanged_(queue_.UpperBound());
}

}  // namespace varnel
