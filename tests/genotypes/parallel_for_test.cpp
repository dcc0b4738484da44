// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/parallel_for.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace kaldo {
namespace {

TEST(ParallelFor, DoesEachItemOnce) {
  for (const unsigned threads : {1U, 2U, 7U}) {
    for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{5000}}) {
      std::vector<std::atomic<int>> done(count);
      std::atomic<unsigned> workers{0};
      ParallelFor(count, threads, [&] {
        ++workers;
        return [&, own = std::vector<std::size_t>()](std::size_t i) mutable {
          own.push_back(i);  // memory of one thread: the thread sanitizer would tell otherwise
          ++done[i];
        };
      });
      for (const auto& times : done) {
        ASSERT_EQ(times, 1);
      }
      EXPECT_GE(workers, 1U);
      EXPECT_LE(workers, threads);
    }
  }
}

TEST(ParallelFor, ThrowsTheExceptionOfAnItemAndEndsEarly) {
  for (const unsigned threads : {1U, 4U}) {
    std::atomic<std::size_t> done{0};
    constexpr std::size_t kCount =
        1'000'000'000;  // more than any thread does before the throw is seen
    const auto run = [&] {
      ParallelFor(kCount, threads, [&] {
        return [&](std::size_t i) {
          if (i == 100) {
            throw std::runtime_error("item 100");
          }
          ++done;
        };
      });
    };
    try {
      run();
      FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
      EXPECT_STREQ(error.what(), "item 100");
    }
    EXPECT_GE(done, 100U - (threads - 1)) << "items before it were begun";
    EXPECT_LT(done, kCount - 1) << "items after it are not all done";
  }
}

TEST(ParallelFor, ThrowsTheExceptionOfAWorkerThatCannotBeMade) {
  const auto fail = []() -> void (*)(std::size_t) { throw std::bad_alloc(); };
  EXPECT_THROW(ParallelFor(10, 3, fail), std::bad_alloc);
}

}  // namespace
}  // namespace kaldo
