// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/output_type.h"

#include <QStringList>

namespace varnel {

namespace {

struct Row {
    const char16_t* name;
    const char16_t* extension;
    const char16_t* filter;
    const char16_t* longEnding;  // a second ending by which the type is known
    FREE_IMAGE_FORMAT format;
    int flags;
};

constexpr std::array rows{Row{u"TIFF", u".TIF", u"Tiff (*.TIF)", u".TIFF", FIF_TIFF, TIFF_LZW},
                          Row{u"JPEG", u".JPG", u"Jpeg (*.JPG)", u".JPEG", FIF_JPEG, JPEG_DEFAULT},
                          Row{u"BMP", u".BMP", u"BMP (*.BMP)", u".BMP", FIF_BMP, BMP_DEFAULT},
                          Row{u"PNG", u".PNG", u"PNG (*.PNG)", u".PNG", FIF_PNG, PNG_DEFAULT}};

const Row& RowOf(OutputType type) {
    return rows[static_cast<std::size_t>(type)];
}

QString Text(const char16_t* text) {
    return QString::fromUtf16(text);
}

}  // namespace

QString ToText(OutputType type) {
    return Text(RowOf(type).name);
}

OutputType OutputTypeFromText(QStringView text) {
    for (const OutputType type : allOutputTypes) {
        if (text == QStringView(RowOf(type).name)) {
            return type;
        }
    }
    return OutputType::Tiff;
}

std::optional<OutputType> OutputTypeByName(QStringView text) {
    for (const OutputType type : allOutputTypes) {
        if (text.compare(QStringView(RowOf(type).name), Qt::CaseInsensitive) == 0) {
            return type;
        }
    }
    return std::nullopt;
}

std::optional<OutputType> OutputTypeByEnding(QStringView fileName) {
    for (const OutputType type : allOutputTypes) {
        if (fileName.endsWith(QStringView(RowOf(type).extension), Qt::CaseInsensitive) ||
            fileName.endsWith(QStringView(RowOf(type).longEnding), Qt::CaseInsensitive)) {
            return type;
        }
    }
    return std::nullopt;
}

QString ExtensionOf(OutputType type) {
    return Text(RowOf(type).extension);
}

QString FilterOf(OutputType type) {
    return Text(RowOf(type).filter);
}

FREE_IMAGE_FORMAT FormatOf(OutputType type) {
    return RowOf(type).format;
}

int SaveFlags(OutputType type, int jpegQuality, bool chroma444) {
    if (type != OutputType::Jpeg) {
        return RowOf(type).flags;
    }
    return chroma444 ? jpegQuality | JPEG_SUBSAMPLING_444 : jpegQuality;
}

QString WithExtension(const QString& fileName, OutputType type) {
    return fileName.right(4).toUpper() == ExtensionOf(type) ? fileName
                                                            : fileName + ExtensionOf(type);
}

}  // namespace varnel
