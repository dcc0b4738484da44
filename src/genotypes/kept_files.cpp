// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/kept_files.h"

#include <map>

namespace kaldo {

FileOpener OpenOnce(FileSource& source) {
  using Read = tl::expected<TokenFile, Problem>;
  return [&source,
          kept = std::make_shared<std::map<std::string, Read>>()](const std::string& path) {
    const auto known = kept->find(path);
    return known != kept->end() ? known->second
                                : kept->emplace(path, TokenFile::Read(path, source)).first->second;
  };
}

}  // namespace kaldo
