// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Colours that a file states by numbers (ITU-T H.273) in place of an ICC profile. Throws
// std::bad_alloc.
#pragma once

#include <QByteArray>

namespace varnel {

// The profile for colour primaries (H.273, table 2) and transfer characteristics (table 3); empty
// for those of sRGB, for unspecified ones and for numbers that no photo has. The curves of wide
// range, PQ and HLG, are made to show their reference white, of 203 cd/m2, as a middle light and to
// lead softly up to the brightest; the samples stay as they are.
QByteArray ProfileOfCodes(int primaries, int transfer);

}  // namespace varnel
