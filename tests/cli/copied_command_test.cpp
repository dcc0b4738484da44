// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of a run, as the windows give it, must bring the same settings back.
#include <cstdio>
#include <functional>
#include <gmock/gmock.h>

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "allocation/allocation_command.h"
#include "cli/allocation_options.h"
#include "cli/simulation_options.h"
#include "simulation/simulation_command.h"
#include "tests/support/random_settings.h"

namespace kaldo {
namespace {

using test::RandomAllocation;
using test::RandomSimulation;

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

/// The settings that the command line makes of the words behind "kaldo", or why it does not.
template <typename Options, typename AddOptions>
auto Parsed(const Words& words, std::string_view command, AddOptions add_options)
    -> decltype(SettingsFrom(Options{})) {
  if (words.size() < 2 || words[0] != "kaldo" || words[1] != command) {
    throw std::runtime_error("another command: " + testing::PrintToString(words));
  }
  CLI::App app;
  Options options;
  add_options(app, options);
  app.parse(Words(words.rbegin(), words.rend() - 2));
  return SettingsFrom(options);
}

tl::expected<AllocationSettings, Problem> AllocationOf(const Words& words) {
  return Parsed<AllocationOptions>(words, "allocate", AddAllocationOptions);
}

tl::expected<SimulationSettings, Problem> SimulationOf(const Words& words) {
  auto settings = Parsed<SimulationOptions>(words, "simulate", AddSimulationOptions);
  if (settings) {
    settings->keep = KeptFilesOf(*settings);
  }
  return settings;
}

RC_GTEST_PROP(CopiedCommand, BringsAnAllocationBack, ()) {
  const AllocationSettings settings = *RandomAllocation();
  const std::string command = CommandOf(settings);
  RC_LOG(command);
  const auto again = AllocationOf(Split(command));
  RC_ASSERT(again.map_error([](const Problem& p) { RC_LOG(SentenceOf(p) + p.found); }).has_value());
  RC_ASSERT((*again == settings));
}

RC_GTEST_PROP(CopiedCommand, BringsASimulationBack, ()) {
  SimulationSettings settings = *RandomSimulation();
  const std::string command = CommandOf(settings);
  RC_LOG(command);
  const auto again = SimulationOf(Split(command));
  RC_ASSERT(again.map_error([](const Problem& p) { RC_LOG(SentenceOf(p) + p.found); }).has_value());
  settings.keep = KeptFilesOf(settings);
  RC_ASSERT((*again == settings));
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

}  // namespace
}  // namespace kaldo
