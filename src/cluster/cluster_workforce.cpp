// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/cluster_workforce.h"

#include <algorithm>
#include <numeric>
#include <thread>

#include "base/byte_packing.h"
#include "base/problem.h"
#include "cluster/pause.h"

namespace kaldo {

namespace {

using Clock = std::chrono::steady_clock;

/// Portions that a thread of another process has at hand: the one it works on and the next, so that
/// it never waits for a message.
constexpr unsigned kPortionsPerThread = 2;

/// Launchers give a run about a second between the signal to stop and the end.
constexpr auto kPatienceWhenStopped = std::chrono::milliseconds(400);

unsigned ThreadsPerProcess(unsigned wanted) { return std::max(wanted, 1U); }

}  // namespace

/// A part that is being done.
struct ClusterWorkforce::Part {
  PortionDesk& desk;
  RunObserver& observer;
  std::size_t most_portions;          ///< at one process
  std::vector<std::size_t> portions;  ///< now at each process; nothing at process 0
};

unsigned ClusterWorkforce::Threads(unsigned wanted) const {
  return ThreadsPerProcess(wanted) * static_cast<unsigned>(session_.Size());
}

void ClusterWorkforce::SendToOthers(MessageKind kind) {
  for (int process = 1; process < session_.Size(); ++process) {
    session_.Send(process, kind, {});
  }
}

void ClusterWorkforce::Dismiss() { SendToOthers(MessageKind::kQuit); }

void ClusterWorkforce::Announce(const PortionJob& job, unsigned threads,
                                const RunObserver& observer) {
  if (session_.Size() == 1) {
    return;
  }
  std::string bytes =
      Pack({std::string(job.part), threads, FormatRunRecord(job.record()), files_.Files()});
  SendToOthers(MessageKind::kPart);
  if (!MpiSession::Broadcast(bytes, [&] { return observer.StopRequested(); })) {
    has_lost_process_ = true;
    throw RunStopped();
  }
}

void ClusterWorkforce::Do(const PortionJob& job, unsigned wanted, RunObserver& observer) {
  const unsigned threads = ThreadsPerProcess(wanted);
  PortionDesk desk(job.plan, Threads(wanted));
  Part part{desk, observer, std::size_t{kPortionsPerThread} * threads,
            std::vector<std::size_t>(static_cast<std::size_t>(session_.Size()))};
  Announce(job, threads, observer);
  {
    std::vector<JoiningThread> own;
    try {
      StartThreads(threads, own, [&] { WorkAtDesk(job.task, desk, observer); });
      if (own.empty() && session_.Size() == 1) {
        WorkAtDesk(job.task, desk, observer);
      }
      Serve(part);
    } catch (...) {
      desk.Fail(std::current_exception());
    }
    EndPart(observer);
  }
  desk.ThrowFailure();
}

void ClusterWorkforce::Serve(Part& part) {
  Pause pause;
  while (!part.desk.Ended()) {
    if (part.observer.StopRequested()) {
      throw RunStopped();
    }
    const bool handed_out = HandOut(part);
    if (TakeMessages(part) || handed_out || session_.IsSending()) {
      pause.Reset();
    }
    std::this_thread::sleep_for(pause.Next());
  }
}

/// Gives every process something to do before any of them gets something in reserve.
bool ClusterWorkforce::HandOut(Part& part) {
  bool any = false;
  for (std::size_t portions = 1; portions <= part.most_portions; ++portions) {
    any = HandOutUpTo(portions, part) || any;
  }
  return any;
}

bool ClusterWorkforce::HandOutUpTo(std::size_t portions, Part& part) {
  bool any = false;
  for (int process = 1; process < session_.Size(); ++process) {
    std::size_t& at_hand = part.portions[static_cast<std::size_t>(process)];
    if (at_hand >= portions) {
      continue;
    }
    const auto portion = part.desk.TryNext();
    if (!portion) {
      break;
    }
    BytePacker packer;
    packer.Add(portion->number);
    packer.AddRest(portion->order);
    session_.Send(process, MessageKind::kPortion, packer.Take());
    ++at_hand;
    any = true;
  }
  return any;
}

bool ClusterWorkforce::TakeMessages(Part& part) {
  bool any = false;
  while (const auto message = session_.Poll()) {
    any = true;
    if (message->kind == MessageKind::kFailure) {
      throw RunFailure(message->bytes);
    }
    ByteUnpacker unpacker(message->bytes);
    const auto number = unpacker.Get<std::uint64_t>();
    --part.portions[static_cast<std::size_t>(message->from)];
    part.observer.OnSteps(part.desk.HandIn(number, std::string(unpacker.Rest())));
  }
  return any;
}

/// Waits until all processes have left the part. A launcher that sees a process die tells the
/// others to stop, just as it does when the user presses Ctrl-C: who does not answer then is dead.
void ClusterWorkforce::EndPart(const RunObserver& observer) {
  SendToOthers(MessageKind::kEndPart);
  std::vector<int> missing(static_cast<std::size_t>(session_.Size()) - 1);
  std::iota(missing.begin(), missing.end(), 1);
  std::optional<Clock::time_point> end;
  Pause pause;
  while (!missing.empty()) {
    if (const auto message = session_.Poll()) {
      if (message->kind == MessageKind::kPartEnded) {
        std::erase(missing, message->from);
      }
      continue;
    }
    if (!end && observer.StopRequested()) {
      end = Clock::now() + kPatienceWhenStopped;
    }
    if (end && Clock::now() > *end) {
      has_lost_process_ = true;
      throw RunFailure(EndedUnexpectedly(missing.front(), session_.Size()));
    }
    std::this_thread::sleep_for(pause.Next());
  }
}

}  // namespace kaldo
