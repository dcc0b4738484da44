// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/workforce.h"

#include <chrono>
#include <deque>
#include <filesystem>
#include <set>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "base/byte_packing.h"
#include "base/problem.h"
#include "runs/usable_threads.h"
#include "tests/support/numbers.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using namespace std::chrono_literals;

using test::CountingObserver;
using test::Expected;
using test::NumbersPlan;
using test::NumbersTask;

void Do(const NumbersTask& task, NumbersPlan& plan, unsigned threads, RunObserver& observer) {
  LocalThreads().Do({"Counting", task, plan, [] { return RunRecord(); }}, threads, observer);
}

TEST(LocalThreads, TakeEveryResultOnceAndInOrder) {
  for (const unsigned threads : {1U, 2U, 7U}) {
    for (const auto& [groups, items] : {std::pair<std::size_t, std::size_t>{1, 1},
                                        {0, 5},
                                        {3, 0},
                                        {1, 20'000},
                                        {700, 3},
                                        {5, 1001}}) {
      const NumbersTask task;
      NumbersPlan plan(groups, items);
      CountingObserver observer;
      Do(task, plan, threads, observer);
      EXPECT_EQ(plan.taken, plan.Prefix(groups * items)) << groups << " x " << items;
      EXPECT_EQ(observer.Steps(), groups * items);
      EXPECT_LE(task.workers, threads);
    }
  }
}

TEST(LocalThreads, EndEarlyBehindAGroupAndBreakOffThoseBehindIt) {
  for (const unsigned threads : {1U, 4U}) {
    NumbersTask task;
    task.endless_group = 3;  // begun by threads that have nothing else to do; never ends by itself
    NumbersPlan plan(1000, 50);
    plan.last_group = 2;
    CountingObserver observer;
    Do(task, plan, threads, observer);
    EXPECT_EQ(plan.taken, plan.Prefix(150));
  }
}

TEST(LocalThreads, LeaveGroupsThatHadEnough) {
  for (const unsigned threads : {1U, 4U}) {
    for (const std::size_t enough : {1U, 7U, 50U, 51U}) {
      const NumbersTask task;
      NumbersPlan plan(200, 50);
      plan.most_per_portion = 4;
      plan.enough = enough;
      CountingObserver observer;
      Do(task, plan, threads, observer);
      std::vector<std::uint64_t> expected;
      for (std::size_t item = 0; item < std::size_t{200} * 50; ++item) {
        if (item % 50 < enough) {
          expected.push_back(Expected(item / 50, item % 50));
        }
      }
      EXPECT_EQ(plan.taken, expected) << enough << " of 50";
      if (threads == 1) {  // which never does what is not wanted any more
        EXPECT_LE(observer.Steps(), 200 * std::min<std::size_t>((enough + 3) / 4 * 4, 50));
      }
    }
  }
}

TEST(LocalThreads, ThrowWhatAPortionThrewAndTakeNoneFromThereOn) {
  for (const unsigned threads : {1U, 4U}) {
    NumbersTask task;
    task.failing = Portion{2, 17, 18};
    task.endless_group = 3;
    NumbersPlan plan(1000, 50);
    plan.most_per_portion = 5;
    CountingObserver observer;
    try {
      Do(task, plan, threads, observer);
      FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
      EXPECT_STREQ(error.what(), "this item");
    }
    EXPECT_LE(plan.taken.size(), 115U);
    EXPECT_EQ(plan.taken, plan.Prefix(plan.taken.size()));
  }
}

TEST(LocalThreads, ThrowWhenAResultCannotBeTaken) {
  const NumbersTask task;
  NumbersPlan plan(1000, 50);
  plan.failing_group = 1;
  CountingObserver observer;
  EXPECT_THROW(Do(task, plan, 3, observer), RunFailure);
  EXPECT_EQ(plan.taken, plan.Prefix(50));
}

TEST(LocalThreads, StopWhenAsked) {
  NumbersTask task;
  task.endless_group = 0;
  NumbersPlan plan(2, 50);
  CountingObserver observer;
  const std::jthread user([&] {
    std::this_thread::sleep_for(20ms);
    observer.Stop();
  });
  EXPECT_THROW(Do(task, plan, 3, observer), RunStopped);
  EXPECT_TRUE(plan.taken.empty());
}

/// All portions that the desk hands out when nothing comes back.
std::deque<std::pair<HandedPortion, Portion>> HandOutAll(PortionDesk& desk) {
  std::deque<std::pair<HandedPortion, Portion>> portions;
  while (auto portion = desk.TryNext()) {
    const auto stretch = ByteUnpacker(portion->order).Get<Portion>();
    portions.emplace_back(std::move(*portion), stretch);
  }
  return portions;
}

std::string ResultOf(const Portion& portion) {
  BytePacker packer;
  for (std::size_t item = portion.begin; item < portion.end; ++item) {
    packer.Add(Expected(portion.group, item));
  }
  return packer.Take();
}

RC_GTEST_PROP(PortionDesk, TakesResultsInOrderInWhateverOrderTheyCome, ()) {
  NumbersPlan plan(*rc::gen::inRange<std::size_t>(1, 9), *rc::gen::inRange<std::size_t>(1, 200));
  plan.most_per_portion = *rc::gen::inRange<std::size_t>(1, 100);
  PortionDesk desk(plan, *rc::gen::inRange<std::size_t>(1, 9));
  auto portions = HandOutAll(desk);
  std::size_t items = 0;
  while (!portions.empty()) {
    const auto chosen = portions.begin() + *rc::gen::inRange<std::ptrdiff_t>(
                                               0, static_cast<std::ptrdiff_t>(portions.size()));
    items += desk.HandIn(chosen->first.number, ResultOf(chosen->second));
    portions.erase(chosen);
    for (auto& portion : HandOutAll(desk)) {
      portions.push_back(std::move(portion));
    }
  }
  RC_ASSERT(desk.Ended());
  RC_ASSERT(items == plan.Groups() * plan.ItemsPerGroup());
  RC_ASSERT(plan.taken == plan.Prefix(items));
}

TEST(PortionDesk, HandsOutNoMoreWhileTooManyResultsWaitForAnEarlierOne) {
  NumbersPlan plan(1'000'000, 1);
  PortionDesk desk(plan, 4);
  const auto portions = HandOutAll(desk);
  ASSERT_GT(portions.size(), 8U);
  ASSERT_LT(portions.size(), 1000U);
  for (std::size_t i = 1; i < portions.size(); ++i) {
    desk.HandIn(portions[i].first.number, ResultOf(portions[i].second));
  }
  EXPECT_FALSE(desk.TryNext()) << "portions count until they are taken";
  EXPECT_TRUE(plan.taken.empty());
  desk.HandIn(portions[0].first.number, ResultOf(portions[0].second));
  EXPECT_EQ(plan.taken, plan.Prefix(portions.size()));
  EXPECT_TRUE(desk.TryNext());
}

TEST(PortionDesk, HandsOutNoMoreWhileResultsWaitThatFillTheMemory) {
  NumbersPlan plan(1'000'000, 1);
  PortionDesk desk(plan, 4);
  const auto first = desk.TryNext();
  std::size_t waiting = 0;
  while (const auto portion = desk.TryNext()) {
    std::string result = ResultOf(ByteUnpacker(portion->order).Get<Portion>());
    result.resize(std::size_t{20} * 1024 * 1024);
    desk.HandIn(portion->number, std::move(result));
    ++waiting;
  }
  EXPECT_GE(waiting, 2U);
  EXPECT_LE(waiting, 10U);
  desk.HandIn(first->number, ResultOf({0, 0, 1}));
  EXPECT_EQ(plan.taken.size(), waiting + 1);
  EXPECT_TRUE(desk.TryNext());
}

TEST(PortionDesk, GivesAllWorkersAShareOfTheFirstGroupWhereItMayBeTheLast) {
  NumbersPlan plan(1000, 64);
  plan.last_group = 5;
  PortionDesk desk(plan, 8);
  for (int worker = 0; worker < 8; ++worker) {
    EXPECT_EQ(ByteUnpacker(desk.TryNext()->order).Get<Portion>().group, 0U);
  }
}

TEST(PortionDesk, PassesOverWhatComesAfterTheEnd) {
  NumbersPlan plan(10, 1);
  plan.last_group = 0;
  PortionDesk desk(plan, 2);
  const auto portions = HandOutAll(desk);
  desk.HandIn(portions[0].first.number, ResultOf(portions[0].second));
  EXPECT_TRUE(desk.Ended());
  EXPECT_FALSE(desk.WaitForNext());
  EXPECT_EQ(desk.HandIn(portions[1].first.number, ResultOf(portions[1].second)), 0U);
  desk.Fail(std::make_exception_ptr(RunStopped()));
  EXPECT_NO_THROW(desk.ThrowFailure());
  EXPECT_EQ(plan.taken, plan.Prefix(1));
}

TEST(BytePacking, RefusesBytesThatWereCut) {
  BytePacker packer;
  packer.Add(std::uint32_t{7});
  packer.AddText("loci.txt");
  const std::vector<std::uint16_t> sizes = {100, 102, 104};
  packer.AddAll(std::span(sizes));
  packer.AddRest("rest");
  const std::string bytes = packer.Take();
  const auto unpack = [&sizes](std::string_view read) {
    ByteUnpacker unpacker(read);
    EXPECT_EQ(unpacker.Get<std::uint32_t>(), 7U);
    EXPECT_EQ(unpacker.GetText(), "loci.txt");
    EXPECT_EQ(unpacker.GetAll<std::uint16_t>(), sizes);
    return std::string(unpacker.Rest());
  };
  EXPECT_EQ(unpack(bytes), "rest");
  const std::size_t whole = bytes.size() - 4;
  EXPECT_EQ(unpack(std::string_view(bytes).substr(0, whole)), "");
  for (const std::size_t cut : {whole - 1, whole - 7, std::size_t{5}}) {
    EXPECT_THROW(unpack(std::string_view(bytes).substr(0, cut)), std::runtime_error) << cut;
  }
}

TEST(UsableThreads, FollowsTheNarrowestControlGroup) {
  const test::TempFolder root;
  const auto write = [&](const std::string& path, std::string_view text) {
    std::filesystem::create_directories(std::filesystem::path(root.Path(path)).parent_path());
    root.Write(path, text);
  };
  const auto granted = [&] { return ProcessorsOfControlGroup(root.Path("")); };
  EXPECT_EQ(granted(), std::nullopt);
  write("proc/self/cgroup", "12:cpuset:/\n4:cpu,cpuacct:/jobs/7\n0::/lake/trout\n");
  write("sys/fs/cgroup/lake/trout/cpu.max", "max 100000\n");
  EXPECT_EQ(granted(), std::nullopt);
  write("sys/fs/cgroup/lake/cpu.max", "350000 100000\n");
  EXPECT_EQ(granted(), 3.5);
  write("sys/fs/cgroup/cpu,cpuacct/cpu.cfs_quota_us", "-1\n");
  write("sys/fs/cgroup/cpu,cpuacct/jobs/7/cpu.cfs_quota_us", "200000\n");
  EXPECT_EQ(granted(), 3.5) << "a quota without its period";
  write("sys/fs/cgroup/cpu,cpuacct/jobs/7/cpu.cfs_period_us", "100000\n");
  EXPECT_EQ(granted(), 2.0);
}

}  // namespace
}  // namespace kaldo
