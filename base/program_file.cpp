// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/program_file.h"

#include <QFile>
#include <QFileInfo>

namespace varnel {

QString ProgramFile(const QString& name) {
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    const QString beside = folder + u'/' + name;
    return QFileInfo::exists(beside) ? beside : folder + QStringLiteral("/../lib/varnel/") + name;
}

}  // namespace varnel
