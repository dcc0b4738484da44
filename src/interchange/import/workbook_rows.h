// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <tl/expected.hpp>

#include "interchange/rows.h"

namespace kaldo {

/// A sheet of a workbook.
struct Workbook {
  std::string sheet;  ///< its name
  std::shared_ptr<RowSource> rows;
};

/// Opens a sheet of a workbook (.xlsx) from its bytes, the first one unless another is named. Cells
/// are told as they are stored: texts as they are, numbers with a point. What is no workbook, names
/// no sheet of it, or swells beyond any study when it is unpacked, is told. A build without the
/// libraries for it tells that.
tl::expected<Workbook, std::string> OpenWorkbook(std::string bytes,
                                                 const std::optional<std::string>& sheet);

}  // namespace kaldo
