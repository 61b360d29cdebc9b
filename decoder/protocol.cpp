// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/protocol.h"

#include <algorithm>

#include "decoder/picture_limits.h"
#include "remap/row_pitch.h"
#include "remap/turn.h"

namespace varnel {

namespace {

// A picture with no more of its own than a reason or a size.
bool BelievableWithoutPixels(const DecoderAnswer& answer, const DecoderRequest& request) {
    if (answer.bitmap.width != 0 || answer.bitmap.height != 0 || answer.pitch != 0 ||
        answer.extrasLength != 0) {
        return false;
    }
    const bool refused = answer.outcome == static_cast<std::uint32_t>(LoadOutcome::NotLoaded);
    return refused || request.kind == ReadKind::Facts ||
           (request.kind == ReadKind::Size &&
            SizeTrouble(answer.size.width, answer.size.height, request.memory).isEmpty());
}

bool BelievablePixels(const DecoderAnswer& answer, const DecoderRequest& request,
                      std::uint64_t memoryFileLength) {
    const PixelSize bitmap = answer.bitmap;
    if (!SizeTrouble(bitmap.width, bitmap.height, request.memory).isEmpty()) {
        return false;
    }
    if (request.kind == ReadKind::Small &&
        (bitmap.width > request.box.width || bitmap.height > request.box.height)) {
        return false;
    }
    if (request.kind == ReadKind::Whole &&
        (answer.size.width != bitmap.width || answer.size.height != bitmap.height)) {
        return false;
    }
    return answer.pitch == RowPitch(bitmap.width) && answer.extrasLength <= longestExtras &&
           RowBytes(answer) + answer.extrasLength <= memoryFileLength;
}

}  // namespace

bool Believable(const DecoderAnswer& answer, const DecoderRequest& request,
                std::uint64_t memoryFileLength) {
    if (answer.number != request.number || answer.reasonLength > longestReason ||
        answer.outcome > static_cast<std::uint32_t>(LoadOutcome::NotLoaded) ||
        !IsOrientation(answer.orientation) || (answer.orientation != 1 && !request.upright)) {
        return false;
    }
    const bool hasPixels = request.kind != ReadKind::Size && request.kind != ReadKind::Facts &&
                           answer.outcome != static_cast<std::uint32_t>(LoadOutcome::NotLoaded);
    return hasPixels ? BelievablePixels(answer, request, memoryFileLength)
                     : BelievableWithoutPixels(answer, request);
}

bool BelievableMetadata(const DecoderAnswer& answer, const DecoderAnswer& first,
                        std::uint64_t memoryFileLength) {
    return answer.number == first.number && answer.metadataLength <= longestExtras &&
           RowBytes(first) + first.extrasLength + answer.metadataLength <= memoryFileLength;
}

QString ReasonOf(const DecoderAnswer& answer) {
    const auto length = std::min<std::size_t>(answer.reasonLength, longestReason);
    QString text = QString::fromUtf8(answer.reason.data(), static_cast<qsizetype>(length));
    // One line that can stand in a message, whatever a library made of a file's bytes.
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return !character.isPrint(); }, u' ');
    return text.simplified();
}

}  // namespace varnel
