// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/list_badges.h"

#include <QCoreApplication>
#include <QStringList>

#include "remap/projection/projection_info.h"
#include "state/editing/read_gear.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ListBadges)
};

}  // namespace

ListBadges MarksOf(const ImageRecord& image, bool queued, const QString& error) {
    const QString projection = TitleOf(ProjectionFromIndex(image.Projection));
    QString letters = projection.left(1);
    QStringList words{projection};
    if (image.Film) {
        letters += QChar(0x25B8);
        words.append(Texts::tr("film"));
    }
    if (image.SettingsApplied) {
        letters += u'A';
        words.append(Texts::tr("adjusted"));
    }
    if (IsGuessed(image)) {
        letters += u'?';
        words.append(Texts::tr("the gear is a guess"));
    }
    if (queued) {
        letters += u'Q';
        words.append(Texts::tr("in the batch queue"));
    }
    if (!error.isEmpty()) {
        letters += u'!';
        words.append(error);
    }
    return {letters, words.join(QStringLiteral(", "))};
}

}  // namespace varnel
