// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The system calls that decoding needs, and no other. Throws nothing.
#pragma once

namespace varnel {

// From now on, in every thread there is and will be, a call that is not on the list ends the
// process: it reports the call's number to the parent (triedForbidden in
// decoder/process/protocol.h) and dies of SIGSYS. Some that the C library and Qt make in passing,
// and can do without, are answered with an error instead. Nothing undoes it. False when the system
// does not offer it: then nothing is forbidden.
bool FilterSystemCalls();

}  // namespace varnel
