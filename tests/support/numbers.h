// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

#include "base/byte_packing.h"
#include "base/problem.h"
#include "base/run_observer.h"
#include "runs/portions.h"

namespace kaldo::test {

// A run that only counts.

inline std::uint64_t Expected(std::size_t group, std::size_t item) {
  return group * 1'000'003 + item;
}

/// One number per item. One item may be told to fail, and one group to go on until stopped.
class NumbersTask final : public PortionTask {
 public:
  std::optional<Portion> failing;
  std::optional<std::size_t> endless_group;
  mutable std::atomic<std::size_t> workers{0};

  std::unique_ptr<PortionWorker> MakeWorker() const override {
    ++workers;
    return std::make_unique<Worker>(*this);
  }

 private:
  class Worker final : public PortionWorker {
   public:
    explicit Worker(const NumbersTask& task) : task_(task) {}

    std::string Do(std::string_view order, RunObserver& observer) override {
      const auto portion = ByteUnpacker(order).Get<Portion>();
      while (task_.endless_group == portion.group) {
        if (observer.StopRequested()) {
          throw RunStopped();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
      BytePacker packer;
      for (std::size_t item = portion.begin; item < portion.end; ++item) {
        if (task_.failing && task_.failing->group == portion.group &&
            task_.failing->begin == item) {
          throw std::runtime_error("this item");
        }
        packer.Add(Expected(portion.group, item));
        observer.OnSteps(1);
      }
      return packer.Take();
    }

   private:
    const NumbersTask& task_;
  };
};

/// Puts all numbers behind each other, as they are taken.
class NumbersPlan final : public PortionPlan {
 public:
  NumbersPlan(std::size_t groups, std::size_t items) : groups_(groups), items_(items) {}

  std::size_t most_per_portion = 1000;
  std::optional<std::size_t> last_group;     ///< ends early behind it
  std::optional<std::size_t> enough;         ///< so many items of a group are taken, then no more
  std::optional<std::size_t> failing_group;  ///< of which a result cannot be taken
  std::vector<std::uint64_t> taken;

  std::size_t Groups() const override { return groups_; }
  std::size_t ItemsPerGroup() const override { return items_; }
  std::size_t MostItemsPerPortion() const override { return most_per_portion; }
  bool MayEndEarly() const override { return last_group.has_value(); }
  bool HasEnded(std::size_t group) const override { return group < ended_; }

  std::string Order(const Portion& portion) override {
    BytePacker packer;
    packer.Add(portion);
    return packer.Take();
  }

  bool IsPossible(const Portion& portion, std::string_view result) const override {
    return result.size() == portion.Size() * sizeof(std::uint64_t);
  }

  bool Take(const Portion& portion, std::string_view result) override {
    if (failing_group == portion.group) {
      throw RunFailure("disk full");
    }
    ByteUnpacker unpacker(result);
    for (std::size_t item = portion.begin; item < portion.end && !HasEnded(portion.group); ++item) {
      taken.push_back(unpacker.Get<std::uint64_t>());
      ended_ += enough && item + 1 == std::min(*enough, items_) ? 1 : 0;
    }
    return !(last_group == portion.group && portion.end == items_);
  }

  /// The numbers of the first so many items of all groups.
  std::vector<std::uint64_t> Prefix(std::size_t count) const {
    std::vector<std::uint64_t> numbers;
    for (std::size_t i = 0; i < count; ++i) {
      numbers.push_back(Expected(i / items_, i % items_));
    }
    return numbers;
  }

 private:
  std::size_t groups_;
  std::size_t items_;
  std::size_t ended_ = 0;
};

class CountingObserver final : public RunObserver {
 public:
  void OnSteps(std::uint64_t steps) override { steps_ += steps; }
  bool StopRequested() const override { return stop_; }
  std::uint64_t Steps() const { return steps_; }
  void Stop() { stop_ = true; }

 private:
  std::atomic<std::uint64_t> steps_{0};
  std::atomic<bool> stop_{false};
};

}  // namespace kaldo::test
