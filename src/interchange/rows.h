// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <tl/expected.hpp>

namespace kaldo {

/// Cells of a row; a wider table is no table of microsatellites.
inline constexpr std::size_t kMaxColumns = 20'000;

/// A row of a table.
struct Row {
  std::uint32_t line = 0;  ///< counted from 1; of a sheet, the number of the row
  std::vector<std::string> cells;

  /// The cell, or an empty one behind the last.
  const std::string& Cell(std::size_t column) const {
    static const std::string empty;
    return column < cells.size() ? cells[column] : empty;
  }
};

/// Why a row cannot be read.
struct RowFault {
  std::uint32_t line = 0;
  std::string found;
};

/// True while there was a row, false behind the last one.
using RowRead = tl::expected<bool, RowFault>;

/// The rows of a table one after the other, whatever it is written in, so that a table of any
/// length takes the memory of one row.
class RowSource {
 public:
  RowSource() = default;
  RowSource(const RowSource&) = delete;
  RowSource& operator=(const RowSource&) = delete;
  RowSource(RowSource&&) = delete;
  RowSource& operator=(RowSource&&) = delete;
  virtual ~RowSource() = default;

  virtual RowRead Next(Row& row) = 0;

  /// Goes back before the first row.
  virtual void Rewind() = 0;
};

}  // namespace kaldo
