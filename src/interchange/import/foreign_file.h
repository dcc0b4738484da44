// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"
#include "interchange/rows.h"

namespace kaldo {

/// A file of another program, opened: the rows of a table, or the lines of a text.
struct ForeignFile {
  std::string path;
  std::string how;  ///< "UTF-8, separator tab"

  /// Of a text; empty in a workbook. The rows look into it, so that it stays where it is.
  std::shared_ptr<const std::string> text = std::make_shared<const std::string>();

  /// The rows of a workbook, and of a text whose first line holds a separator; nothing elsewhere.
  std::shared_ptr<RowSource> rows = {};
  bool is_workbook = false;

  /// The first rows, of at most so many; fewer at a fault.
  std::vector<Row> FirstRows(std::size_t count) const;

  /// What makes one of the first rows unreadable; nothing where they can be read.
  std::optional<RowFault> FaultOfFirstRows() const;
};

/// Opens the file, or tells why it cannot be read. `sheet` names one of a workbook.
tl::expected<ForeignFile, std::string> OpenForeignFile(const std::string& path,
                                                       const std::optional<std::string>& sheet,
                                                       FileSource& source);

/// The same of bytes in memory.
tl::expected<ForeignFile, std::string> OpenForeignBytes(const std::string& path, std::string bytes,
                                                        const std::optional<std::string>& sheet);

}  // namespace kaldo
