// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/program_file.h"

#include <QFile>
#include <QFileInfo>
#include <QLatin1StringView>

#ifdef __linux__
#include <dlfcn.h>
#include <link.h>
#endif

namespace varnel {

namespace {

// The folder of the file that holds this code: of the program, or of a library that is loaded.
QString OwnFolder() {
    QString file;
#ifdef __linux__
    Dl_info info{};
    link_map* map = nullptr;
    // The program itself has no name there.
    if (dladdr1(reinterpret_cast<const void*>(&ProgramFile), &info, reinterpret_cast<void**>(&map),
                RTLD_DL_LINKMAP) != 0 &&
        map != nullptr && map->l_name[0] != '\0') {
        file = QFileInfo(QString::fromLocal8Bit(map->l_name)).canonicalFilePath();
    }
#endif
    return QFileInfo(file.isEmpty() ? QFile::symLinkTarget(QStringLiteral("/proc/self/exe")) : file)
        .path();
}

}  // namespace

QString ProgramFile(const QString& name) {
    const QString folder = OwnFolder();
    // Programs stand in bin, libraries in lib or in a folder of it that is named for the machine.
    for (const QLatin1StringView place : {QLatin1StringView("/"), QLatin1StringView("/varnel/"),
                                          QLatin1StringView("/../varnel/")}) {
        if (QFileInfo::exists(folder + place + name)) {
            return folder + place + name;
        }
    }
    return folder + QStringLiteral("/../lib/varnel/") + name;
}

}  // namespace varnel
