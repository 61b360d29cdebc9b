// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The settings that made a picture and what it covers of the sphere, as XMP. Throws std::bad_alloc
// only.
#pragma once

#include <QByteArray>
#include <optional>

#include "remap/image/bitmap_metadata.h"

namespace varnel {

// Whether the picture has any of them.
bool HasOwnXmp(const BitmapMetadata& picture);

// A packet with nothing but these.
QByteArray OwnPacket(const BitmapMetadata& picture);

// The photo's packet with them; one of its own when the photo has none. None where the packet has
// no room for them.
std::optional<QByteArray> PacketWithOwn(const BitmapMetadata& picture);

}  // namespace varnel
