// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cluster/mpi_session.h"
#include "cluster/sent_part.h"
#include "runs/workforce.h"

namespace kaldo {

/// The threads of all processes that the MPI launcher started. Lives in process 0, which computes
/// too; the others are in WorkForProcess0() meanwhile.
class ClusterWorkforce final : public Workforce {
 public:
  explicit ClusterWorkforce(MpiSession& session, KeepingPace pace = {})
      : Workforce(pace), session_(session) {}

  /// One thread per process unless the user wants more: launchers start a process per core.
  unsigned Threads(unsigned wanted) const override;
  FileSource& Files() override { return files_; }

  /// Also throws RunFailure when a process has failed or died.
  void Do(const PortionJob& job, unsigned wanted, RunObserver& observer) override;

  /// True after a process has died: those left can no longer end together.
  bool HasLostProcess() const { return has_lost_process_; }

  /// Sends the other processes home.
  void Dismiss();

 private:
  struct Part;

  void Announce(const PortionJob& job, unsigned threads, const RunObserver& observer);
  void Serve(Part& part);
  bool HandOut(Part& part);
  bool HandOutUpTo(std::size_t portions, Part& part);
  bool TakeMessages(Part& part);
  void EndPart(const RunObserver& observer);
  void SendToOthers(MessageKind kind);

  MpiSession& session_;
  RememberedFiles files_;
  bool has_lost_process_ = false;
};

}  // namespace kaldo
