// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/kept_files.h"

#include <map>
#include <utility>

namespace kaldo {

FileOpener OpenOnce(FileSource& source) {
  using Wanted = std::pair<std::string, std::size_t>;
  using Kept = std::map<Wanted, tl::expected<TokenFile, Problem>>;
  return
      [&source, kept = std::make_shared<Kept>()](const std::string& path, std::size_t most_bytes) {
        const Wanted wanted(path, most_bytes);
        const auto known = kept->find(wanted);
        return known != kept->end()
                   ? known->second
                   : kept->emplace(wanted, TokenFile::Read(path, source, most_bytes)).first->second;
      };
}

}  // namespace kaldo
