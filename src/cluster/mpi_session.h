// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kaldo {

/// What a message between the processes of a run says.
enum class MessageKind {
  // From process 0.
  kPart,     ///< a part of the run begins; what it is follows by Broadcast()
  kPortion,  ///< a portion: its number and its order
  kEndPart,  ///< no further portion of the part is wanted, nor the results of those under way
  kQuit,     ///< the run has ended

  // To process 0.
  kResult,     ///< of a portion: its number and the bytes
  kFailure,    ///< a portion could not be done, and why
  kPartEnded,  ///< the answer to kEndPart; no result of the part follows it
};

/// A message and the process it came from.
struct Message {
  int from = 0;
  MessageKind kind = MessageKind::kQuit;
  std::string bytes;
};

/// This process among those that the MPI launcher started, and their messages. Only the thread that
/// made it may use it.
class MpiSession {
 public:
  MpiSession();
  MpiSession(const MpiSession&) = delete;
  MpiSession& operator=(const MpiSession&) = delete;
  MpiSession(MpiSession&&) = delete;
  MpiSession& operator=(MpiSession&&) = delete;

  /// Waits until all messages are delivered and all processes come here.
  ~MpiSession();

  int Rank() const { return rank_; }
  int Size() const { return size_; }

  /// The name of the machine, for messages.
  static std::string MachineName();

  /// Sends without waiting for the other side. Messages between two processes keep their order.
  void Send(int to, MessageKind kind, std::string bytes);

  /// The next message that has arrived, if any.
  std::optional<Message> Poll();

  /// True while messages are on their way, which only Poll() pushes on.
  bool IsSending() const;

  /// Gives the bytes of process 0 to all; all processes must call it. False when it was given up
  /// halfway, after which no process can end in order.
  static bool Broadcast(std::string& bytes, const std::function<bool()>& give_up);

 private:
  struct Outbox;

  void DropDelivered();

  std::unique_ptr<Outbox> outbox_;
  int rank_ = 0;
  int size_ = 1;
};

/// The sentence for a process that has died.
std::string EndedUnexpectedly(int process, int processes);

}  // namespace kaldo
