// SPDX-License-Identifier: GPL-3.0-or-later
// What was typed becomes the settings, and the command of a run, as the windows give it, and its
// record bring the same settings back.
#include <cstdio>
#include <functional>
#include <gmock/gmock.h>
#include <map>

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "allocation/allocation_command.h"
#include "allocation/allocation_record.h"
#include "cli/typed_options.h"
#include "simulation/run_settings.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_record.h"
#include "tests/support/random_settings.h"

namespace kaldo {
namespace {

using testing::StartsWith;

using Words = std::vector<std::string>;

/// Cuts a command into words as a shell does, knowing blanks, quotes and backslashes. Anything else
/// that a shell would not take as it stands is told apart by the words "unquoted" and the
/// character.
Words Split(std::string_view command) {
  Words words;
  bool in_word = false;
  bool quoted = false;
  for (std::size_t i = 0; i < command.size(); ++i) {
    const char character = command[i];
    if (!quoted && character == ' ') {
      in_word = false;
      continue;
    }
    if (!in_word) {
      words.emplace_back();
      in_word = true;
    }
    if (character == '\'') {
      quoted = !quoted;
    } else if (!quoted && character == '\\') {
      words.back() += command.substr(++i, 1);
    } else if (!quoted && std::string_view("\n\t\"$`&|;<>()*?[]#~!{}").find(character) !=
                              std::string_view::npos) {
      words.insert(words.end(), {"unquoted", std::string(1, character)});
    } else {
      words.back() += character;
    }
  }
  return quoted ? Words{"a quote is open"} : words;
}

/// The words that the shell of this machine makes of a command.
Words SplitByShell(const std::string& command) {
  const std::string script = "kaldo() { printf '%s\\0' kaldo \"$@\"; }\n" + command + '\n';
  const std::unique_ptr<FILE, std::function<int(FILE*)>> pipe(popen(script.c_str(), "r"), pclose);
  std::string output;
  for (int byte = std::fgetc(pipe.get()); byte != EOF; byte = std::fgetc(pipe.get())) {
    output += static_cast<char>(byte);
  }
  Words words;
  for (std::size_t end = output.find('\0'); end != std::string::npos; end = output.find('\0')) {
    words.push_back(output.substr(0, end));
    output.erase(0, end + 1);
  }
  return words;
}

/// What the command line makes of the words behind "kaldo".
template <typename Settings>
TypedSettings Typed(const Words& words, std::string_view command, SettingTable<Settings> table) {
  if (words.size() < 2 || words[0] != "kaldo" || words[1] != command) {
    throw std::runtime_error("another command: " + testing::PrintToString(words));
  }
  CLI::App app;
  TypedOptions options;
  options.AddTo(app, table);
  app.parse(Words(words.rbegin(), words.rend() - 2));
  return options.Given();
}

tl::expected<AllocationSettings, Problem> AllocationOf(const Words& words) {
  return AllocationFrom(Typed(words, "allocate", AllocationSettingTable()));
}

/// The settings with the files that they keep by default.
SimulationSettings WithKept(SimulationSettings settings) {
  settings.keep = KeptFilesOf(settings);
  return settings;
}

tl::expected<SimulationSettings, Problem> SimulationOf(const Words& words) {
  return SimulationFrom(Typed(words, "simulate", SimulationSettingTable())).map(WithKept);
}

/// The settings that were read, of which every one says again what was typed for it: no other
/// setting was put in its place.
template <typename Settings>
Settings Read(const tl::expected<Settings, Problem>& settings, const TypedSettings& typed,
              SettingTable<Settings> table) {
  if (!settings) {
    RC_FAIL(SentenceOf(settings.error()) + settings.error().found);
  }
  for (const Setting<Settings>& setting : table) {
    if (const auto text = typed.find(setting.key); text != typed.end()) {
      RC_ASSERT(setting.value.text(*settings) == text->second);
    }
  }
  return *settings;
}

template <typename Settings>
void ExpectBroughtBack(const tl::expected<Settings, Problem>& by_command, const RunRecord& record,
                       const Settings& settings) {
  if (!by_command) {
    RC_FAIL(SentenceOf(by_command.error()) + by_command.error().found);
  }
  RC_ASSERT((*by_command == settings));
  const auto read = ParseRunRecord(FormatRunRecord(record), "r.toml");
  RC_ASSERT(read.has_value());
  const auto by_record = RunSettingsOf(*read, "r.toml");
  if (!by_record) {
    RC_FAIL(DetailLine(by_record.error()));
  }
  RC_ASSERT((std::get<Settings>(*by_record) == settings));
}

RC_GTEST_PROP(Settings, OfAnAllocationComeBack, ()) {
  const TypedSettings typed = test::RandomAllocation();
  auto settings = Read(AllocationFrom(typed), typed, AllocationSettingTable());
  RC_LOG(CommandOf(settings));
  const auto by_command = AllocationOf(Split(CommandOf(settings)));
  RC_ASSERT((by_command == settings));
  if (settings.sequence && settings.sequence->empty()) {
    settings.sequence = {1, 2};  // a record tells the file order, which takes a file
  }
  ExpectBroughtBack(AllocationOf(Split(CommandOf(settings))), RecordOf(settings, {}, {}), settings);
}

RC_GTEST_PROP(Settings, OfASimulationComeBack, ()) {
  const TypedSettings typed = test::RandomSimulation();
  const auto settings = Read(SimulationFrom(typed), typed, SimulationSettingTable());
  RC_LOG(CommandOf(settings));
  RunRecord record = RecordOf(settings, {}, {});
  record.seed = settings.seed;
  ExpectBroughtBack(SimulationOf(Split(CommandOf(settings))), record, WithKept(settings));
}

/// Names full of what parts them: whatever a file calls its loci, the list of them comes back.
RC_GTEST_PROP(NamesAtCommas, UndoTextOfNames, ()) {
  const auto name = rc::gen::container<std::string>(rc::gen::elementOf(std::string(",\"\t a\x01")));
  const auto names = *rc::gen::container<std::vector<std::string>>(name);
  RC_ASSERT(NamesAtCommas(TextOfNames(names)) == names);
}

TEST(NamesAtCommas, TakeQuotesThatDoNotCloseAsTheyStand) {
  EXPECT_EQ(NamesAtCommas(R"( "a , ""b""" , c"d ,"e" f, "g,)"),
            (Words{R"(a , "b")", R"(c"d)", R"("e" f)", R"("g)", ""}));
}

TEST(CopiedCommand, SaysNothingThatGoesWithoutSaying) {
  AllocationSettings settings;
  settings.project = "lake";
  settings.loci_file = "data/loci.txt";
  settings.parents_file = "adults 2026.txt";
  settings.offspring_file = "young.txt";
  settings.threads = 7;
  EXPECT_EQ(CommandOf(settings),
            "kaldo allocate --project lake --loci data/loci.txt --parents 'adults 2026.txt' "
            "--offspring young.txt");
}

TEST(CopiedCommand, IsReadByARealShell) {
  for (const std::string name : {"two words", "it's",     "''",   "-x.txt",
                                 "--help",    "--",       "-",    "caf\xc3\xa9/\xe9t\xe9",
                                 "$HOME",     "`id`",     "a\\b", "a\\",
                                 "~",         "*",        "!!",   "#1",
                                 "a=b",       "=ls",      "-a=b", "[1,2]",
                                 "{}",        "{a,b}",    "a\nb", "\ttab ",
                                 "%s",        "allocate", "\"",   "a;b&c|d",
                                 "\x01\xff"}) {
    AllocationSettings allocation;
    allocation.flow = Flow::kSexed;
    allocation.project = name;
    allocation.males_file = name;
    allocation.females_file = name + name;
    allocation.offspring_file = name;
    allocation.loci_file = name;
    const auto again = AllocationOf(SplitByShell(CommandOf(allocation)));
    ASSERT_TRUE(again) << CommandOf(allocation) << '\n' << SentenceOf(again.error());
    EXPECT_EQ(*again, allocation) << CommandOf(allocation);

    SimulationSettings simulation;
    simulation.project = name;
    simulation.loci_file = name;
    simulation.sets[0].collected_file = name;
    simulation.sets[0].uncollected_sample = name;
    simulation.keep = KeptFiles{};
    const auto simulated = SimulationOf(SplitByShell(CommandOf(simulation)));
    ASSERT_TRUE(simulated) << CommandOf(simulation) << '\n' << SentenceOf(simulated.error());
    EXPECT_EQ(*simulated, simulation) << CommandOf(simulation);
  }
}

TEST(CopiedCommand, OfAnUnfinishedWindowIsRefusedAsTheWindowIs) {
  AllocationSettings settings;
  settings.flow = Flow::kSexed;
  settings.females_file = "f.txt";
  const auto again = AllocationOf(Split(CommandOf(settings)));
  ASSERT_TRUE(again) << SentenceOf(again.error());
  EXPECT_EQ(*again, settings) << "a sexed run without its files stays a sexed one";
  settings.females_file = "";
  EXPECT_EQ(AllocationOf(Split(CommandOf(settings))), settings);
  settings.error_model.kind = ErrorKind::kNotChosen;
  const auto refused = AllocationOf(Split(CommandOf(settings)));
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().kind, ProblemKind::kNoErrorModel);
}

TypedSettings NonSexed() {
  return {{"collected", "parents"},
          {"uncollected_sample", "sample"},
          {"uncollected", "10.5"},
          {"iterations", "20"},
          {"offspring_per_iteration", "0300"}};
}

TypedSettings Sexed() {
  return {{"sexed", ""},
          {"iterations", "20"},
          {"offspring_per_iteration", "5"},
          {"males_pseudo_collected_sample", "male sample"},
          {"males_pseudo_collected", "4"},
          {"males_uncollected_sample", "wild males"},
          {"males_uncollected", "5"},
          {"males_estimated_collected", "6.5"},
          {"males_estimated_uncollected", "7"},
          {"females_pseudo_collected_sample", "female sample"},
          {"females_pseudo_collected", "8"},
          {"females_uncollected_sample", "wild females"},
          {"females_uncollected", "9"},
          {"females_estimated_collected", "1e1"},
          {"females_estimated_uncollected", "0"}};
}

TEST(TypedSimulation, BecomesTheSettingsOfItsFlowAndProcedure) {
  const auto settings = SimulationFrom(NonSexed());
  ASSERT_TRUE(settings) << SentenceOf(settings.error());
  EXPECT_EQ(settings->procedure, Procedure::kParental);
  EXPECT_EQ(settings->sets[0].uncollected, 10.5);
  EXPECT_EQ(settings->offspring_per_iteration, 300) << "leading zeros mean nothing";
  EXPECT_FALSE(settings->seed) << "the clock";
  EXPECT_FALSE(settings->keep) << "as the flow has it";

  const auto sexed = SimulationFrom(Sexed());
  ASSERT_TRUE(sexed) << SentenceOf(sexed.error());
  EXPECT_EQ(sexed->flow, Flow::kSexed);
  EXPECT_EQ(sexed->procedure, Procedure::kPreParental);
  EXPECT_EQ(sexed->sets[0], (ParentalSet{"", "male sample", 4, "wild males", 5, 6.5, 7}));
  EXPECT_EQ(sexed->sets[1], (ParentalSet{"", "female sample", 8, "wild females", 9, 10, 0}));
}

TEST(TypedSimulation, NamesTheFilesToKeep) {
  for (const auto& [text, kept] : {std::pair("none", KeptFiles{}),
                                   {"all", KeptFiles{true, true, true}},
                                   {"parents", KeptFiles{true, false, false}},
                                   {"matrices, offspring", KeptFiles{false, true, true}}}) {
    TypedSettings typed = NonSexed();
    typed["keep"] = text;
    EXPECT_EQ(SimulationFrom(typed)->keep, kept) << text;
  }
}

/// Of several faults a number is told first, then a choice.
TEST(TypedSimulation, IsRefusedForOneTextAfterTheOther) {
  const std::vector<std::pair<std::string, std::string>> faults = {
      {"iterations", "2.5"}, {"criterion", "95%"},  {"error", "nonuniform=0,0,1,0"},
      {"strategy", ""},      {"sequence", "1,,3"},  {"keep", "none,all"},
      {"threads", "1025"},   {"seed", "4294967296"}};
  TypedSettings typed = NonSexed();
  for (const auto& [key, text] : faults) {
    typed[key] = text;
  }
  for (const auto& [key, text] : faults) {
    const auto refused = SimulationFrom(typed);
    ASSERT_FALSE(refused) << key;
    EXPECT_THAT(refused.error().found, StartsWith("--" + key)) << SentenceOf(refused.error());
    typed[key] = key == "error" ? "none" : key == "strategy" ? "all" : key == "keep" ? "all" : "1";
  }
  EXPECT_TRUE(SimulationFrom(typed));
}

TEST(TypedSimulation, TakesNoTextThatStandsForNothing) {
  for (const auto& [key, texts] : std::map<std::string, std::vector<std::string>>{
           {"error", {"", "Uniform=0.1", "uniform", "none=", "nonuniform=", "uniform=0.1,"}},
           {"sequence", {"1,2.0", "1;2", "a", "1 2", "1,2,", "1,4294967298"}},
           {"threads", {"0", "-1", "4294967297", "two", ""}},
           {"seed", {"-1", "1.0", ""}},
           {"start_with", {"", "1 ", "0x1", "2147483648"}}}) {
    for (const std::string& text : texts) {
      TypedSettings typed = NonSexed();
      typed[key] = text;
      EXPECT_FALSE(SimulationFrom(typed)) << key << ": " << text;
    }
  }
}

}  // namespace
}  // namespace kaldo
