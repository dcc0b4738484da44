// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/mpi_session.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <list>
#include <mpi.h>
#include <thread>

#include <climits>
#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

/// MPI counts bytes in an int.
constexpr std::uint64_t kMostBytesAtOnce = std::uint64_t{1} << 30U;

/// Looks again and again rather than wait for a process that may have died meanwhile.
bool BroadcastBlock(void* data, std::uint64_t bytes, const std::function<bool()>& give_up) {
  MPI_Request request = MPI_REQUEST_NULL;
  MPI_Ibcast(data, static_cast<int>(bytes), MPI_BYTE, 0, MPI_COMM_WORLD, &request);
  int is_done = 0;
  for (MPI_Test(&request, &is_done, MPI_STATUS_IGNORE); is_done == 0;
       MPI_Test(&request, &is_done, MPI_STATUS_IGNORE)) {
    if (give_up()) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::microseconds(50));
  }
  return true;
}

}  // namespace

/// A message must stay where it is until it has been delivered; a list never moves its elements.
struct MpiSession::Outbox {
  struct Letter {
    std::string bytes;
    MPI_Request request = MPI_REQUEST_NULL;
  };
  std::list<Letter> letters;
};

MpiSession::MpiSession() : outbox_(std::make_unique<Outbox>()) {
  int granted = 0;
  MPI_Init_thread(nullptr, nullptr, MPI_THREAD_FUNNELED, &granted);
  if (granted < MPI_THREAD_FUNNELED) {
    throw RunFailure("This MPI library does not allow threads; KALDO needs MPI_THREAD_FUNNELED.");
  }
  MPI_Comm_rank(MPI_COMM_WORLD, &rank_);
  MPI_Comm_size(MPI_COMM_WORLD, &size_);
}

MpiSession::~MpiSession() {
  for (Outbox::Letter& letter : outbox_->letters) {
    MPI_Wait(&letter.request, MPI_STATUS_IGNORE);
  }
  MPI_Finalize();
}

std::string MpiSession::MachineName() {
  std::array<char, MPI_MAX_PROCESSOR_NAME> name{};
  int length = 0;
  MPI_Get_processor_name(name.data(), &length);
  return {name.data(), static_cast<std::size_t>(length)};
}

void MpiSession::Send(int to, MessageKind kind, std::string bytes) {
  if (bytes.size() > INT_MAX) {
    throw RunFailure(fmt::format("A portion of the run gives {} MB, more than a message can hold.",
                                 bytes.size() / 1024 / 1024));
  }
  DropDelivered();
  Outbox::Letter& letter = outbox_->letters.emplace_back();
  letter.bytes = std::move(bytes);
  MPI_Isend(letter.bytes.data(), static_cast<int>(letter.bytes.size()), MPI_BYTE, to,
            static_cast<int>(kind), MPI_COMM_WORLD, &letter.request);
}

void MpiSession::DropDelivered() {
  outbox_->letters.remove_if([](Outbox::Letter& letter) {
    int is_delivered = 0;
    MPI_Test(&letter.request, &is_delivered, MPI_STATUS_IGNORE);
    return is_delivered != 0;
  });
}

bool MpiSession::IsSending() const { return !outbox_->letters.empty(); }

std::optional<Message> MpiSession::Poll() {
  DropDelivered();
  int has_come = 0;
  MPI_Status status{};
  MPI_Iprobe(MPI_ANY_SOURCE, MPI_ANY_TAG, MPI_COMM_WORLD, &has_come, &status);
  if (has_come == 0) {
    return std::nullopt;
  }
  int bytes = 0;
  MPI_Get_count(&status, MPI_BYTE, &bytes);
  Message message{status.MPI_SOURCE, static_cast<MessageKind>(status.MPI_TAG), {}};
  message.bytes.resize(static_cast<std::size_t>(bytes));
  MPI_Recv(message.bytes.data(), bytes, MPI_BYTE, status.MPI_SOURCE, status.MPI_TAG, MPI_COMM_WORLD,
           MPI_STATUS_IGNORE);
  return message;
}

bool MpiSession::Broadcast(std::string& bytes, const std::function<bool()>& give_up) {
  std::uint64_t size = bytes.size();
  if (!BroadcastBlock(&size, sizeof(size), give_up)) {
    return false;
  }
  bytes.resize(size);
  for (std::uint64_t begin = 0; begin < size; begin += kMostBytesAtOnce) {
    const std::uint64_t block = std::min(kMostBytesAtOnce, size - begin);
    if (!BroadcastBlock(bytes.data() + begin, block, give_up)) {
      return false;
    }
  }
  return true;
}

std::string EndedUnexpectedly(int process, int processes) {
  return fmt::format(
      "Process {} of {} has ended unexpectedly, and with it the run. The results of earlier runs "
      "are as they were.",
      process, processes);
}

}  // namespace kaldo
