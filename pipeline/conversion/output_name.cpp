// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/output_name.h"

#include "base/rounding.h"

namespace varnel {

namespace {

QString Whole(float value, ValueName name) {
    return QString::number(CLng(static_cast<double>(value), name));
}

// The last three characters of "00" and the number.
QString Padded(float value, ValueName name) {
    return (QStringLiteral("00") + Whole(value, name)).right(3);
}

QString EffectTag(float effect) {
    return effect == 100.0F ? QString()
                            : QStringLiteral("_Eff") + Padded(effect, ReasonCode::Effect);
}

QString TurnTag(const char16_t* tag, float degrees) {
    return degrees == 0.0F ? QString()
                           : QString::fromUtf16(tag) + Whole(degrees, ReasonCode::RotationAngle);
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
    const QString& text = texts[static_cast<std::size_t>(projection)];
    return text.isEmpty() ? ToText(projection) : text;
}

QString SettingsTags(const ImageRecord& image) {
    switch (ProjectionFromIndex(image.Projection)) {
        case Projection::Varnel:
            return EffectTag(image.EffectVarnel);
        case Projection::Rectilinear:
            return QStringLiteral("_hAOV") + Padded(image.OutputAOV, "OutputAOV") +
                   EffectTag(image.EffectRectilinear) + TurnTag(u"_LR", image.RotateY) +
                   TurnTag(u"_UD", image.RotateX) + TurnTag(u"_Zr", image.RotateZ);
        case Projection::Equidistance:
        case Projection::Horizon:
            break;
    }
    return {};
}

QString BatchName(const ImageRecord& image, const QString& folder, const NameAdditions& additions,
                  OutputType type, PhotoEnding ending) {
    const QString place = folder.endsWith(u'/') ? folder : folder + u'/';
    QString name = place + Stem(image.FileName, ending);
    name += additions.For(ProjectionFromIndex(image.Projection));
    if (!image.NameSuffix.isEmpty()) {
        name += u'_' + image.NameSuffix;
    }
    return name + SettingsTags(image) + ExtensionOf(type);
}

}  // namespace varnel
