// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/workbook.h"

#include "base/path_text.h"
#include "base/problem.h"
#include "base/temporary_folder.h"
#include "interchange/export/allocation_tables.h"
#include "interchange/export/told_settings.h"

#ifdef KALDO_HAS_XLSXWRITER

#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <xlsxwriter.h>

#include <fmt/format.h>

namespace kaldo {

namespace {

[[noreturn]] void Fail(const std::string& reason) {
  throw RunFailure(fmt::format("Cannot make the workbook: {}", reason));
}

/// Workbooks hold no control characters but tabs and line ends.
std::string WorkbookText(std::string text) {
  for (char& character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20 && character != '\t' && character != '\n' && character != '\r') {
      character = '?';
    }
  }
  return text;
}

/// Writes cells at a place of a sheet.
struct ToSheet {
  lxw_worksheet* sheet;
  lxw_row_t row;
  lxw_col_t column;

  void operator()(std::monostate /*nothing*/) const {}
  void operator()(const NameCell& name) const { Text(name.text); }
  void operator()(WordCell word) const { Text(std::string(word.text)); }
  void operator()(bool truth) const {
    worksheet_write_boolean(sheet, row, column, truth ? 1 : 0, nullptr);
  }
  void operator()(std::int64_t number) const { Number(static_cast<double>(number)); }
  void operator()(double number) const { Number(number); }

 private:
  void Text(std::string text) const {
    worksheet_write_string(sheet, row, column, WorkbookText(std::move(text)).c_str(), nullptr);
  }
  void Number(double number) const { worksheet_write_number(sheet, row, column, number, nullptr); }
};

void AddSheet(lxw_workbook* book, lxw_format* bold, const ExportTable& table) {
  lxw_worksheet* const sheet = workbook_add_worksheet(book, std::string(table.sheet).c_str());
  if (sheet == nullptr) {
    Fail("out of memory");
  }
  worksheet_freeze_panes(sheet, 1, 1);
  for (std::size_t k = 0; k < table.heads.size(); ++k) {
    const auto column = static_cast<lxw_col_t>(k);
    worksheet_write_string(sheet, 0, column, table.heads[k].c_str(), bold);
    worksheet_set_column(sheet, column, column, 14, nullptr);
  }
  for (std::size_t k = 0; k < table.rows; ++k) {
    const auto cells = table.row(k);
    for (std::size_t j = 0; j < cells.size(); ++j) {
      std::visit(ToSheet{sheet, static_cast<lxw_row_t>(k + 1), static_cast<lxw_col_t>(j)},
                 cells[j]);
    }
  }
}

/// The same workbook is the same file whenever it is made.
void SetDate(lxw_workbook* book) {
  lxw_doc_properties properties{};
  std::string company = "KALDO";
  properties.company = company.data();
  constexpr std::time_t kDay = 86400;
  properties.created = 18262 * kDay;  // the first day of 2020
  workbook_set_properties(book, &properties);
}

}  // namespace

bool CanWriteWorkbooks() { return true; }

std::string WorkbookBytes(const ExportedStudy& study, const RunRecord& record) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/workbook.xlsx";
  lxw_workbook* const book = workbook_new(path.c_str());
  if (book == nullptr) {
    Fail("out of memory");
  }
  SetDate(book);
  lxw_format* const bold = workbook_add_format(book);
  format_set_bold(bold);
  AddSheet(book, bold, AllocationsTable(study));
  AddSheet(book, bold, LociTable(study));
  AddSheet(book, bold, ParentsTable(study));
  AddSheet(book, bold, SettingsTable(record));
  if (const lxw_error error = workbook_close(book); error != LXW_NO_ERROR) {
    Fail(lxw_strerror(error));
  }
  std::ifstream stream(FilePath(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace kaldo

#else

namespace kaldo {

bool CanWriteWorkbooks() { return false; }

std::string WorkbookBytes(const ExportedStudy& /*study*/, const RunRecord& /*record*/) {
  throw RunFailure("This KALDO was built without libxlsxwriter.");
}

}  // namespace kaldo

#endif
