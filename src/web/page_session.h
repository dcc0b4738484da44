// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/run_observer.h"
#include "web/finished_runs.h"
#include "web/json.h"

namespace kaldo {

/// What the page asks, one request after the other: a shell as the command line is one, with files
/// in the working folder and the results of the last run in memory. Requests and answers are JSON;
/// a request has its name in "ask":
///
/// - "form": the settings of "kind" (allocation, simulation, import) beside what is "typed" by now;
/// - "look": what a "file" of another program holds, null for one of this program;
/// - "check": all that is wrong with what was typed, and the loci of its files, as `kaldo check`
///   tells them;
/// - "run": runs what was typed, writes its files, and tells what came out;
/// - "table", "offspring": tables of the results, one offspring locus by locus;
/// - "record": the settings, as typed, of the run that a "file" records, and its "kind";
/// - "trial": the settings, as typed, of a simulation like the allocation that was run, and where
///   fewer parents are drawn than the estimate asks for, a "note" that says so, else empty;
/// - "export": writes the results in the "forms" of other programs, too;
/// - "command": runs the "arguments" of a command line; its texts and its exit code.
///
/// Where something is wrong the answer is {"problem": lines}: what the command line tells.
class PageSession {
 public:
  /// Nothing is thrown.
  std::string Answer(std::string_view request, RunObserver& observer);

 private:
  Json Answered(const Json& request, RunObserver& observer);
  Json Run(const Json& request, RunObserver& observer);
  Json Allocate(const TypedSettings& typed, RunObserver& observer);
  Json Simulate(const TypedSettings& typed, RunObserver& observer);
  Json Table(const Json& request) const;
  Json Offspring(const Json& request) const;
  Json Trial() const;
  Json Export(const Json& request) const;

  // Of the last run; the other one is empty.
  std::optional<ShownAllocation> allocation_;
  std::optional<ShownSimulation> simulation_;
};

}  // namespace kaldo
