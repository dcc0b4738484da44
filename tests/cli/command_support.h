// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <gmock/gmock.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "cli/command_line.h"
#include "tests/support/temp_folder.h"

namespace kaldo::test {

using Arguments = std::vector<std::string>;

inline Arguments operator+(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// A command line without blanks inside its arguments.
inline Arguments Words(const std::string& line) {
  std::istringstream words(line);
  return {std::istream_iterator<std::string>(words), {}};
}

/// What a command did.
struct Outcome {
  ExitCode code;
  std::string out;
  std::string err;
};

inline Outcome RunCommand(const Arguments& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const ExitCode code = RunCommandLine(arguments, {out, err});
  return {code, out.str(), err.str()};
}

inline void ExpectRefusal(const Arguments& arguments, const std::string& start_of_message) {
  const Outcome outcome = RunCommand(arguments);
  EXPECT_EQ(outcome.code, ExitCode::kBadInput) << testing::PrintToString(arguments);
  EXPECT_THAT(outcome.out, testing::IsEmpty());
  EXPECT_THAT(outcome.err, testing::StartsWith(start_of_message));
}

/// All files of a project but the run record, which tells the time; then they are gone.
inline std::vector<std::pair<std::string, std::string>> TakeReports(const TempFolder& folder,
                                                                    const std::string& project) {
  std::vector<std::pair<std::string, std::string>> reports;
  for (const std::string& name : folder.FilesIn(project)) {
    if (name != "Run record.toml") {
      const std::string path = folder.Path(fmt::format("{}/{}", project, name));
      reports.emplace_back(name, ReadFile(path));
      std::filesystem::remove(path);
    }
  }
  return reports;
}

}  // namespace kaldo::test
