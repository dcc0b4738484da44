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
// subset of loci. A portion is a stretch of items of one group; whoever does it, a thread here or a
// process on another machine, gets an order and gives back a result, both as bytes.

/// A stretch of items of one group.
struct Portion {
  std::size_t group = 0;
  std::size_t begin = 0;
  std::size_t end = 0;

  std::size_t Size() const { return end - begin; }

  friend bool operator==(const Portion&, const Portion&) = default;
};

/// An item of a group, for instance the first one that is not done.
struct PortionPlace {
  std::size_t group = 0;
  std::size_t item = 0;

  friend bool operator==(const PortionPlace&, const PortionPlace&) = default;
};

/// Does one portion after the other, on one thread, with memory of its own.
class PortionWorker {
 public:
  PortionWorker() = default;
  PortionWorker(const PortionWorker&) = delete;
  PortionWorker& operator=(const PortionWorker&) = delete;
  PortionWorker(PortionWorker&&) = delete;
  PortionWorker& operator=(PortionWorker&&) = delete;
  virtual ~PortionWorker() = default;

  /// The result of a portion follows from its order alone. Tells the observer each item; throws
  /// RunStopped within a moment when it asks to stop.
  virtual std::string Do(std::string_view order, RunObserver& observer) = 0;
};

/// What is to be done, known to every process that takes part.
class PortionTask {
 public:
  PortionTask() = default;
  PortionTask(const PortionTask&) = delete;
  PortionTask& operator=(const PortionTask&) = delete;
  PortionTask(PortionTask&&) = delete;
  PortionTask& operator=(PortionTask&&) = delete;
  virtual ~PortionTask() = default;

  /// A worker for one thread; called on that thread.
  virtual std::unique_ptr<PortionWorker> MakeWorker() const = 0;
};

/// How the process that leads the run cuts the part into portions and what it does with their
/// results. Nothing here is called by two threads at once.
class PortionPlan {
 public:
  PortionPlan() = default;
  PortionPlan(const PortionPlan&) = delete;
  PortionPlan& operator=(const PortionPlan&) = delete;
  PortionPlan(PortionPlan&&) = delete;
  PortionPlan& operator=(PortionPlan&&) = delete;
  virtual ~PortionPlan() = default;

  virtual std::size_t Groups() const = 0;
  virtual std::size_t ItemsPerGroup() const = 0;

  /// Where to begin: the items before it were done in an earlier attempt at the run.
  virtual PortionPlace First() const { return {}; }

  /// So many items make a portion of a second or less.
  virtual std::size_t MostItemsPerPortion() const = 0;

  /// True where Take() may call off later groups: then the first group is hurried up, and work on
  /// those behind it may be thrown away.
  virtual bool MayEndEarly() const { return false; }

  /// True where a group had enough items with those taken: of the rest no result is taken, and
  /// those that were not handed out yet are not done.
  virtual bool HasEnded(std::size_t /*group*/) const { return false; }

  /// The order of a portion. Asked in order of groups and items.
  virtual std::string Order(const Portion& portion) = 0;

  /// Whether bytes from a file may be the result of a portion: what they hold leads nowhere that a
  /// result could not lead. True where nothing can be told, as of a text.
  virtual bool IsPossible(const Portion& /*portion*/, std::string_view /*result*/) const {
    return true;
  }

  /// Takes the result of a portion; they come in order of groups and items, however they were done.
  /// False: no further portion is wanted.
  virtual bool Take(const Portion& portion, std::string_view result) = 0;
};

}  // namespace kaldo
