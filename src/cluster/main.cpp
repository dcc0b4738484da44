// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/cluster_program.h"

int main(int argc, char** argv) { return kaldo::RunClusterProgram(argc, argv); }
