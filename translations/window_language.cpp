// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "translations/window_language.h"

#include <QDir>
#include <QLibraryInfo>

// A macro of the toolkit that wants no namespace around it.
static void LoadTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace varnel {

std::map<QString, QString> InAllLanguages(const char* context, const char* text) {
    LoadTranslations();
    const QDir folder(QStringLiteral(":/translations"));
    std::map<QString, QString> texts;
    for (const QString& file : folder.entryList({QStringLiteral("varnel_*.qm")})) {
        QTranslator language;
        if (language.load(folder.filePath(file))) {
            const QString code = file.section(u'_', 1).section(u'.', 0, 0);
            if (const QString translated = language.translate(context, text);
                !translated.isEmpty()) {
                texts.emplace(code, translated);
            }
        }
    }
    return texts;
}

WindowLanguage::WindowLanguage(QCoreApplication& application, const QString& code)
    : application_(application) {
    LoadTranslations();
    if (!own_.load(QStringLiteral(":/translations/varnel_%1.qm").arg(code))) {
        return;
    }
    if (toolkit_.load(QStringLiteral("qtbase_") + code,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        application_.installTranslator(&toolkit_);
    }
    application_.installTranslator(&own_);
}

WindowLanguage::~WindowLanguage() {
    application_.removeTranslator(&own_);
    application_.removeTranslator(&toolkit_);
}

}  // namespace varnel
