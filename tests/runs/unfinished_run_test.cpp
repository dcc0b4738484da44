// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/unfinished_run.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "runs/resuming_workforce.h"
#include "runs/run_refused.h"
#include "tests/support/numbers.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::NumbersPlan;
using test::NumbersTask;

constexpr KeepingPace kAtOnce{.first = {}, .then = {}, .part_of_time = 0};

RunRecord Record() {
  RunRecord record;
  record.version = "1.0.0";
  record.date = "2026-03-01T14:02:11Z";
  record.flow = "counting";
  record.settings = {{"tolerance", std::int64_t{1}}};
  record.inputs = {{"loci", "loci.txt", {7, std::string(64, 'a')}}};
  record.seed = 5;
  return record;
}

/// All that can be read of a file, from its head on.
std::vector<LoggedPortion> Entries(PortionLogReader& reader) {
  std::vector<LoggedPortion> entries;
  for (; reader.Next(); reader.Advance()) {
    entries.push_back(*reader.Next());
  }
  return entries;
}

// Wherever the file is cut or a byte of it is another, what is before that is read, and nothing
// else; and a writer that goes on there makes a whole file again.
TEST(PortionLog, IsWholeUpToTheEntryThatIsCutOrDamaged) {
  const std::vector<LoggedPortion> entries = {
      {0, {0, 0, 3}, "abc"}, {0, {0, 3, 4}, ""}, {1, {7, 0, 9}, std::string(30, '\0')}};
  PortionLogText text;
  std::string file = text.Head(Record());
  std::vector<std::size_t> ends = {file.size()};
  for (const LoggedPortion& entry : entries) {
    ends.push_back((file += text.Entry(entry)).size());
  }
  const test::TempFolder folder;
  for (std::size_t place = 0; place <= file.size(); ++place) {
    const auto whole = static_cast<std::size_t>(
        std::count_if(ends.begin(), ends.end(), [&](std::size_t end) { return end <= place; }));
    std::string damaged = file;
    if (place < file.size()) {
      damaged[place] = static_cast<char>(damaged[place] ^ 1);
    }
    for (const std::string& bytes : {file.substr(0, place), damaged}) {
      const std::string path = folder.Write("log", bytes);
      PortionLogReader reader(path);
      ASSERT_EQ(reader.Record().has_value(), whole > 0) << place;
      const auto read = Entries(reader);
      ASSERT_EQ(read, std::vector(entries.begin(),
                                  entries.begin() + static_cast<std::ptrdiff_t>(
                                                        std::max<std::size_t>(whole, 1) - 1)))
          << place;
      if (whole > 0) {
        ASSERT_EQ(reader.Record()->seed, 5U);
        ASSERT_EQ(reader.BytesTaken(), ends[whole - 1]);
      }
      if (whole > 0 && place == ends[whole - 1]) {
        folder.Write("log", file.substr(0, place) + reader.TextBehind().Entry(entries[1]));
        PortionLogReader again(path);
        ASSERT_EQ(Entries(again).size(), whole);
      }
    }
  }
}

class Counting {
 public:
  test::CountingObserver observer;
  std::vector<std::uint64_t> first;
  std::vector<std::uint64_t> second;

  /// Two parts, of which the second may end early. `failing` is an item of the second part.
  void Run(unsigned threads, std::optional<Portion> failing = {}) {
    UnfinishedRun unfinished(ProjectFolder(folder_.Path("")), folder_.Path("new"),
                             KeptWork::kResumed, observer);
    // The first result is kept at once, the others when the run ends.
    LocalThreads local({.first = {}, .then = std::chrono::hours(1)});
    ResumingWorkforce workforce(local, unfinished,
                                [](const auto&, const auto&) { return std::nullopt; });
    NumbersTask task;
    NumbersPlan plan(2, 10);
    plan.most_per_portion = 7;
    NumbersPlan later(9, 8);
    later.last_group = 5;
    later.most_per_portion = 3;
    const auto record = [] { return Record(); };
    workforce.Do({"Counting", task, plan, record}, threads, observer);
    first = plan.taken;
    task.failing = failing;
    try {
      workforce.Do({"Counting on", task, later, record}, threads, observer);
    } catch (const std::runtime_error&) {
      EXPECT_TRUE(failing);
    }
    second = later.taken;
  }

  std::string Path() const { return folder_.Path(kUnfinishedRunFile); }

 private:
  test::TempFolder folder_;
};

/// Makes an entry one that no result looks like, or none, with digests that say nothing of it.
/// Tells how many items stand before it.
std::size_t SpoilAnEntry(const std::string& path) {
  PortionLogReader reader(path);
  std::vector<LoggedPortion> entries = Entries(reader);
  if (!reader.Record()) {
    return 0;
  }
  const auto spoilt = *rc::gen::inRange<std::size_t>(0, entries.size() + 1);
  if (spoilt < entries.size()) {
    LoggedPortion& entry = entries[spoilt];
    const int kind = *rc::gen::inRange(0, 5);
    entry.part += kind == 0 ? 1 : 0;
    entry.portion.group += kind == 1 ? 1 : 0;
    entry.portion.begin = kind == 2 ? entry.portion.end : entry.portion.begin;
    entry.portion.end += kind == 3 ? std::size_t{1} << 63U : 0;
    entry.result += kind == 4 ? "?" : "";
  }
  std::size_t before = 0;
  PortionLogText text;
  std::string log = text.Head(*reader.Record());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    log += text.Entry(entries[i]);
    before += i < spoilt ? entries[i].portion.Size() : 0;
  }
  std::ofstream(path, std::ios::binary) << log;
  return before;
}

RC_GTEST_PROP(ResumingWorkforce, DoesTheRestWhateverIsLeftOfTheFile, ()) {
  const auto threads = [] { return *rc::gen::inRange(1U, 6U); };
  Counting counting;
  std::size_t done = 0;
  for (int attempt = *rc::gen::inRange(1, 4); attempt > 0; --attempt) {
    const std::size_t item = *rc::gen::inRange<std::size_t>(0, 8);
    counting.Run(threads(), Portion{*rc::gen::inRange<std::size_t>(0, 6), item, item + 1});
    const auto bytes = std::filesystem::file_size(counting.Path());
    std::filesystem::resize_file(counting.Path(), *rc::gen::inRange<std::size_t>(0, bytes + 1));
    done = SpoilAnEntry(counting.Path());
  }
  const auto before = counting.observer.Steps();
  counting.Run(threads());
  RC_ASSERT(counting.first == NumbersPlan(2, 10).Prefix(20));
  RC_ASSERT(counting.second == NumbersPlan(9, 8).Prefix(48));
  // Portions behind the last group may be begun in vain.
  RC_ASSERT(counting.observer.Steps() - before >= 20 + 48 - done);
  RC_ASSERT(counting.observer.Steps() - before <= 20 + 72 - done);
}

TEST(UnfinishedRun, IsRefusedWhereItsResultsWouldBeOthers) {
  const test::TempFolder folder;
  test::CountingObserver observer;
  folder.Write(kUnfinishedRunFile, PortionLogText().Head(Record()));
  const auto refusal = [&](const RunRecord& now) {
    UnfinishedRun unfinished(ProjectFolder(folder.Path("")), "", KeptWork::kResumed, observer);
    try {
      unfinished.Begin(now,
                       [](const RunRecord& then, const RunRecord& later) {
                         return then.settings == later.settings ? std::nullopt
                                                                : std::optional("otherwise");
                       },
                       {});
    } catch (const RunRefused& refused) {
      const std::string found = refused.Reason().found;
      return found.substr(0, found.find(';'));
    }
    return std::string();
  };
  RunRecord now = Record();
  now.date = now.folder = "another";
  now.threads = 9;
  now.inputs[0].path = "moved.txt";
  EXPECT_EQ(refusal(now), "");
  now.inputs[0].digest.sha256[0] = 'b';
  EXPECT_EQ(refusal(now), "loci (\"moved.txt\") has changed since it was started");
  now.seed = 6;
  EXPECT_EQ(refusal(now), "it was started with --seed 5, now with --seed 6");
  now.settings[0].second = std::int64_t{2};
  EXPECT_EQ(refusal(now), "it was started otherwise");
  now.flow = "guessing";
  EXPECT_EQ(refusal(now), "it is of another flow: counting, now guessing");
  now.version = "1.0.1";
  EXPECT_EQ(refusal(now), "it was started by KALDO 1.0.0, and this is KALDO 1.0.1");
}

TEST(UnfinishedRun, LeavesNothingInAFewSecondsNorWhereNobodyWouldGoOn) {
  const test::TempFolder folder;
  test::CountingObserver observer;
  for (const auto& [pace, work] : {std::pair{KeepingPace{}, KeptWork::kAnew},
                                   {kAtOnce, KeptWork::kNone},
                                   {kAtOnce, KeptWork::kAnew}}) {
    UnfinishedRun unfinished(ProjectFolder(folder.Path("")), folder.Path("new"), work, observer);
    unfinished.Begin(Record(), {}, pace);
    unfinished.Keep({0, {0, 0, 1}, "result"});
    unfinished.Save();
    const bool is_kept = pace.first.count() == 0 && work == KeptWork::kAnew;
    EXPECT_EQ(folder.FilesIn("").size(), is_kept ? 1U : 0U);
    EXPECT_EQ(unfinished.KeptSentence().has_value(), is_kept);
  }
}

}  // namespace
}  // namespace kaldo
