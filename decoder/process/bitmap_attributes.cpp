// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A block is a head, then items; an item is its head, its key and its value.
#include <array>
#include <cstring>
#include <optional>

#include "decoder/process/protocol.h"

namespace varnel {

namespace {

struct BlockHead {
    std::uint32_t dotsPerMetreX = 0;
    std::uint32_t dotsPerMetreY = 0;
};

constexpr std::uint32_t colourProfile = 0xFFFFFFFF;  // in place of a metadata model

struct ItemHead {
    std::uint32_t model = 0;
    std::uint32_t type = 0;   // of a tag's values; for the colour profile its flags
    std::uint32_t id = 0;     // the tag's number
    std::uint32_t count = 0;  // of values
    std::uint32_t keyLength = 0;
    std::uint32_t valueLength = 0;  // bytes
};

template <class T>
void Append(QByteArray& block, const T& value) {
    block.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void AppendItem(QByteArray& block, const ItemHead& head, const char* key, const void* value) {
    Append(block, head);
    block.append(key, head.keyLength);
    block.append(static_cast<const char*>(value), head.valueLength);
}

void AppendTag(QByteArray& block, FREE_IMAGE_MDMODEL model, FITAG* tag) {
    const char* const key = FreeImage_GetTagKey(tag);
    const void* const value = FreeImage_GetTagValue(tag);
    if (key == nullptr || value == nullptr) {
        return;
    }
    AppendItem(
        block,
        {static_cast<std::uint32_t>(model), static_cast<std::uint32_t>(FreeImage_GetTagType(tag)),
         FreeImage_GetTagID(tag), FreeImage_GetTagCount(tag),
         static_cast<std::uint32_t>(std::strlen(key)), FreeImage_GetTagLength(tag)},
        key, value);
}

void AppendModel(QByteArray& block, FIBITMAP* bitmap, FREE_IMAGE_MDMODEL model) {
    FITAG* tag = nullptr;
    FIMETADATA* const search = FreeImage_FindFirstMetadata(model, bitmap, &tag);
    if (search == nullptr) {
        return;
    }
    do {
        AppendTag(block, model, tag);
    } while (FreeImage_FindNextMetadata(search, &tag) == TRUE);
    FreeImage_FindCloseMetadata(search);
}

// Reads a block from its front; nothing once it is shorter than what is asked of it.
class BlockReader {
  public:
    explicit BlockReader(const QByteArray& block) : rest_(block) {}

    std::optional<QByteArrayView> Bytes(std::uint32_t length) {
        if (static_cast<std::uint64_t>(rest_.size()) < length) {
            return std::nullopt;
        }
        const QByteArrayView bytes = rest_.first(length);
        rest_ = rest_.sliced(length);
        return bytes;
    }

    template <class T>
    std::optional<T> Value() {
        const std::optional<QByteArrayView> bytes = Bytes(sizeof(T));
        if (!bytes) {
            return std::nullopt;
        }
        T value;
        std::memcpy(&value, bytes->data(), sizeof value);
        return value;
    }

    QByteArrayView Rest() const { return rest_; }

  private:
    QByteArrayView rest_;
};

struct TagDeleter {
    void operator()(FITAG* tag) const { FreeImage_DeleteTag(tag); }
};

// Bytes of one value, by the tag's type; 0 where there is no such type.
constexpr std::array<std::uint8_t, FIDT_IFD8 + 1> valueWidths{0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                              8, 4, 8, 4, 4, 0, 8, 8, 8};

// Whether the library may be given such a tag: it trusts counts.
bool IsSound(const ItemHead& head) {
    return head.model == FIMD_COMMENTS && head.type < valueWidths.size() && head.id <= 0xFFFF &&
           head.keyLength > 0 && valueWidths[head.type] > 0 &&
           std::uint64_t{valueWidths[head.type]} * head.count == head.valueLength;
}

void TakeTag(const ItemHead& head, const QByteArray& key, QByteArrayView value, FIBITMAP* bitmap) {
    const std::unique_ptr<FITAG, TagDeleter> tag(FreeImage_CreateTag());
    // Zero bytes inside would make the library see another key than the one that was sent.
    if (!tag || key.contains('\0')) {
        return;
    }
    FITAG* const made = tag.get();
    const bool filled =
        FreeImage_SetTagKey(made, key.constData()) == TRUE &&
        FreeImage_SetTagID(made, static_cast<WORD>(head.id)) == TRUE &&
        FreeImage_SetTagType(made, static_cast<FREE_IMAGE_MDTYPE>(static_cast<int>(head.type))) ==
            TRUE &&
        FreeImage_SetTagCount(made, head.count) == TRUE &&
        FreeImage_SetTagLength(made, head.valueLength) == TRUE &&
        FreeImage_SetTagValue(made, value.data()) == TRUE;
    if (filled) {
        FreeImage_SetMetadata(static_cast<FREE_IMAGE_MDMODEL>(static_cast<int>(head.model)), bitmap,
                              key.constData(), made);
    }
}

void TakeColourProfile(const ItemHead& head, QByteArrayView value, FIBITMAP* bitmap) {
    if (value.isEmpty()) {
        return;
    }
    // The library copies the bytes; its parameter only lacks a const.
    QByteArray copy = value.toByteArray();
    FIICCPROFILE* const profile =
        FreeImage_CreateICCProfile(bitmap, copy.data(), static_cast<long>(copy.size()));
    if (profile != nullptr) {
        profile->flags = static_cast<WORD>(head.type);
    }
}

}  // namespace

QByteArray PackExtras(FIBITMAP* bitmap) {
    QByteArray block;
    Append(block,
           BlockHead{FreeImage_GetDotsPerMeterX(bitmap), FreeImage_GetDotsPerMeterY(bitmap)});
    const FIICCPROFILE* const profile = FreeImage_GetICCProfile(bitmap);
    if (profile->data != nullptr && profile->size > 0) {
        AppendItem(block, {colourProfile, profile->flags, 0, 0, 0, profile->size}, "",
                   profile->data);
    }
    AppendModel(block, bitmap, FIMD_COMMENTS);
    return block;
}

void TakeExtras(const QByteArray& block, FIBITMAP* bitmap) {
    BlockReader reader(block);
    const std::optional<BlockHead> blockHead = reader.Value<BlockHead>();
    if (!blockHead) {
        return;
    }
    FreeImage_SetDotsPerMeterX(bitmap, blockHead->dotsPerMetreX);
    FreeImage_SetDotsPerMeterY(bitmap, blockHead->dotsPerMetreY);
    while (const std::optional<ItemHead> head = reader.Value<ItemHead>()) {
        const std::optional<QByteArrayView> key = reader.Bytes(head->keyLength);
        const std::optional<QByteArrayView> value =
            key ? reader.Bytes(head->valueLength) : std::nullopt;
        if (!value) {
            return;
        }
        if (head->model == colourProfile) {
            TakeColourProfile(*head, *value, bitmap);
        } else if (IsSound(*head)) {
            TakeTag(*head, key->toByteArray(), *value, bitmap);
        }
    }
}

QByteArray PackFileMetadata(const FileMetadata& metadata) {
    QByteArray block;
    Append(block, static_cast<std::uint32_t>(metadata.colourProfile.size()));
    return block + metadata.colourProfile + PackMetadata(metadata.metadata);
}

FileMetadata TakeFileMetadata(const QByteArray& block) {
    BlockReader reader(block);
    const std::optional<std::uint32_t> length = reader.Value<std::uint32_t>();
    const std::optional<QByteArrayView> profile = length ? reader.Bytes(*length) : std::nullopt;
    if (!profile) {
        return {};
    }
    return {UnpackMetadata(reader.Rest()), profile->toByteArray()};
}

}  // namespace varnel
