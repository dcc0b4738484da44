// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of problem, provoked by the smallest mistake in a command or a file.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "base/problem.h"
#include "base/version.h"
#include "base/warning.h"
#include "runs/portion_log.h"
#include "tests/cli/command_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using enum ProblemKind;
using test::Arguments;

/// Sound commands by their names.
const std::map<std::string, std::string> kSound = {
    {"pond", "check loci=loci parents=parents offspring=young"},
    {"couple", "check loci=loci males=males females=females offspring=young"},
    {"parental",
     "simulate project=results loci=loci iterations=1 offspring-per-iteration=4 strategy=all "
     "collected-parents=parents uncollected-sample=sample uncollected=2"},
    {"preparental",
     "simulate project=results loci=loci iterations=1 offspring-per-iteration=4 strategy=all "
     "pseudo-collected-sample=sample pseudo-collected=2 uncollected-sample=sample uncollected=2"},
    {"sexed",
     "simulate sexed project=results loci=loci iterations=1 offspring-per-iteration=4 strategy=all "
     "collected-males=males uncollected-male-sample=sample uncollected-males=2 "
     "estimated-collected-males=1 estimated-uncollected-males=1 "
     "collected-females=females uncollected-female-sample=sample uncollected-females=2 "
     "estimated-collected-females=1 estimated-uncollected-females=1"},
};

/// The words of a command: that of a name above, with options given ("use=A"), given alone
/// ("sexed") or left out ("-loci") behind it.
Arguments CommandOf(const std::string& text) {
  std::istringstream words(text);
  std::string first;
  words >> first;
  const auto sound = kSound.find(first);
  if (sound != kSound.end()) {
    words = std::istringstream(sound->second + text.substr(first.size()));
    words >> first;
  }
  Arguments command = {first};
  std::map<std::string, std::string> options;
  for (std::string word; words >> word;) {
    if (sound == kSound.end()) {
      command.push_back(word);
    } else if (word.starts_with('-')) {
      options.erase(word.substr(1));
    } else {
      options[word.substr(0, word.find('='))] = word;
    }
  }
  for (const auto& [name, word] : options) {
    command.push_back("--" + name);
    if (word.size() > name.size()) {
      command.push_back(word.substr(name.size() + 1));
    }
  }
  return command;
}

/// So many names, or fields, behind one another.
std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int k = 1; k <= times; ++k) {
    all += fmt::format(fmt::runtime(text), k);
  }
  return all;
}

struct Refusal {
  ProblemKind kind;
  std::string command;
  std::string detail;     ///< how the line of detail begins
  std::string file = {};  ///< the one with another text
  std::string text = {};
  int loci = 2;
};

const std::string kOdd = "X1 150152 20020";
const std::string kGap = "X1 150152 000000";
const std::string kHalf = "X1 150152 200000";
const std::string kPlace = ", line 1, record 1 (X1), locus L2: ";
const std::string kRows = "X1 1112 1314\nX2 1112 1314\n";
const std::string kManySizes = Repeated("X {0:03}{0:03} 200204\n", 101);
const std::string kDance = "program = \"KALDO\"\nflow = \"a dance\"\n[settings]\n";

RunRecord Dance() {
  RunRecord record;
  record.version = Version();
  record.date = "2026-03-01T14:02:11Z";
  record.flow = "a dance";
  return record;
}

const std::string kChanged =
    "program = \"KALDO\"\nversion = \"" + std::string(Version()) +
    "\"\nflow = \"allocation, non-sexed\"\n[settings]\nproject = \"results\"\n"
    "loci = \"loci\"\nparents = \"loci\"\noffspring = \"loci\"\ntolerance = 1\n"
    "error = \"none\"\n[[input]]\nrole = \"loci\"\npath = \"loci\"\nbytes = 1\nsha256 = \"0\"\n";

const std::vector<Refusal> kRefusals = {
    {kNoProject, "allocate", ""},
    {kNoProject, "parental -project", ""},
    {kNoParentsFile, "pond parents= offspring=nowhere", ""},
    {kNoMalesFile, "couple -males", ""},
    {kNoFemalesFile, "couple -females", ""},
    {kNoOffspringFile, "pond parents=nowhere -offspring", ""},
    {kNoLociFile, "pond -loci", ""},
    {kNoLociFile, "parental -loci", ""},
    {kNoSampleFile, "parental -uncollected-sample", ""},
    {kCannotOpenFile, "pond offspring=nowhere tolerance=-1", "nowhere: No such file or directory"},
    {kNoLocus, "pond", "loci: the file is empty", "loci", " \n"},
    {kTooManyLoci, "pond", "loci, line 1, locus L51: the file names 51 loci", "", "", 51},
    {kLocusNameTooLong, "pond", "loci, line 1, locus A23456", "loci", "A23456789012345 B"},
    {kLocusNameTwice, "pond", "loci, line 2, locus A: \"A\" stands in line 1", "loci", "A\nA"},
    {kNoIndividual, "pond", "parents: the file is empty", "parents", ""},
    {kNoIndividual, "parental", "sample: 0 records", "sample", ""},
    {kTooManyIndividuals, "parental uncollected=50000", "50002 parents in an iteration"},
    {kTooManyAlleles, "pond", "parents, line 101, record 101 (X), locus", "parents", kManySizes},
    {kTooManyAlleles, "parental", "sample, locus L1", "sample", kManySizes},
    {kNoAlleleInSample, "parental", "sample, locus L2: nothing can be drawn", "sample", kGap},
    {kSeparatorsDiffer, "couple", "females: 0 separators here, 1 in males", "males", "*\n" + kRows},
    {kSeparatorInSimulation, "parental", "parents, line 3", "parents", kRows + "*X 11 22"},
    {kOddDigitsInParents, "pond", "parents" + kPlace, "parents", kOdd},
    {kOddDigitsInMales, "couple", "males" + kPlace, "males", kOdd},
    {kOddDigitsInFemales, "couple", "females" + kPlace, "females", kOdd},
    {kOddDigitsInOffspring, "pond", "young" + kPlace, "young", kOdd},
    {kUndefinedInParents, "pond", "parents" + kPlace, "parents", kGap},
    {kUndefinedInMales, "couple", "males" + kPlace, "males", kGap},
    {kUndefinedInFemales, "couple", "females" + kPlace, "females", kGap},
    {kHalfDefinedInOffspring, "pond", "young" + kPlace, "young", kHalf},
    {kHalfDefinedInSample, "parental", "sample" + kPlace, "sample", kHalf},
    {kHalfDefinedInMaleSample, "sexed", "males" + kPlace, "males", kHalf},
    {kHalfDefinedInFemaleSample, "sexed", "females" + kPlace, "females", kHalf},
    {kWrongFieldCount, "pond", "parents, line 3, record 3", "parents", kRows + "X3 1112 1314 1516"},
    {kFieldNotDigits, "pond", "young" + kPlace + "\"NA\" should be", "young", "X1 150152 NA"},
    {kFieldNotDigits, "pond", "young, line 1: \"ID\" ... looks like a line of headings", "young",
     "ID L1 L2\nX1 150152 200204"},
    {kOddDigitsInParents, "pond",
     "parents, line 1: every line holds 5 words, expected 3: alleles apart? write both", "parents",
     "A 150 152 200 204\n*\nB 150 152 200 204\n"},
    {kOddDigitsInParents, "parental",
     "sample, line 1: every line holds 4 words, expected 3: a blank in", "sample",
     "Fish A 150152 200204\rFish B 150152 200204\r"},
    {kOddDigitsInOffspring, "pond", "young, line 1: every line holds 4 words, expected 3: is this",
     "young", "A 150152 200204 111111\nB 150152 200204 111111\n"},
    {kOddDigitsInOffspring, "pond", "young, line 1: every line holds semicolons", "young",
     "A; 150152; 200204\nB; 150152; 200204"},
    {kOddDigitsInOffspring, "pond",
     "young, line 2, record 2 (B), locus L1: \"95100\" has 5 characters; both alleles need the "
     "same "
     "number of digits; is it \"095100\" without its leading zero?",
     "young", "A 150152 200204\nB 95100 200204"},
    {kFieldOfOtherWidth, "pond",
     "young" + kPlace +
         "\"2004\" has 4 digits, the first parents file uses 6; spreadsheets drop leading zeros: "
         "write them again or correct the field",
     "young", "X1 150152 2004"},
    {kAlleleTooLong, "pond", "parents, line 1", "parents", "X1 0015000152 0020000204"},
    {kNameTooLong, "pond", "young, line 1", "young", "X234567890123456 150152 200204"},
    {kNameHasControl, "pond", "parents, line 1, record 2 (B\\x1b): ", "parents",
     "A 150152 200204 B\x1b 150152 200204"},
    {kNameHasControl, "pond", "loci, line 1, locus L\\xc2\\x9b: ", "loci", "L1 L\xc2\x9b"},
    {kNameNotUtf8, "parental",
     "sample, line 1, record 1 (J\\xf6rg): \"J\\xf6rg\" has bytes of another", "sample",
     "J\xf6rg 150152 200204"},
    {kParentNamedNone, "pond", "parents, line 2, record 3 (--): give the parent", "parents",
     "*\nNone 150152 200204 -- 150152 200204"},
    {kParentNamedNone, "couple", "females, line 1, record 1 (UC)", "females", "UC 150152 200204"},
    {kCannotOpenFile, "pond",
     "loci: it holds 68 kB; the names of all loci take at most 64 kB: is it a genotype file?",
     "loci", Repeated("X {0:03}{0:03} 200204\n", 4000)},
    {kCannotOpenFile, "pond candidates=nowhere", "nowhere: No such file"},
    {kUnknownName, "pond known-mother=known", "known, line 2: \"X3\" is none of the offspring",
     "known", "X1 X2\nX3 X1"},
    {kUnknownName, "couple known-mother=known",
     "known, line 1: \"Y\" is none of the collected females", "known", "X1 Y"},
    {kNameOfSeveral, "couple candidates=known",
     "known, line 1: \"X1\" stands more than once among the collected parents; ", "known",
     "X1 X1 X2"},
    {kOffspringHasTwoLines, "pond offspring-groups=known",
     "known, line 2: \"X1\" stands in line 1 already", "known", "X1 1\nX1 1"},
    {kOtherWordsWanted, "pond known-mother=known", "known, line 1: 2 words behind the name",
     "known", "X1 X1 X2"},
    {kOtherWordsWanted, "pond candidates=known", "known, line 2: no candidate behind", "known",
     "X2 *\nX1"},
    {kOtherWordsWanted, "pond candidates=known", "known, line 1: * stands for all", "known",
     "X1 X2 *"},
    {kUnknownGroup, "pond offspring-groups=known",
     "known, line 1: \"2\"; there is 1 group, number 1\n", "known", "X1 2"},
    {kNoPairAllowed, "pond candidates=known",
     "known, line 3: no two parents of one group agree with all that is told of \"X1\"", "known",
     "X2 X1 X2\n\nX1 X2"},
    {kNotARunRecord, "rerun parents", "parents, line 1"},
    {kUnusableRunRecord, "rerun record", "record: the flow \"a dance\"", "record", kDance},
    {kInputsChanged, "rerun record", "record: loci (\"loci\") has changed", "record", kChanged},
    {kNoErrorModel, "pond error=uniform=0,1", "--error: \"uniform=0,1\" is none of"},
    {kNoErrorModel, "parental error=nonuniform=", "--error: "},
    {kNotAProbability, "pond error=uniform=ten", "--error: \"ten\" is not a number"},
    {kEpsilonOutOfRange, "pond error=uniform=nan", "epsilon is "},
    {kProbabilitySum, "pond error=nonuniform=0,0,0.9,0,0", "0 + 0 + 0.9 + 0 + 0 sum to 0.9"},
    {kErrorSumTooLarge, "couple error=nonuniform=-0.25,0,1.25,0,0", "the focal probability is"},
    {kSimulatedFocalOutOfRange, "parental error=nonuniform=0.1,0,0.5,0,0", "it is 0.5"},
    {kSimulatedProbabilitySum, "sexed error=nonuniform=0,0,0.9,0,0", "they sum to 0.9"},
    {kUnknownLocus, "pond use=L1,", "\"\" is none of the 2 names"},
    {kNoLocusInUse, "pond use=", ""},
    {kSequenceHasZero, "pond sequence=0,3", "index 1 is 0"},
    {kSequenceHasZero, "pond sequence=1,2.0", "--sequence: \"2.0\" is not a whole number"},
    {kSequenceIndexTooLarge, "pond sequence=3,1", "index 1 is 3, there are 2 loci"},
    {kSequenceSum, "pond sequence=-1", "1 indices sum to -1; 2 loci need 2 indices with the sum 3"},
    {kTooFewLociInUse, "parental start-with=3", "2 loci in use, the subsets start with 3"},
    {kTooManySubsets, "parental", "at most 1048576 are run", "", "", 21},
    {kNegativeTolerance, "pond tolerance=-1", "the maximal offset tolerance", "parents", kOdd},
    {kTooManyIterations, "parental iterations=1000", "it is 1000"},
    {kNoIteration, "sexed iterations=0", "it is 0"},
    {kCriterionOutOfRange, "parental criterion=1.01", "the correctness criterion is 1.01"},
    {kStartWithTooSmall, "sexed start-with=0", "it is 0"},
    {kNoPseudoOffspring, "parental offspring-per-iteration=0", "it is 0"},
    {kTooManyPseudoOffspring, "parental offspring-per-iteration=60000", "it is 60000"},
    {kNoPseudoCollected, "preparental pseudo-collected=0", "it is 0"},
    {kImpossibleNumberOfParents, "parental uncollected=-0.5", "0 pseudo-collected and -0.5"},
    {kImpossibleNumberOfParents, "parental uncollected=nan", "0 pseudo-collected and nan"},
    {kImpossibleEstimate, "sexed estimated-collected-males=-1", "-1 collected and 1 uncollected"},
    {kImpossibleEstimate, "sexed estimated-collected-females=0 estimated-uncollected-females=0",
     ""},
    {kTooFewParents, "sexed uncollected-males=0", "1 pseudo-offspring of origin"},
    {kNoProject, "parental -iterations -uncollected -project",
     "--project is needed; so are --uncollected, --iterations\n"},
    {kNumberMissing, "parental -iterations -uncollected",
     "--uncollected is needed; so is --iterations\n"},
    {kNumberMissing, "parental -offspring-per-iteration", "--offspring-per-iteration is needed"},
    {kNumberMissing, "parental -uncollected", "--uncollected is needed"},
    {kNumberMissing, "preparental -pseudo-collected", "--pseudo-collected is needed"},
    {kNumberMissing, "sexed -uncollected-males", "--uncollected-males is needed"},
    {kNumberMissing, "sexed -estimated-collected-females", "--estimated-collected-females is"},
    {kNotWhole, "parental iterations=2.5", "--iterations: \"2.5\" is not a whole number"},
    {kNotWhole, "parental start-with=", "--start-with: \"\""},
    {kNotWhole, "sexed uncollected-males=2.5", "--uncollected-males: \"2.5\""},
    {kNotANumber, "parental uncollected=10,5", "--uncollected: \"10,5\" is not a number"},
    {kNotANumber, "parental criterion=95%", "--criterion: \"95%\""},
    {kNotASeed, "parental seed=4294967296", "--seed: \"4294967296\" is not a whole number from"},
    {kNotASeed, "parental seed=-1", "--seed: \"-1\""},
    {kNotAThreadCount, "pond threads=0", "--threads: 0 is not between 1 and"},
    {kNotAConfidenceLevel, "pond confidence-level=0.49", "--confidence-level: \"0.49\" is not"},
    {kNoStrategy, "parental strategy=All", "--strategy: \"All\" is none of: choice"},
    {kUnknownKeptFile, "parental keep=parents,pets", "--keep: \"pets\" is none of: parents"},
    {kKeptAndNone, "parental keep=parents,none", "--keep: \"parents,none\""},
    {kUnknownRandomNumbers, "parental random=true", "--random: \"true\" is none of: default"},
    {kUnknownRandomNumbers, "parental subset-randoms=same", "--subset-randoms: \"same\""},
    {kStandardErrorOutOfRange, "parental until-se=0", "--until-se: it is 0"},
    {kStandardErrorOutOfRange, "sexed until-se=1", "--until-se: it is 1"},
    {kNotAnUndefinedRate, "parental undefined=1", "it is 1"},
    {kUnknownCountOfUndefined, "parental undefined-in-sample=zero",
     "--undefined-in-sample: \"zero\" is none of: count"},
    {kChoicesDoNotFit, "parental undefined=0.1 undefined-like=young", "a share of undefined loci"},
    {kChoicesDoNotFit, "sexed allocate-with=run", "--sexed allocates with the model of --error"},
    {kChoicesDoNotFit, "parental scan-uncollected=2,4", "a scan is run with one choice of"},
    {kChoicesDoNotFit, "parental strategy=choice scan-tolerance=0,1",
     "a tolerance changes nothing"},
    {kTooFewParents, "parental strategy=choice offspring-per-iteration=90 scan-uncollected=2,0.5",
     "with 0.5 uncollected: "},
    {kEpsilonOutOfRange, "parental allocate-with=uniform=0.2", "epsilon is 0.2"},
    {kUnknownExport, "pond also=tsv,doc", "--also: \"doc\" is none of: tsv"},
    {kUnknownExport, "parental also=html", "--also: \"html\" is none of: tsv"},
    {kCannotExport, "pond also=pedigree no-confidence min-probability=0.9",
     "--min-probability asks for probabilities"},
    {kNotAShare, "pond min-probability=1.5", "--min-probability: \"1.5\" is not a number from 0"},
    {kUnknownName, "pond also=pedigree sexes=sexes", "sexes, line 2: \"X3\" is none of", "sexes",
     "name\tsex\nX3 m\n"},
    {kParentsAndSexes, "pond females=females", "--parents goes without --males and --females"},
    {kOptionsOfOtherFlow, "parental sexed", "--sexed goes with"},
    {kOptionsOfOtherFlow, "parental collected-males=males", "the options of males"},
    {kOptionsOfOtherFlow, "sexed -sexed", "the options of males"},
    {kOptionsOfOtherFlow, "sexed uncollected=1", "--sexed goes with"},
    {kCollectedAndPseudoCollected, "parental pseudo-collected=3", "collected parents are read"},
    {kCollectedAndPseudoCollected, "preparental collected-parents=parents", "collected parents"},
    {kCollectedAndPseudoCollected, "sexed -collected-males pseudo-collected-male-sample=sample",
     "males and females come from"},
    {kOutputIsInput, "parental uncollected-sample=SAUVLOCUSTULM.txt",
     "SAUVLOCUSTULM.txt: it is \"SAUVLOCUSTULM.txt\"", "SAUVLOCUSTULM.txt", "X1 150152 150152\n"},
    {kOtherFlowThere, "parental project=other", "", "other/Run record.toml",
     "program = \"KALDO\"\nflow = \"allocation, sexed\"\n[settings]\n"},
    {kCannotResume, "parental project=halfway resume",
     "it is of another flow: a dance, now simulation,", "halfway/.kaldo-unfinished",
     PortionLogText().Head(Dance())},
};

struct Oddity {
  WarningKind kind;
  std::string command;
  std::string place;  ///< what is told behind the sentence
  std::string file = {};
  std::string text = {};
};

const std::string kStations =
    "Station04_01 150152 200204\nStation04_02 150150 200204\nStation04_03 152152 200204\n"
    "Station04 150154 200204\nStation04 154154 200204\n";

/// Other genotypes than those of the other files, but for the last one's.
const std::string kTwins =
    "A 150150 200204\nB 152150 200200\nC 150152 200200\nD 000000 200204\n"
    "E 000000 200204\n";

const std::vector<Oddity> kOddities = {
    {WarningKind::kSameNameKey, "pond",
     "parents, line 2: \"Station04_02\" is like \"Station04_01\" in line 1 (and 1 more)", "parents",
     kStations},
    {WarningKind::kSameNameKey, "couple", "females, line 2: \"Station04_02\"", "females",
     kStations},
    {WarningKind::kNameTwice, "pond",
     "parents, line 5: \"Station04\" is like \"Station04\" in line 4", "parents", kStations},
    {WarningKind::kNameTwice, "couple",
     "females, line 1: \"X1\" is like \"X1\" in line 1 of males"},
    {WarningKind::kNameTwice, "parental", "parents, line 5: \"Station04\"", "parents", kStations},
    {WarningKind::kParentAmongOffspring, "pond",
     "young, line 1: \"X1\" in line 1 of parents (and 1 more)"},
    {WarningKind::kSameGenotypes, "pond", "young, line 3: \"C\" is like \"B\" in line 2\n", "young",
     kTwins},
    {WarningKind::kOffspringNameOfNoParent, "couple", "young, line 2: \"NA\"\n", "young",
     "na 150152 200204\nNA 150152 200204"},
    {WarningKind::kNegativeProbability, "pond error=uniform=-0.1",
     "EPS of the model of error \"uniform\" is -0.1"},
    {WarningKind::kNegativeProbability, "parental error=nonuniform=-0.1,0,1,0.1,0", "M2 of the"},
    {WarningKind::kCoarseRandomNumbers, "parental collected-parents=sample",
     "2 digits per allele; anything more seldom than 0.01", "sample", "X1 5052 5052\nX2 5054 5252"},
    {WarningKind::kOptionWithoutEffect, "parental strategy=choice criterion=0.5",
     "--criterion goes with --strategy minimal\n"},
    {WarningKind::kOptionWithoutEffect, "parental sequence", "--sequence goes with --strategy"},
    {WarningKind::kUndefinedInSample, "parental",
     "sample: locus L1, 1 of 3 individuals undefined (and 1 more)", "sample",
     "X 000000 000000\nY 150152 150152\nZ 150152 150152\n"},
    // Runs that may take that many, but end sooner.
    {WarningKind::kRandomNumbersRepeat, "sexed replace iterations=2147483647 until-se=0.9",
     "about "},
};

class RefusalsTest : public testing::Test {
 protected:
  RefusalsTest() { std::filesystem::current_path(folder_.Path(".")); }
  void TearDown() override { std::filesystem::current_path(before_); }

  void WriteStudy(int loci) const {
    folder_.Write("loci", Repeated("L{} ", loci));
    const std::string fields = Repeated(" 150152", loci) + '\n';
    for (const char* file : {"parents", "males", "females", "young", "sample"}) {
      folder_.Write(file, "X1" + fields + "X2" + fields);
    }
  }

  /// A check tells first what the run tells, and all the rest below. It resumes nothing.
  static void ExpectTheSameFirst(Arguments command) {
    Arguments check = command;
    if (std::find(command.begin(), command.end(), "--resume") != command.end()) {
      return;
    }
    if (command.front() == "check") {
      command.front() = "allocate";
      command.insert(command.end(), {"--project", "results"});
    } else if (command.front() == "simulate" &&
               std::find(command.begin(), command.end(), "--project") != command.end()) {
      check.insert(check.begin(), "check");
    } else {
      return;
    }
    const auto run = test::RunCommand(command);
    const auto checked = test::RunCommand(check);
    EXPECT_EQ(checked.code, ExitCode::kBadInput);
    EXPECT_THAT(checked.err, testing::StartsWith(run.err));
    check.insert(check.end(), {"--format", "json"});
    EXPECT_THAT(test::RunCommand(check).out, testing::HasSubstr("\n  \"sound\": false,\n"));
  }

  test::TempFolder folder_;  // NOLINT(misc-non-private-member-variables-in-classes)

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(RefusalsTest, SoundCommandsRun) {
  WriteStudy(2);
  for (const auto& [name, command] : kSound) {
    const auto outcome = test::RunCommand(CommandOf(name));
    EXPECT_EQ(outcome.code, ExitCode::kDone) << name << ": " << outcome.err;
    std::filesystem::remove_all("results");
  }
}

// What the help marks as required, and nothing else, cannot be left out.
TEST_F(RefusalsTest, TheHelpMarksWhatIsRequired) {
  WriteStudy(2);
  for (const auto& [name, words] : kSound) {
    std::istringstream options(words);
    std::string command;
    options >> command;
    const std::string help = test::RunCommand({command, "--help"}).out;
    for (std::string option; options >> option;) {
      if (option.find('=') == std::string::npos) {
        continue;
      }
      option.resize(option.find('='));
      const std::size_t begin = help.find("\n  --" + option + ' ');
      const std::string line = help.substr(begin + 1, help.find("\n  -", begin + 1) - begin);
      const auto outcome = test::RunCommand(CommandOf(name + " -" + option));
      const bool is_marked = line.find("(required)") != std::string::npos;
      EXPECT_EQ(outcome.code, is_marked ? ExitCode::kBadInput : ExitCode::kDone) << line;
      EXPECT_EQ(outcome.err.find("--" + option + " is needed") != std::string::npos ||
                    outcome.err.find("--" + option + " (or --males with --females) is needed") !=
                        std::string::npos,
                is_marked)
          << name << ' ' << option << '\n'
          << outcome.err;
      std::filesystem::remove_all("results");
    }
  }
}

TEST_F(RefusalsTest, EveryKindIsToldWithItsPlaceBeforeAnythingIsWritten) {
  std::set<ProblemKind> told = {kNotADecimal, kRunMayDiffer};  // by windows alone
  for (const Refusal& refusal : kRefusals) {
    SCOPED_TRACE(refusal.command + ", " + refusal.file);
    std::filesystem::remove("SAUVLOCUSTULM.txt");  // genotypes of that name would be warned of
    WriteStudy(refusal.loci);
    if (!refusal.file.empty()) {
      folder_.Write(refusal.file, refusal.text);
    }
    const auto outcome = test::RunCommand(CommandOf(refusal.command));
    EXPECT_EQ(outcome.code, ExitCode::kBadInput);
    EXPECT_THAT(outcome.out, testing::IsEmpty());
    EXPECT_FALSE(std::filesystem::exists("results"));
    const std::string_view sentence =
        kProblemSentences.at(static_cast<std::size_t>(refusal.kind)).text;
    const std::size_t line_end = outcome.err.find('\n');
    const std::string first_line = outcome.err.substr(0, line_end);
    const std::size_t value = sentence.find("{}");
    if (value == std::string_view::npos) {
      EXPECT_EQ(first_line, sentence);
    } else {
      EXPECT_THAT(first_line, testing::StartsWith(std::string(sentence.substr(0, value))));
      EXPECT_THAT(first_line, testing::EndsWith(std::string(sentence.substr(value + 2))));
    }
    EXPECT_THAT(outcome.err.substr(line_end + 1), testing::StartsWith(refusal.detail));
    ExpectTheSameFirst(CommandOf(refusal.command));
    told.insert(refusal.kind);
  }
  for (const auto& [kind, sentence] : kProblemSentences) {
    EXPECT_TRUE(told.contains(kind)) << sentence;
  }
}

TEST_F(RefusalsTest, EveryKindOfWarningIsToldWithItsPlaceByARunThatGoesOn) {
  std::set<WarningKind> told = {WarningKind::kSpreadsheetName};
  for (const Oddity& oddity : kOddities) {
    WriteStudy(2);
    if (!oddity.file.empty()) {
      folder_.Write(oddity.file, oddity.text);
    }
    const auto outcome = test::RunCommand(CommandOf(oddity.command));
    EXPECT_EQ(outcome.code, ExitCode::kDone) << outcome.err;
    const auto sentence = kWarningSentences.at(static_cast<std::size_t>(oddity.kind)).text;
    EXPECT_THAT(outcome.err,
                testing::HasSubstr(fmt::format("Warning: {} {}", sentence, oddity.place)));
    told.insert(oddity.kind);
  }
  EXPECT_EQ(told.size(), kWarningSentences.size());
}

TEST_F(RefusalsTest, NamesThatASpreadsheetChangesAreWarnedOf) {
  for (const auto& [reading, names] : std::map<std::string, std::string>{
           {"becomes a date", "MAR1 1-2 3/4/21 sept2 1dec 5-1999 12-MAY-07"},
           {"becomes a number", "00012 1E5 12e+3 1.50 07"},
           {"becomes a formula", "=1+1 @SUM -A1 +3"},
           {"2 offspring", "A1 MARY 12 Young01 1-2-3-4 13-45 1-345 E5 12E F3 MAR"}}) {
    for (const std::string& name : test::Words(names)) {
      WriteStudy(2);
      folder_.Write("young", name + " 150150 200200\nB 150154 200200\n");
      const auto outcome = test::RunCommand(CommandOf("pond"));
      EXPECT_THAT(outcome.err, testing::HasSubstr(reading)) << name;
      EXPECT_EQ(outcome.err.find("becomes") != std::string::npos, reading.starts_with("becomes"))
          << name;
    }
  }
}

}  // namespace
}  // namespace kaldo
