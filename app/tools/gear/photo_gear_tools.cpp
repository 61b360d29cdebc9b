// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/gear/photo_gear_tools.h"

#include <QApplication>
#include <QLayout>
#include <QLocale>

#include "gear/from_photo/photo_gear.h"
#include "gear/from_photo/photo_lens.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PhotoGearTools)
};

QString Millimetres(float width, float height) {
    const auto number = [](float side) {
        return QLocale().toString(static_cast<double>(side), 'f', 1);
    };
    return Texts::tr("%1 x %2 mm").arg(number(width), number(height));
}

QString GuessText(const PhotoGear& found, const std::optional<FoundCircle>& circle) {
    const QString guess = found.said.isEmpty()
                              ? Texts::tr("The gear of this photo is a guess.")
                              : Texts::tr("The gear of this photo is a guess: %1.").arg(found.said);
    const QString assumed =
        !circle ? Texts::tr("A typical fisheye is assumed, 180 degrees across the diagonal.")
        : circle->rough || circle->error > 0.01 * circle->radius
            ? Texts::tr(
                  "A typical fisheye is assumed, 180 degrees across the image circle, which "
                  "is not found exactly.")
            : Texts::tr("A typical fisheye is assumed, 180 degrees across the image circle.");
    return guess + u' ' + assumed;
}

QString PieceText(const FrameReading& reading, const ImageRecord& image) {
    const QString piece = Millimetres(image.SensorWidth, image.SensorHeight);
    if (!reading.cropped) {
        return Texts::tr("The image circle is not where the gear says; the photo's own is used.");
    }
    if (reading.source != GearSource::Circle) {
        return Texts::tr(
                   "Cropped, and no image circle was found: the largest piece of the sensor of "
                   "this shape is assumed, %1.")
            .arg(piece);
    }
    return (reading.doubts.scale
                ? Texts::tr("Cropped: it shows about %1 of the sensor by its image circle, which "
                            "is not found exactly.")
                : Texts::tr("Cropped: it shows %1 of the sensor by its image circle."))
        .arg(piece);
}

}  // namespace

PhotoGearTools::PhotoGearTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                               Workspace& workspace, SettingsStore& store, const WindowPorts& ports)
    : QObject(window),
      window_(window),
      view_(view),
      workspace_(workspace),
      dialogs_(ports.dialogs),
      gears_(workspace, store, ports.newGearReader,
             [&view] {
                 return !view.Locked() && QApplication::activeModalWidget() == nullptr &&
                        QApplication::mouseButtons() == Qt::NoButton;
             }),
      given_(new GivenBar(parts.pictures->parentWidget())),
      bar_(new GearBar(parts.pictures->parentWidget())) {
    QLayout* const column = parts.pictures->parentWidget()->layout();
    column->addWidget(given_);
    column->addWidget(bar_);
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &PhotoGearTools::Refresh);
    const auto soon = [this] { refresh_.start(0); };
    connect(&gears_, &PhotoGears::Changed, this, soon);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, soon);
    connect(&workspace_.model, &WorkspaceModel::PhotosAdded, this, [this] { closed_ = false; });
    connect(given_, &GivenBar::UndoWanted, this, [this] {
        if (!view_.Locked()) {
            workspace_.list.Undo();
        }
    });
    connect(given_, &GivenBar::Closed, this, [this] {
        closed_ = true;
        Refresh();
    });
    connect(bar_, &GearBar::GearChosen, this,
            [this](int n) { gears_.Use(options_.at(static_cast<std::size_t>(n))); });
    connect(bar_, &GearBar::DefineWanted, this, &PhotoGearTools::Define);
    connect(bar_, &GearBar::OtherFrameWanted, this, [this] { gears_.TakeOtherFrame(); });
    connect(bar_, &GearBar::SameWanted, this, [this] { gears_.GiveToAlike(); });
}

void PhotoGearTools::Refresh() {
    given_->ShowGiven(closed_ ? 0 : gears_.JustGiven());
    bar_->ShowDoubt(DoubtOfCurrent());
}

GearDoubt PhotoGearTools::DoubtOfCurrent() {
    GearDoubt doubt;
    const ImageRecord* const image = workspace_.model.list.Current();
    const WorkingState& state = workspace_.model.state;
    if (image == nullptr || !state.bitmaps.FullSourceBitmap) {
        return doubt;
    }
    const PhotoReading reading = gears_.CurrentReading();
    if (IsGuessed(*image)) {
        AddGuess(reading, doubt);
    } else if (state.settings.TakeGear && NamesPlainLens(reading.origin)) {
        doubt.text = tr("This photo was taken with %1, which is no fisheye: it keeps the gear %2.")
                         .arg(reading.origin.LensModel.simplified(), image->GearName);
    } else if (state.settings.TakeGear) {
        AddFrame(gears_.CurrentFrame(), doubt);
    }
    if (const std::size_t alike = gears_.Alike().size(); alike > 0) {
        doubt.maySame = true;
        if (doubt.text.isEmpty()) {
            doubt.text =
                tr("Photos of the same camera, lens and size with another gear: %1").arg(alike);
        }
    }
    return doubt;
}

void PhotoGearTools::AddGuess(const PhotoReading& reading, GearDoubt& doubt) {
    const GearTable& table = workspace_.model.state.Gear;
    const PhotoGear found = GearOfPhoto(reading.origin, table);
    doubt.text = GuessText(found, reading.circle);
    options_ = GearOptionsFor(reading.origin, table);
    for (const GearOption& option : options_) {
        doubt.gears.append(option.gear > 0 ? table(option.gear).GearName
                                           : BuiltGearName(option.names));
    }
    doubt.mayDefine = true;
}

void PhotoGearTools::AddFrame(const FrameChoice& choice, GearDoubt& doubt) const {
    const bool cropped = choice.reading.cropped;
    if (choice.use == FrameUse::AsPicture) {
        doubt.text = PieceText(choice.reading, *workspace_.model.list.Current());
        doubt.otherFrame = cropped ? tr("Take the whole sensor") : tr("Take the gear's circle");
    } else if (choice.use == FrameUse::AsGear) {
        doubt.text =
            cropped ? tr("The photo is taken for the whole sensor, though it has another shape.")
                    : tr("The gear's image circle is used, though the photo's is elsewhere.");
        doubt.otherFrame =
            cropped ? tr("Take a piece of the sensor") : tr("Take the photo's circle");
    }
}

// Like the offer in the status bar, but for a gear of which less is known.
void PhotoGearTools::Define() {
    const GearTable& table = workspace_.model.state.Gear;
    const PhotoGear found = GearOfPhoto(gears_.CurrentReading().origin, table);
    if (workspace_.model.activity.Busy() || view_.Locked() ||
        !dialogs_.DefineGear(GearNamed(found.names), window_)) {
        return;
    }
    workspace_.gears.Refill();
    gears_.Use({table.UpperBound(), NamesOf(table(table.UpperBound()))});
}

}  // namespace varnel
