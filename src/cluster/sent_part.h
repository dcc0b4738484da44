// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/file_source.h"
#include "runs/portions.h"

namespace kaldo {

/// The bytes of input files by their paths as typed.
using FileBytes = std::map<std::string, std::vector<char>>;

/// All that a process needs to take part in a part of a run: it need not see the disk on which the
/// input files are.
struct SentPart {
  std::string part;      ///< kAllocatingPart, kWeighingPart, kSimulatingPart, ...
  unsigned threads = 1;  ///< of each process
  std::string record;    ///< the settings, as text of a run record
  FileBytes files;
};

std::string Pack(const SentPart& sent);
SentPart UnpackSentPart(std::string_view bytes);

/// Loads the input from the bytes that were sent and makes the task of the part. Throws RunFailure
/// when this program is of another version than that of process 0, whose results it might not give.
std::unique_ptr<PortionTask> MakeTask(const SentPart& sent);

/// The files of this machine, with a copy of all that was read.
class RememberedFiles final : public FileSource {
 public:
  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override;
  const FileBytes& Files() const { return files_; }

 private:
  FileBytes files_;
};

}  // namespace kaldo
