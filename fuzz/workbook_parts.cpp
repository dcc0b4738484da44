// SPDX-License-Identifier: GPL-3.0-or-later
// A workbook whose parts come from the input, one behind the other with a byte of 0 between them:
// packed as they are, so that what is broken is the inside and not the archive.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <zip.h>

#include "interchange/import/foreign_file.h"

namespace {

/// The bytes of an archive with the parts; nothing where it cannot be made.
std::string Packed(std::string_view bytes) {
  constexpr std::array<const char*, 4> kParts = {"xl/workbook.xml", "xl/_rels/workbook.xml.rels",
                                                 "xl/sharedStrings.xml",
                                                 "xl/worksheets/sheet1.xml"};
  zip_source_t* const packed = zip_source_buffer_create(nullptr, 0, 0, nullptr);
  zip_t* const archive = zip_open_from_source(packed, ZIP_TRUNCATE, nullptr);
  zip_source_keep(packed);
  for (const char* const part : kParts) {
    const auto text = bytes.substr(0, bytes.find('\0'));
    bytes.remove_prefix(std::min(text.size() + 1, bytes.size()));
    const auto place =
        zip_file_add(archive, part, zip_source_buffer(archive, text.data(), text.size(), 0), 0);
    zip_set_file_compression(archive, static_cast<zip_uint64_t>(place), ZIP_CM_STORE, 0);
  }
  std::string all;
  if (zip_close(archive) == 0 && zip_source_open(packed) == 0) {
    std::array<char, 4096> block{};
    for (auto read = zip_source_read(packed, block.data(), block.size()); read > 0;
         read = zip_source_read(packed, block.data(), block.size())) {
      all.append(block.data(), static_cast<std::size_t>(read));
    }
    zip_source_close(packed);
  }
  zip_source_free(packed);
  return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  const auto file = OpenForeignBytes(
      "book.xlsx", Packed({reinterpret_cast<const char*>(data), size}), std::nullopt);
  if (!file) {
    return 0;
  }
  Row row;
  std::uint32_t line = 0;
  for (auto read = file->rows->Next(row); read && *read; read = file->rows->Next(row)) {
    if (row.line <= line || row.cells.size() > kMaxColumns) {
      std::abort();
    }
    line = row.line;
  }
  return 0;
}
