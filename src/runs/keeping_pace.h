// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace kaldo {

/// What a run does with what an unfinished one has done, and with what it does itself.
enum class KeptWork {
  kNone,     ///< it keeps nothing: nobody will go on with results that go nowhere
  kAnew,     ///< it begins anew, and keeps what is done
  kResumed,  ///< it goes on with an unfinished run, and keeps what is done
};

/// How soon and how often a run keeps what is done. Whatever ends it, less than that is lost.
struct KeepingPace {
  using Duration = std::chrono::steady_clock::duration;

  Duration first = std::chrono::seconds(10);  ///< a run that ends earlier leaves nothing
  Duration then = std::chrono::seconds(5);

  /// Waiting for the disk takes at most one part in so many of the time: on a slow one results are
  /// kept less often.
  int part_of_time = 20;
};

}  // namespace kaldo
