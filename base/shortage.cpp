// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/shortage.h"

#include <QCoreApplication>

namespace varnel {

QString ShortageText(Scarce what) {
    return what == Scarce::Memory
               ? QCoreApplication::translate("Shortage", "There is not enough memory.")
               : QCoreApplication::translate("Shortage", "The system gives no more threads.");
}

}  // namespace varnel
