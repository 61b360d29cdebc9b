// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A way through a form for somebody who has no mouse or does not see the screen, and what stands in
// it.
#pragma once

#include <QStringList>
#include <QWidget>

namespace varnel::testing {

// Of a form that is shown and active: controls and pictures without a name, inputs that the text in
// front of them does not belong to, letters that two controls answer to, controls that Tab does not
// reach or reaches out of the order of reading, and a focus that cannot be seen. One line each:
// "FORM/CONTROL: what is wrong".
QStringList FaultsOf(QWidget& form);

}  // namespace varnel::testing
