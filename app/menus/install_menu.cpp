// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/install_menu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <optional>

#include "app/menus/menu_entries.h"
#include "app/menus/thunar_actions.h"
#include "base/error_text.h"
#include "files/atomic_file.h"

namespace varnel {

namespace {

constexpr qint64 largestFile = 10000000;  // bytes; lists have a few thousand
constexpr QLatin1StringView listName("Thunar/uca.xml");

// What is done with the files, each by itself.
class MenuFiles {
  public:
    explicit MenuFiles(const Console& console) : console_(console) {}

    void Write(const QString& path, const QByteArray& bytes) {
        if (QFileInfo::exists(path) && Read(path) == bytes) {
            Named(path);
            return;
        }
        QDir().mkpath(QFileInfo(path).path());
        if (const WriteResult written = WriteWholeFile(path, bytes); !written) {
            Fail(path, ErrorText(written.reason));
            return;
        }
        Named(path);
    }

    // Of what is a menu of ours: another's file of that name stays. KDE runs nothing from a user's
    // file that is not executable.
    void WriteOwn(const QString& path, const QByteArray& bytes) {
        if (!IsOthers(path)) {
            Write(path, bytes);
            QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner);
        }
    }

    void RemoveOwn(const QString& path) {
        if (QFileInfo::exists(path) && !IsOthers(path)) {
            Remove(path);
        }
    }

    void Remove(const QString& path) {
        QFile file(path);
        if (!file.remove()) {
            Fail(path, file.errorString());
            return;
        }
        Named(path);
    }

    // Nothing for a file that cannot be read, which is reported.
    std::optional<QByteArray> Read(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            Fail(path, file.errorString());
            return std::nullopt;
        }
        if (file.size() > largestFile) {
            Fail(path, QStringLiteral("it is too large"));
            return std::nullopt;
        }
        return file.readAll();
    }

    void Fail(const QString& path, const QString& reason) {
        Complain(console_, QStringLiteral("%1: %2; it was left as it is").arg(path, reason));
        exitCode_ = exitSomeFailed;
    }

    int ExitCode() const { return exitCode_; }

  private:
    void Named(const QString& path) { Show(console_, path + u'\n'); }

    bool IsOthers(const QString& path) {
        if (!QFileInfo::exists(path)) {
            return false;
        }
        const auto bytes = Read(path);
        if (bytes && !bytes->startsWith("# Varnel: ")) {
            Fail(path, QStringLiteral("it is not by Varnel"));
        }
        return !bytes || !bytes->startsWith("# Varnel: ");
    }

    const Console& console_;
    int exitCode_ = exitAllWritten;
};

QString ServiceMenuPath(const MenuPlaces& places) {
    return places.data + QStringLiteral("/kio/servicemenus/varnel.desktop");
}

QString NemoPath(const MenuPlaces& places, std::size_t number) {
    return places.data + QStringLiteral("/nemo/actions/varnel-preset-%1.nemo_action").arg(number);
}

// Those of presets that are gone.
void RemoveNemoFrom(const MenuPlaces& places, std::size_t number, MenuFiles& files) {
    for (; number <= mostPresets + BuiltInPresets().size(); ++number) {
        files.RemoveOwn(NemoPath(places, number));
    }
}

// A menu without entries takes away what is there.
void ChangeThunar(const MenuPlaces& places, const PhotoMenu& menu, MenuFiles& files) {
    const QString path = places.config + u'/' + listName;
    const bool there = QFileInfo::exists(path);
    if (!there && (menu.entries.empty() || !places.hasThunar)) {
        return;
    }
    const QString& from = there ? path : places.thunarOfAll;
    const auto list = from.isEmpty() ? QByteArray() : files.Read(from);
    if (!list) {
        return;
    }
    if (there && list->isEmpty()) {  // not to be taken for one to begin
        files.Fail(path, QStringLiteral("this is no list of Thunar's actions (it is empty)"));
        return;
    }
    const auto changed = ThunarActions(*list, menu, places.language);
    if (const auto* const error = std::get_if<QString>(&changed)) {
        files.Fail(from, *error);
    } else if (const auto& bytes = std::get<QByteArray>(changed); !there || bytes != *list) {
        if (menu.entries.empty() && !places.thunarOfAll.isEmpty() &&
            bytes == files.Read(places.thunarOfAll)) {
            files.Remove(path);  // it was begun for the entries
        } else {
            files.Write(path, bytes);
        }
    }
}

}  // namespace

MenuPlaces UserMenuPlaces() {
    const auto own = QStandardPaths::GenericConfigLocation;
    MenuPlaces places;
    places.data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    places.config = QStandardPaths::writableLocation(own);
    const QString user = places.config + u'/' + listName;
    for (const QString& list : QStandardPaths::locateAll(own, listName)) {
        if (list != user && places.thunarOfAll.isEmpty()) {
            places.thunarOfAll = list;
        }
    }
    places.hasThunar = !places.thunarOfAll.isEmpty() ||
                       !QStandardPaths::findExecutable(QStringLiteral("thunar")).isEmpty();
    const QString name = QStringLiteral("varnel");
    // An image that holds the program is mounted elsewhere each time.
    const QString image = qEnvironmentVariable("APPIMAGE");
    const QString running = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    const QString found = QFileInfo(QStandardPaths::findExecutable(name)).canonicalFilePath();
    places.program = !image.isEmpty() ? image : found == running ? name : running;
    places.language = QLocale::system().name().section(u'_', 0, 0);
    return places;
}

int InstallMenu(const SettingsStore& store, const MenuPlaces& places, const Console& console) {
    const PhotoMenu menu = MenuOf(AllPresets(store), places.program);
    MenuFiles files(console);
    files.WriteOwn(ServiceMenuPath(places), ServiceMenu(menu));
    std::size_t number = 1;
    for (const MenuEntry& entry : menu.entries) {
        files.WriteOwn(NemoPath(places, number++), NemoAction(menu, entry));
    }
    RemoveNemoFrom(places, number, files);
    ChangeThunar(places, menu, files);
    return files.ExitCode();
}

int RemoveMenu(const MenuPlaces& places, const Console& console) {
    MenuFiles files(console);
    files.RemoveOwn(ServiceMenuPath(places));
    RemoveNemoFrom(places, 1, files);
    ChangeThunar(places, {}, files);
    return files.ExitCode();
}

}  // namespace varnel
