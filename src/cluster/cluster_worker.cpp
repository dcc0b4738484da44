// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/cluster_worker.h"

#include <chrono>
#include <thread>

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "base/problem.h"
#include "base/stop_signal.h"
#include "cluster/pause.h"
#include "cluster/worker_crew.h"

namespace kaldo {

namespace {

using Clock = std::chrono::steady_clock;

/// Longer than process 0 takes to end a part when it was told to stop, too.
constexpr auto kPatienceWithProcess0 = std::chrono::milliseconds(250);

/// Longer than process 0 takes to answer, shorter than launchers leave a run before its end.
constexpr auto kPatienceWhenStopped = std::chrono::milliseconds(600);

class Worker {
 public:
  explicit Worker(MpiSession& session) : session_(session) {}

  void Run() {
    Pause pause;
    while (!quit_) {
      if (TakeMessages() || session_.IsSending()) {
        pause.Reset();
      }
      if (SendFinished(pause.Next())) {
        pause.Reset();
      }
      WatchSignals();
    }
  }

 private:
  bool TakeMessages() {
    bool any = false;
    while (const auto message = session_.Poll()) {
      Take(*message);
      any = true;
    }
    return any;
  }

  void Take(const Message& message) {
    switch (message.kind) {
      case MessageKind::kPart: {
        std::string bytes;
        (void)MpiSession::Broadcast(bytes, [] { return false; });
        StartCrew(bytes);
        break;
      }
      case MessageKind::kPortion: {
        if (crew_) {
          ByteUnpacker unpacker(message.bytes);
          const auto number = unpacker.Get<std::uint64_t>();
          crew_->Add({number, std::string(unpacker.Rest())});
        }
        break;
      }
      case MessageKind::kEndPart:
        // Answered first: process 0 wants to know that this process is there, and the crew may
        // still be loading the input.
        session_.Send(0, MessageKind::kPartEnded, {});
        crew_.reset();
        break;
      default:
        quit_ = true;
    }
  }

  /// A launcher that sees a process die, and a user who presses Ctrl-C, tell all processes to stop:
  /// in the middle of a part process 0 then ends it at once. It does not when this process alone
  /// was told, which it hears of then, nor when it is the one that died: then another one speaks.
  void WatchSignals() {
    if (!crew_ || !StopSignalled()) {
      return;
    }
    const auto now = Clock::now();
    stopped_ = stopped_.value_or(now);
    if (!has_told_ && now - *stopped_ > kPatienceWithProcess0) {
      has_told_ = true;
      session_.Send(
          0, MessageKind::kFailure,
          fmt::format("Process {} of {} on {} was told to stop, and the run ends with it. "
                      "The results of earlier runs are as they were.",
                      session_.Rank(), session_.Size(), MpiSession::MachineName()));
    }
    if (session_.Rank() == 1 && now - *stopped_ > kPatienceWhenStopped) {
      throw RunFailure(EndedUnexpectedly(0, session_.Size()));
    }
  }

  void StartCrew(std::string_view part) {
    try {
      crew_ = std::make_unique<WorkerCrew>(UnpackSentPart(part));
    } catch (const std::exception& error) {
      Send({0, true, error.what()});
    }
  }

  /// Waits so long for a finished portion; then sends all there are.
  bool SendFinished(std::chrono::microseconds patience) {
    if (!crew_) {
      std::this_thread::sleep_for(patience);
      return false;
    }
    bool any = false;
    while (auto portion = crew_->WaitForFinished(any ? std::chrono::microseconds{0} : patience)) {
      Send(*portion);
      any = true;
    }
    return any;
  }

  void Send(const FinishedPortion& portion) {
    if (portion.failed) {
      session_.Send(0, MessageKind::kFailure,
                    fmt::format("Process {} of {} on {} failed: {}", session_.Rank(),
                                session_.Size(), MpiSession::MachineName(), portion.bytes));
      return;
    }
    BytePacker packer;
    packer.Add(portion.number);
    packer.AddRest(portion.bytes);
    session_.Send(0, MessageKind::kResult, packer.Take());
  }

  MpiSession& session_;
  std::unique_ptr<WorkerCrew> crew_;
  std::optional<Clock::time_point> stopped_;
  bool has_told_ = false;
  bool quit_ = false;
};

}  // namespace

void WorkForProcess0(MpiSession& session) { Worker(session).Run(); }

}  // namespace kaldo
