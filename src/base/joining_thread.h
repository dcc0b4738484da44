// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>
#include <utility>

namespace kaldo {

/// A thread that is waited for where it goes out of scope. Not every standard library has one.
class JoiningThread {
 public:
  JoiningThread() = default;

  /// Throws std::system_error where no further thread can be started.
  template <typename Work>
  explicit JoiningThread(Work work) : thread_(std::move(work)) {}

  JoiningThread(const JoiningThread&) = delete;
  JoiningThread& operator=(const JoiningThread&) = delete;
  JoiningThread(JoiningThread&&) noexcept = default;

  JoiningThread& operator=(JoiningThread&& other) noexcept {
    Join();
    thread_ = std::move(other.thread_);
    return *this;
  }

  ~JoiningThread() { Join(); }

 private:
  void Join() {
    if (thread_.joinable()) {
      thread_.join();
    }
  }

  std::thread thread_;
};

}  // namespace kaldo
