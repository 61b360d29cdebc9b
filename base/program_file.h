// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace varnel {

// Where a program or a module of that file name is: beside this program or library, or in the
// package's folder for such. It need not be there. Throws nothing.
QString ProgramFile(const QString& name);

}  // namespace varnel
