// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/lines.h"

namespace kaldo {

std::vector<Line> LinesOf(std::span<const Token> tokens) {
  std::vector<Line> lines;
  std::size_t begin = 0;
  for (std::size_t i = 1; i <= tokens.size(); ++i) {
    if (i == tokens.size() || tokens[i].line != tokens[begin].line) {
      lines.push_back(tokens.subspan(begin, i - begin));
      begin = i;
    }
  }
  return lines;
}

}  // namespace kaldo
