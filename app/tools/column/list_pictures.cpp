// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/list_pictures.h"

#include <QEvent>
#include <chrono>
#include <numeric>

#include "base/run_time_error.h"
#include "remap/display/paint.h"
#include "remap/image/preview_size.h"
#include "remap/render/render.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

constexpr int afterInput = 400;            // ms for the photo that was clicked alone
constexpr int finer = 3;                   // of a result's source, so that it is not blurred
constexpr qsizetype mostBytes = 64 << 20;  // of pictures, and of sources

// What of a record its result depends on.
std::size_t HashOf(const ImageRecord& image) {
    const OutsideFill& outside = image.Outside;
    const std::size_t shape = qHashMulti(
        0, image.OutputWidth, image.OutputHeight, image.CropLeft, image.CropTop, image.CropWidth,
        image.CropHeight, static_cast<int>(outside.kind), outside.red, outside.green, outside.blue);
    const std::size_t further =
        qHashMulti(shape, image.PaniniD, image.PaniniSqueeze, image.UnrollStart,
                   image.UnrollDirection, image.UnrollFrom, image.UnrollTo, image.Marks ? 1 : 0,
                   static_cast<int>(image.Pose), image.Tunnel ? 1 : 0);
    const std::size_t all = std::accumulate(image.Faces.begin(), image.Faces.end(), further,
                                            [](std::size_t hash, const FaceEllipse& face) {
                                                return qHashMulti(hash, face.x, face.y, face.width,
                                                                  face.height, face.angle);
                                            });
    return qHashMulti(all, image.Projection, image.SensorWidth, image.SensorHeight,
                      image.ImageCircleRadius, image.LensMapScale, image.LensMapFactor,
                      image.OfsetX, image.OfsetY, image.Ratio, image.InputAOV, image.OutputAOV,
                      image.EffectVarnel, image.EffectRectilinear, image.RotateX, image.RotateY,
                      image.RotateZ, image.TranslateX, image.TranslateY, image.Orientation,
                      image.Lens ? image.Lens->name : QString());
}

QImage ResultOf(const Bitmap& source, const ImageRecord& image, PixelSize room) {
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap = CloneBitmap(&source);
    SilentProgress silent;
    RenderContext context{bitmaps, [] { return true; }};
    try {
        Render(ProjectionFromIndex(image.Projection), image, SizeKind::Thumbnails, silent, context);
    } catch (const RunTimeError&) {
        return ImageOf(&source);
    }
    const Bitmap* const whole = bitmaps.ResultBitmap.get();
    return ImageOf(ReducedCopy(whole, FittedSize(SizeOf(whole), room)).get());
}

}  // namespace

ListPictures::ListPictures(PhotoList& list, const Workspace& workspace, WorkingState& state,
                           NewSmallReader newReader)
    : list_(list),
      workspace_(workspace),
      state_(state),
      newReader_(std::move(newReader)),
      previews_(list, *this, PhotoList::pictureRole),
      sources_(mostBytes) {
    resume_.setSingleShot(true);
    connect(&resume_, &QTimer::timeout, this, [this] { previews_.Start(); });
    list_.installEventFilter(this);
    list_.viewport()->installEventFilter(this);
}

ListPictures::~ListPictures() {
    ListPictures::Cancel();
}

bool ListPictures::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) {
        previews_.Stop();
        resume_.start(afterInput);
    }
    return QObject::eventFilter(watched, event);
}

void ListPictures::ShowResults(bool on) {
    results_ = on;
    if (list_.count() == state_.Images.UpperBound()) {
        Follow();
    }
}

QString ListPictures::KeyOf(const ImageRecord& image) const {
    const QString path = SourcePath(image);
    return results_ && HasGearNumbers(image) ? path + u'\n' + QString::number(HashOf(image), 16)
                                             : path;
}

QSize ListPictures::PictureSize() const {
    return list_.iconSize() * list_.devicePixelRatioF();
}

void ListPictures::Follow() {
    if (newReader_ == nullptr) {
        return;
    }
    bool wanted = false;
    previews_.GoBeyondSight(list_.count() * 4LL * PictureSize().width() * PictureSize().height() <
                            mostBytes);
    for (int line = 0; line < list_.count(); ++line) {
        QListWidgetItem* const item = list_.item(line);
        const QString key = KeyOf(state_.Images(line + 1));
        if (item->data(PhotoList::pictureRole).toString() == key) {
            continue;
        }
        item->setData(PhotoList::pictureRole, key);
        if (const auto known = pictures_.constFind(key); known != pictures_.constEnd()) {
            item->setIcon(*known);
            IdlePreviews::MarkDone(*item);
        } else {
            IdlePreviews::MarkStale(*item);
            wanted = true;
        }
    }
    if (wanted) {
        previews_.Stop();
        resume_.start(afterInput);
    }
}

QListWidgetItem* ListPictures::LineOf(const QString& key) const {
    for (int line = 0; line < list_.count(); ++line) {
        if (list_.item(line)->data(PhotoList::pictureRole).toString() == key) {
            return list_.item(line);
        }
    }
    return nullptr;
}

void ListPictures::Begin(const QString& key) {
    underWay_ = key;
    record_ = state_.Images(list_.row(LineOf(key)) + 1);
    const QString path = SourcePath(record_);
    if (const Source* const known = sources_.object(path); known != nullptr && key != path) {
        BeginResult(*known);
        return;
    }
    if (!reader_) {
        reader_ = newReader_();
    }
    const QSize box = PictureSize() * (key == path ? 1 : finer);
    reader_->Begin(
        {path, ReadKind::Small, {box.width(), box.height()}, state_.settings.AutoOrient});
    reading_ = true;
}

// On another thread, with copies of its own: it may be given up at any time.
void ListPictures::BeginResult(const Source& source) {
    const QSize size = PictureSize();
    std::packaged_task<QImage()> task(
        [source, image = record_, room = PixelSize{size.width(), size.height()}] {
            return ResultOf(*source, image, room);
        });
    result_ = task.get_future();
    if (!state_.pool.Begin(task)) {
        task();
    }
}

std::optional<QImage> ListPictures::Take() {
    if (reading_) {
        return Read();
    }
    if (result_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        return std::nullopt;
    }
    try {
        return Keep(result_.get());
    } catch (const std::bad_alloc&) {
        return QImage();
    }
}

std::optional<QImage> ListPictures::Read() {
    if (!reader_->Wait(0)) {
        return std::nullopt;
    }
    reading_ = false;
    LoadedPicture picture = reader_->Take();
    const QString path = SourcePath(record_);
    if (!picture.reason.isEmpty()) {
        Q_EMIT PhotoRead(path, picture.reason);
    }
    if (picture.outcome == LoadOutcome::NotLoaded) {
        return QImage();
    }
    const Source source = std::move(picture.bitmap);
    if (underWay_ == path) {
        return Keep(ImageOf(source.get()));
    }
    constexpr int bytes = 3;  // of a pixel
    const PixelSize size = source->Size();
    sources_.insert(path, new Source(source), qsizetype{bytes} * size.width * size.height);
    BeginResult(source);
    return std::nullopt;
}

QImage ListPictures::Keep(const QImage& image) {
    QImage picture = image;
    picture.setDevicePixelRatio(list_.devicePixelRatioF());
    const qsizetype most = mostBytes / std::max<qsizetype>(picture.sizeInBytes(), 1);
    if (pictures_.size() >= most) {
        DropOutOfSight();
    }
    pictures_.insert(underWay_, QPixmap::fromImage(picture));
    return picture;
}

// Of lists and histories so long that all pictures would take too much memory.
void ListPictures::DropOutOfSight() {
    const QRect seen = list_.viewport()->rect();
    pictures_.clear();
    for (int line = 0; line < list_.count(); ++line) {
        QListWidgetItem* const item = list_.item(line);
        if (list_.visualItemRect(item).intersects(seen)) {
            continue;
        }
        item->setIcon({});
        IdlePreviews::MarkStale(*item);
    }
}

void ListPictures::Cancel() {
    if (reader_) {
        reader_->Cancel();
    }
    reading_ = false;
    result_ = {};
}

}  // namespace varnel
