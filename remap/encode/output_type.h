// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The four file types that Varnel writes, in one table: setting text, extension, save-dialog filter
// and the library's code and flags.
#pragma once

#include <FreeImage.h>

#include <QString>
#include <array>
#include <optional>

namespace varnel {

enum class OutputType { Tiff, Jpeg, Bmp, Png };

inline constexpr std::array allOutputTypes{OutputType::Tiff, OutputType::Jpeg, OutputType::Bmp,
                                           OutputType::Png};

// "TIFF", "JPEG", "BMP" or "PNG": the setting "FileType".
QString ToText(OutputType type);
// Any other text, the first-run setting "JPG" included, means TIFF.
OutputType OutputTypeFromText(QStringView text);
// The texts above, without regard to case; nothing for any other.
std::optional<OutputType> OutputTypeByName(QStringView text);
// By the ending of a file name (.tif, .tiff, .jpg, .jpeg, .bmp, .png), without regard to case.
std::optional<OutputType> OutputTypeByEnding(QStringView fileName);
// ".TIF", ".JPG", ".BMP" or ".PNG".
QString ExtensionOf(OutputType type);
// The save dialog's filter text, "Tiff (*.TIF)" and so on.
QString FilterOf(OutputType type);
FREE_IMAGE_FORMAT FormatOf(OutputType type);
// The library's save flags; jpegQuality is 0 to 100, chroma444 keeps colour at full resolution.
// Both count for JPEG only.
int SaveFlags(OutputType type, int jpegQuality, bool chroma444);

// The name with the type's extension appended, unless its last four characters are that extension
// in any case.
QString WithExtension(const QString& fileName, OutputType type);

}  // namespace varnel
