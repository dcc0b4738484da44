// SPDX-License-Identifier: GPL-3.0-or-later
// A run goes on with what an unfinished one kept, of which entries are damaged in a way that their
// digests do not show. The run comes to its end; and what has not the shape of a result changes
// nothing. The first byte chooses the run, each five that follow damage an entry.
#include <array>
#include <cstdlib>

#include "allocation/allocation_run.h"
#include "base/byte_packing.h"
#include "fuzz/files_of_fuzzer.h"
#include "fuzz/memory_files.h"
#include "runs/resuming_workforce.h"
#include "simulation/counts_plan.h"
#include "simulation/iteration_portions.h"
#include "simulation/reliability_plan.h"
#include "simulation/simulation_record.h"

namespace {

using namespace kaldo;

void Expect(bool holds) {
  if (!holds) {
    std::abort();
  }
}

/// One worker that does everything here, in small portions, and may note down what it did.
class OneWorker final : public Workforce {
 public:
  unsigned Threads(unsigned /*wanted*/) const override { return 1; }
  FileSource& Files() override { return files_; }

  void Do(const PortionJob& job, unsigned /*wanted*/, RunObserver& observer) override {
    if (head.empty()) {
      head = PortionLogText().Head(job.record());
    }
    const auto worker = job.task.MakeWorker();
    const std::size_t items = job.plan.ItemsPerGroup();
    const PortionPlace first = job.plan.First();
    for (std::size_t group = first.group; group < job.plan.Groups(); ++group) {
      for (std::size_t i = group == first.group ? first.item : 0; i < items; i += 2) {
        const Portion portion{group, i, std::min(i + 2, items)};
        const std::string result = worker->Do(job.plan.Order(portion), observer);
        entries.push_back({parts_, portion, result});
        Expect(job.plan.IsPossible(portion, result));
        (void)job.plan.Take(portion, result);
      }
    }
    ++parts_;
  }

  std::string head;
  std::vector<LoggedPortion> entries;

 private:
  fuzz::MemoryFiles files_ = fuzz::StudyWith("", "");
  std::uint64_t parts_ = 0;
};

const fuzz::FilesOfFuzzer& Folder() {
  static const fuzz::FilesOfFuzzer folder;
  return folder;
}

/// A run from its beginning, or from what is in the folder; gives what it found, as text.
using Run = std::function<std::string(Workforce&, KeptWork)>;

std::string RunAllocationOf(Flow flow, bool relatives, Workforce& workforce, KeptWork work) {
  AllocationSettings settings = fuzz::AllocationOfStudy(flow);
  settings.project = Folder().Path();
  settings.kept_work = work;
  settings.may_replace_other_flow = true;
  settings.confidence.relatives = relatives;
  RunObserver observer;
  Expect(RunAllocation(settings, observer, workforce).has_value());
  return Folder().Read("Allocation results.xls") + Folder().Read("Confidence.tsv");
}

std::string RunSimulationOf(Flow flow, Workforce& workforce, KeptWork work) {
  SimulationSettings settings = fuzz::SimulationOfStudy(flow);
  settings.iterations = 5;
  settings.scores_confidence = true;
  const auto input = LoadSimulationInput(settings, workforce.Files());
  Expect(input.has_value());
  RunObserver observer;
  UnfinishedRun unfinished(ProjectFolder(Folder().Path()), Folder().Path() + "/new", work,
                           observer);
  ResumingWorkforce resuming(workforce, unfinished, DifferenceOfSimulations);
  SimulationResult result;
  CountsPlan counts(settings, *input, result, observer);
  const IterationTask simulating(settings, *input, IterationProduct::kCounts);
  const auto record = [&] { return RecordOf(settings, *input, result); };
  resuming.Do({kSimulatingPart, simulating, counts, record}, 1, observer);
  const IterationTask scoring(settings, *input, IterationProduct::kReliability);
  ReliabilityPlan reliability(result);
  resuming.Do({kReliabilityPart, scoring, reliability, record}, 1, observer);
  BytePacker packer;
  packer.AddAll(counts.LastIterations());
  packer.Add(*result.reliability);
  return packer.Take();
}

Run AllocationOf(Flow flow, bool relatives) {
  return [=](Workforce& workforce, KeptWork work) {
    return RunAllocationOf(flow, relatives, workforce, work);
  };
}

Run SimulationOf(Flow flow) {
  return
      [=](Workforce& workforce, KeptWork work) { return RunSimulationOf(flow, workforce, work); };
}

/// A run with what it keeps and what it finds when nothing is damaged.
struct Study {
  explicit Study(Run given) : run(std::move(given)) {
    OneWorker worker;
    found = run(worker, KeptWork::kNone);
    head = worker.head;
    entries = worker.entries;
  }

  Run run;
  std::string head;
  std::vector<LoggedPortion> entries;
  std::string found;
};

enum class Damaged { kEntryGone, kShape, kBytes };

/// Damages an entry, and tells what of it.
Damaged Damage(const std::array<unsigned char, 5>& how, std::vector<LoggedPortion>& entries) {
  LoggedPortion& entry = entries[how[1] % entries.size()];
  const std::size_t place = (how[2] * 256U + how[3]) % (entry.result.size() + 1);
  const std::array<std::uint64_t*, 4> fields = {&entry.part, &entry.portion.group,
                                                &entry.portion.begin, &entry.portion.end};
  switch (how[0] % 6) {
    case 0:
      entry.result.resize(std::min(place, entry.result.size() - 1));
      return Damaged::kShape;
    case 1:
      entry.result.insert(place, 1 + how[4] % 16U, static_cast<char>(how[4]));
      return Damaged::kShape;
    case 2:
      *fields[how[4] % 4U] = how[3] == 255 ? ~std::uint64_t{0} - how[2] : how[3];
      return Damaged::kShape;
    case 3:
      entries.erase(entries.begin() + how[1] % static_cast<std::ptrdiff_t>(entries.size()));
      return Damaged::kEntryGone;
    case 4:
      std::swap(entry.result, entries[how[4] % entries.size()].result);
      return Damaged::kBytes;
    default:
      entry.result.append(1, '\0')[place] = static_cast<char>(how[4]);
      entry.result.pop_back();
      return Damaged::kBytes;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static const std::array<Study, 6> studies = {
      Study(AllocationOf(Flow::kNonSexed, false)), Study(AllocationOf(Flow::kSexed, false)),
      Study(AllocationOf(Flow::kNonSexed, true)),  Study(AllocationOf(Flow::kSexed, true)),
      Study(SimulationOf(Flow::kNonSexed)),        Study(SimulationOf(Flow::kSexed))};
  if (size == 0 || size > 500) {
    return -1;
  }
  const Study& study = studies[*data % studies.size()];
  std::vector<LoggedPortion> entries = study.entries;
  std::vector<Damaged> damaged;
  for (std::size_t at = 1; at + 5 <= size && !entries.empty(); at += 5) {
    std::array<unsigned char, 5> how{};
    std::copy_n(data + at, how.size(), how.begin());
    damaged.push_back(Damage(how, entries));
  }
  PortionLogText text;
  std::string log = text.Head(*PortionLogReader(Folder().Write("head", study.head)).Record());
  for (const LoggedPortion& entry : entries) {
    log += text.Entry(entry);
  }
  Folder().Write(".kaldo-unfinished", log);
  OneWorker worker;
  const std::string found = study.run(worker, KeptWork::kResumed);
  // Several entries that are damaged alike may make one that fits; a single one does not.
  const bool shows = (damaged.size() == 1 && damaged.front() == Damaged::kShape) ||
                     std::all_of(damaged.begin(), damaged.end(),
                                 [](auto what) { return what == Damaged::kEntryGone; });
  Expect(!shows || found == study.found);
  return 0;
}
