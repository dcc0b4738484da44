// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "base/run_observer.h"

namespace kaldo {

// The long part of a run consists of items that depend on nothing but the input: offspring to
// allocate, iterations to simulate. They come in groups of equal size, one group per combination or
// subset of loci. A unit is a stretch of items of one group; whoever does it, a thread here or a
// process on another machine, gets an order and gives back a result, both as bytes.

/// A stretch of items of one group.
struct WorkUnit {
  std::size_t group = 0;
  std::size_t begin = 0;
  std::size_t end = 0;

  std::size_t Size() const { return end - begin; }

  friend bool operator==(const WorkUnit&, const WorkUnit&) = default;
};

/// Does one unit after the other, on one thread, with memory of its own.
class UnitWorker {
 public:
  UnitWorker() = default;
  UnitWorker(const UnitWorker&) = delete;
  UnitWorker& operator=(const UnitWorker&) = delete;
  UnitWorker(UnitWorker&&) = delete;
  UnitWorker& operator=(UnitWorker&&) = delete;
  virtual ~UnitWorker() = default;

  /// The result of a unit follows from its order alone. Tells the observer each item; throws
  /// RunStopped within a moment when it asks to stop.
  virtual std::string Do(std::string_view order, RunObserver& observer) = 0;
};

/// What is to be done, known to every process that takes part.
class UnitTask {
 public:
  UnitTask() = default;
  UnitTask(const UnitTask&) = delete;
  UnitTask& operator=(const UnitTask&) = delete;
  UnitTask(UnitTask&&) = delete;
  UnitTask& operator=(UnitTask&&) = delete;
  virtual ~UnitTask() = default;

  /// A worker for one thread; called on that thread.
  virtual std::unique_ptr<UnitWorker> MakeWorker() const = 0;
};

/// How the process that leads the run cuts the part into units and what it does with their results.
/// Nothing here is called by two threads at once.
class UnitPlan {
 public:
  UnitPlan() = default;
  UnitPlan(const UnitPlan&) = delete;
  UnitPlan& operator=(const UnitPlan&) = delete;
  UnitPlan(UnitPlan&&) = delete;
  UnitPlan& operator=(UnitPlan&&) = delete;
  virtual ~UnitPlan() = default;

  virtual std::size_t Groups() const = 0;
  virtual std::size_t ItemsPerGroup() const = 0;

  /// So many items make a unit of a second or less.
  virtual std::size_t MostItemsPerUnit() const = 0;

  /// True where Take() may call off later groups: then the first group is hurried up, and work on
  /// those behind it may be thrown away.
  virtual bool MayEndEarly() const { return false; }

  /// The order of a unit. Asked in order of groups and items.
  virtual std::string Order(const WorkUnit& unit) = 0;

  /// Takes the result of a unit; they come in order of groups and items, however they were done.
  /// False: no further unit is wanted.
  virtual bool Take(const WorkUnit& unit, std::string_view result) = 0;
};

}  // namespace kaldo
