// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace kaldo {

/// A new folder among the temporary files of the machine, which goes away with everything in it.
class TemporaryFolder {
 public:
  /// Throws RunFailure where none can be made.
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder();

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace kaldo
