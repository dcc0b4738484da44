// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/workbook_rows.h"

#ifdef KALDO_HAS_WORKBOOKS

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <pugixml.hpp>
#include <string_view>
#include <vector>
#include <zip.h>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
constexpr std::size_t kMaxSheetBytes = 64 * kMegabyte;
constexpr std::size_t kMaxOtherBytes = 16 * kMegabyte;
constexpr std::size_t kMaxElementBytes = 2 * kMegabyte;  ///< of a row or a shared text
constexpr std::size_t kMaxSharedTexts = 500'000;
constexpr std::uint32_t kMostRows = 1'048'576;  ///< of a sheet, as the format has it

using Failure = tl::unexpected<std::string>;

Failure TooLarge(std::string_view what) {
  return Failure(fmt::format("{} swells beyond any study when it is unpacked", what));
}

/// The files inside of a workbook.
class Archive {
 public:
  explicit Archive(std::string bytes) : bytes_(std::move(bytes)) {
    zip_error_t error;
    zip_error_init(&error);
    if (zip_source_t* const source =
            zip_source_buffer_create(bytes_.data(), bytes_.size(), 0, &error)) {
      archive_.reset(zip_open_from_source(source, ZIP_RDONLY, &error));
      if (!archive_) {
        zip_source_free(source);
      }
    }
    zip_error_fini(&error);
  }

  bool IsOpen() const { return archive_ != nullptr; }

  /// The whole of a file, unpacked; nothing where there is none.
  tl::expected<std::optional<std::string>, std::string> File(const std::string& name,
                                                             std::size_t most) const {
    const std::unique_ptr<zip_file_t, FileCloser> file(zip_fopen(archive_.get(), name.c_str(), 0));
    if (!file) {
      return std::nullopt;
    }
    std::string text;
    std::array<char, std::size_t{1} << 16U> block{};
    while (true) {
      const auto read = zip_fread(file.get(), block.data(), block.size());
      if (read < 0) {
        return Failure(fmt::format("{} in it is damaged", Quoted(name)));
      }
      if (read == 0) {
        return text;
      }
      text.append(block.data(), static_cast<std::size_t>(read));
      if (text.size() > most) {
        return TooLarge(Quoted(name));
      }
    }
  }

 private:
  struct Closer {
    void operator()(zip_t* archive) const { zip_discard(archive); }
  };
  struct FileCloser {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
  };

  std::string bytes_;
  std::unique_ptr<zip_t, Closer> archive_;
};

/// The name of an element without the prefix that some programs put before all of them.
std::string_view LocalName(std::string_view name) { return name.substr(name.rfind(':') + 1); }

bool IsNamed(const pugi::xml_node& node, std::string_view name) {
  return LocalName(node.name()) == name;
}

/// The elements of one name in a long XML text, one after the other as texts, so that the tree of
/// one of them is in memory and not that of all.
class ElementsNamed {
 public:
  ElementsNamed(std::string_view text, std::string_view name) : text_(text), name_(name) {}

  /// An empty text behind the last; a failure where one does not end.
  tl::expected<std::string_view, std::string> Next() {
    while (true) {
      const std::size_t begin = text_.find('<', at_);
      if (begin == std::string_view::npos) {
        return std::string_view();
      }
      const std::string_view tag = Tag(begin);
      at_ = begin + 1 + tag.size();
      if (!IsOpening(tag)) {
        continue;
      }
      const std::size_t close = text_.find('>', at_);
      if (close == std::string_view::npos) {
        return Failure("it is cut off");
      }
      std::size_t end = close + 1;
      if (text_[close - 1] != '/') {
        const std::string ending = fmt::format("</{}>", tag);
        end = text_.find(ending, close);
        if (end == std::string_view::npos) {
          return Failure("it is cut off");
        }
        end += ending.size();
      }
      at_ = end;
      if (end - begin > kMaxElementBytes) {
        return TooLarge("a row");
      }
      return text_.substr(begin, end - begin);
    }
  }

 private:
  std::string_view Tag(std::size_t begin) const {
    const std::size_t end = text_.find_first_of(" \t\r\n/>", begin + 1);
    return text_.substr(begin + 1, std::min(end, text_.size()) - begin - 1);
  }

  bool IsOpening(std::string_view tag) const {
    return tag.size() <= name_.size() + 20 && LocalName(tag) == name_;
  }

  std::string_view text_;
  std::string_view name_;
  std::size_t at_ = 0;
};

/// The text of a cell or of a shared text, parts in other fonts joined, phonetic help left out.
std::string TextIn(const pugi::xml_node& node) {
  std::string text;
  for (const pugi::xml_node& child : node.children()) {
    if (IsNamed(child, "t")) {
      text += child.text().get();
    } else if (IsNamed(child, "r")) {
      for (const pugi::xml_node& part : child.children()) {
        text += IsNamed(part, "t") ? part.text().get() : "";
      }
    }
  }
  return text;
}

bool Parse(pugi::xml_document& document, std::string_view text) {
  return static_cast<bool>(
      document.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata));
}

/// The column of a cell from its place, "C12"; nothing where it tells none.
std::optional<std::size_t> ColumnIn(std::string_view place) {
  std::size_t column = 0;
  for (const char letter : place) {
    if (letter < 'A' || letter > 'Z') {
      break;
    }
    column = column * 26 + static_cast<std::size_t>(letter - 'A' + 1);
    if (column > kMaxColumns) {
      return kMaxColumns;
    }
  }
  return column == 0 ? std::nullopt : std::optional(column - 1);
}

class WorkbookRows final : public RowSource {
 public:
  WorkbookRows(std::string sheet, std::vector<std::string> shared)
      : sheet_(std::move(sheet)), shared_(std::move(shared)), rows_(sheet_, "row") {}

  RowRead Next(Row& row) override {
    while (true) {
      const auto element = rows_.Next();
      if (!element) {
        return tl::unexpected(RowFault{line_ + 1, element.error()});
      }
      if (element->empty()) {
        return false;
      }
      pugi::xml_document document;
      if (!Parse(document, *element)) {
        return tl::unexpected(RowFault{line_ + 1, "the row is no XML"});
      }
      const pugi::xml_node node = document.first_child();
      const unsigned told = node.attribute("r").as_uint();
      line_ = told > line_ && told <= kMostRows ? told : line_ + 1;
      row.line = line_;
      if (auto found = TakeCells(node, row)) {
        return tl::unexpected(RowFault{line_, std::move(*found)});
      }
      if (std::any_of(row.cells.begin(), row.cells.end(),
                      [](const std::string& cell) { return !cell.empty(); })) {
        return true;
      }
    }
  }

  void Rewind() override {
    rows_ = ElementsNamed(sheet_, "row");
    line_ = 0;
  }

 private:
  std::optional<std::string> TakeCells(const pugi::xml_node& node, Row& row) const {
    row.cells.clear();
    for (const pugi::xml_node& cell : node.children()) {
      if (!IsNamed(cell, "c")) {
        continue;
      }
      const std::size_t column = ColumnIn(cell.attribute("r").value()).value_or(row.cells.size());
      if (column >= kMaxColumns) {
        return fmt::format("it has more than {} cells", kMaxColumns);
      }
      row.cells.resize(std::max(row.cells.size(), column + 1));
      auto text = CellText(cell);
      if (!text) {
        return text.error();
      }
      row.cells[column] = std::move(*text);
    }
    return std::nullopt;
  }

  tl::expected<std::string, std::string> CellText(const pugi::xml_node& cell) const {
    const std::string_view kind = cell.attribute("t").value();
    std::string value;
    for (const pugi::xml_node& child : cell.children()) {
      if (IsNamed(child, "v")) {
        value = child.text().get();
      } else if (IsNamed(child, "is")) {
        return TextIn(child);
      }
    }
    if (kind == "e") {
      return Failure(fmt::format("a formula in it has failed: {}", Quoted(value)));
    }
    if (kind != "s") {
      return value;
    }
    const auto place = static_cast<std::size_t>(std::strtoul(value.c_str(), nullptr, 10));
    if (place >= shared_.size()) {
      return Failure("a cell of it names a text that is not in the workbook");
    }
    return shared_[place];
  }

  std::string sheet_;
  std::vector<std::string> shared_;
  ElementsNamed rows_;
  std::uint32_t line_ = 0;
};

tl::expected<std::vector<std::string>, std::string> SharedTexts(const Archive& archive) {
  std::vector<std::string> texts;
  const auto file = archive.File("xl/sharedStrings.xml", kMaxOtherBytes);
  if (!file) {
    return Failure(file.error());
  }
  ElementsNamed elements(*file ? std::string_view(**file) : std::string_view(), "si");
  while (true) {
    const auto element = elements.Next();
    if (!element) {
      return Failure(element.error());
    }
    if (element->empty()) {
      return texts;
    }
    pugi::xml_document document;
    if (!Parse(document, *element) || texts.size() == kMaxSharedTexts) {
      return Failure("its texts cannot be read");
    }
    texts.push_back(TextIn(document.first_child()));
  }
}

/// The elements of a name in a small file of the workbook.
template <typename Take>
bool ForEachElement(const Archive& archive, const std::string& file, std::string_view name,
                    Take take) {
  const auto text = archive.File(file, kMegabyte);
  if (!text || !*text) {
    return false;
  }
  ElementsNamed elements(**text, name);
  for (auto element = elements.Next(); element && !element->empty(); element = elements.Next()) {
    pugi::xml_document document;
    if (Parse(document, *element)) {
      take(document.first_child());
    }
  }
  return true;
}

struct Sheet {
  std::string name;
  std::string file;
};

/// The sheets of the workbook in their order.
std::vector<Sheet> SheetsOf(const Archive& archive) {
  std::map<std::string, std::string> targets;
  ForEachElement(archive, "xl/_rels/workbook.xml.rels", "Relationship",
                 [&](const pugi::xml_node& node) {
                   const std::string target = node.attribute("Target").value();
                   targets[node.attribute("Id").value()] =
                       target.starts_with('/') ? target.substr(1) : "xl/" + target;
                 });
  std::vector<Sheet> sheets;
  ForEachElement(archive, "xl/workbook.xml", "sheet", [&](const pugi::xml_node& node) {
    for (const pugi::xml_attribute& attribute : node.attributes()) {
      if (LocalName(attribute.name()) == "id") {
        sheets.push_back({node.attribute("name").value(), targets[attribute.value()]});
      }
    }
  });
  return sheets;
}

std::string NamesOf(const std::vector<Sheet>& sheets) {
  std::string names;
  for (const Sheet& sheet : sheets) {
    names += (names.empty() ? "" : ", ") + Quoted(sheet.name);
  }
  return names;
}

}  // namespace

tl::expected<Workbook, std::string> OpenWorkbook(std::string bytes,
                                                 const std::optional<std::string>& sheet) {
  const Archive archive(std::move(bytes));
  const auto sheets = archive.IsOpen() ? SheetsOf(archive) : std::vector<Sheet>();
  if (sheets.empty()) {
    return Failure("it is packed as a workbook (.xlsx) is, and no sheet is found in it");
  }
  const auto chosen = !sheet ? sheets.begin()
                             : std::find_if(sheets.begin(), sheets.end(),
                                            [&](const Sheet& each) { return each.name == *sheet; });
  if (chosen == sheets.end()) {
    return Failure(fmt::format("it has no sheet {}, but {}", Quoted(*sheet), NamesOf(sheets)));
  }
  auto shared = SharedTexts(archive);
  if (!shared) {
    return Failure(shared.error());
  }
  auto rows = archive.File(chosen->file, kMaxSheetBytes);
  if (!rows || !*rows) {
    return Failure(rows ? fmt::format("its sheet {} is not in it", Quoted(chosen->name))
                        : rows.error());
  }
  return Workbook{chosen->name,
                  std::make_shared<WorkbookRows>(std::move(**rows), std::move(*shared))};
}

}  // namespace kaldo

#else

namespace kaldo {

tl::expected<Workbook, std::string> OpenWorkbook(std::string /*bytes*/,
                                                 const std::optional<std::string>& /*sheet*/) {
  return tl::unexpected(
      std::string("it is a workbook (.xlsx), and this build reads none, since libzip and pugixml "
                  "were not there: save the sheet as CSV"));
}

}  // namespace kaldo

#endif
