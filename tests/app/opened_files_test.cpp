// SPDX-License-Identifier: GPL-3.0-or-later
// From the first line under a field to the end of the run each file is read once, and yet never
// run with what it held before.
#include "app/base/opened_files.h"

#include <chrono>
#include <filesystem>

#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

namespace fs = std::filesystem;
using test::OpenFlow;
using test::RunToTheEnd;
using Reads = std::map<std::string, int>;

class OpenedFilesTest : public test::MenuTest {
 protected:
  OpenedFilesTest() {
    WriteStudy();
    for (const auto& file : fs::directory_iterator("data")) {
      MakeOlder(file.path(), std::chrono::hours(1));
    }
  }

  /// A file that has just been changed is read each time.
  static void MakeOlder(const fs::path& file, std::chrono::minutes age) {
    fs::last_write_time(file, fs::file_time_type::clock::now() - age);
  }

  /// Another offspring, or another sample, in as many bytes.
  void Change(const std::string& file, const std::string& from, const std::string& to) {
    script_.Do([this, file, from, to](QWidget&) {
      std::string text = test::ReadFile(file);
      folder_.Write(file, text.replace(text.find(from), from.size(), to));
      MakeOlder(file, std::chrono::minutes(30));
    });
  }

  void AwaitHint(std::string_view name, const char* part) {
    script_.Until([=] { return test::TextIn(name).contains(Text(part)); }, "see the line below");
  }

  /// The reads since the last call.
  void ExpectReads(const Reads& expected) {
    script_.Do([this, expected](QWidget&) {
      for (const auto& [file, reads] : expected) {
        EXPECT_EQ(reads_[file], reads) << file;
      }
      reads_.clear();
    });
  }
};

TEST_F(OpenedFilesTest, AnAllocationReadsThemOnceUntilTheyChange) {
  const auto walk = [this] {
    AwaitHint("FemalesFileHint", "4 individuals");
    AwaitHint("OffspringFileHint", "2 individuals");
    script_.Click("Ok").Await("ErrorModel").Click("NoError").Click("Ok").Await("ChoiceOfLoci");
  };
  OpenFlow(script_, "ALLOCATIONSEXED");
  test::TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  walk();
  script_.Click("Locus2");
  RunToTheEnd(script_, command_);
  Reads once = {{"data/males.txt", 1},
                {"data/females.txt", 1},
                {"data/offspring.txt", 1},
                {"data/loci.txt", 1}};
  ExpectReads(once);

  script_.Click("OpenRecord");
  test::PickInDialog(script_, Text("p/Run record.toml"));
  walk();
  Change("data/offspring.txt", "150154", "000000");
  RunToTheEnd(script_, command_);
  once["data/offspring.txt"] = 2;
  ExpectReads(once);
  Go(script_);
  ExpectAsCommandLine("p", command_);
}

TEST_F(OpenedFilesTest, ASimulationReadsThemOnceUntilTheyChange) {
  test::WalkToParents(script_, true, false);
  AwaitHint("PseudoCollectedFemalesSampleHint", "4 individuals");
  for (const char* screen : {"PseudoOffspring", "Tolerance", "Strategy"}) {
    script_.Click("Ok").Await(screen);
    if (std::string_view(screen) == "PseudoOffspring") {
      script_.Click("NonUniform");
    }
  }
  script_.Click("ChoiceOfLociStrategy").Click("Ok").Await("ChoiceOfLoci").Click("Locus2");
  script_.Click("Ok").Await("Output").Type("Seed", Text("5"));
  RunToTheEnd(script_, command_);
  Reads once = {{"data/parents.txt", 1}, {"data/sample.txt", 1}, {"data/loci.txt", 1}};
  ExpectReads(once);

  OpenFlow(script_, "SIMULATIONSSEXED");
  for (const char* screen :
       {"Parents", "PseudoOffspring", "Tolerance", "Strategy", "ChoiceOfLoci", "Output"}) {
    script_.Click("Ok").Await(screen);
  }
  Change("data/sample.txt", "102106", "104104");
  RunToTheEnd(script_, command_);
  once["data/sample.txt"] = 2;
  ExpectReads(once);
  Go(script_);
  ExpectAsCommandLine("p", command_);
}

TEST_F(OpenedFilesTest, AChangeThatLooksTheSameIsNoticed) {
  OpenedFiles opened;
  const std::string path = folder_.Write("new.txt", "A");
  const auto time = fs::last_write_time(path);
  for (const std::string text : {"A", "B", "C"}) {
    folder_.Write("new.txt", text);
    fs::last_write_time(path, time);
    EXPECT_EQ(opened.Open(path)->Tokens()[0].text, text);
  }
}

}  // namespace
}  // namespace kaldo
