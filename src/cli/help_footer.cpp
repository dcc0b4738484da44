// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/help_footer.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kaldo {

namespace {

constexpr std::string_view kLake =
    "  kaldo allocate --project lake --loci examples/non-sexed/loci.txt \\\n"
    "                 --parents examples/non-sexed/parents.txt \\\n"
    "                 --offspring examples/non-sexed/offspring.txt\n";

constexpr std::string_view kPonds =
    "  kaldo allocate --project ponds --loci examples/sexed/loci.txt \\\n"
    "                 --males examples/sexed/males.txt --females examples/sexed/females.txt \\\n"
    "                 --offspring examples/sexed/offspring.txt --tolerance 2 --sequence\n";

constexpr std::string_view kTrial =
    "  kaldo simulate --project trial --loci examples/non-sexed/loci.txt \\\n"
    "                 --collected-parents examples/non-sexed/parents.txt \\\n"
    "                 --uncollected-sample examples/non-sexed/parents.txt --uncollected 20 \\\n"
    "                 --iterations 10 --offspring-per-iteration 100 --seed 1\n";

constexpr std::string_view kPilot =
    "  kaldo simulate --project pilot --loci examples/non-sexed/loci.txt \\\n"
    "                 --pseudo-collected-sample examples/non-sexed/parents.txt \\\n"
    "                 --pseudo-collected 30 \\\n"
    "                 --uncollected-sample examples/non-sexed/parents.txt --uncollected 10 \\\n"
    "                 --iterations 10 --offspring-per-iteration 100 \\\n"
    "                 --strategy cumulative --seed 1\n";

constexpr std::string_view kSexedTrial =
    "  kaldo simulate --project \"ponds trial\" --loci examples/sexed/loci.txt --sexed \\\n"
    "                 --collected-males examples/sexed/sample-males.txt \\\n"
    "                 --collected-females examples/sexed/sample-females.txt \\\n"
    "                 --uncollected-male-sample examples/sexed/sample-males.txt \\\n"
    "                 --uncollected-female-sample examples/sexed/sample-females.txt \\\n"
    "                 --uncollected-males 10 --uncollected-females 10 \\\n"
    "                 --estimated-collected-males 20 --estimated-uncollected-males 10 \\\n"
    "                 --estimated-collected-females 20 --estimated-uncollected-females 10 \\\n"
    "                 --iterations 10 --offspring-per-iteration 100 --seed 1\n";

constexpr std::string_view kSexedPilot =
    "  kaldo simulate --project \"ponds pilot\" --loci examples/sexed/loci.txt --sexed \\\n"
    "                 --pseudo-collected-male-sample examples/sexed/sample-males.txt \\\n"
    "                 --pseudo-collected-female-sample examples/sexed/sample-females.txt \\\n"
    "                 --pseudo-collected-males 20 --pseudo-collected-females 20 \\\n"
    "                 --uncollected-male-sample examples/sexed/sample-males.txt \\\n"
    "                 --uncollected-female-sample examples/sexed/sample-females.txt \\\n"
    "                 --uncollected-males 10 --uncollected-females 10 \\\n"
    "                 --estimated-collected-males 20 --estimated-uncollected-males 10 \\\n"
    "                 --estimated-collected-females 20 --estimated-uncollected-females 10 \\\n"
    "                 --iterations 10 --offspring-per-iteration 100 --until-se 0.01 --seed 1\n";

constexpr std::string_view kChecks =
    "  kaldo check --loci examples/non-sexed/loci.txt \\\n"
    "              --parents examples/non-sexed/parents.txt \\\n"
    "              --offspring examples/non-sexed/offspring.txt\n"
    "  kaldo check --format json --project lake --loci examples/non-sexed/loci.txt \\\n"
    "              --parents examples/non-sexed/parents.txt \\\n"
    "              --offspring examples/non-sexed/offspring.txt\n";

constexpr std::string_view kCheckSimulation =
    "  kaldo check simulate --loci examples/non-sexed/loci.txt \\\n"
    "              --collected-parents examples/non-sexed/parents.txt \\\n"
    "              --uncollected-sample examples/non-sexed/parents.txt --uncollected 20 \\\n"
    "              --iterations 10 --offspring-per-iteration 100\n";

constexpr std::string_view kRerun =
    "  kaldo rerun \"lake/Run record.toml\"\n"
    "  kaldo rerun trial --project \"trial again\"\n";

constexpr std::string_view kExport =
    "  kaldo export \"lake/Run record.toml\" --as tsv,html,pedigree\n"
    "  kaldo export ponds --as pedigree --min-probability 0.95 --to \"for nadiv\"\n";

constexpr std::string_view kConvert =
    "  kaldo convert --loci examples/non-sexed/loci.txt \\\n"
    "                --parents examples/non-sexed/parents.txt \\\n"
    "                --offspring examples/non-sexed/offspring.txt --as genepop --to lake.gen\n";

constexpr std::string_view kVerify = "  kaldo verify lake\n";

constexpr std::string_view kImport =
    "  kaldo import examples/foreign/pond.gen --offspring-populations pop3 --to imported\n"
    "  kaldo import --parents examples/foreign/adults.csv \\\n"
    "               --offspring examples/foreign/young.csv --to sexed-study\n";

constexpr std::string_view kCompletion =
    "  eval \"$(kaldo completion bash)\"\n"
    "  kaldo completion fish > ~/.config/fish/completions/kaldo.fish\n";

constexpr std::string_view kExitCodes =
    "\n"
    "Exit codes: 0 done, 1 failed while running, 2 bad input or usage, 3 verify or rerun found a\n"
    "difference, 130 stopped by Ctrl-C.";

/// The examples of a command, in their order.
using Examples = std::array<std::string_view, 4>;

constexpr std::array<std::pair<std::string_view, Examples>, 10> kExamples{
    {{"allocate", {kLake, kPonds, "", ""}},
     {"simulate", {kTrial, kPilot, kSexedTrial, kSexedPilot}},
     {"check", {kChecks, kCheckSimulation, "", ""}},
     {"check simulate", {kCheckSimulation, "", "", ""}},
     {"rerun", {kRerun, "", "", ""}},
     {"export", {kExport, "", "", ""}},
     {"convert", {kConvert, "", "", ""}},
     {"verify", {kVerify, "", "", ""}},
     {"import", {kImport, "", "", ""}},
     {"completion", {kCompletion, "", "", ""}}}};

}  // namespace

std::string HelpFooter(std::string_view command) {
  const auto* const own =
      std::find_if(kExamples.begin(), kExamples.end(),
                   [command](const auto& each) { return each.first == command; });
  std::string text = "Examples, beside the example data:\n";
  if (own != kExamples.end()) {
    for (const std::string_view example : own->second) {
      text.append(example);
    }
  } else {
    for (const std::string_view example : {kLake, kTrial, kVerify}) {
      text.append(example);
    }
    text +=
        "\"kaldo allocate --help\" and so on tell the options and more examples of a command.\n";
  }
  return text.append(kExitCodes);
}

}  // namespace kaldo
