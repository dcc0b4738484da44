// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/option_text.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/number_text.h"
#include "method/cumulative_sequence.h"

namespace kaldo {

namespace {

constexpr unsigned kMostThreads = 1024;

tl::unexpected<Problem> Fault(ProblemKind kind, std::string found) {
  return tl::unexpected(Problem{.kind = kind, .found = std::move(found)});
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

tl::expected<std::vector<double>, Problem> ParseProbabilities(std::string_view text) {
  std::vector<double> values;
  for (const std::string& part : ParseNames(text)) {
    const auto value = ParseDouble(part);
    if (!value) {
      return Fault(ProblemKind::kNotAProbability,
                   fmt::format("--error: {} is not a number such as 0.008", Quoted(part)));
    }
    values.push_back(*value);
  }
  return values;
}

}  // namespace

tl::expected<std::int32_t, Problem> ParseWholeOption(std::string_view option,
                                                     std::string_view text) {
  const auto value = ParseInteger(text);
  if (!value) {
    return Fault(ProblemKind::kNotWhole,
                 fmt::format("{}: {} is not a whole number", option, Quoted(text)));
  }
  return *value;
}

tl::expected<double, Problem> ParseRealOption(std::string_view option, std::string_view text) {
  const auto value = ParseDouble(text);
  if (!value) {
    return Fault(ProblemKind::kNotANumber,
                 fmt::format("{}: {} is not a number such as 10.5", option, Quoted(text)));
  }
  return *value;
}

tl::expected<ErrorModel, Problem> ParseErrorModel(std::string_view text) {
  const std::size_t equals = text.find('=');
  const std::string_view kind = text.substr(0, equals);
  const bool has_values = equals != std::string_view::npos;
  const auto values = ParseProbabilities(has_values ? text.substr(equals + 1) : std::string_view{});
  if (!values) {
    return tl::unexpected(values.error());
  }
  ErrorModel model;
  if (kind == "none" && !has_values) {
    model.kind = ErrorKind::kNoError;
    return model;
  }
  if (kind == "uniform" && values->size() == 1) {
    model.kind = ErrorKind::kUniform;
    model.epsilon = values->front();
    return model;
  }
  if (kind == "nonuniform" && !has_values) {
    return model;
  }
  if (kind == "nonuniform" && values->size() == 5) {
    model.minus2 = (*values)[0];
    model.minus1 = (*values)[1];
    model.focal = (*values)[2];
    model.plus1 = (*values)[3];
    model.plus2 = (*values)[4];
    return model;
  }
  return Fault(ProblemKind::kNoErrorModel,
               fmt::format("--error: {} is none of: none, uniform=EPS, nonuniform, "
                           "nonuniform=M2,M1,FOCAL,P1,P2 (probabilities with a decimal point)",
                           Quoted(text)));
}

std::vector<std::string> ParseNames(std::string_view text) {
  std::vector<std::string> names;
  if (Trimmed(text).empty()) {
    return names;
  }
  std::size_t begin = 0;
  while (begin <= text.size()) {
    const std::size_t comma = std::min(text.find(',', begin), text.size());
    names.emplace_back(Trimmed(text.substr(begin, comma - begin)));
    begin = comma + 1;
  }
  return names;
}

tl::expected<std::vector<std::int32_t>, Problem> ParseSequence(std::string_view text) {
  std::vector<std::int32_t> indices;
  for (const std::string& part : ParseNames(text)) {
    const auto index = ParseInteger(part);
    if (!index) {
      return Fault(ProblemKind::kSequenceHasZero,
                   fmt::format("--sequence: {} is not a whole number", Quoted(part)));
    }
    indices.push_back(*index);
  }
  return indices;
}

tl::expected<std::uint32_t, Problem> ParseSeed(std::string_view text) {
  const auto seed = ParseSeedNumber(text);
  if (!seed) {
    return Fault(
        ProblemKind::kNotASeed,
        fmt::format("--seed: {} is not a whole number from 0 to 4294967295", Quoted(text)));
  }
  return *seed;
}

tl::expected<unsigned, Problem> ParseThreads(std::string_view text) {
  const auto threads = ParseWholeOption("--threads", text);
  if (!threads) {
    return tl::unexpected(threads.error());
  }
  if (*threads < 1 || *threads > static_cast<std::int32_t>(kMostThreads)) {
    return Fault(ProblemKind::kNotAThreadCount,
                 fmt::format("--threads: {} is not between 1 and {}", *threads, kMostThreads));
  }
  return static_cast<unsigned>(*threads);
}

}  // namespace kaldo
