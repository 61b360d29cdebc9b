// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/take_raw_pairs.h"

namespace varnel {

namespace {

QString LeftOutText(RawJpeg choice, std::size_t count) {
    const QString text = choice == RawJpeg::Raw
                             ? QStringLiteral("%1 JPEG left out, which the raw files stand for")
                             : QStringLiteral("%1 raw left out, which the JPEG files stand for");
    return count == 0 ? QString() : text.arg(count);
}

}  // namespace

QString TakeRawPairs(Options& options) {
    const std::vector<RawPair> pairs = RawPairsIn(options.files);
    for (const auto& [raw, jpeg] : pairs) {
        if (options.rawJpeg == RawJpeg::Both) {
            options.paired << raw << jpeg;
        } else {
            options.files.removeAll(options.rawJpeg == RawJpeg::Raw ? jpeg : raw);
        }
    }
    return options.rawJpeg == RawJpeg::Both ? QString()
                                            : LeftOutText(options.rawJpeg, pairs.size());
}

}  // namespace varnel
