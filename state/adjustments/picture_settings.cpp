// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/picture_settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLatin1StringView>
#include <algorithm>
#include <array>
#include <memory>

#include "gear/lens/lens_file.h"
#include "remap/image/exif_orientation.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/record_fields.h"
#include "state/settings/number_text.h"

namespace varnel {

namespace {

constexpr QLatin1StringView Version("Version");
constexpr QLatin1StringView currentVersion("1");
constexpr QLatin1StringView Source("Source");
constexpr QLatin1StringView SourceFolder("SourceFolder");
constexpr QLatin1StringView ProjectionName("Projection");
constexpr QLatin1StringView Orientation("Orientation");
constexpr QLatin1StringView NameSuffix("NameSuffix");

constexpr QLatin1StringView Lens("LensCurve");  // a sampled lens, as in its file

constexpr qsizetype longestLens = 10000;
constexpr qsizetype longestName = 64;
constexpr qsizetype longestText = 1000;
constexpr qsizetype mostFurther = 100;  // settings of later versions

constexpr std::array textFields{
    QLatin1StringView("GearName"),    QLatin1StringView("CameraBrand"),
    QLatin1StringView("CameraModel"), QLatin1StringView("LensBrand"),
    QLatin1StringView("LensModel"),   NameSuffix,
};

// The units are the record's. The ranges hold whatever the sliders, the gear editor, the catalogues
// and sequences can give, and of the command line all that makes a picture.
struct NumberField {
    QLatin1StringView name;
    float least;
    float most;
    bool sparse = false;  // written only where it is not what a new record has
};

constexpr std::array numberFields{
    NumberField{QLatin1StringView("SensorWidth"), 0.0F, 1000.0F},
    NumberField{QLatin1StringView("SensorHeight"), 0.0F, 1000.0F},
    NumberField{QLatin1StringView("CameraData1"), -1e6F, 1e6F},
    NumberField{QLatin1StringView("CameraData2"), -1e6F, 1e6F},
    NumberField{QLatin1StringView("ImageCircleRadius"), 0.0F, 1000.0F},
    NumberField{QLatin1StringView("LensShift"), -1000.0F, 1000.0F},
    NumberField{QLatin1StringView("LensData3"), -1e6F, 1e6F},
    NumberField{QLatin1StringView("LensMapScale"), 0.0F, 1000.0F},
    NumberField{QLatin1StringView("LensMapFactor"), 0.0F, 100.0F},
    NumberField{QLatin1StringView("OfsetX"), -1000.0F, 1000.0F},
    NumberField{QLatin1StringView("OfsetY"), -1000.0F, 1000.0F},
    NumberField{QLatin1StringView("Ratio"), 0.0F, 1000.0F},
    NumberField{QLatin1StringView("InputAOV"), 0.01F, 3600.0F},
    NumberField{QLatin1StringView("OutputAOV"), 0.01F, 3600.0F},
    NumberField{QLatin1StringView("EffectVarnel"), 0.01F, 1000.0F},
    NumberField{QLatin1StringView("EffectRectilinear"), 0.01F, 1000.0F},
    NumberField{QLatin1StringView("RotateX"), -3600.0F, 3600.0F},
    NumberField{QLatin1StringView("RotateY"), -3600.0F, 3600.0F},
    NumberField{QLatin1StringView("RotateZ"), -3600.0F, 3600.0F},
    NumberField{QLatin1StringView("TranslateX"), -1000.0F, 1000.0F},
    NumberField{QLatin1StringView("TranslateY"), -1000.0F, 1000.0F},
    NumberField{QLatin1StringView("PaniniD"), 0.0F, 1.0F, true},
    NumberField{QLatin1StringView("PaniniSqueeze"), 0.0F, 100.0F, true},
    NumberField{QLatin1StringView("UnrollStart"), -3600.0F, 3600.0F, true},
    NumberField{QLatin1StringView("UnrollDirection"), -1.0F, 1.0F, true},
    NumberField{QLatin1StringView("UnrollFrom"), 0.0F, 180.0F, true},
    NumberField{QLatin1StringView("UnrollTo"), 0.0F, 180.0F, true},
    NumberField{QLatin1StringView("OutputWidth"), 0.0F, largestResultSide, true},
    NumberField{QLatin1StringView("OutputHeight"), 0.0F, largestResultSide, true},
    NumberField{QLatin1StringView("CropLeft"), 0.0F, 1.0F, true},
    NumberField{QLatin1StringView("CropTop"), 0.0F, 1.0F, true},
    NumberField{QLatin1StringView("CropWidth"), 0.0F, 1.0F, true},
    NumberField{QLatin1StringView("CropHeight"), 0.0F, 1.0F, true},
};

// Words, written like sparse numbers.
constexpr std::array wordFields{
    QLatin1StringView("Pose"),  QLatin1StringView("Tunnel"), QLatin1StringView("Outside"),
    QLatin1StringView("Marks"), QLatin1StringView("Faces"),  QLatin1StringView("Sampling"),
};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PictureSettings)
};

// Also what XML can hold.
bool IsPlainText(const QString& text) {
    return text.size() <= longestText && text.isValidUtf16() &&
           std::ranges::none_of(text, [](QChar c) {
               return c.category() == QChar::Other_Control || c.unicode() >= 0xFFFE;
           });
}

bool IsAsciiWord(const QString& text) {
    return text.size() <= longestName && std::ranges::all_of(text, [](QChar c) {
               return c.unicode() < 128 && c.isLetterOrNumber();
           });
}

bool IsSettingName(const QString& name) {
    return !name.isEmpty() && name.front().isLetter() && IsAsciiWord(name);
}

bool IsFileName(const QString& text) {
    return IsPlainText(text) && !text.isEmpty() && !text.contains(u'/') &&
           text != QStringLiteral(".") && text != QStringLiteral("..");
}

// A folder relative to the current one means nothing later.
QString WrittenFolder(const QString& folder) {
    if (folder.isEmpty()) {
        return QStringLiteral("/");
    }
    return QDir::isAbsolutePath(folder) ? folder : QDir::cleanPath(QDir().absoluteFilePath(folder));
}

QString RecordedFolder(QString folder) {
    while (folder.endsWith(u'/')) {
        folder.chop(1);
    }
    return folder;
}

// One line of JSON.
QString LensText(const SampledLens& lens) {
    return QString::fromUtf8(QJsonDocument(LensToJson(lens)).toJson(QJsonDocument::Compact));
}

enum class Taking { Taken, NotUsable, OutOfRange, Unknown };

Taking TakeText(const QString& name, const QString& value, ImageRecord& image) {
    if (name == Source && IsFileName(value)) {
        image.FileName = value;
    } else if (name == SourceFolder && IsPlainText(value)) {
        image.Folder = RecordedFolder(value);
    } else if (name == NameSuffix && IsAsciiWord(value)) {  // it becomes part of a file's name
        image.NameSuffix = value;
    } else if (name != Source && name != NameSuffix && IsPlainText(value)) {
        SetField(image, name, value);
    } else {
        return Taking::NotUsable;
    }
    return Taking::Taken;
}

Taking TakeByField(const QString& name, const QString& value, ImageRecord& image) {
    return SetField(image, name, value) == FieldResult::Ok ? Taking::Taken : Taking::NotUsable;
}

Taking TakeNumber(const NumberField& field, const QString& value, ImageRecord& image) {
    const std::optional<float> number = FloatFromPointText(value);
    if (!number) {
        return Taking::NotUsable;
    }
    if (*number < field.least || *number > field.most) {
        return Taking::OutOfRange;
    }
    return TakeByField(field.name, value, image);
}

Taking TakeLens(const QString& value, ImageRecord& image) {
    if (value.size() > longestLens) {
        return Taking::NotUsable;
    }
    std::optional<SampledLens> lens = LensFromBytes(value.toUtf8()).lens;
    if (!lens) {
        return Taking::NotUsable;
    }
    image.Lens = std::make_shared<const SampledLens>(*std::move(lens));
    return Taking::Taken;
}

Taking TakeFurther(const QString& name, const QString& value, ImageRecord& image) {
    if (!IsSettingName(name) || !IsPlainText(value) ||
        image.FurtherSettings.size() >= mostFurther) {
        return Taking::Unknown;
    }
    image.FurtherSettings.insert(name, value);
    return Taking::Taken;
}

Taking Take(const QString& name, const QString& value, ImageRecord& image) {
    if (name == Version) {  // whatever it is: what is known of a later one is read
        return Taking::Taken;
    }
    const auto isNamed = [&name](const auto& field) { return field == name; };
    if (name == Source || name == SourceFolder || std::ranges::any_of(textFields, isNamed)) {
        return TakeText(name, value, image);
    }
    if (std::ranges::any_of(wordFields, isNamed)) {
        return TakeByField(name, value, image);
    }
    if (name == ProjectionName) {
        const std::optional<Projection> projection = ProjectionFromText(value);
        image.Projection = projection ? static_cast<std::int16_t>(*projection) : image.Projection;
        return projection ? Taking::Taken : Taking::NotUsable;
    }
    if (name == Lens) {
        return TakeLens(value, image);
    }
    if (name == Orientation) {
        const std::optional<int> number = WholeFromText(value);
        const bool usable = number && IsOrientation(*number);
        image.Orientation = usable ? static_cast<std::int16_t>(*number) : image.Orientation;
        return usable ? Taking::Taken : Taking::NotUsable;
    }
    const auto* const field = std::ranges::find_if(numberFields, isNamed, &NumberField::name);
    return field != numberFields.end() ? TakeNumber(*field, value, image)
                                       : TakeFurther(name, value, image);
}

QString NoteOf(Taking taking, const QString& name, const QString& value) {
    switch (taking) {
        case Taking::NotUsable:
            return Texts::tr("the setting %1 cannot be \"%2\"").arg(Shown(name), Shown(value));
        case Taking::OutOfRange:
            return Texts::tr("the setting %1 is out of range: %2").arg(Shown(name), Shown(value));
        case Taking::Unknown:
            return Texts::tr("the setting \"%1\" cannot be kept").arg(Shown(name));
        case Taking::Taken:
            break;
    }
    return {};
}

}  // namespace

bool IsOfNewRecord(const ImageRecord& image, const QString& field) {
    static const ImageRecord newRecord;
    return FieldText(image, field) == FieldText(newRecord, field);
}

QString Shown(const QString& setting, qsizetype longest) {
    QList<uint> letters = setting.toUcs4();
    std::ranges::replace_if(
        letters, [](uint c) { return !QChar::isPrint(c); }, uint{'?'});
    const bool fits = letters.size() <= longest;
    const QString text = QString::fromUcs4(reinterpret_cast<const char32_t*>(letters.constData()),
                                           std::min(letters.size(), longest));
    return fits ? text : text + QStringLiteral(" ...");
}

PictureSettings SettingsFrom(const ImageRecord& image) {
    PictureSettings settings = image.FurtherSettings;
    settings.insert(Version, currentVersion);
    settings.insert(Source, image.FileName);
    settings.insert(SourceFolder, WrittenFolder(image.Folder));
    settings.insert(Orientation, QString::number(image.Orientation));
    settings.insert(ProjectionName, KeyOf(ProjectionFromIndex(image.Projection)));
    for (const QLatin1StringView name : textFields) {
        settings.insert(name, FieldText(image, name));
    }
    settings.removeIf([](const auto& setting) { return !IsPlainText(setting.value()); });
    if (image.Lens) {
        settings.insert(Lens, LensText(*image.Lens));
    }
    for (const NumberField& field : numberFields) {
        const QString text = FieldText(image, field.name);
        if (FloatFromPointText(text) && !(field.sparse && IsOfNewRecord(image, field.name))) {
            settings.insert(field.name, text);
        }
    }
    for (const QLatin1StringView name : wordFields) {
        if (!IsOfNewRecord(image, name)) {
            settings.insert(name, FieldText(image, name));
        }
    }
    return settings;
}

QStringList TakeSettings(const PictureSettings& settings, ImageRecord& image) {
    QStringList notes;
    for (const auto& [name, value] : settings.asKeyValueRange()) {
        const Taking taking = Take(name, value, image);
        if (taking != Taking::Taken) {
            notes.append(NoteOf(taking, name, value));
        }
    }
    image.SettingsApplied = true;
    return notes;
}

void NoteSettings(Bitmap* result, const ImageRecord& image, bool wanted, const QString& file) {
    PictureSettings settings = wanted ? SettingsFrom(image) : PictureSettings();
    const QString folder = settings.take(SourceFolder);
    if (!file.isEmpty() && !folder.isEmpty()) {
        const QDir place(QFileInfo(file).absolutePath());
        settings.insert(SourceFolder, QDir::cleanPath(place.relativeFilePath(folder)));
    }
    result->metadata.settings = settings;
}

QString SourceFolderOf(const ImageRecord& image, const QString& picture) {
    const bool relative = !image.Folder.isEmpty() && QDir::isRelativePath(image.Folder);
    return relative ? RecordedFolder(
                          QDir::cleanPath(QFileInfo(picture).absolutePath() + u'/' + image.Folder))
                    : image.Folder;
}

}  // namespace varnel
