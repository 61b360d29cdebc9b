// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/metadata/read_metadata.h"

#include <QRegularExpression>
#include <QStringList>
#include <exception>
#include <exiv2/exiv2.hpp>
#include <functional>
#include <string>

#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/profiles/rgb_profile.h"
#include "decoder/formats/readers/file_bytes.h"
#include "decoder/metadata/exif_block.h"
#include "decoder/metadata/xmp_packet.h"

namespace varnel {

namespace {

// The kinds of metadata that the library gave up on: it reports that in its messages only.
QStringList& GivenUp() {
    thread_local QStringList kinds;
    return kinds;
}

void Listen(int /*level*/, const char* message) {
    static const QRegularExpression failure(
        QStringLiteral("^Failed to decode (Exif|IPTC) metadata"));
    const auto match = failure.match(QString::fromUtf8(message));
    if (match.hasMatch()) {
        GivenUp().append(match.captured(1));
    }
}

QString Text(const Exiv2::ExifData& data, const char* key) {
    const auto datum = data.findKey(Exiv2::ExifKey(key));
    return datum == data.end() ? QString() : QString::fromStdString(datum->toString()).trimmed();
}

float Number(const Exiv2::ExifData& data, const char* key) {
    const auto datum = data.findKey(Exiv2::ExifKey(key));
    if (datum == data.end() || datum->count() == 0 || datum->toRational().second == 0) {
        return 0.0F;
    }
    return datum->toFloat();
}

// What the maker note's number stands for by the library's tables; empty when it has no name.
QString LensByMakerNote(const Exiv2::ExifData& data) {
    const auto datum = Exiv2::lensName(data);
    if (datum == data.end()) {
        return {};
    }
    const QString name = QString::fromStdString(datum->print(&data)).trimmed();
    const bool isName = !name.startsWith(u'(') && name.contains(QStringLiteral("mm"));
    return isName ? name : QString();
}

CameraInfo OriginOf(const Exiv2::ExifData& data) {
    if (data.empty()) {
        return {};
    }
    CameraInfo origin{.Make = Text(data, "Exif.Image.Make"),
                      .Model = Text(data, "Exif.Image.Model"),
                      .LensMake = Text(data, "Exif.Photo.LensMake"),
                      .LensModel = Text(data, "Exif.Photo.LensModel"),
                      .FocalLength = Number(data, "Exif.Photo.FocalLength"),
                      .FNumber = Number(data, "Exif.Photo.FNumber")};
    // "----" and the like, or the bare "8mm" of a camera that does not know the lens.
    constexpr qsizetype shortestName = 6;
    if (origin.LensModel.size() < shortestName || origin.LensModel.startsWith(u'-')) {
        const QString name = LensByMakerNote(data);
        origin.LensModel = name.isEmpty() ? origin.LensModel : name;
    }
    return origin;
}

Reason Unreadable(QStringView kind) {
    return {ReasonCode::KindUnreadable, kind.toString()};
}

class Reading {
  public:
    Reading(const MetadataSource& source, const MetadataRequest& request)
        : source_(source), file_(source.file), bytes_(source.file), request_(request) {}

    FileMetadata Answer() {
        Try(ReasonCode::MetadataUnreadable, [this] { Read(); });
        Try(Unreadable(u"EXIF"), [this] { TakeExif(); });
        Try(Unreadable(u"IPTC"), [this] { TakeIptc(); });
        Try(Unreadable(u"XMP"), [this] { TakeXmp(); });
        if (result_.metadata.xmp.isEmpty()) {  // broken, so it begins anew
            Try(Unreadable(u"XMP"), [this] { FillXmp({}, true, result_.metadata); });
        }
        if (result_.metadata.exif.bytes.isEmpty()) {
            Try(Unreadable(u"EXIF"), [this] { FillExif({}, Wishes(true), result_.metadata); });
        }
        return std::move(result_);
    }

  private:
    void Try(const Reason& note, const std::function<void()>& step) {
        try {
            step();
        } catch (const std::exception&) {
            Note(note);
        } catch (...) {  // whatever else the library may throw
            Note(note);
        }
    }
    void Note(const Reason& note) {
        if (!result_.metadata.notes.contains(note)) {
            result_.metadata.notes.append(note);
        }
    }

    void Read() {
        if (Format() == InputFormat::Heif) {
            TakeBlocks(source_.heifBlocks(PictureFile(file_)));
            return;
        }
        if (bytes_.Bytes() == nullptr ||
            ReadFrom(bytes_.Bytes(), static_cast<long>(bytes_.Length()))) {
            return;
        }
        // Broken EXIF must not cost the rest.
        const QByteArray rest = HeaderWithoutExif(PictureFile(file_));
        const bool isRead =
            !rest.isEmpty() && ReadFrom(reinterpret_cast<const Exiv2::byte*>(rest.constData()),
                                        static_cast<long>(rest.size()));
        Note(isRead ? Unreadable(u"EXIF") : ReasonCode::MetadataUnreadable);
    }

    // What was read before an error stays. False when there was one.
    bool ReadFrom(const Exiv2::byte* bytes, long length) {
        constexpr int unknown = 0;
        if (Exiv2::ImageFactory::getType(bytes, length) == unknown) {
            return true;
        }
        auto image = Exiv2::ImageFactory::open(bytes, length);
        GivenUp().clear();
        bool whole = true;
        try {
            image->readMetadata();
        } catch (const std::exception&) {
            whole = false;
        }
        Take(*image);
        return whole;
    }

    // The library here does not find them in all files of that type.
    void TakeBlocks(const MetadataBlocks& blocks) {
        packet_ = blocks.xmp;
        if (!packet_.isEmpty()) {
            Exiv2::XmpParser::decode(xmp_, packet_.toStdString());
        }
        if (!blocks.exif.isEmpty()) {
            order_ = Exiv2::ExifParser::decode(
                exif_, reinterpret_cast<const Exiv2::byte*>(blocks.exif.constData()),
                static_cast<std::uint32_t>(blocks.exif.size()));
        }
    }

    void Take(Exiv2::Image& image) {
        for (const QString& kind : GivenUp()) {
            Note(Unreadable(kind == u"Exif" ? QStringView(u"EXIF") : kind));
        }
        exif_ = image.exifData();
        iptc_ = image.iptcData();
        xmp_ = image.xmpData();
        packet_ = QByteArray::fromStdString(image.xmpPacket());
        if (image.byteOrder() != Exiv2::invalidByteOrder) {
            order_ = image.byteOrder();
        }
        if (exif_.empty() && !JpegExif(PictureFile(file_)).isEmpty()) {
            Note(Unreadable(u"EXIF"));
        }
        const auto* const profile = image.iccProfile();
        if (image.iccProfileDefined() && profile->size_ > 0) {
            const QByteArrayView bytes(reinterpret_cast<const char*>(profile->pData_),
                                       static_cast<qsizetype>(profile->size_));
            // That of a raw file is about the camera's preview.
            const bool isOfPicture = IsProfileForRgb(bytes) && Format() != InputFormat::Raw;
            result_.colourProfile = isOfPicture ? bytes.toByteArray() : QByteArray();
        }
    }

    // As they were loaded.
    bool PixelsAreUpright() const {
        const auto told = exif_.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
        return told == exif_.end() || told->count() == 0 || told->toLong() == 1 ||
               told->toLong() == request_.orientation || ComesUpright(Format());
    }
    InputFormat Format() const { return source_.format; }

    ExifWishes Wishes(bool upright) const {
        constexpr double metresPerInch = 0.0254;
        constexpr double usualDots = 72.0;
        const auto perInch = [](double perMetre) {
            return perMetre > 0.0 ? perMetre * metresPerInch : usualDots;
        };
        return {request_.size,
                upright,
                order_,
                perInch(request_.dotsPerMetreX),
                perInch(request_.dotsPerMetreY),
                !request_.hasProfile && result_.colourProfile.isEmpty()};
    }

    void TakeExif() {
        upright_ = PixelsAreUpright();
        result_.metadata.origin = OriginOf(exif_);
        FillExif(exif_, Wishes(upright_), result_.metadata);
    }
    void TakeIptc() {
        if (!iptc_.empty()) {
            const Exiv2::DataBuf bytes = Exiv2::IptcParser::encode(iptc_);
            result_.metadata.iptc = QByteArray(reinterpret_cast<const char*>(bytes.pData_),
                                               static_cast<qsizetype>(bytes.size_));
        }
    }
    // What the library is too strict for is kept as it stands.
    void TakeXmp() {
        if (!xmp_.empty() || packet_.isEmpty()) {
            FillXmp(xmp_, upright_, result_.metadata);
        } else if (!KeepXmp(packet_, result_.metadata)) {
            Note(Unreadable(u"XMP"));
        }
    }

    const MetadataSource source_;
    std::FILE* file_;
    bool upright_ = true;
    FileBytes bytes_;
    MetadataRequest request_;
    Exiv2::ExifData exif_;
    Exiv2::IptcData iptc_;
    Exiv2::XmpData xmp_;
    QByteArray packet_;  // XMP as it is in the file
    Exiv2::ByteOrder order_ = Exiv2::littleEndian;
    FileMetadata result_;
};

void Prepare() {
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::warn);
    Exiv2::LogMsg::setHandler(&Listen);
    Exiv2::enableBMFF(true);  // JPEG XL and CR3
    RegisterSettingsNamespace();
    Exiv2::ExifData camera;  // looks for the user's own lens names
    camera["Exif.Image.Make"] = "Canon";
    camera["Exif.CanonCs.LensType"] = std::uint16_t{0};
    LensByMakerNote(camera);
}

}  // namespace

MetadataRequest WantedFor(const LoadedPicture& picture) {
    MetadataRequest wanted{picture.size, picture.orientation};
    if (picture.bitmap) {
        const BitmapMetadata& metadata = picture.bitmap->metadata;
        wanted.dotsPerMetreX = metadata.dotsPerMetreX;
        wanted.dotsPerMetreY = metadata.dotsPerMetreY;
        wanted.hasProfile = !metadata.colourProfile.isEmpty();
    }
    return wanted;
}

FileMetadata ReadMetadata(const MetadataSource& source, const MetadataRequest& request) {
    try {
        PrepareMetadata();
        return Reading(source, request).Answer();
    } catch (const std::exception&) {  // no memory
        return UnreadMetadata();
    }
}

void PrepareMetadata() {
    static const bool prepared = (Prepare(), true);
    static_cast<void>(prepared);
}

}  // namespace varnel
