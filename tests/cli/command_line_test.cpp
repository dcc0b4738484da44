// SPDX-License-Identifier: GPL-3.0-or-later
// Whole commands, run inside the test.
#include "cli/command_line.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <regex>

#include <gtest/gtest.h>

#include "base/version.h"
#include "tests/cli/command_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::Arguments;
using test::ExpectRefusal;
using test::Outcome;
using test::ReadFile;
using test::RunCommand;
using test::TempFolder;
using test::operator+;  // NOLINT(misc-unused-using-decls): every + here is it
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// A small study of four loci in a folder of its own.
class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    folder_.Write("loci.txt", "A B C D\n");
    folder_.Write("parents.txt",
                  "P1 100102 200204 150150 120124\n"
                  "P2 104104 208208 152154 128128\n"
                  "P3 100106 200202 150152 120120\n");
    folder_.Write("females.txt", "F1 104104 208208 152154 128128\n");
    folder_.Write("offspring.txt",
                  "O1 100104 204208 150152 124128\n"
                  "O2 000000 200208 150154 120128\n");
  }

  Arguments Loci() const { return {"--loci", folder_.Path("loci.txt")}; }
  Arguments Parents() const { return {"--parents", folder_.Path("parents.txt")}; }
  Arguments Offspring() const { return {"--offspring", folder_.Path("offspring.txt")}; }
  Arguments Files() const { return Loci() + Parents() + Offspring(); }
  Arguments Check(const Arguments& more) const { return Arguments{"check"} + Files() + more; }
  Arguments Allocate(const Arguments& more) const {
    return Arguments{"allocate", "--project", folder_.Path("project")} + Files() + more;
  }

  std::string Report(const std::string& name) const {
    return ReadFile(folder_.Path("project/" + name));
  }

  std::vector<std::pair<std::string, std::string>> TakeReports() const {
    return test::TakeReports(folder_, "project");
  }

  std::string RecordPath() const { return folder_.Path("project/Run record.toml"); }

  /// Runs an allocation and edits its run record as a user might.
  void EditRecord(const std::string& pattern, const std::string& replacement) const {
    ASSERT_EQ(RunCommand(Allocate({})).code, ExitCode::kDone);
    folder_.Write("project/Run record.toml",
                  std::regex_replace(ReadFile(RecordPath()), std::regex(pattern), replacement));
  }

  TempFolder folder_;  // NOLINT(misc-non-private-member-variables-in-classes)
};

TEST_F(CommandLineTest, HelpAndVersionAreAnswersNotFaults) {
  for (const std::string command :
       {"", "allocate", "check", "check simulate", "simulate", "rerun", "verify", "completion"}) {
    const Arguments head = test::Words(command);
    const Outcome help = RunCommand(head + Arguments{"--help"});
    EXPECT_EQ(help.code, ExitCode::kDone) << command;
    EXPECT_THAT(help.out, HasSubstr("Usage: kaldo" + (command.empty() ? "" : ' ' + command)));
    EXPECT_THAT(help.err, IsEmpty());
    const Outcome version = RunCommand(head + Arguments{"--version"});
    EXPECT_EQ(version.code, ExitCode::kDone) << command;
    EXPECT_THAT(version.out, StartsWith("kaldo " + std::string(Version()) + " ("));
    EXPECT_THAT(version.err, IsEmpty());
  }
  EXPECT_EQ(RunCommand({"allocate", "--loci", "missing.txt", "--help"}).code, ExitCode::kDone);
}

TEST_F(CommandLineTest, RefusesACommandLineThatIsNone) {
  const Outcome nothing = RunCommand({});
  EXPECT_EQ(nothing.code, ExitCode::kBadInput);
  EXPECT_THAT(nothing.out, IsEmpty());
  EXPECT_THAT(nothing.err, HasSubstr("Usage: kaldo"));

  ExpectRefusal({"simulate-nothing"}, "There is no command \"simulate-nothing\".\n");
  ExpectRefusal({"alocate"}, "There is no command \"alocate\". Did you mean allocate?\n");
  for (const std::string option : {"--tolerence", "--tol"}) {
    ExpectRefusal(Check({option, "2"}), fmt::format("There is no option \"{}\". Did you mean "
                                                    "--tolerance?\n",
                                                    option));
  }
  ExpectRefusal(Check({"--dance=2"}), "There is no option \"--dance\".\n");
  ExpectRefusal(Check({"--tolerance"}), "--tolerance needs a value: --tolerance N\n");
  ExpectRefusal(Check({"extra"}), "\"extra\" belongs to no option.\n");
  ExpectRefusal(Check({"--error", "nonuniform=0.1", "0.9"}),
                "\"0.9\" belongs to no option. The values of one option have commas");
  ExpectRefusal(Check({"--error", "nonuniform=0.1 0.9"}),
                "A probability is not understood!\n--error: \"0.1 0.9\" is not a number such as "
                "0.008; write commas");
  ExpectRefusal(Check(Loci()), "--loci is given 2 times.\n");
  ExpectRefusal({"rerun"}, "The run record is missing");
  ExpectRefusal({"completion"}, "The shell is missing: bash, zsh or fish");
  ExpectRefusal({"completion", "sh"}, "There is no completion for the shell \"sh\"");
  ExpectRefusal(Check({"--format", "xml"}), "There is no format \"xml\": text or json.\n");
  ExpectRefusal(Check({"simulate", "--iterations", "2"}),
                "The options of a simulation stand behind \"check simulate\".\n");
  ExpectRefusal({"check", "simulate", "--colected-parents", "x"},
                "There is no option \"--colected-parents\". Did you mean --collected-parents?\n");
}

TEST_F(CommandLineTest, ReadsTheToleranceAsDecimal) {
  const std::string label = "\nMaximal offset tolerance :               ";
  for (const auto& [typed, read] :
       {std::pair("010", "10"), {"0", "0"}, {"2147483647", "2147483647"}}) {
    ASSERT_EQ(RunCommand(Allocate({"--tolerance", typed})).code, ExitCode::kDone);
    EXPECT_THAT(Report("Allocation results.xls"), HasSubstr(label + read + '\n'));
  }
  ASSERT_EQ(RunCommand(Allocate({})).code, ExitCode::kDone);
  EXPECT_THAT(Report("Allocation results.xls"), HasSubstr(label + "1\n"));
  for (const std::string typed : {"1.5", "1,5", "one", "", "0x10", "2147483648", "1 "}) {
    ExpectRefusal(Allocate({"--tolerance", typed}), "A whole number is wanted!\n--tolerance: ");
  }
  ExpectRefusal(Check({"--tolerance", "-1"}), "Enter a positive number\n");
  ExpectRefusal(Check({"--tolerance=-1"}), "Enter a positive number\n");
}

TEST_F(CommandLineTest, ABareSequenceIsFileOrder) {
  ASSERT_EQ(RunCommand(Allocate({"--sequence", "1,2,3,4"})).code, ExitCode::kDone);
  const auto typed = TakeReports();
  EXPECT_EQ(typed.size(), 8U);
  ASSERT_EQ(RunCommand(Allocate({"--tolerance", "1", "--sequence"})).code, ExitCode::kDone);
  EXPECT_EQ(TakeReports(), typed);
  ASSERT_EQ(RunCommand(Allocate({"--sequence", "--tolerance", "1"})).code, ExitCode::kDone);
  EXPECT_THAT(Report("Sequence results.xls"), HasSubstr("\nCombin #\t"));
  // A later run without a sequence leaves no report of the earlier one behind.
  ASSERT_EQ(RunCommand(Allocate({})).code, ExitCode::kDone);
  EXPECT_EQ(TakeReports().size(), 6U);
}

TEST_F(CommandLineTest, TakesLociByName) {
  EXPECT_THAT(RunCommand(Check({"--use", " D ,A"})).err, HasSubstr("2 of 4 loci in use"));
  EXPECT_THAT(RunCommand(Check({})).err, HasSubstr("(1 missing locus), 4 of 4 loci in use"));
  folder_.Write("loci.txt", "A B,1 \"C D\n");
  const auto run = [&](const Arguments& more) {
    const Outcome outcome = RunCommand(Allocate(more));
    EXPECT_EQ(outcome.code, ExitCode::kDone) << outcome.err;
    return TakeReports();
  };
  const std::string b_and_c = R"("B,1","""C")";
  EXPECT_EQ(run({"--drop", b_and_c}), run({"--use", "A,D"}));
  EXPECT_EQ(run({"--drop", "A, D"}), run({"--use", b_and_c}));
  EXPECT_EQ(run({"--sequence", "D," + b_and_c}), run({"--sequence", "4,2,3,1"}));
  ExpectRefusal(Check({"--drop", "E"}), "There is no locus of that name!\n\"E\" is none of the 4");
  ExpectRefusal(Check({"--sequence", "A,E"}), "There is no locus of that name!\n");
  ExpectRefusal(Check({"--drop", "A", "--use", "D"}),
                "There is no locus of that name!\n--drop goes");
  ExpectRefusal(Check({"--drop", "A,D," + b_and_c}), "Choose at least one locus!\n");
}

TEST_F(CommandLineTest, TakesSettingsFromARecordWhereNothingElseIsSaid) {
  const Arguments choices = {"--error", "nonuniform", "--tolerance", "2", "--sequence", "2,1,3,4"};
  ASSERT_EQ(RunCommand(Allocate(choices)).code, ExitCode::kDone);
  const auto reports = TakeReports();
  const std::string other = folder_.Path("other");
  const Arguments same = {"allocate", "--settings", folder_.Path("project"), "--project", other};
  const Outcome quiet = RunCommand(same + Arguments{"--quiet"});
  EXPECT_EQ(quiet.code, ExitCode::kDone) << quiet.err;
  EXPECT_THAT(quiet.out, IsEmpty());
  EXPECT_EQ(test::TakeReports(folder_, "other"), reports);
  ExpectRefusal({"allocate", "--settings", RecordPath()}, "Please enter name of project!\n");
  const Outcome changed = RunCommand(same + Arguments{"--drop", "B", "--tolerance", "0"});
  EXPECT_THAT(changed.out, HasSubstr("3 of 4 loci in use"));
  EXPECT_THAT(changed.out, HasSubstr("error model Non Uniform"));
  EXPECT_THAT(changed.out, HasSubstr("maximal offset tolerance 0\n"));
  ExpectRefusal({"simulate", "--settings", RecordPath()}, "This run record cannot be used!\n");
}

TEST_F(CommandLineTest, CheckWritesNothing) {
  const auto before = folder_.FilesIn(".");
  const Outcome outcome = RunCommand(Check({"--project", folder_.Path("project"), "--sequence"}));
  EXPECT_EQ(outcome.code, ExitCode::kDone);
  EXPECT_THAT(outcome.out, EndsWith("\n\nThe project folder \"" + folder_.Path("project") +
                                    "\" can be made.\nok\n"));
  EXPECT_EQ(outcome.err,
            "3 parents, 2 offspring (1 missing locus), 4 of 4 loci in use, 6 digits per field\n");
  EXPECT_EQ(folder_.FilesIn("."), before);
}

TEST_F(CommandLineTest, BadInputLeavesTheEarlierResults) {
  ASSERT_EQ(RunCommand(Allocate({})).code, ExitCode::kDone);
  const std::string record = ReadFile(RecordPath());
  folder_.Write("offspring.txt",
                "O1 100104 204208 150152 124128\nO2 100104 000208 150152 124128\n");
  ExpectRefusal(Allocate({"--tolerance", "0"}),
                "Offspring loci should contain totally defined alleles(no string of 0s) or totally "
                "undefined alleles (two strings of 0s)!\n" +
                    folder_.Path("offspring.txt") +
                    ", line 2, record 2 (O2), locus B: \"000208\" holds an undefined allele\n");
  EXPECT_EQ(ReadFile(RecordPath()), record);
  EXPECT_EQ(TakeReports().size(), 6U);
}

TEST_F(CommandLineTest, TellsAResultsFolderThatCannotBeMade) {
  const Outcome outcome =
      RunCommand(Arguments{"allocate", "--project", folder_.Path("loci.txt/project")} + Files());
  EXPECT_EQ(outcome.code, ExitCode::kFailed);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, StartsWith("Cannot make the folder \""));
}

TEST_F(CommandLineTest, TellsLociOutOfStep) {
  folder_.Write("females.txt", "F1 104107 208208 152154 128128\n");
  const Outcome outcome =
      RunCommand(Arguments{"allocate", "--project", folder_.Path("project"), "--males",
                           folder_.Path("parents.txt"), "--females", folder_.Path("females.txt")} +
                 Loci() + Offspring());
  EXPECT_EQ(outcome.code, ExitCode::kDone);
  EXPECT_THAT(outcome.out, EndsWith("\nSome allelic distances not in step with the smallest "
                                    "difference. Please read the stepping error file !\n"));
  EXPECT_THAT(Report("Stepping error file.xls"),
              EndsWith("\nLocus A :\n\tAlleles : 100 102 104 106 107 \n\tAllelic distances : 2  2  "
                       "2  1  \n\n"));
  EXPECT_THAT(ReadFile(RecordPath()), HasSubstr("warnings = [\"Some allelic distances"));
}

TEST_F(CommandLineTest, RerunReproducesTheReports) {
  const std::vector<Arguments> choices = {
      {"--tolerance", "0", "--error", "uniform=0.03", "--use", "A,C,D"},
      {"--error", "none"},
      {"--sequence"},
      {"--sequence", "-1,4,4,3", "--error", "nonuniform=0,0.03125,0.9375,0.03125,0"},
      {"--known-mother", folder_.Write("mothers", "O1 P3"), "--candidates",
       folder_.Write("candidates", "O1 P3 P1\nO2 *"), "--offspring-groups",
       folder_.Write("groups", "O2 1")},
  };
  for (const Arguments& choice : choices) {
    const Outcome first = RunCommand(Allocate(choice));
    ASSERT_EQ(first.code, ExitCode::kDone);
    const auto reports = TakeReports();
    const Outcome compared = RunCommand({"rerun", RecordPath()});
    EXPECT_EQ(compared.code, ExitCode::kDone);
    EXPECT_EQ(compared.out, fmt::format("identical, {0} of {0} files\n", reports.size()));
    EXPECT_THAT(compared.err, IsEmpty());
    EXPECT_THAT(TakeReports(), IsEmpty()) << "nothing is written";
    const Outcome again = RunCommand({"rerun", RecordPath(), "--threads", "2", "--overwrite"});
    EXPECT_EQ(again.code, ExitCode::kDone);
    EXPECT_EQ(again.out, first.out);
    EXPECT_THAT(again.err, StartsWith("Note: The results of 2"));
    EXPECT_THAT(again.err, EndsWith(" were replaced; the input files are the same.\n"));
    EXPECT_EQ(TakeReports(), reports) << testing::PrintToString(choice);
  }
}

TEST_F(CommandLineTest, VerifyTellsEveryFileThatIsNotAsTheRunLeftIt) {
  ASSERT_EQ(RunCommand(Allocate({})).code, ExitCode::kDone);
  for (const std::string& path : {RecordPath(), folder_.Path("project")}) {
    const Outcome intact = RunCommand({"verify", path});
    EXPECT_EQ(intact.code, ExitCode::kDone) << intact.err;
    EXPECT_EQ(intact.out, "Results: intact, 6 of 6 files\nInputs: unchanged, 3 of 3 files\n");
  }
  folder_.Write("project/notes.txt", "my own");
  folder_.Write("project/Summary.xls", "of a simulation");
  folder_.Write("project/Max like pairs.txt", Report("Max like pairs.txt") + ' ');
  std::filesystem::remove(folder_.Path("project/Allocation results.xls"));
  std::filesystem::remove(folder_.Path("parents.txt"));
  const Outcome mixed = RunCommand({"verify", folder_.Path("project")});
  EXPECT_EQ(mixed.code, ExitCode::kDiffers);
  EXPECT_EQ(mixed.out,
            "Results: not intact, 4 of 6 files\n"
            "  \"Allocation results.xls\" is missing\n"
            "  \"Max like pairs.txt\" has other contents: it was edited, or is of another run\n"
            "  \"Summary.xls\" is of another run: the record does not list it\n"
            "Inputs: changed, 2 of 3 files\n"
            "  collected parents (\"" +
                folder_.Path("parents.txt") + "\") cannot be read.\n");
}

// Whoever sends a record must not decide what is written where, nor what the terminal does.
TEST_F(CommandLineTest, ARecordFromElsewhereIsNotTrusted) {
  const std::string aim = folder_.Path("aim");
  EditRecord("\nproject = .*", "\nproject = \"" + aim + "\"");
  EXPECT_EQ(RunCommand({"rerun", RecordPath()}).code, ExitCode::kDone);
  EXPECT_EQ(RunCommand({"rerun", RecordPath(), "--overwrite"}).code, ExitCode::kDone);
  EXPECT_FALSE(std::filesystem::exists(aim));
  EXPECT_EQ(RunCommand({"rerun", RecordPath(), "--project", aim}).code, ExitCode::kDone);
  EXPECT_EQ(folder_.FilesIn("aim").size(), 7U);
  EditRecord("\nfolder = .*", "\nfolder = \"/\\u001b[2J\\u009b\"");
  std::filesystem::remove(folder_.Path("parents.txt"));
  EXPECT_THAT(RunCommand({"rerun", RecordPath()}).err, HasSubstr("\"/\\x1b[2J\\xc2\\x9b\""));
  for (const std::string path : {"/dev/zero", "/"}) {
    folder_.Write("parents.txt", "P1 100102 200204 150150 120124\n");
    EditRecord("\"[^\"]*/parents.txt\"", '"' + path + '"');
    for (const std::string command : {"rerun", "verify"}) {
      ExpectRefusal({command, RecordPath()}, "Cannot open file \"" + path + "\"!\n");
    }
  }
}

TEST_F(CommandLineTest, RerunTellsWhatHasChanged) {
  EditRecord("version = \".*\"", "version = \"0.9.0\"");
  folder_.Write("offspring.txt", "O1 100104 204208 150152 124128\n");
  const Outcome refused = RunCommand({"rerun", RecordPath()});
  EXPECT_EQ(refused.code, ExitCode::kBadInput);
  EXPECT_THAT(refused.err, HasSubstr("\nAn input file has changed since the recorded run!\n"));
  const Outcome compared = RunCommand({"rerun", RecordPath(), "--with-changed-inputs"});
  EXPECT_EQ(compared.code, ExitCode::kDiffers);
  EXPECT_THAT(compared.out, StartsWith("different, "));
  const Outcome outcome =
      RunCommand({"rerun", RecordPath(), "--with-changed-inputs", "--overwrite"});
  EXPECT_EQ(outcome.code, ExitCode::kDone);
  EXPECT_THAT(outcome.err, StartsWith("Warning: the record was made by KALDO 0.9.0, "));
  EXPECT_THAT(outcome.err, HasSubstr("\nWarning: offspring (\"" + folder_.Path("offspring.txt") +
                                     "\") has changed since the recorded run: "));
  EXPECT_THAT(outcome.err, Not(HasSubstr("parents.txt")));
  EXPECT_THAT(outcome.out, HasSubstr("1 offspring")) << "the run uses the files as they are";
}

TEST_F(CommandLineTest, RerunRefusesWhatItCannotRepeat) {
  ExpectRefusal({"rerun", folder_.Path("parents.txt")}, "This is not a run record!\n");
  ExpectRefusal({"rerun", folder_.Path("missing.toml")}, "Cannot open file \"");
  struct Edit {
    std::string pattern;
    std::string replacement;
    std::string message;
  };
  const std::vector<Edit> edits = {
      {"flow = \".*\"", "flow = \"a dance\"", "This run record cannot be used!\n"},
      {"tolerance = 1\n", "", "This run record cannot be used!\n"},
      {"tolerance = 1", "tolerance = 1.5", "This run record cannot be used!\n"},
      {"tolerance = 1", "tolerance = -1", "Enter a positive number\n"},
      {"error = .*", "error = \"some\"", "This run record cannot be used!\n"},
      {"error = .*\nepsilon = .*", "error = \"nonuniform\"\nerror_values = [0.1, 0.9]",
       "This run record cannot be used!\n"},
      {"confidence_level = .*", "confidence_level = 0.4", "is not between 0.5 and 1"},
      {"\nproject = .*", "", "This run record cannot be used!\n"},
      {"tolerance = 1\n", "tolerance = 1\nsqeuence = [1]\n",
       "the setting \"sqeuence\" has no place"},
      {"\nparents = .*", "\nparents = \"/etc/passwd\"", "names a file that is none of its"},
      // A setting that is there but not understood must not silently become another run.
      {"(tolerance = 1)\n", "$1\nuse = \"A\"\n", ""},
      {"(tolerance = 1)\n", "$1\nsequence = [1.0, 2.0, 3.0, 4.0]\n", ""},
      {"(tolerance = 1)\n", "$1\nsequence = \"4,3,2,1\"\n", ""},
      {"(tolerance = 1)\n", "$1\nsequence = [4294967297, 2, 3, 4]\n", ""},
      {"tolerance = 1\n", "tolerance = 4294967297\n", ""},
  };
  for (const Edit& edit : edits) {
    SCOPED_TRACE(edit.replacement);
    EditRecord(edit.pattern, edit.replacement);
    const Outcome outcome = RunCommand({"rerun", RecordPath()});
    EXPECT_EQ(outcome.code, ExitCode::kBadInput);
    EXPECT_THAT(outcome.err, HasSubstr(edit.message));
  }
}

}  // namespace
}  // namespace kaldo
