// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/terminal_progress.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

TEST(ProgressLine, ShowsShareCountAndTimeLeft) {
  using std::chrono::seconds;
  const std::string bar = "Allocating [######..................]";
  EXPECT_EQ(ProgressLine("Allocating", 250, 1000, seconds(10)),
            bar + "  25 %  250 of 1000, 0:30 left");
  EXPECT_EQ(ProgressLine("Allocating", 250, 1000, seconds(3600)),
            bar + "  25 %  250 of 1000, 3:00:00 left");
  const std::string empty_bar = "P [........................]";
  const std::string full_bar = "P [########################]";
  EXPECT_EQ(ProgressLine("P", 0, 1000, seconds(5)), empty_bar + "   0 %  0 of 1000");
  EXPECT_EQ(ProgressLine("P", 1000, 1000, seconds(5)), full_bar + " 100 %  1000 of 1000");
  EXPECT_EQ(ProgressLine("P", 0, 0, seconds(5)), empty_bar + "   0 %  0 of 0");
}

}  // namespace
}  // namespace kaldo
