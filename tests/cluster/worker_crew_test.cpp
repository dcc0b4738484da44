// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/worker_crew.h"

#include <chrono>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "allocation/allocation_portions.h"
#include "allocation/allocation_record.h"
#include "base/byte_packing.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using namespace std::chrono_literals;

constexpr auto kLong = 60s;  // against a hang only

/// A study in a folder, as process 0 sends it.
class WorkerCrewTest : public ::testing::Test {
 protected:
  WorkerCrewTest() {
    settings_.project = folder_.Path("project");
    settings_.loci_file = folder_.Write("loci.txt", "L1\nL2\n");
    settings_.parents_file = folder_.Write("parents.txt", "P1 100102 200202\nP2 104106 204206\n");
    settings_.offspring_file =
        folder_.Write("offspring.txt", "O1 100104 200204\nO2 102106 202206\nO3 100100 200200\n");
    sent_.part = kAllocatingPart;
    sent_.threads = 2;
    RememberedFiles files;
    auto input = LoadAllocationInput(settings_, files);
    EXPECT_TRUE(input);
    input_ = std::move(*input);
    sent_.record = FormatRunRecord(RecordOf(settings_, input_, AllocationResult{}));
    sent_.files = files.Files();
  }

  static HandedPortion PortionOf(std::uint64_t offspring) {
    BytePacker packer;
    packer.Add(Portion{0, offspring, offspring + 1});
    return {offspring, packer.Take()};
  }

  /// What a crew says to a single portion, as a failure.
  static std::string FailureOf(SentPart sent) {
    sent.threads = 1;
    WorkerCrew crew(std::move(sent));
    crew.Add(PortionOf(0));
    const auto finished = crew.WaitForFinished(kLong);
    return finished && finished->failed ? finished->bytes : "no failure";
  }

  test::TempFolder folder_;
  AllocationSettings settings_;
  AllocationInput input_;
  SentPart sent_;
};

TEST_F(WorkerCrewTest, DoesPortionsFromWhatWasSentAlone) {
  const std::string bytes = Pack(sent_);
  for (const char* file : {"loci.txt", "parents.txt", "offspring.txt"}) {
    std::filesystem::remove(folder_.Path(file));
  }
  WorkerCrew crew(UnpackSentPart(bytes));
  std::map<std::uint64_t, std::string> results;
  for (const std::uint64_t offspring : {2U, 0U, 1U}) {
    crew.Add(PortionOf(offspring));
  }
  while (results.size() < 3) {
    const auto finished = crew.WaitForFinished(kLong);
    ASSERT_TRUE(finished && !finished->failed);
    results[finished->number] = finished->bytes;
  }
  EXPECT_FALSE(crew.WaitForFinished(0us));

  AllocationResult result;
  AllocationPlan plan(settings_.flow, input_, result);
  for (const auto& [offspring, outcome] : results) {
    plan.Take({0, offspring, offspring + 1}, outcome);
  }
  ASSERT_EQ(result.outcomes.size(), 3U);
  for (const std::size_t offspring : {0U, 1U}) {  // both children of the only pair
    ASSERT_EQ(result.outcomes[offspring].Pairs().size(), 1U);
    EXPECT_EQ(result.outcomes[offspring].pairs[0], (ParentPair{Slot{0}, Slot{1}}));
    EXPECT_FALSE(result.outcomes[offspring].par1_uncollected);
  }
  EXPECT_TRUE(result.outcomes[2].pair_entries == 0 || result.outcomes[2].par2_uncollected);
}

TEST_F(WorkerCrewTest, TellsWhyItCannotWork) {
  SentPart without_file = sent_;
  without_file.files.erase(settings_.parents_file);
  EXPECT_NE(FailureOf(without_file).find("process 0 has not sent it"), std::string::npos);

  SentPart of_other_version = sent_;
  const std::string mine = "version = \"";
  of_other_version.record.insert(of_other_version.record.find(mine) + mine.size(), 1, '9');
  EXPECT_NE(FailureOf(of_other_version).find("but process 0 is KALDO 9"), std::string::npos);
}

TEST_F(WorkerCrewTest, LeavesUnfinishedPortionsWhenItEnds) {
  WorkerCrew crew(sent_);
  for (int i = 0; i < 100'000; ++i) {
    crew.Add(PortionOf(0));
  }
  EXPECT_TRUE(crew.WaitForFinished(kLong));
}

}  // namespace
}  // namespace kaldo
