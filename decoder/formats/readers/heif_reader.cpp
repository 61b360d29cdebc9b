// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// HEIC and AVIF files by libheif.
#include <libheif/heif.h>

#include <QtEndian>
#include <bit>
#include <utility>
#include <vector>

#include "base/released_by.h"
#include "decoder/formats/profiles/coded_colours.h"
#include "decoder/formats/readers/file_bytes.h"
#include "decoder/formats/readers/modern_formats.h"
#include "decoder/formats/readers/part_of_range.h"
#include "decoder/formats/readers/picture_forms.h"
#include "remap/image/library_messages.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

using Context = std::unique_ptr<heif_context, ReleasedBy<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, ReleasedBy<heif_image_handle_release>>;
using Image = std::unique_ptr<heif_image, ReleasedBy<heif_image_release>>;

// True when the step was done.
bool Succeeded(const heif_error& error) {
    if (error.code == heif_error_Memory_allocation_error) {
        throw std::bad_alloc();
    }
    if (error.code != heif_error_Ok) {
        AddLibraryMessage(QString::fromUtf8(error.message));
    }
    return error.code == heif_error_Ok;
}

heif_chroma ChromaOf(PixelFormat format) {
    const bool alpha = HasAlpha(format);
    if (SampleKindOf(format) == SampleKind::Byte) {
        return alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
    }
    if constexpr (std::endian::native == std::endian::little) {
        return alpha ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE;
    } else {
        return alpha ? heif_chroma_interleaved_RRGGBBAA_BE : heif_chroma_interleaved_RRGGBB_BE;
    }
}

// The picture in red, green and blue, of the size expected; else null.
Image Decoded(const heif_image_handle* handle, PixelFormat format) {
    heif_image* decoded = nullptr;
    if (!Succeeded(
            heif_decode_image(handle, &decoded, heif_colorspace_RGB, ChromaOf(format), nullptr))) {
        return nullptr;
    }
    Image image(decoded);
    const bool isExpected =
        heif_image_get_primary_width(decoded) == heif_image_handle_get_width(handle) &&
        heif_image_get_primary_height(decoded) == heif_image_handle_get_height(handle);
    return isExpected ? std::move(image) : nullptr;
}

template <class Sample>
void CopyRow(const std::uint8_t* from, std::uint8_t* to, std::int64_t width, std::size_t samples,
             int bits) {
    for (std::int64_t x = 0; x < width; ++x) {
        for (std::size_t place = 0; place < samples; ++place) {
            const auto sample = SampleAt<Sample>(from, place == 3 ? 3 : 2 - place);
            if constexpr (std::is_same_v<Sample, std::uint16_t>) {
                PutSample(to, place, ToWord(sample, bits));
            } else {
                PutSample(to, place, sample);
            }
        }
        from += samples * sizeof(Sample);
        to += samples * sizeof(Sample);
    }
}

// False when there are no pixels.
bool CopyPixels(const heif_image* image, PixelRows rows) {
    int pitch = 0;
    const std::uint8_t* from =
        heif_image_get_plane_readonly(image, heif_channel_interleaved, &pitch);
    if (from == nullptr) {
        return false;
    }
    const int width = heif_image_get_primary_width(image);
    const int bits = heif_image_get_bits_per_pixel_range(image, heif_channel_interleaved);
    const std::size_t samples = HasAlpha(rows.format) ? 4 : 3;
    for (int y = heif_image_get_primary_height(image) - 1; y >= 0; --y, from += pitch) {
        auto* const to = reinterpret_cast<std::uint8_t*>(rows.bottom) + rows.pitch * y;
        SampleKindOf(rows.format) == SampleKind::Byte
            ? CopyRow<std::uint8_t>(from, to, width, samples, bits)
            : CopyRow<std::uint16_t>(from, to, width, samples, bits);
    }
    return true;
}

class HeifReader : public DirectReader {
  public:
    explicit HeifReader(const PictureFile& file) : bytes_(file.File()) {}

    // False when that cannot be, for which there is a message.
    bool ReadHeader() {
        heif_image_handle* primary = nullptr;
        if (bytes_.Bytes() == nullptr ||
            !Succeeded(heif_context_read_from_memory_without_copy(
                context_.get(), bytes_.Bytes(), static_cast<std::size_t>(bytes_.Length()),
                nullptr)) ||
            !Succeeded(heif_context_get_primary_image_handle(context_.get(), &primary))) {
            return false;
        }
        picture_.reset(primary);
        const bool isDeep = heif_image_handle_get_luma_bits_per_pixel(primary) > 8;
        format_ = PixelFormatOf(isDeep ? SampleKind::Word : SampleKind::Byte,
                                heif_image_handle_has_alpha_channel(primary) != 0);
        return true;
    }

    StatedSize Size() const override {
        return {heif_image_handle_get_width(picture_.get()),
                heif_image_handle_get_height(picture_.get())};
    }
    PixelFormat Format() const override { return format_; }
    bool IsOnlyWay() const override { return true; }

    std::optional<BitmapMetadata> Read(PixelRows rows) override {
        const Image image = Decoded(picture_.get(), format_);
        if (!image || !CopyPixels(image.get(), rows)) {
            return std::nullopt;
        }
        BitmapMetadata metadata;
        metadata.colourProfile = Profile();
        return metadata;
    }

    BitmapHandle Small() override {
        heif_item_id name = 0;
        heif_image_handle* small = nullptr;
        if (heif_image_handle_get_list_of_thumbnail_IDs(picture_.get(), &name, 1) != 1 ||
            !Succeeded(heif_image_handle_get_thumbnail(picture_.get(), name, &small))) {
            return nullptr;
        }
        const Handle thumbnail(small);
        const Image image = Decoded(small, PixelFormat::Bgr8);
        if (!image) {
            return nullptr;
        }
        BitmapHandle bitmap = NewBitmap({heif_image_get_primary_width(image.get()),
                                         heif_image_get_primary_height(image.get())});
        return CopyPixels(image.get(), RowsOf(*bitmap)) ? std::move(bitmap) : nullptr;
    }

    MetadataBlocks Blocks() const {
        const heif_image_handle* const picture = picture_.get();
        std::vector<heif_item_id> names(static_cast<std::size_t>(
            heif_image_handle_get_number_of_metadata_blocks(picture, nullptr)));
        const int count = heif_image_handle_get_list_of_metadata_block_IDs(
            picture, nullptr, names.data(), static_cast<int>(names.size()));
        MetadataBlocks blocks;
        for (int n = 0; n < count; ++n) {
            const heif_item_id name = names[static_cast<std::size_t>(n)];
            const QByteArrayView type(heif_image_handle_get_metadata_type(picture, name));
            const QByteArrayView content(
                heif_image_handle_get_metadata_content_type(picture, name));
            if (type == "Exif") {
                blocks.exif = FromTiffHeader(Block(name));
            } else if (content == "application/rdf+xml") {
                blocks.xmp = Block(name);
            }
        }
        return blocks;
    }

  private:
    QByteArray Block(heif_item_id name) const {
        const heif_image_handle* const picture = picture_.get();
        QByteArray block(static_cast<qsizetype>(heif_image_handle_get_metadata_size(picture, name)),
                         '\0');
        const bool isThere = !block.isEmpty() &&
                             Succeeded(heif_image_handle_get_metadata(picture, name, block.data()));
        return isThere ? block : QByteArray();
    }
    // Its place stands in front of all.
    static QByteArray FromTiffHeader(const QByteArray& block) {
        constexpr qsizetype place = 4;
        return block.size() > place ? block.mid(place + qFromBigEndian<quint32>(block.constData()))
                                    : QByteArray();
    }

    QByteArray Profile() const {
        QByteArray profile(
            static_cast<qsizetype>(heif_image_handle_get_raw_color_profile_size(picture_.get())),
            '\0');
        const bool isThere =
            !profile.isEmpty() &&
            Succeeded(heif_image_handle_get_raw_color_profile(picture_.get(), profile.data()));
        return isThere ? profile : ProfileByCodes();
    }
    // Colours may be stated by numbers alone.
    QByteArray ProfileByCodes() const {
        heif_color_profile_nclx* codes = nullptr;
        const heif_error error = heif_image_handle_get_nclx_color_profile(picture_.get(), &codes);
        if (error.code != heif_error_Ok || codes == nullptr) {
            return {};
        }
        const std::unique_ptr<heif_color_profile_nclx, ReleasedBy<heif_nclx_color_profile_free>>
            owned(codes);
        return ProfileOfCodes(codes->color_primaries, codes->transfer_characteristics);
    }

    FileBytes bytes_;
    Context context_{heif_context_alloc()};
    Handle picture_;
    PixelFormat format_ = PixelFormat::Bgr8;
};

}  // namespace

std::unique_ptr<DirectReader> NewHeifReader(const PictureFile& file) {
    auto reader = std::make_unique<HeifReader>(file);
    return reader->ReadHeader() ? std::move(reader) : nullptr;
}

MetadataBlocks HeifBlocks(const PictureFile& file) {
    HeifReader reader(file);
    return reader.ReadHeader() ? reader.Blocks() : MetadataBlocks();
}

void PrepareHeif() {
    heif_init(nullptr);  // looks for more decoders in a folder
}

}  // namespace varnel
