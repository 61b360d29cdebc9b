// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <string>
#include <vector>

#include "varnel/varnel.h"

struct varnel_names {
    std::vector<std::string> all;
};

namespace varnel {

// What is in the catalogue, each "BRAND/MODEL". All here throw std::bad_alloc.
QStringList CameraNames();
QStringList LensNames();
// As varnel_view_set takes them.
QStringList ViewProjections();

varnel_names* NewNames(const QStringList& names);

// "WHAT "GIVEN"", and which of the names was meant if one is near.
QString NotAmong(const QStringList& names, const QString& what, const QString& given);

}  // namespace varnel
