// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "genotypes/token_file.h"
#include "interchange/import/import_run.h"

namespace kaldo {

/// The input files as the windows opened them. A file is read once for all that is told about it,
/// tested in it and run with it; only when its size or its time on disk is another one than before
/// is it read anew.
class OpenedFiles {
 public:
  explicit OpenedFiles(std::unique_ptr<FileSource> source = std::make_unique<DiskFiles>());

  /// The words of the file as it is on disk now. Relative paths start from the working folder.
  tl::expected<TokenFile, Problem> Open(const std::string& path,
                                        std::size_t most_bytes = kMaxInputBytes);

  /// Open() for whoever opens several files; valid as long as this.
  FileOpener Opener();

  /// What a file of another program holds, as it is on disk now; nothing where it is none. The
  /// file is not read again for that.
  std::optional<ForeignLook> ForeignLookAt(const std::string& path);

  /// Where the bytes come from, for whoever reads something else than words.
  FileSource& Source() { return *source_; }

  /// Forgets all contents, when a flow is over.
  void Forget();

 private:
  /// How a file looks from outside.
  struct Looks {
    std::uintmax_t bytes = 0;
    std::filesystem::file_time_type changed;

    friend bool operator==(const Looks&, const Looks&) = default;
  };

  struct Kept {
    Looks looks;
    TokenFile file;
  };

  static std::optional<Looks> LooksNow(const std::filesystem::path& place);

  std::unique_ptr<FileSource> source_;
  std::map<std::filesystem::path, Kept> kept_;
  std::map<std::filesystem::path, std::optional<ForeignLook>> looked_at_;  ///< when last read
};

}  // namespace kaldo
