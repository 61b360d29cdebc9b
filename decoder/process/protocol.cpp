// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/protocol.h"

#include <QByteArray>
#include <QIODevice>
#include <algorithm>
#include <cstring>
#include <utility>

#include "decoder/request/picture_limits.h"
#include "remap/image/exif_orientation.h"
#include "remap/image/pixel_format.h"

namespace varnel {

namespace {

constexpr qsizetype longestText = 500;  // characters in a reason that is too long

QByteArray Packed(const Reason& reason) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << reason;
    return block;
}

Reason WithTextsCut(const Reason& reason, qsizetype longest) {
    std::vector<Reason::Argument> arguments = reason.Arguments();
    for (Reason::Argument& argument : arguments) {
        if (auto* const text = std::get_if<QString>(&argument)) {
            text->truncate(longest);
        } else if (auto* const nested = std::get_if<Reason>(&argument)) {
            *nested = WithTextsCut(*nested, longest);
        }
    }
    return {reason.Code(), std::move(arguments)};
}

// All is well without a reason only. That the user cancelled is not for the decoder to report.
bool IsConsistentReason(const DecoderAnswer& answer) {
    const std::optional<Reason> reason = ReasonOf(answer);
    const bool allWell = answer.outcome == static_cast<std::uint32_t>(LoadOutcome::Loaded);
    return reason && reason->isEmpty() == allWell && !reason->Is(ReasonCode::Cancelled);
}

// A picture with no more of its own than a reason or a size.
bool IsConsistentWithoutPixels(const DecoderAnswer& answer, const DecoderRequest& request) {
    if (answer.bitmap.width != 0 || answer.bitmap.height != 0 || answer.pitch != 0 ||
        answer.attributesLength != 0) {
        return false;
    }
    const bool refused = answer.outcome == static_cast<std::uint32_t>(LoadOutcome::NotLoaded);
    return refused || request.kind == ReadKind::Facts ||
           (request.kind == ReadKind::Size &&
            SizeError(answer.size.width, answer.size.height, request.memory).isEmpty());
}

bool BelievablePixels(const DecoderAnswer& answer, const DecoderRequest& request) {
    const PixelSize bitmap = answer.bitmap;
    if (answer.format > static_cast<std::uint32_t>(lastPhotoFormat)) {
        return false;
    }
    const auto format = static_cast<PixelFormat>(answer.format);
    const bool isWhole = request.kind == ReadKind::Whole;
    if (format != PixelFormat::Bgr8 && !(isWhole && request.depth == ReadDepth::Own)) {
        return false;
    }
    if (!SizeError(bitmap.width, bitmap.height, request.memory, format).isEmpty()) {
        return false;
    }
    if (request.kind == ReadKind::Small &&
        (bitmap.width > request.box.width || bitmap.height > request.box.height)) {
        return false;
    }
    if (isWhole && (answer.size.width != bitmap.width || answer.size.height != bitmap.height)) {
        return false;
    }
    return answer.pitch == RowPitch(bitmap.width, format) &&
           answer.attributesLength <= longestBlock;
}

// Whether rows and attributes are there.
bool FitsIn(const DecoderAnswer& answer, std::uint64_t memoryFileLength) {
    return PlaceBehindRows(answer) + answer.attributesLength <= memoryFileLength;
}

bool IsForRequest(const DecoderAnswer& answer, const DecoderRequest& request) {
    return answer.number == request.number && answer.reasonLength <= longestReason &&
           IsOrientation(answer.orientation) && (answer.orientation == 1 || request.upright);
}

}  // namespace

bool IsConsistent(const DecoderAnswer& answer, const DecoderRequest& request,
                  std::uint64_t memoryFileLength) {
    if (!IsForRequest(answer, request) ||
        answer.outcome > static_cast<std::uint32_t>(LoadOutcome::NotLoaded) ||
        !IsConsistentReason(answer)) {
        return false;
    }
    const bool hasPixels = request.kind != ReadKind::Size && request.kind != ReadKind::Facts &&
                           answer.outcome != static_cast<std::uint32_t>(LoadOutcome::NotLoaded);
    return hasPixels ? BelievablePixels(answer, request) && FitsIn(answer, memoryFileLength)
                     : IsConsistentWithoutPixels(answer, request);
}

bool IsConsistentInPieces(const DecoderAnswer& answer, const DecoderRequest& request,
                          std::uint64_t memoryFileLength) {
    const bool isPlanar = answer.isPlanar != 0;
    return request.inPieces && answer.outcome == inPieces && IsForRequest(answer, request) &&
           (!isPlanar || (request.planar && answer.orientation == 1)) &&
           answer.format == static_cast<std::uint32_t>(PixelFormat::Bgr8) &&
           BelievablePixels(answer, request) && FitsIn(answer, memoryFileLength);
}

bool IsConsistentEnd(const DecoderAnswer& answer, const DecoderRequest& request) {
    return IsForRequest(answer, request) &&
           answer.outcome <= static_cast<std::uint32_t>(LoadOutcome::Damaged) &&
           IsConsistentReason(answer);
}

bool IsConsistentMetadata(const DecoderAnswer& answer, const DecoderAnswer& first,
                          std::uint64_t memoryFileLength) {
    return answer.number == first.number && answer.metadataLength <= longestBlock &&
           PlaceBehindRows(first) + first.attributesLength + answer.metadataLength <=
               memoryFileLength;
}

PieceLayout::PieceLayout(PixelSize size, bool isPlanar)
    : pitch(RowPitch(size.width)), stored(size), planar(isPlanar) {
    // Together they stay in a core's cache; in whole blocks of the coding.
    constexpr std::size_t most = std::size_t{256} << 10;
    constexpr int blockRows = PiecePlanes::blockRows;
    rows = std::max(static_cast<int>(most / pitch) / blockRows, 1) * blockRows;
    count = (size.height + rows - 1) / rows;
}

PieceLayout LayoutOf(const DecoderAnswer& first) {
    return {Turned(first.bitmap, first.orientation), first.isPlanar != 0};
}

std::uint64_t PlaceBehindRows(const DecoderAnswer& first) {
    return first.outcome == inPieces ? LayoutOf(first).Length() : RowBytes(first);
}

void SetReason(DecoderAnswer& answer, const Reason& reason) {
    QByteArray block = Packed(reason);
    for (qsizetype longest = longestText; block.size() > qsizetype{longestReason}; longest /= 2) {
        block = Packed(WithTextsCut(reason, longest));
    }
    answer.reasonLength = static_cast<std::uint32_t>(block.size());
    std::memcpy(answer.reason.data(), block.constData(), answer.reasonLength);
}

std::optional<Reason> ReasonOf(const DecoderAnswer& answer) {
    const auto length = std::min<std::size_t>(answer.reasonLength, longestReason);
    QDataStream in(QByteArray::fromRawData(answer.reason.data(), static_cast<qsizetype>(length)));
    Reason reason;
    if (length > 0) {
        in >> reason;
    }
    return in.status() == QDataStream::Ok && in.atEnd() ? std::optional(reason) : std::nullopt;
}

}  // namespace varnel
