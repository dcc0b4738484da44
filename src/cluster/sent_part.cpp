// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/sent_part.h"

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_portions.h"
#include "allocation/allocation_record.h"
#include "base/byte_packing.h"
#include "base/version.h"
#include "simulation/iteration_portions.h"
#include "simulation/scan_plan.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// What was sent has passed all tests at process 0: a Problem here is a fault of the transport.
template <typename Value>
Value Expect(tl::expected<Value, Problem> value) {
  if (!value) {
    throw RunFailure(fmt::format("{} {}", SentenceOf(value.error()), DetailLine(value.error())));
  }
  return std::move(*value);
}

class SentFiles final : public FileSource {
 public:
  explicit SentFiles(const FileBytes& files) : files_(files) {}

  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override {
    const auto file = files_.find(path);
    if (file == files_.end()) {
      return tl::unexpected(CannotOpenFile(path, "process 0 has not sent it"));
    }
    return file->second;
  }

 private:
  const FileBytes& files_;
};

/// A task together with the settings and the input that it refers to.
class SentAllocation final : public PortionTask {
 public:
  SentAllocation(const RunRecord& record, FileSource& files)
      : settings_(Expect(SettingsOf(record, {}))),
        input_(Expect(LoadAllocationInput(settings_, files))),
        task_(settings_, input_) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override { return task_.MakeWorker(); }

 private:
  AllocationSettings settings_;
  AllocationInput input_;
  AllocationTask task_;
};

class SentEvidence final : public PortionTask {
 public:
  SentEvidence(const RunRecord& record, FileSource& files)
      : settings_(Expect(SettingsOf(record, {}))),
        input_(Expect(LoadAllocationInput(settings_, files))),
        evidence_(settings_, input_),
        task_(evidence_.Settings(), evidence_.Input({})) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override { return task_.MakeWorker(); }

 private:
  AllocationSettings settings_;
  AllocationInput input_;
  AllocationEvidence evidence_;
  EvidenceTask task_;
};

class SentSimulation final : public PortionTask {
 public:
  SentSimulation(const RunRecord& record, FileSource& files, IterationProduct product)
      : settings_(Expect(SimulationSettingsOf(record, {}))),
        input_(Expect(LoadSimulationInput(settings_, files))),
        task_(settings_, input_, product) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override { return task_.MakeWorker(); }

 private:
  SimulationSettings settings_;
  SimulationInput input_;
  IterationTask task_;
};

class SentScan final : public PortionTask {
 public:
  SentScan(const RunRecord& record, FileSource& files)
      : settings_(Expect(SimulationSettingsOf(record, {}))),
        input_(Expect(LoadSimulationInput(settings_, files))),
        task_(settings_, input_) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override { return task_.MakeWorker(); }

 private:
  SimulationSettings settings_;
  SimulationInput input_;
  ScanTask task_;
};

}  // namespace

std::string Pack(const SentPart& sent) {
  BytePacker packer;
  packer.AddText(sent.part);
  packer.Add(sent.threads);
  packer.AddText(sent.record);
  packer.Add(sent.files.size());
  for (const auto& [path, bytes] : sent.files) {
    packer.AddText(path);
    packer.AddAll(std::span<const char>(bytes));
  }
  return packer.Take();
}

SentPart UnpackSentPart(std::string_view bytes) {
  ByteUnpacker unpacker(bytes);
  SentPart sent;
  sent.part = unpacker.GetText();
  sent.threads = unpacker.Get<unsigned>();
  sent.record = unpacker.GetText();
  for (auto files = unpacker.Get<std::size_t>(); files > 0; --files) {
    const std::string path(unpacker.GetText());
    sent.files[path] = unpacker.GetAll<char>();
  }
  return sent;
}

std::unique_ptr<PortionTask> MakeTask(const SentPart& sent) {
  const RunRecord record = Expect(ParseRunRecord(sent.record, "the record of process 0"));
  if (record.version != Version()) {
    throw RunFailure(
        fmt::format("this is KALDO {}, but process 0 is KALDO {}", Version(), record.version));
  }
  SentFiles files(sent.files);
  if (sent.part == kAllocatingPart) {
    return std::make_unique<SentAllocation>(record, files);
  }
  if (sent.part == kWeighingPart) {
    return std::make_unique<SentEvidence>(record, files);
  }
  if (sent.part == kScanPart) {
    return std::make_unique<SentScan>(record, files);
  }
  return std::make_unique<SentSimulation>(record, files, ProductOf(sent.part));
}

tl::expected<std::vector<char>, Problem> RememberedFiles::Read(const std::string& path) {
  auto bytes = DiskFiles().Read(path);
  if (bytes) {
    files_[path] = *bytes;
  }
  return bytes;
}

}  // namespace kaldo
