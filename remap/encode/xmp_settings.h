// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The settings that made a picture, as XMP. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <optional>

#include "remap/image/photo_metadata.h"

namespace varnel {

// A packet with nothing but the settings.
QByteArray SettingsPacket(const PictureSettings& settings);

// The photo's packet with the settings; one of its own when the photo has none. None where the
// packet has no room for them.
std::optional<QByteArray> PacketWithSettings(const PhotoMetadata& photo,
                                             const PictureSettings& settings);

}  // namespace varnel
