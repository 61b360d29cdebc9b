// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Faces as text: x,y,width,height,angle of each, as FaceEllipse has them, semicolons between them.
// Numbers have a decimal point whatever the locale and come back bit by bit. Throws std::bad_alloc
// only.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "state/records/face_ellipse.h"

namespace varnel {

inline constexpr std::size_t mostFaces = 64;

QString TextOfFaces(const std::vector<FaceEllipse>& faces);

// The angle may be left out; an empty text means none. Nothing for any other text, for more than
// mostFaces and for ellipses without width or height, larger than four frames or as far away.
std::optional<std::vector<FaceEllipse>> FacesFromText(const QString& text);

}  // namespace varnel
