// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/problem.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo::test {

/// Runs in a copy of tests/cases/NAME, which is the working folder meanwhile, and compares every
/// file of the folder "project" with the one worked out by hand.
template <typename Run, typename Further>
void ExpectCase(const std::string& name, Run run, Further further) {
  const TempFolder folder;
  std::filesystem::copy(std::string(KALDO_ROOT) + "/tests/cases/" + name, folder.Path(""),
                        std::filesystem::copy_options::recursive);
  const WorkingFolder here(folder.Path(""));
  const auto done = run();
  ASSERT_TRUE(done) << SentenceOf(done.error()) << ' ' << DetailLine(done.error());

  auto expected = folder.FilesIn("expected");
  for (const std::string& file : expected) {
    EXPECT_EQ(ReadFile("project/" + file), ReadFile("expected/" + file)) << file;
  }
  expected.emplace_back("Run record.toml");
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(folder.FilesIn("project"), expected);
  further();
}

}  // namespace kaldo::test
