// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/simulation_options.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "cli/option_text.h"

namespace kaldo {

namespace {

/// Adds an option that takes one text.
template <typename Text>
CLI::Option* Add(CLI::App& command, const std::string& group, const std::string& name, Text& text,
                 const std::string& type, const std::string& help) {
  return command.add_option(name, text, help)->type_name(type)->group(group);
}

void AddNonSexedParents(CLI::App& command, ParentalSetOptions& set) {
  const std::string group = "Parents, non-sexed";
  Add(command, group, "--collected-parents", set.collected, "FILE",
      "After the field work: genotypes of the collected parents");
  Add(command, group, "--pseudo-collected-sample", set.pseudo_collected_sample, "FILE",
      "Before it: sample to draw pseudo-collected parents from");
  Add(command, group, "--pseudo-collected", set.pseudo_collected, "N",
      "Number of pseudo-collected parents");
  Add(command, group, "--uncollected-sample", set.uncollected_sample, "FILE",
      "Sample to draw uncollected parents from");
  Add(command, group, "--uncollected", set.uncollected, "U",
      "Estimated number of uncollected parents");
}

void AddSexedParents(CLI::App& command, const std::string& sex, ParentalSetOptions& set) {
  const std::string group = "Parents, sexed";
  Add(command, group, "--collected-" + sex + "s", set.collected, "FILE",
      "After the field work: genotypes of the collected " + sex + "s");
  Add(command, group, "--pseudo-collected-" + sex + "-sample", set.pseudo_collected_sample, "FILE",
      "Before it: sample to draw pseudo-collected " + sex + "s from");
  Add(command, group, "--pseudo-collected-" + sex + "s", set.pseudo_collected, "N",
      "Number of pseudo-collected " + sex + "s");
  Add(command, group, "--uncollected-" + sex + "-sample", set.uncollected_sample, "FILE",
      "Sample to draw uncollected " + sex + "s from");
  Add(command, group, "--uncollected-" + sex + "s", set.uncollected, "N",
      "Number of uncollected " + sex + "s drawn at each iteration");
  Add(command, group, "--estimated-collected-" + sex + "s", set.estimated_collected, "X",
      "Estimated number of collected " + sex + "s in the population");
  Add(command, group, "--estimated-uncollected-" + sex + "s", set.estimated_uncollected, "X",
      "Estimated number of uncollected " + sex + "s in the population");
}

void AddMethod(CLI::App& command, SimulationOptions& options) {
  const std::string group = "Method";
  Add(command, group, "--iterations", options.iterations, "N",
      "Number of iterations; non-sexed below 1000");
  Add(command, group, "--offspring-per-iteration", options.offspring_per_iteration, "N",
      "Pseudo-offspring made at each iteration");
  Add(command, group, "--tolerance", options.tolerance, "N",
      "Maximal offset tolerance, in whole unit distances (repeats)")
      ->capture_default_str();
  Add(command, group, "--error", options.error, "MODEL",
      "Transmission error: none | uniform=EPS | nonuniform | nonuniform=M2,M1,FOCAL,P1,P2")
      ->capture_default_str();
  Add(command, group, "--use", options.use, "NAME,...",
      "Loci in use, by name, between commas; default: all");
  Add(command, group, "--seed", options.seed, "S",
      "Seed of the random numbers, 0 to 4294967295; default: the clock. Always told");
  const std::string loci = "Subsets of loci";
  Add(command, loci, "--strategy", options.strategy, "NAME",
      "choice: the loci in use | all: every subset | minimal: subsets until one reaches the "
      "criterion | cumulative: a sequence")
      ->capture_default_str();
  Add(command, loci, "--criterion", options.criterion, "X",
      "Probability that any allocation is correct, 0 to 1")
      ->capture_default_str();
  Add(command, loci, "--start-with", options.start_with, "K", "Loci of the smallest subset")
      ->capture_default_str();
  Add(command, loci, "--sequence", options.sequence, "I1,I2,...",
      "Position of each locus of the names file in the sequence; default: file order")
      ->expected(0, 1);
}

void AddOutput(CLI::App& command, SimulationOptions& options) {
  const std::string group = "Output";
  command
      .add_flag("--print-iterations", options.print_iterations,
                "Write the detailed results of every iteration")
      ->group(group);
  command
      .add_flag("--print-subset-statistics", options.print_subset_statistics,
                "Write the statistics of every subset into the summary")
      ->group(group);
  Add(command, group, "--keep", options.keep, "KINDS",
      "Generated files to keep: parents,offspring,matrices | all | none; default: "
      "parents,offspring, and none when sexed");
  Add(command, "Machine", "--threads", options.threads, "N",
      "Threads; default: all cores. The results never depend on it");
}

tl::unexpected<Problem> Usage(std::string sentence, std::string found) {
  Problem problem;
  problem.sentence = std::move(sentence);
  problem.found = std::move(found);
  return tl::unexpected(std::move(problem));
}

bool AnyGiven(const ParentalSetOptions& set) {
  return set.collected || set.pseudo_collected_sample || set.pseudo_collected ||
         set.uncollected_sample || set.uncollected || set.estimated_collected ||
         set.estimated_uncollected;
}

/// Reads numbers out of option texts and remembers the first that is missing or no number.
class NumberTexts {
 public:
  std::int32_t Whole(std::string_view what, const std::optional<std::string>& text) {
    return Read<std::int32_t>(what, text, ParseWholeOption);
  }
  double Real(std::string_view what, const std::optional<std::string>& text) {
    return Read<double>(what, text, ParseRealOption);
  }
  const std::optional<Problem>& Fault() const { return fault_; }

 private:
  template <typename Number, typename Parse>
  Number Read(std::string_view what, const std::optional<std::string>& text, Parse parse) {
    if (!text) {
      Note(Usage("A number is missing!", fmt::format("{} is needed", what)).value());
      return {};
    }
    const auto number = parse(what, *text);
    if (!number) {
      Note(number.error());
      return {};
    }
    return *number;
  }

  void Note(const Problem& problem) {
    if (!fault_) {
      fault_ = problem;
    }
  }

  std::optional<Problem> fault_;
};

/// "--uncollected-males" or, in the non-sexed flow, "--uncollected".
std::string OptionName(Flow flow, std::string_view stem, std::string_view sex) {
  return flow == Flow::kSexed ? fmt::format("--{}-{}s", stem, sex) : fmt::format("--{}", stem);
}

ParentalSet SetFrom(const SimulationSettings& settings, const ParentalSetOptions& options,
                    std::string_view sex, NumberTexts& numbers) {
  ParentalSet set;
  const auto name = [&](std::string_view stem) { return OptionName(settings.flow, stem, sex); };
  set.collected_file = options.collected.value_or("");
  set.pseudo_collected_sample = options.pseudo_collected_sample.value_or("");
  set.uncollected_sample = options.uncollected_sample.value_or("");
  if (settings.procedure == Procedure::kPreParental) {
    set.pseudo_collected = numbers.Whole(name("pseudo-collected"), options.pseudo_collected);
  }
  if (settings.flow == Flow::kNonSexed) {
    set.uncollected = numbers.Real(name("uncollected"), options.uncollected);
    return set;
  }
  set.uncollected = numbers.Whole(name("uncollected"), options.uncollected);
  set.estimated_collected = numbers.Real(name("estimated-collected"), options.estimated_collected);
  set.estimated_uncollected =
      numbers.Real(name("estimated-uncollected"), options.estimated_uncollected);
  return set;
}

tl::expected<LociStrategy, Problem> StrategyFrom(std::string_view name) {
  if (name == "choice") {
    return LociStrategy::kChoice;
  }
  if (name == "all") {
    return LociStrategy::kAll;
  }
  if (name == "minimal") {
    return LociStrategy::kMinimal;
  }
  if (name == "cumulative") {
    return LociStrategy::kCumulative;
  }
  return Usage(
      "Please, choose a procedure to run with !",
      fmt::format("--strategy: {} is none of: choice, all, minimal, cumulative", Quoted(name)));
}

tl::expected<KeptFiles, Problem> KeptFrom(std::string_view text) {
  KeptFiles kept;
  if (text == "none") {
    return kept;
  }
  for (const std::string& name : ParseNames(text)) {
    if (name == "parents" || name == "all") {
      kept.parents = true;
    }
    if (name == "offspring" || name == "all") {
      kept.offspring = true;
    }
    if (name == "matrices" || name == "all") {
      kept.matrices = true;
    }
    if (name != "parents" && name != "offspring" && name != "matrices" && name != "all") {
      return Usage("There is no such kind of file to keep!",
                   fmt::format("--keep: {} is none of: parents, offspring, matrices, all, none",
                               Quoted(name)));
    }
  }
  return kept;
}

/// Options of the other flow, or of both procedures, would silently do nothing.
std::optional<Problem> CheckParents(const SimulationOptions& options) {
  if (options.sexed ? AnyGiven(options.parents)
                    : AnyGiven(options.males) || AnyGiven(options.females)) {
    return Usage("Choose options for parents, or with --sexed for males and females!",
                 options.sexed ? "--sexed goes with the options of males and females"
                               : "the options of males and females go with --sexed")
        .value();
  }
  for (const ParentalSetOptions* set : {&options.parents, &options.males, &options.females}) {
    if (set->collected && (set->pseudo_collected_sample || set->pseudo_collected)) {
      return Usage("Choose collected or pseudo-collected parents!",
                   "collected parents are read, pseudo-collected ones are drawn from a sample")
          .value();
    }
  }
  if (options.sexed &&
      options.males.collected.has_value() != options.females.collected.has_value() &&
      (options.males.pseudo_collected_sample || options.females.pseudo_collected_sample)) {
    return Usage("Choose collected or pseudo-collected parents!",
                 "males and females come from files of parents, or both from samples")
        .value();
  }
  return std::nullopt;
}

std::optional<Problem> ReadChoices(const SimulationOptions& options, SimulationSettings& settings) {
  const auto error_model = ParseErrorModel(options.error);
  const auto strategy = StrategyFrom(options.strategy);
  const auto sequence = ParseSequence(options.sequence.value_or(""));
  const auto kept = KeptFrom(options.keep.value_or("none"));
  const auto threads = ParseThreads(options.threads.value_or("1"));
  const auto seed = ParseSeed(options.seed.value_or("0"));
  if (!error_model) return error_model.error();
  if (!strategy) return strategy.error();
  if (!sequence) return sequence.error();
  if (!kept) return kept.error();
  if (!threads) return threads.error();
  if (!seed) return seed.error();
  settings.error_model = *error_model;
  settings.strategy = *strategy;
  settings.sequence = *sequence;
  if (options.keep) {
    settings.keep = *kept;
  }
  if (options.threads) {
    settings.threads = *threads;
  }
  if (options.seed) {
    settings.seed = *seed;
  }
  if (options.use) {
    settings.loci_in_use = ParseNames(*options.use);
  }
  return std::nullopt;
}

}  // namespace

void AddSimulationOptions(CLI::App& command, SimulationOptions& options) {
  Add(command, "Files", "--project", options.project, "DIR",
      "Folder for the results; made when missing");
  Add(command, "Files", "--loci", options.loci, "FILE",
      "Names of the loci, in the order of the genotypes");
  command.add_flag("--sexed", options.sexed, "Males and females are known")
      ->group("Parents, sexed");
  AddNonSexedParents(command, options.parents);
  AddSexedParents(command, "male", options.males);
  AddSexedParents(command, "female", options.females);
  AddMethod(command, options);
  AddOutput(command, options);
}

tl::expected<SimulationSettings, Problem> SettingsFrom(const SimulationOptions& options) {
  if (auto problem = CheckParents(options)) {
    return tl::unexpected(std::move(*problem));
  }
  SimulationSettings settings;
  settings.flow = options.sexed ? Flow::kSexed : Flow::kNonSexed;
  const ParentalSetOptions& first = options.sexed ? options.males : options.parents;
  const bool any_collected = first.collected || (options.sexed && options.females.collected);
  const bool any_pseudo_collected = first.pseudo_collected_sample || first.pseudo_collected;
  settings.procedure =
      any_pseudo_collected && !any_collected ? Procedure::kPreParental : Procedure::kParental;
  settings.project = options.project;
  settings.loci_file = options.loci;
  NumberTexts numbers;
  settings.sets[0] = SetFrom(settings, first, "male", numbers);
  if (options.sexed) {
    settings.sets[1] = SetFrom(settings, options.females, "female", numbers);
  }
  settings.iterations = numbers.Whole("--iterations", options.iterations);
  settings.offspring_per_iteration =
      numbers.Whole("--offspring-per-iteration", options.offspring_per_iteration);
  settings.tolerance = OffsetTolerance{numbers.Whole("--tolerance", options.tolerance)};
  settings.criterion = numbers.Real("--criterion", options.criterion);
  settings.start_with = numbers.Whole("--start-with", options.start_with);
  if (numbers.Fault()) {
    return tl::unexpected(*numbers.Fault());
  }
  if (auto problem = ReadChoices(options, settings)) {
    return tl::unexpected(std::move(*problem));
  }
  settings.print_iterations = options.print_iterations;
  settings.print_subset_statistics = options.print_subset_statistics;
  return settings;
}

}  // namespace kaldo
