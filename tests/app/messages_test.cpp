// SPDX-License-Identifier: GPL-3.0-or-later
// Every sentence that a screen answers with, provoked by a user's mistake.
#include <gmock/gmock.h>

#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::ExpectText;
using test::OpenFlow;
using test::TypeAllocationFiles;
using test::WalkToLoci;

/// A file with a fault, the sentence it brings, and where the details say that it is.
struct FileFault {
  std::string file;
  std::string text;
  std::string sentence;
  std::string place;
};

constexpr std::string_view kNoZero =
    "Set of indices has to run from 1 to the total number of loci. No zero! Only integers!";
constexpr std::string_view kNotFarther =
    "Set of indices has to run from 1 to the total number of loci. Not farther!";

class MessagesTest : public test::MenuTest {
 protected:
  MessagesTest() { WriteStudy(); }

  /// Goes through the script; it must have been told these sentences and no others.
  void ExpectTold(const std::vector<std::string_view>& sentences) {
    Go(script_);
    test::ExpectTold(script_, sentences);
  }

  /// With each fault in turn the flow is opened and confirmed up to the screen of the files. It
  /// tells the fault and closes; the menu goes on, and what was typed is still there.
  void ExpectToldAtFiles(std::string_view button, int screens_before,
                         const std::vector<FileFault>& faults) {
    Script script;
    std::vector<std::string_view> sentences;
    for (const FileFault& fault : faults) {
      const std::string good = test::ReadFile(folder_.Path(fault.file));
      script.Do([this, fault](QWidget&) { folder_.Write(fault.file, fault.text); });
      OpenFlow(script, button);
      for (int screen = 0; screen <= screens_before; ++screen) {
        script.Click("Ok");
      }
      script.Answer().Await("MainMenu");
      script.Do([this, fault, good](QWidget&) { folder_.Write(fault.file, good); });
      sentences.push_back(fault.sentence);
    }
    Go(script);
    test::ExpectTold(script, sentences);
    for (std::size_t k = 0; k < faults.size(); ++k) {
      EXPECT_THAT(Bytes(script.Details().value(static_cast<int>(k))),
                  testing::StartsWith(faults[k].file + faults[k].place));
    }
  }

  void TypeCollected(const std::string& sex, const std::string& file) {
    test::TypeParents(script_, sex, true, {file, "data/sample.txt"}, {"2", "4", "2"});
  }

  /// From the menu to the strategy screen of a non-sexed simulation.
  void WalkToStrategy() {
    OpenFlow(script_, "SIMULATIONSNON-SEXED");
    script_.Type("LociFile", Text("data/loci.txt")).Click("Ok").Await("Parents");
    TypeCollected("", "data/parents.txt");
    script_.Click("Ok").Await("PseudoOffspring").Click("NoError").Click("Ok").Await("Tolerance");
    script_.Click("Ok").Await("Strategy");
  }
};

TEST_F(MessagesTest, NoFlowStartsWithoutAProject) {
  for (const char* button :
       {"ALLOCATIONNON-SEXED", "ALLOCATIONSEXED", "SIMULATIONSNON-SEXED", "SIMULATIONSSEXED"}) {
    script_.Click(button).Answer().Await("MainMenu");
  }
  ExpectTold(std::vector<std::string_view>(4, "Please enter name of project!"));
}

TEST_F(MessagesTest, FileNamesAreAskedForInTheirOrder) {
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  script_.Click("Ok").Answer().Type("ParentsFile", Text("data/parents.txt"));
  script_.Click("Ok").Answer().Type("OffspringFile", Text("data/nowhere.txt"));
  script_.Click("Ok").Answer().Type("LociFile", Text("data/loci.txt"));
  script_.Click("Ok").Answer();
  ExpectText(script_, "OffspringFile", Text("data/nowhere.txt"));
  script_.Click("Back");
  OpenFlow(script_, "ALLOCATIONSEXED");
  script_.Click("Ok").Answer().Type("MalesFile", Text("data/males.txt"));
  script_.Click("Ok").Answer().Press(Qt::Key_Escape);
  ExpectTold({"Parent file name is missing!", "Offspring file name is missing!",
              "Names of loci file name is missing!", "Cannot open file \"data/nowhere.txt\"!",
              "Male parent file name is missing!", "Female parent file name is missing!"});
}

TEST_F(MessagesTest, TheToleranceComesBeforeTheContentsOfTheFiles) {
  folder_.Write("data/parents.txt", "P1 10010 200204 150150 120124\n");
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  for (const char* tolerance : {"-1", "1.5", "one"}) {
    script_.Type("Tolerance", Text(tolerance)).Click("Ok").Answer();
    script_.Await("NonSexedAllocationFiles");
    ExpectText(script_, "Tolerance", Text(tolerance));
  }
  script_.Type("Tolerance", Text("1")).Click("Ok").Answer().Await("MainMenu");
  ExpectTold({"Enter a positive number", "Enter a positive number", "Enter a positive number",
              "Some parental loci are represented with an odd number of digits!"});
}

TEST_F(MessagesTest, FaultyFilesEndAnAllocation) {
  OpenFlow(script_, "ALLOCATIONSEXED");
  TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  script_.Click("Back");
  ExpectTold({});
  ExpectToldAtFiles(
      "ALLOCATIONSEXED", 0,
      {{"data/females.txt", "X1 100102 200204 150150 120124\nX2 10010 200204 150150 120124\n",
        "Some female parental loci are represented with an odd number of digits!",
        ", line 2, record 2 (X2), locus A: "},
       {"data/offspring.txt", "O1 100102 000204 150150 120124\n",
        "Offspring loci should contain totally defined alleles(no string of 0s) or totally "
        "undefined alleles (two strings of 0s)!",
        ", line 1, record 1 (O1), locus B: "}});
}

TEST_F(MessagesTest, UnequalGroupsCloseTheFlowWithoutAWord) {
  folder_.Write("data/males.txt",
                "M1 100102 200204 150150 120124\n*\nM2 100102 200204 150150 120124\n");
  OpenFlow(script_, "ALLOCATIONSEXED");
  TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  script_.Click("Ok").Await("MainMenu").Click("ALLOCATIONSEXED").Await("SexedAllocationFiles");
  ExpectText(script_, "MalesFile", Text("data/males.txt"));
  script_.Do([this](QWidget&) {
    folder_.Write("data/females.txt",
                  "F1 100102 200204 150150 120124\n*\nF2 100102 200204 150150 120124\n");
  });
  script_.Click("Ok").Await("ErrorModel").Press(Qt::Key_Escape);
  ExpectTold({});
}

TEST_F(MessagesTest, FaultyFilesEndASimulation) {
  OpenFlow(script_, "SIMULATIONSNON-SEXED");
  script_.Click("Ok").Answer().Type("LociFile", Text("data/loci.txt")).Click("Ok");
  script_.Await("Parents").Click("Ok").Answer().Type("CollectedFile", Text("data/parents.txt"));
  script_.Type("Uncollected", Text("2")).Click("Ok").Answer().Press(Qt::Key_Escape);
  OpenFlow(script_, "SIMULATIONSSEXED");
  script_.Type("LociFile", Text("data/loci.txt")).Click("Ok").Await("Parents");
  TypeCollected("Males", "data/males.txt");
  TypeCollected("Females", "data/females.txt");
  script_.Type("UncollectedFemales", Text("2.5")).Click("Ok").Answer();
  ExpectText(script_, "UncollectedFemales", Text("2.5"));
  script_.Type("UncollectedFemales", Text("2")).Press(Qt::Key_Escape);
  ExpectTold({"Names of loci file name is missing!", "Parent file name is missing!",
              "File name is missing!", "That number of parents is not possible!"});
  ExpectToldAtFiles(
      "SIMULATIONSSEXED", 1,
      {{"data/females.txt", "X1 100102 200204 150000 120124\n",
        "Femele loci should contain totally defined alleles(no string of 0s) or totally undefined "
        "alleles (two strings of 0s)!",
        ", line 1, record 1 (X1), locus C: "}});
}

TEST_F(MessagesTest, TheErrorModelOfAnAllocation) {
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("Ok").Await("ErrorModel").Click("Ok").Answer();
  script_.Click("Uniform").Type("Epsilon", Text("0.11")).Click("Ok").Answer();
  ExpectText(script_, "Epsilon", Text("0.11"));
  script_.Click("NonUniform").Type("Focal", Text("0.89")).Click("Ok").Answer();
  // 0.0625 + 0.0625 + 0.875 is 1 without any rounding.
  script_.Type("Minus2", Text("0")).Type("Minus1", Text("0.0625")).Type("Focal", Text("0.875"));
  script_.Type("Plus1", Text("0.0625")).Type("Plus2", Text("0")).Click("Ok").Answer();
  script_.Type("Plus2", Text("nought")).Click("Ok").Answer();
  ExpectText(script_, "Plus2", Text("nought"));
  ExpectText(script_, "Minus1", Text("0.0625"));
  script_.Press(Qt::Key_Escape);
  ExpectTold({"Choose a model of error", "Espilon should be between 0 and 0.1",
              "Sum of probability must be 1 ! ", "Error sum should not exceed 0.1!",
              "Enter numbers with a decimal point!"});
}

TEST_F(MessagesTest, TheErrorModelOfASimulation) {
  OpenFlow(script_, "SIMULATIONSNON-SEXED");
  script_.Type("LociFile", Text("data/loci.txt")).Click("Ok").Await("Parents");
  TypeCollected("", "data/parents.txt");
  script_.Click("Ok").Await("PseudoOffspring").Click("Ok").Answer();
  script_.Click("NonUniform").Type("Focal", Text("0.89")).Click("Ok").Answer();
  script_.Type("Focal", Text("0.9")).Click("Ok").Answer().Type("Focal", Text("0.98"));
  script_.Type("OffspringPerIteration", Text("0")).Click("Ok").Answer();
  script_.Type("OffspringPerIteration", Text("9")).Click("Ok").Await("Tolerance");
  script_.Click("AllocateWithRun").Type("Tolerance", Text("-1")).Click("Ok").Answer();
  ExpectText(script_, "Tolerance", Text("-1"));
  script_.Press(Qt::Key_Escape);
  ExpectTold({"Choose a model of error", "Focal allele must be between 0.9 and 1.0",
              "Sum of probabilities must be 1", "The number of pseudo-offspring must be above 0!",
              "Enter a positive number"});
}

TEST_F(MessagesTest, LociAndTheirSequence) {
  WalkToLoci(script_, Flow::kNonSexed);
  for (int locus = 0; locus < 4; ++locus) {
    script_.ClickNumber(kFirstLocusBox + locus);
  }
  script_.ClickNumber(kCumulativeSequenceBox).Click("Ok").Answer();
  script_.ClickNumber(kFirstLocusBox).Click("Ok").Await("CumulativeSequence");
  const std::vector<std::pair<std::string, std::string_view>> sequences = {
      {"1 2 3 5", kNotFarther}, {"1 2 3 4.0", kNoZero}, {"1 2 three 4", kNoZero}, {" 1 1 4 4", ""}};
  std::vector<std::string_view> told = {"Choose at least one locus!"};
  for (const auto& [sequence, sentence] : sequences) {
    const QStringList indices = Text(sequence).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int k = 0; k < 4; ++k) {
      script_.Type("Index" + std::to_string(k + 1), indices[k]);
    }
    script_.Click("Ok");
    if (!sentence.empty()) {
      script_.Answer();
      ExpectText(script_, "Index3", indices[2]);
      ExpectText(script_, "Index4", indices[3]);
      told.push_back(sentence);
      continue;
    }
    script_.Answer().Click("Close").Click("ALLOCATIONNON-SEXED").Click("Ok").Click("Ok");
    script_.Await("ChoiceOfLoci").Click("Ok").Await("CumulativeSequence");
    told.emplace_back("Calculations completed!");
  }
  script_.Press(Qt::Key_Escape);
  ExpectTold(told);
}

TEST_F(MessagesTest, TooManyIterations) {
  OpenFlow(script_, "SIMULATIONSNON-SEXED");
  script_.Type("LociFile", Text("data/loci.txt"));
  for (const char* iterations : {"1000", "0", "ten"}) {
    script_.Type("Iterations", Text(iterations)).Click("Ok").Answer();
    ExpectText(script_, "Iterations", Text(iterations));
  }
  script_.Type("Iterations", Text("999")).Click("Ok").Await("Parents").Press(Qt::Key_Escape);
  OpenFlow(script_, "SIMULATIONSSEXED");
  script_.Type("LociFile", Text("data/loci.txt")).Type("Iterations", Text("1001")).Click("Ok");
  script_.Answer().Await("Parents").Click("Back").Type("Iterations", Text("1000")).Click("Ok");
  script_.Await("Parents").Press(Qt::Key_Escape);
  ExpectTold({"Number of iterations must be inferior to 1000",
              "The number of iterations must be above 0!",
              "The number of iterations must be above 0!", "1000 iterations maximum!"});
}

TEST_F(MessagesTest, TheStrategyAndItsNumbers) {
  WalkToStrategy();
  script_.Click("Ok").Answer();
  // Loci can be left out only of what is going to run.
  script_.Click("ChooseLoci").Answer();
  script_.Click("AllSubsets").Type("Criterion", Text("1.5")).Click("Ok").Answer();
  script_.Type("Criterion", Text("0,95")).Click("Ok").Answer().Type("Criterion", Text("1"));
  script_.Type("StartWith", Text("0")).Click("Ok").Answer();
  script_.Await("Strategy").Do([](QWidget&) { EXPECT_TRUE(test::IsMarked("AllSubsets")); });
  ExpectText(script_, "StartWith", Text("0"));
  script_.Type("StartWith", Text("5")).Click("Ok").Answer();
  script_.Type("StartWith", Text("4")).Click("Ok").Await("Output");
  script_.Type("Seed", Text("4294967296")).Click("Ok").Answer();
  ExpectText(script_, "Seed", Text("4294967296"));
  script_.Press(Qt::Key_Escape);
  ExpectTold({"Please, choose a procedure to run with !",
              "Please, choose a procedure to run with !", "Enter number between 0 and 1",
              "Enter number between 0 and 1", "The minimum number of loci to start with is 1",
              "Fewer loci are in use than the number of loci to start with!",
              "That seed is not possible!"});
}

}  // namespace
}  // namespace kaldo
