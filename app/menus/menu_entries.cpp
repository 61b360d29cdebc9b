// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/menu_entries.h"

#include <QCoreApplication>

#include "translations/window_language.h"

namespace varnel {

namespace {

constexpr const char* title = QT_TRANSLATE_NOOP("Menus", "Straighten with Varnel");
constexpr const char* comment =
    QT_TRANSLATE_NOOP("Menus", "Convert fisheye photos into new files beside them");
constexpr QLatin1StringView mark("# Varnel: the entries of a photo's menu.\n");

MenuText Translated(const char* context, const char* text) {
    return {QString::fromLatin1(text), InAllLanguages(context, text)};
}

// As values of key files are written.
QString Escaped(QString value) {
    value.replace(u'\\', QStringLiteral("\\\\"));
    return value.replace(u'\n', QStringLiteral("\\n"));
}

QString Line(const QString& key, const QString& value) {
    return key + u'=' + Escaped(value) + u'\n';
}

QString Lines(const QString& key, const MenuText& text) {
    QString lines = Line(key, text.text);
    for (const auto& [code, translated] : text.translated) {
        lines += Line(QStringLiteral("%1[%2]").arg(key, code), translated);
    }
    return lines;
}

QString WithPercents(QString text) {
    return text.replace(u'%', QStringLiteral("%%"));
}

// Texts of Nemo know tokens, too.
MenuText ForNemo(const MenuText& text, const MenuText* entry) {
    const auto joined = [](const QString& first, const QString& second) {
        return WithPercents(second.isEmpty() ? first : first + QStringLiteral(": ") + second);
    };
    MenuText both{joined(text.text, entry == nullptr ? QString() : entry->text)};
    for (const auto& [code, translated] : text.translated) {
        QString second;
        if (entry != nullptr) {
            const auto own = entry->translated.find(code);
            second = own == entry->translated.end() ? entry->text : own->second;
        }
        both.translated[code] = joined(translated, second);
    }
    return both;
}

QByteArray Action(const PhotoMenu& menu, const MenuEntry* entry) {
    const QString preset = entry == nullptr ? QString() : entry->preset;
    QString text = mark + QStringLiteral("[Nemo Action]\nActive=true\n");
    text += Lines(QStringLiteral("Name"),
                  ForNemo(menu.title, entry == nullptr ? nullptr : &entry->name));
    text += Lines(QStringLiteral("Comment"), ForNemo(menu.comment, nullptr));
    text += Line(QStringLiteral("Exec"), ShellCommand(menu.program, preset));
    text += QStringLiteral("Icon-Name=varnel\nSelection=notnone\n");
    text += Line(QStringLiteral("Mimetypes"), PhotoMimeTypes());
    text += Line(QStringLiteral("Dependencies"), menu.program + u';');
    return text.toUtf8();
}

// Within double quotes these have a backslash before them.
QString DesktopWord(const QString& word) {
    QString quoted;
    for (const QChar c : word) {
        if (QStringLiteral("\"`$\\").contains(c)) {
            quoted += u'\\';
        }
        quoted += c;
    }
    return u'"' + WithPercents(quoted) + u'"';
}

QString ShellWord(QString word) {
    word.replace(u'\'', QStringLiteral("'\\''"));
    return u'\'' + WithPercents(word) + u'\'';
}

// A name needs no quotes.
template <class Quote>
QString Command(const QString& program, const QString& preset, Quote quote) {
    QString line = program.contains(u'/') ? quote(program) : program;
    line += QStringLiteral(" --beside");
    if (!preset.isEmpty()) {
        line += QStringLiteral(" --preset ") + quote(preset);
    }
    return line + QStringLiteral(" -- %F");
}

}  // namespace

PhotoMenu MenuOf(const Presets& presets, const QString& program) {
    PhotoMenu menu{program, Translated("Menus", title), Translated("Menus", comment), {}};
    for (const Preset& preset : presets) {
        const bool builtIn = FindPreset(BuiltInPresets(), preset.name) != nullptr;
        menu.entries.push_back(
            {preset.name, builtIn ? Translated("Presets", preset.name.toLatin1().constData())
                                  : MenuText{preset.name}});
    }
    return menu;
}

QString PhotoMimeTypes() {
    return QStringLiteral(
        "image/jpeg;image/tiff;image/png;image/bmp;image/jp2;image/webp;image/x-adobe-dng;"
        "image/heif;image/avif;image/jxl;image/x-canon-cr2;image/x-canon-cr3;image/x-canon-crw;"
        "image/x-fuji-raf;image/x-kodak-dcr;image/x-kodak-kdc;image/x-minolta-mrw;"
        "image/x-nikon-nef;image/x-olympus-orf;image/x-panasonic-rw2;image/x-pentax-pef;"
        "image/x-sony-arw;image/x-sony-sr2;");
}

QByteArray ServiceMenu(const PhotoMenu& menu) {
    QString text = mark + QStringLiteral("[Desktop Entry]\nType=Service\n");
    text += Line(QStringLiteral("MimeType"), PhotoMimeTypes());
    text += QStringLiteral("X-KDE-ServiceTypes=KonqPopupMenu/Plugin\nIcon=varnel\n");
    text += Lines(QStringLiteral("X-KDE-Submenu"), menu.title);
    text += QStringLiteral("Actions=");
    for (std::size_t n = 1; n <= menu.entries.size(); ++n) {
        text += QStringLiteral("preset%1;").arg(n);
    }
    text += u'\n';
    for (std::size_t n = 1; n <= menu.entries.size(); ++n) {
        const MenuEntry& entry = menu.entries[n - 1];
        text += QStringLiteral("\n[Desktop Action preset%1]\n").arg(n);
        text += Lines(QStringLiteral("Name"), entry.name);
        text += QStringLiteral("Icon=varnel\n");
        text += Line(QStringLiteral("Exec"), DesktopCommand(menu.program, entry.preset));
    }
    return text.toUtf8();
}

QByteArray NemoAction(const PhotoMenu& menu) {
    return Action(menu, nullptr);
}

QByteArray NemoAction(const PhotoMenu& menu, const MenuEntry& entry) {
    return Action(menu, &entry);
}

QString DesktopCommand(const QString& program, const QString& preset) {
    return Command(program, preset, &DesktopWord);
}

QString ShellCommand(const QString& program, const QString& preset) {
    return Command(program, preset, &ShellWord);
}

}  // namespace varnel
