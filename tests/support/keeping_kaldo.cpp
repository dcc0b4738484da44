// SPDX-License-Identifier: GPL-3.0-or-later

// The programs as they are, but for the results of portions, which are kept one by one from the
// first on: small runs can then be killed and resumed.

#ifdef KALDO_CLUSTER
#include "cluster/cluster_program.h"
#else
#include "cli/program.h"
#endif

int main(int argc, char** argv) {
  using namespace std::chrono_literals;
  constexpr kaldo::KeepingPace kAtOnce{.first = 0s, .then = 0s, .part_of_time = 0};
#ifdef KALDO_CLUSTER
  return kaldo::RunClusterProgram(argc, argv, kAtOnce);
#else
  return kaldo::RunProgram(argc, argv, kAtOnce);
#endif
}
