// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/foreign_file.h"

#include <fmt/format.h>

#include "interchange/delimited_rows.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/unpacked_bytes.h"
#include "interchange/import/workbook_rows.h"

namespace kaldo {

namespace {

std::string NameOf(char separator) {
  return separator == '\t' ? "tab" : fmt::format("\"{}\"", separator);
}

}  // namespace

std::vector<Row> ForeignFile::FirstRows(std::size_t count) const {
  std::vector<Row> first;
  if (!rows) {
    return first;
  }
  rows->Rewind();
  Row row;
  while (first.size() < count) {
    const auto read = rows->Next(row);
    if (!read || !*read) {
      break;
    }
    first.push_back(row);
  }
  rows->Rewind();
  return first;
}

std::optional<RowFault> ForeignFile::FaultOfFirstRows() const {
  constexpr int kRowsLookedAt = 20;
  if (!rows) {
    return std::nullopt;
  }
  rows->Rewind();
  Row row;
  for (int k = 0; k < kRowsLookedAt; ++k) {
    const auto read = rows->Next(row);
    if (!read) {
      return read.error();
    }
    if (!*read) {
      break;
    }
  }
  rows->Rewind();
  return std::nullopt;
}

tl::expected<ForeignFile, std::string> OpenForeignBytes(const std::string& path, std::string bytes,
                                                        const std::optional<std::string>& sheet) {
  ForeignFile file;
  file.path = path;
  if (bytes.starts_with("\xd0\xcf\x11\xe0")) {
    return tl::unexpected(
        std::string("it is a workbook of the old kind (.xls): save it as .xlsx or as CSV"));
  }
  std::string packing;
  if (IsGzip(bytes)) {
    auto unpacked = UnpackedGzip(std::move(bytes), kMaxForeignBytes);
    if (!unpacked) {
      return tl::unexpected(unpacked.error());
    }
    bytes = std::move(*unpacked);
    packing = "packed (gzip), ";
  }
  if (bytes.starts_with("BCF")) {
    return tl::unexpected(std::string("it is BCF: save it as VCF (bcftools view)"));
  }
  if (bytes.starts_with("PK\x03\x04")) {
    auto workbook = OpenWorkbook(std::move(bytes), sheet);
    if (!workbook) {
      return tl::unexpected(workbook.error());
    }
    file.how = fmt::format("workbook, sheet \"{}\"", workbook->sheet);
    file.rows = std::move(workbook->rows);
    file.is_workbook = true;
    return file;
  }
  auto text = DecodeText(std::move(bytes));
  if (!text) {
    return tl::unexpected(text.error());
  }
  file.how = packing + text->encoding;
  file.text = std::make_shared<const std::string>(std::move(text->text));
  if (const auto separator = FindSeparator(*file.text)) {
    file.rows = std::make_shared<DelimitedRows>(*file.text, *separator);
    file.how += ", separator " + NameOf(*separator);
  }
  return file;
}

tl::expected<ForeignFile, std::string> OpenForeignFile(const std::string& path,
                                                       const std::optional<std::string>& sheet,
                                                       FileSource& source) {
  auto bytes = ReadForeignBytes(path, source);
  if (!bytes) {
    return tl::unexpected(bytes.error());
  }
  return OpenForeignBytes(path, std::move(*bytes), sheet);
}

}  // namespace kaldo
