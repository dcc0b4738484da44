// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace kaldo {

/// The threads of a run: `wanted`, or as many as the machine has cores when that is 0.
inline unsigned NumberOfThreads(unsigned wanted) {
  const unsigned cores = std::thread::hardware_concurrency();
  return wanted != 0 ? wanted : (cores != 0 ? cores : 1);
}

/// Calls work(i) for every i below `count`, on `threads` threads, in any order; `make_work` makes
/// one `work` per thread, so that each can keep memory of its own. Items write into slots of their
/// own, which makes the result independent of the number of threads. The first exception of any
/// item ends the loop and is thrown here.
template <typename MakeWork>
void ParallelFor(std::size_t count, unsigned threads, MakeWork make_work) {
  std::atomic<std::size_t> next{0};
  std::atomic<bool> failed{false};
  std::exception_ptr failure;
  std::mutex failure_mutex;
  const auto run = [&] {
    try {
      auto work = make_work();
      for (std::size_t i = next++; i < count && !failed; i = next++) {
        work(i);
      }
    } catch (...) {
      const std::lock_guard lock(failure_mutex);
      if (!failed.exchange(true)) {
        failure = std::current_exception();
      }
    }
  };
  {
    std::vector<std::jthread> workers;
    for (unsigned thread = 1; thread < threads && thread < count; ++thread) {
      workers.emplace_back(run);
    }
    run();
  }
  if (failure) {
    std::rethrow_exception(failure);
  }
}

}  // namespace kaldo
