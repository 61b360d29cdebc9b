// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/output_name.h"

#include "base/rounding.h"
#include "pipeline/output/name_pattern.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

QString Whole(float value, ValueName name) {
    return QString::number(CLng(static_cast<double>(value), name));
}

QString TagText(const NameTag& tag, float value) {
    if (value == tag.silent) {
        return {};
    }
    const QString number = Whole(value, tag.name);
    return QString::fromUtf16(tag.text) +
           (tag.digits == 0 ? number : (QString(tag.digits - 1, u'0') + number).right(tag.digits));
}

// Of a name or of a path, whose folders stay as they are.
QString Stem(const QString& path, PhotoEnding ending) {
    constexpr qsizetype letters = 3;
    if (ending == PhotoEnding::Kept) {
        return path + u'.';
    }
    const qsizetype name = path.size() - (path.lastIndexOf(u'/') + 1);
    return name < letters ? path : path.chopped(letters);
}

}  // namespace

QString ProposedName(const QString& sourcePath, const QString& addition, PhotoEnding ending) {
    return Stem(sourcePath, ending) + addition;
}

QString ProposedName(const QString& sourcePath, Projection projection) {
    return ProposedName(sourcePath, ToText(projection));
}

QString NameAdditions::For(Projection projection) const {
    const auto text = texts.find(projection);
    return text == texts.end() || text->second.isEmpty() ? ToText(projection) : text->second;
}

QString SettingsTags(const ImageRecord& image) {
    QString tags;
    const Projection projection = ProjectionFromIndex(image.Projection);
    ImageRecord shown = image;
    shown.OutputAOV = CutAngleOf(projection, image).value_or(image.OutputAOV);
    for (const NameTag& tag : InfoOf(projection).tags) {
        tags += TagText(tag, shown.*tag.field);
    }
    if (image.OutputWidth > 0 || image.OutputHeight > 0) {
        const PixelSize size = ResultSizeOf(image, {image.Width, image.Height});
        tags += QStringLiteral("_%1x%2").arg(size.width).arg(size.height);
    }
    if (IsCropped(image)) {
        tags += QStringLiteral("_crop");
    }
    return tags;
}

QString BatchName(const ImageRecord& image, const QString& folder, const NameAdditions& additions,
                  OutputType type, PhotoEnding ending) {
    return PathByPattern(image, folder, {usualPattern, additions, ending}, type, {});
}

}  // namespace varnel
