// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/project_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>
#include <array>

#include "film/keys/course_lines.h"
#include "pipeline/photos/add_images.h"
#include "state/adjustments/picture_settings.h"
#include "state/adjustments/record_fields.h"
#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

constexpr QLatin1StringView firstWords("Varnel project ");
constexpr int currentVersion = 1;
constexpr QLatin1StringView photosKey("Photos");
constexpr QLatin1StringView photoLine("[Photo]");
constexpr QLatin1StringView endLine("[End]");
constexpr QLatin1StringView source("Source");
constexpr QLatin1StringView sourceFolder("SourceFolder");
constexpr QLatin1StringView version("Version");

constexpr qint64 largestFile = 256 * 1024 * 1024;
constexpr qsizetype longestPath = 8192;

// What a record has beside the settings of a picture.
struct PhotoField {
    QLatin1StringView name;
    int least, most;
};
constexpr std::array photoFields{
    PhotoField{QLatin1StringView("Width"), 0, 32767},
    PhotoField{QLatin1StringView("Height"), 0, 32767},
    PhotoField{QLatin1StringView("Landscape"), 0, 1},
    PhotoField{QLatin1StringView("SettingsApplied"), 0, 1},
    PhotoField{QLatin1StringView("Orientation"), 1, 8},
};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProjectFile)
};

bool IsOdd(QChar c) {
    return c == u'\\' || c.category() == QChar::Other_Control || c.isSurrogate() ||
           c.unicode() == 0x2028 || c.unicode() == 0x2029 || c.unicode() == 0xFEFF;
}

// What would break a line or an encoding as \ and four hexadecimal digits, for each UTF-16 unit.
QString Escaped(const QString& value) {
    QString text;
    for (const QChar c : value) {
        text += IsOdd(c) ? u'\\' + QString::number(c.unicode(), 16).rightJustified(4, u'0')
                         : QString(c);
    }
    return text;
}

std::optional<QString> Unescaped(QStringView text) {
    if (!text.contains(u'\\')) {
        return text.toString();
    }
    QString value;
    for (qsizetype n = 0; n < text.size(); ++n) {
        bool ok = true;
        if (text[n] == u'\\') {
            const QStringView digits = text.mid(n + 1, 4);
            value += QChar(digits.toUShort(&ok, 16));
            ok = ok && digits.size() == 4;
            n += 4;
        } else {
            value += text[n];
        }
        if (!ok) {
            return std::nullopt;
        }
    }
    return value;
}

// Relative where a folder beside the root's is common to both.
QString WrittenFolder(const QString& photos, const QString& project) {
    const QString there = QDir::cleanPath(photos);
    const QString relative = QDir(project).relativeFilePath(there);
    const bool common = QDir::isRelativePath(relative) && there.startsWith(u'/') &&
                        there.section(u'/', 1, 1) == project.section(u'/', 1, 1) &&
                        there != QStringLiteral("/");
    // A folder that is spelled another way comes back as it was spelled.
    return common && there == photos && QDir::cleanPath(QDir(project).filePath(relative)) == there
               ? relative
               : photos;
}

void AddLine(QString& text, const QString& name, const QString& value) {
    text += name + u'=' + Escaped(value) + u'\n';
}

void AddPhoto(QString& text, const ImageRecord& image, const QString& folder) {
    static const PictureSettings usual = SettingsFrom(ImageRecord());
    static const ImageRecord empty;
    text += u'\n' + QString(photoLine) + u'\n';
    PictureSettings settings = SettingsFrom(image);
    AddLine(text, source, image.FileName);
    AddLine(text, sourceFolder, WrittenFolder(settings.value(sourceFolder, image.Folder), folder));
    for (const QLatin1StringView name : {source, sourceFolder, version}) {
        settings.remove(name);
    }
    for (const PhotoField& field : photoFields) {
        settings.remove(field.name);
        const QString value = FieldText(image, field.name);
        if (value != FieldText(empty, field.name)) {
            AddLine(text, field.name, value);
        }
    }
    for (const auto& [name, value] : settings.asKeyValueRange()) {
        if (!usual.contains(name) || usual.value(name) != value) {
            AddLine(text, name, value);
        }
    }
    if (image.Film) {
        for (const auto& [name, value] : LinesOf(*image.Film)) {
            AddLine(text, name, value);
        }
    }
}

// Goes through the file line by line.
class Reader {
  public:
    Reader(const QString& text, QString folder)
        : lines_(QStringView(text).split(u'\n')), folder_(std::move(folder)) {}

    ReadProject Read() {
        if (ReadHead() && ReadPhotos()) {
            return std::move(project_);
        }
        ReadProject refused;
        refused.error = error_;
        return refused;
    }

  private:
    bool Fail(const QString& why) {
        error_ = why;
        return false;
    }
    bool FailHere() { return Fail(Texts::tr("it is damaged: line %1 cannot be read").arg(next_)); }
    // The next line that is neither empty nor a comment (#); false at the end.
    bool Next() {
        while (next_ < lines_.size()) {
            line_ = lines_[next_++];
            if (line_.endsWith(u'\r')) {
                line_.chop(1);
            }
            if (!line_.trimmed().isEmpty() && !line_.startsWith(u'#')) {
                return true;
            }
        }
        return false;
    }
    bool ReadHead();
    bool ReadPhotos();
    bool TakeLine();
    void EndPhoto();
    bool TakePlace(const QString& name, const QString& value);
    void TakePhotoField(const PhotoField& field, const QString& value);
    void AddNote(const QString& note) {
        project_.notes.append(QStringLiteral("%1: %2").arg(SourcePath(image_), note));
    }

    QList<QStringView> lines_;
    QString folder_;
    qsizetype next_ = 0;
    QStringView line_;
    int expected_ = 0;
    ImageRecord image_;
    PictureSettings settings_;
    QList<std::pair<const PhotoField*, QString>> fields_;
    FilmLines film_;
    ReadProject project_;
    QString error_;
};

bool Reader::ReadHead() {
    if (!Next() || !line_.startsWith(firstWords)) {
        return Fail(Texts::tr("it is not a Varnel project"));
    }
    const std::optional<int> written = WholeFromText(line_.mid(firstWords.size()).toString());
    if (!written || *written < 1) {
        return FailHere();
    }
    if (*written > currentVersion) {
        return Fail(Texts::tr("a newer version of Varnel wrote it"));
    }
    const std::optional<int> photos =
        Next() && line_.startsWith(photosKey + QLatin1StringView("="))
            ? WholeFromText(line_.mid(photosKey.size() + 1).toString())
            : std::nullopt;
    expected_ = photos.value_or(-1);
    return expected_ >= 0 || FailHere();
}

bool Reader::ReadPhotos() {
    bool within = false;
    while (Next()) {
        const bool ends = line_ == endLine;
        if (!ends && line_ != photoLine) {
            if (!within || !TakeLine()) {
                return FailHere();
            }
            continue;
        }
        if (within && image_.FileName.isEmpty()) {
            return FailHere();
        }
        if (within) {
            EndPhoto();
        }
        if (ends) {
            const int found = project_.images.UpperBound();
            return found == expected_ ||
                   Fail(Texts::tr("it is damaged: it should hold %1 photos and holds %2")
                            .arg(expected_)
                            .arg(found));
        }
        within = true;
    }
    return Fail(Texts::tr("it is damaged: its end is missing"));
}

bool Reader::TakeLine() {
    const qsizetype equals = line_.indexOf(u'=');
    const std::optional<QString> value = Unescaped(line_.mid(equals + 1));
    if (equals < 1 || !value) {
        return false;
    }
    const QString name = line_.left(equals).toString();
    if (name == source || name == sourceFolder) {
        return TakePlace(name, *value);
    }
    const auto* const field = std::ranges::find(photoFields, name, &PhotoField::name);
    if (field != photoFields.end()) {
        fields_.append({field, *value});
    } else if (IsFilmLine(name)) {
        film_.append({name, *value});
    } else if (name != version) {
        settings_.insert(name, *value);
    }
    return true;
}

bool Reader::TakePlace(const QString& name, const QString& value) {
    if (value.size() > longestPath || value.contains(QChar(0))) {
        return false;
    }
    if (name == source) {
        image_.FileName = value;
        return !value.isEmpty() && !value.contains(u'/') && value != QStringLiteral(".") &&
               value != QStringLiteral("..");
    }
    image_.Folder =
        RecordFolder(QDir::isAbsolutePath(value) ? value : QDir::cleanPath(folder_ + u'/' + value));
    return true;
}

void Reader::TakePhotoField(const PhotoField& field, const QString& value) {
    ImageRecord changed = image_;
    const std::optional<int> whole = WholeFromText(value);
    if ((whole && (*whole < field.least || *whole > field.most)) ||
        SetField(changed, field.name, value) != FieldResult::Ok) {
        AddNote(Texts::tr("the setting %1 cannot be used").arg(field.name));
        return;
    }
    image_ = std::move(changed);
}

void Reader::EndPhoto() {
    for (const QString& note : TakeSettings(settings_, image_)) {
        AddNote(note);
    }
    image_.SettingsApplied = false;
    for (const auto& [field, value] : fields_) {
        TakePhotoField(*field, value);
    }
    if (!film_.isEmpty()) {
        for (const QString& unusable : TakeLines(film_, image_.Film.emplace())) {
            AddNote(Texts::tr("the setting %1 cannot be used").arg(unusable));
        }
    }
    if (!QFileInfo::exists(SourcePath(image_))) {
        project_.missing.append(SourcePath(image_));
    }
    project_.images.Append(std::exchange(image_, {}));
    settings_.clear();
    film_.clear();
    fields_.clear();
}

QString RecentKey(int number) {
    return setting::ItemKey(setting::Project, number);
}

}  // namespace

bool IsProjectName(const QString& path) {
    return path.endsWith(projectEnding, Qt::CaseInsensitive);
}

QString ProjectName(const QString& path) {
    return IsProjectName(path) ? path : path + projectEnding.toString();
}

QByteArray ProjectText(const RecordArray<ImageRecord>& images, const QString& folder) {
    QString text = firstWords + QString::number(currentVersion) + u'\n';
    AddLine(text, photosKey, QString::number(images.UpperBound()));
    for (const ImageRecord& image : images) {
        AddPhoto(text, image, folder);
    }
    return (text + u'\n' + endLine + u'\n').toUtf8();
}

ReadProject ProjectFromText(const QByteArray& text, const QString& folder) {
    QStringDecoder decoder(QStringDecoder::Utf8);  // leaves a byte order mark out
    QString decoded = decoder(text);
    if (decoder.hasError() || decoded.contains(QChar(0))) {
        ReadProject refused;
        refused.error = Texts::tr("it is not a text file");
        return refused;
    }
    if (!decoded.contains(u'\n')) {
        decoded.replace(u'\r', u'\n');
    }
    return Reader(decoded, QDir::cleanPath(folder)).Read();
}

WriteResult WriteProject(const QString& path, const RecordArray<ImageRecord>& images) {
    return WriteWholeFile(path, ProjectText(images, QFileInfo(path).absolutePath()));
}

ReadProject OpenProject(const QString& path) {
    QFile file(path);
    ReadProject refused;
    if (!file.open(QIODevice::ReadOnly)) {
        refused.error = file.errorString();
    } else if (file.size() > largestFile) {
        refused.error = Texts::tr("it is too large");
    } else {
        return ProjectFromText(file.read(largestFile), QFileInfo(path).absolutePath());
    }
    return refused;
}

QStringList RecentProjects(const SettingsStore& store) {
    QStringList paths;
    for (int n = 1; n <= mostRecentProjects; ++n) {
        const QString path = store.Get(setting::Projects, RecentKey(n), {});
        if (!path.isEmpty() && !paths.contains(path)) {
            paths.append(path);
        }
    }
    return paths;
}

void NoteRecentProject(const QString& path, SettingsStore& store) {
    QStringList paths = RecentProjects(store);
    paths.removeAll(path);
    paths.prepend(path);
    for (int n = 1; n <= std::min<int>(mostRecentProjects, static_cast<int>(paths.size())); ++n) {
        store.Save(setting::Projects, RecentKey(n), paths[n - 1]);
    }
}

}  // namespace varnel
