// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/terminal_progress.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <system_error>

#include <fmt/format.h>

#include "base/problem.h"
#include "base/stop_signal.h"

namespace kaldo {

namespace {

using namespace std::chrono_literals;

constexpr auto kSilentTime = 1s;
constexpr auto kPause = 200ms;
constexpr std::uint64_t kBarWidth = 24;
constexpr std::string_view kEraseLine = "\r\033[K";

std::string TimeText(double seconds) {
  const auto whole = static_cast<std::uint64_t>(std::llround(seconds));
  return whole < 3600 ? fmt::format("{}:{:02}", whole / 60, whole % 60)
                      : fmt::format("{}:{:02}:{:02}", whole / 3600, whole / 60 % 60, whole % 60);
}

}  // namespace

std::string ProgressLine(std::string_view part, std::uint64_t done, std::uint64_t steps,
                         std::chrono::duration<double> elapsed) {
  const std::uint64_t filled = steps == 0 ? 0 : kBarWidth * std::min(done, steps) / steps;
  std::string line = fmt::format("{} [{}{}] {:3} %  {} of {}", part, std::string(filled, '#'),
                                 std::string(kBarWidth - filled, '.'),
                                 steps == 0 ? 0 : 100 * done / steps, done, steps);
  if (done > 0 && done < steps) {
    const double left =
        elapsed.count() * static_cast<double>(steps - done) / static_cast<double>(done);
    line += fmt::format(", {} left", TimeText(left));
  }
  return line;
}

TerminalProgress::TerminalProgress(std::ostream& stream, bool is_terminal) : stream_(stream) {
  if (is_terminal) {
    try {
      painter_ = JoiningThread([this] { DrawUntilEnd(); });
    } catch (const std::system_error&) {
      // No further thread can be started: a run without a bar.
    }
  }
}

TerminalProgress::~TerminalProgress() {
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
  }
  end_.notify_all();
}

void TerminalProgress::OnPart(std::string_view name, std::uint64_t steps) {
  const std::lock_guard lock(mutex_);
  part_ = name;
  note_.clear();
  steps_ = steps;
  part_started_ = Clock::now();
  done_ = 0;
}

void TerminalProgress::OnNote(std::string_view note) {
  const std::lock_guard lock(mutex_);
  note_ = note;
}

void TerminalProgress::OnMessage(RunMessage kind, std::string_view sentence) {
  const std::lock_guard lock(mutex_);
  stream_ << (is_drawn_ ? kEraseLine : "")
          << (kind == RunMessage::kWarning ? "Warning: " : "Note: ") << Escaped(sentence) << '\n'
          << std::flush;
  is_drawn_ = false;
}

bool TerminalProgress::StopRequested() const { return StopSignalled(); }

void TerminalProgress::DrawUntilEnd() {
  std::unique_lock lock(mutex_);
  while (!end_.wait_for(lock, kPause, [this] { return ended_; })) {
    if (!part_.empty() && Clock::now() - started_ >= kSilentTime) {
      stream_ << kEraseLine << ProgressLine(part_, done_, steps_, Clock::now() - part_started_)
              << (note_.empty() ? "" : ", ") << note_ << std::flush;
      is_drawn_ = true;
    }
  }
  if (is_drawn_) {
    stream_ << kEraseLine << std::flush;
  }
}

}  // namespace kaldo
