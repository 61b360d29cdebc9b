// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFileInfo>

#include "pipeline/conversion/conversion_run.h"

namespace varnel {

ConversionPorts PortsFor(PrefetchingReader& feed) {
    ConversionPorts ports;
    ports.load = [&feed](const QString& path) { return feed.Take(path); };
    ports.cores = feed.Cores();
    ports.aheadAtMost = feed.Ahead();
    if (ports.aheadAtMost > 0) {
        ports.loadEarly = [&feed](const QString& path) { return feed.TakeEarly(path); };
        ports.whole = [&feed](const QString& path) { return feed.TakeWhole(path); };
        ports.readAhead = [&feed](const QString& path) {
            const bool isThere = QFileInfo::exists(path);
            if (isThere) {
                feed.ReadAhead(path);
            }
            return isThere;
        };
    }
    return ports;
}

}  // namespace varnel
