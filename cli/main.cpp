// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert in one piece: where photos are decoded in the program itself, and for sanitizers.
#include "cli/early_reader.h"
#include "cli/start/program.h"

int main(int argc, char* argv[]) {
    return varnel::RunProgram(argc, argv, varnel::EarlyReader(argc, argv));
}
