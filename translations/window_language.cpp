// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "translations/window_language.h"

#include <QLibraryInfo>

// A macro of the toolkit that wants no namespace around it.
static void LoadTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace varnel {

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
