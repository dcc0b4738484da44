// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/program.h"

int main(int argc, char** argv) { return kaldo::RunProgram(argc, argv); }
