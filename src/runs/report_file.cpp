// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/report_file.h"

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 18U;

}  // namespace

ReportFile::ReportFile(const std::string& path, std::string shown) : shown_(std::move(shown)) {
  if (const auto error = file_.Create(path)) {
    Fail("open", error);
  }
}

void ReportFile::Fail(std::string_view what, std::error_code error) const {
  throw RunFailure(fmt::format("Cannot {} \"{}\": {}", what, shown_, error.message()));
}

void ReportFile::Append(std::string_view text) {
  pending_ += text;
  digest_.Add(text);
  is_empty_ = is_empty_ && text.empty();
  if (pending_.size() >= kBlockBytes) {
    Write();
  }
}

void ReportFile::Write() {
  if (const auto error = file_.Write(pending_)) {
    Fail("write", error);
  }
  pending_.clear();
}

void ReportFile::Finish() {
  Write();
  if (const auto error = file_.Finish()) {
    Fail("write", error);
  }
}

}  // namespace kaldo
