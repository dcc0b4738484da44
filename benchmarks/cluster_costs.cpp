// SPDX-License-Identifier: GPL-3.0-or-later
// What a run on a cluster is made of: the time of a portion, what it costs process 0 besides, and
// the message there and back; and the time of a large run that follows from them (docs/cluster.md).
//
//   scripts/make-large-example big --parents 1000 --offspring 20000
//   mpirun -n 2 build/release/benchmarks/kaldo_cluster_costs big simulate 1000000
//   mpirun -n 2 build/release/benchmarks/kaldo_cluster_costs big simulate-sexed 1000000
//   mpirun -n 2 build/release/benchmarks/kaldo_cluster_costs big allocate 50000
//
// The last argument is the size of the large run: iterations of 1,000 pseudo-offspring, or
// offspring.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <iostream>

#include <fmt/format.h>

#include "allocation/allocation_portions.h"
#include "base/byte_packing.h"
#include "base/number_text.h"
#include "cluster/mpi_session.h"
#include "cluster/sent_part.h"
#include "simulation/counts_plan.h"
#include "simulation/iteration_portions.h"

namespace kaldo {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kPortionsMeasured = 40;
constexpr std::size_t kMessagesMeasured = 2000;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Seconds, each on one thread, and bytes.
struct Costs {
  double load = 0;     ///< of the input, at every process
  double portion = 0;  ///< of a portion of full size, at whoever does it
  double order = 0;    ///< of its order, at process 0
  double take = 0;     ///< of taking its result, at process 0
  std::size_t items = 0;
  std::size_t order_bytes = 0;
  std::size_t result_bytes = 0;
  std::size_t input_bytes = 0;
};

void MeasurePortions(const PortionTask& task, PortionPlan& plan, Costs& costs) {
  const auto worker = task.MakeWorker();
  RunObserver observer;
  costs.items = plan.MostItemsPerPortion();
  for (std::size_t i = 0; i < kPortionsMeasured; ++i) {
    const Portion portion{0, i * costs.items, (i + 1) * costs.items};
    const auto start = Clock::now();
    const std::string order = plan.Order(portion);
    costs.order += SecondsSince(start) / kPortionsMeasured;
    const auto order_given = Clock::now();
    const std::string result = worker->Do(order, observer);
    costs.portion += SecondsSince(order_given) / kPortionsMeasured;
    const auto done = Clock::now();
    plan.Take(portion, result);
    costs.take += SecondsSince(done) / kPortionsMeasured;
    costs.order_bytes = order.size();
    costs.result_bytes = result.size();
  }
}

std::size_t BytesOf(const RememberedFiles& files) {
  std::size_t bytes = 0;
  for (const auto& [path, content] : files.Files()) {
    bytes += content.size();
  }
  return bytes;
}

/// The quickest simulation, whose allocation has no errors, or a slower one.
Costs SimulationCosts(const std::filesystem::path& folder, Flow flow) {
  SimulationSettings settings;
  settings.flow = flow;
  settings.error_model.kind = ErrorKind::kUniform;
  settings.loci_file = (folder / "loci.txt").string();
  for (ParentalSet& set : settings.sets) {
    set.collected_file = (folder / "parents.txt").string();
    set.uncollected_sample = set.collected_file;
    set.uncollected = 100;
    set.estimated_collected = 10;
    set.estimated_uncollected = 1;
  }
  settings.iterations = 999;
  settings.offspring_per_iteration = 1000;
  Costs costs;
  RememberedFiles files;
  const auto start = Clock::now();
  const SimulationInput input = LoadSimulationInput(settings, files).value();
  costs.load = SecondsSince(start);
  costs.input_bytes = BytesOf(files);
  RunObserver observer;
  SimulationResult result;
  CountsPlan plan(settings, input, result, observer);
  MeasurePortions(IterationTask(settings, input, IterationProduct::kCounts), plan, costs);
  return costs;
}

Costs AllocationCosts(const std::filesystem::path& folder) {
  AllocationSettings settings;
  settings.loci_file = (folder / "loci.txt").string();
  settings.parents_file = (folder / "parents.txt").string();
  settings.offspring_file = (folder / "offspring.txt").string();
  Costs costs;
  RememberedFiles files;
  const auto start = Clock::now();
  const AllocationInput input = LoadAllocationInput(settings, files).value();
  costs.load = SecondsSince(start);
  costs.input_bytes = BytesOf(files);
  AllocationResult result;
  AllocationPlan plan(settings.flow, input, result);
  if (plan.ItemsPerGroup() < kPortionsMeasured * plan.MostItemsPerPortion()) {
    throw std::runtime_error(fmt::format("at least {} offspring are needed",
                                         kPortionsMeasured * plan.MostItemsPerPortion()));
  }
  MeasurePortions(AllocationTask(settings, input), plan, costs);
  return costs;
}

Message WaitForMessage(MpiSession& session) {
  for (;;) {
    if (auto message = session.Poll()) {
      return std::move(*message);
    }
  }
}

/// Answers every order with a result of the size that it names.
void Echo(MpiSession& session) {
  for (;;) {
    const Message message = WaitForMessage(session);
    if (message.kind == MessageKind::kQuit) {
      return;
    }
    session.Send(0, MessageKind::kResult,
                 std::string(ByteUnpacker(message.bytes).Get<std::size_t>(), 'r'));
  }
}

/// The seconds per order and result with so many of them on the way at once.
double MessagePair(MpiSession& session, const Costs& costs, std::size_t at_once) {
  BytePacker packer;
  packer.Add(costs.result_bytes);
  packer.AddRest(std::string(costs.order_bytes, 'o'));
  const std::string order = packer.Take();
  const auto start = Clock::now();
  std::size_t sent = 0;
  for (std::size_t answered = 0; answered < kMessagesMeasured; ++answered) {
    for (; sent < std::min(answered + at_once, kMessagesMeasured); ++sent) {
      session.Send(1, MessageKind::kPortion, order);
    }
    (void)WaitForMessage(session);
  }
  return SecondsSince(start) / kMessagesMeasured;
}

void PrintModel(const Costs& costs, double pair, double items) {
  const double portions = std::ceil(items / static_cast<double>(costs.items));
  const double at_process_0 = costs.order + costs.take + pair;
  fmt::print(
      "\n{:.0f} items, {:.0f} portions: load twice + max(portions x portion / p, portions x (order "
      "+ "
      "take + pair)) + portion\n",
      items, portions);
  fmt::print("{:>6} {:>12} {:>10} {:>10}\n", "p", "seconds", "speed-up", "per core");
  const auto time = [&](double p) {
    return 2 * costs.load + std::max(portions * costs.portion / p, portions * at_process_0) +
           costs.portion;
  };
  for (const int p : {1, 2, 8, 16, 32, 64, 128, 256, 512}) {
    fmt::print("{:>6} {:>12.1f} {:>10.1f} {:>9.0f}%\n", p, time(p), time(1) / time(p),
               100 * time(1) / time(p) / p);
  }
}

void Report(MpiSession& session, const std::string& folder, const std::string& what, double items) {
  const Costs costs = what == "simulate"         ? SimulationCosts(folder, Flow::kNonSexed)
                      : what == "simulate-sexed" ? SimulationCosts(folder, Flow::kSexed)
                                                 : AllocationCosts(folder);
  const double there_and_back = MessagePair(session, costs, 1);
  const double pair = MessagePair(session, costs, 16);
  session.Send(1, MessageKind::kQuit, {});
  fmt::print("load the input        {:10.3f} ms, {} bytes\n", 1e3 * costs.load, costs.input_bytes);
  fmt::print("portion of {:>5} items   {:10.3f} ms\n", costs.items, 1e3 * costs.portion);
  fmt::print("its order             {:10.3f} ms, {} bytes\n", 1e3 * costs.order, costs.order_bytes);
  fmt::print("taking its result     {:10.3f} ms, {} bytes\n", 1e3 * costs.take, costs.result_bytes);
  fmt::print("message there and back{:10.3f} ms\n", 1e3 * there_and_back);
  fmt::print("pair among many       {:10.3f} ms\n", 1e3 * pair);
  PrintModel(costs, pair, items);
}

}  // namespace
}  // namespace kaldo

int main(int argc, char** argv) {
  kaldo::MpiSession session;
  if (session.Rank() == 1) {
    kaldo::Echo(session);
    return 0;
  }
  try {
    if (argc != 4 || session.Size() != 2) {
      throw std::runtime_error(
          "mpirun -n 2 kaldo_cluster_costs FOLDER simulate|simulate-sexed|allocate SIZE");
    }
    kaldo::Report(session, argv[1], argv[2], kaldo::ParseDouble(argv[3]).value());
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    std::_Exit(1);
  }
}
