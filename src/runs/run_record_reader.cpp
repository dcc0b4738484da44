// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <limits>
#include <set>

#include <fmt/format.h>
#include <toml++/toml.h>

#include "runs/record_shape.h"
#include "runs/run_record.h"

namespace kaldo {

namespace {

/// More than any flow has, and few enough for a hostile record to cost no time.
constexpr std::size_t kMostFiles = 64;

/// The bytes of a recorded text, or nothing when its hexadecimal digits are none.
std::optional<std::string> Decoded(std::string text) {
  if (!text.starts_with(kHexadecimalMark)) {
    return text;
  }
  if (text.size() % 2 != kHexadecimalMark.size() % 2) {
    return std::nullopt;
  }
  std::string bytes;
  for (std::size_t at = kHexadecimalMark.size(); at < text.size(); at += 2) {
    unsigned int byte = 0;
    const char* const end = text.data() + at + 2;
    if (std::from_chars(text.data() + at, end, byte, 16).ptr != end) {
      return std::nullopt;
    }
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

template <typename Value>
std::optional<std::vector<Value>> ArrayOf(const toml::array& array) {
  std::vector<Value> values;
  for (const toml::node& node : array) {
    const auto value = node.value_exact<Value>();
    if (!value) {
      return std::nullopt;
    }
    if constexpr (std::is_same_v<Value, std::string>) {
      auto text = Decoded(*value);
      if (!text) {
        return std::nullopt;
      }
      values.push_back(std::move(*text));
    } else {
      values.push_back(*value);
    }
  }
  return values;
}

std::optional<RecordValue> ValueOf(const toml::node& node) {
  if (const auto text = node.value_exact<std::string>()) {
    auto decoded = Decoded(*text);
    return decoded ? std::optional<RecordValue>(std::move(*decoded)) : std::nullopt;
  }
  if (const auto flag = node.value_exact<bool>()) {
    return *flag;
  }
  if (const auto whole = node.value_exact<std::int64_t>()) {
    return *whole;
  }
  if (const auto number = node.value_exact<double>()) {
    return *number;
  }
  if (const toml::array* array = node.as_array()) {
    if (auto texts = ArrayOf<std::string>(*array)) {
      return *texts;
    }
    if (auto wholes = ArrayOf<std::int64_t>(*array)) {
      return *wholes;
    }
    if (auto numbers = ArrayOf<double>(*array)) {
      return *numbers;
    }
  }
  return std::nullopt;
}

/// The date as a record writes it: TOML may write it in other ways, too.
std::string DateText(const toml::date_time& date) {
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", date.date.year, date.date.month,
                     date.date.day, date.time.hour, date.time.minute, date.time.second);
}

/// Takes the values of one table by their keys and remembers the first that is not of the kind
/// wanted. A record that says more, or other things, than this program understands must not be
/// taken for one that it does understand.
class TableReader {
 public:
  explicit TableReader(const toml::table& table) : table_(table) {}

  const toml::node* Node(std::string_view key) {
    known_.insert(key);
    return table_.get(key);
  }

  /// A table without that key says too little.
  void Need(std::initializer_list<std::string_view> keys) {
    for (const std::string_view key : keys) {
      if (table_.get(key) == nullptr && !fault_) {
        fault_ = Problem{.kind = ProblemKind::kNotARunRecord,
                         .line = table_.source().begin.line,
                         .found = fmt::format("{} is missing", key)};
      }
    }
  }

  std::string Text(std::string_view key) {
    const auto text = Value<std::string>(key, "no text").value_or("");
    auto decoded = Decoded(text);
    if (!decoded) {
      Note(*table_.get(key), key, "no text");
    }
    return decoded.value_or("");
  }

  template <typename Kind>
  std::optional<Kind> Value(std::string_view key, std::string_view otherwise) {
    const toml::node* const node = Node(key);
    if (node == nullptr) {
      return std::nullopt;
    }
    auto value = node->value_exact<Kind>();
    if (!value) {
      Note(*node, key, otherwise);
    }
    return value;
  }

  /// A whole number from `least` to `most`.
  std::optional<std::int64_t> Whole(std::string_view key, std::int64_t least, std::int64_t most) {
    const auto otherwise = fmt::format("no whole number from {} to {}", least, most);
    const auto value = Value<std::int64_t>(key, otherwise);
    if (value && (*value < least || *value > most)) {
      Note(*table_.get(key), key, otherwise);
      return std::nullopt;
    }
    return value;
  }

  const toml::array* Tables(std::string_view key) {
    const toml::node* const node = Node(key);
    if (node == nullptr) {
      return nullptr;
    }
    const toml::array* const array = node->as_array();
    if (array == nullptr || !array->is_homogeneous<toml::table>() || array->size() > kMostFiles) {
      Note(*node, key, fmt::format("no list of at most {} files", kMostFiles));
      return nullptr;
    }
    return array;
  }

  void Note(const toml::node& node, std::string_view key, std::string_view fault) {
    if (!fault_) {
      fault_ = Problem{.kind = ProblemKind::kNotARunRecord,
                       .line = node.source().begin.line,
                       .found = fmt::format("the value of {} is {}", key, fault)};
    }
  }

  /// The first fault, keys that were not asked for included.
  std::optional<Problem> Fault() const {
    if (fault_) {
      return fault_;
    }
    for (const auto& [key, node] : table_) {
      if (!known_.contains(key.str())) {
        return Problem{.kind = ProblemKind::kNotARunRecord,
                       .line = key.source().begin.line,
                       .found = fmt::format("the key {} is not known", Quoted(key.str()))};
      }
    }
    return std::nullopt;
  }

 private:
  const toml::table& table_;
  std::set<std::string_view> known_;
  std::optional<Problem> fault_;
};

FileDigest ReadDigest(TableReader& reader) {
  const auto bytes = reader.Whole("bytes", 0, std::numeric_limits<std::int64_t>::max());
  return {static_cast<std::uint64_t>(bytes.value_or(0)), reader.Text("sha256")};
}

std::optional<Problem> ReadInputs(const toml::array& tables, RunRecord& record) {
  for (const toml::node& node : tables) {
    TableReader reader(*node.as_table());
    reader.Need({"role", "path", "bytes", "sha256"});
    RecordedInput input{reader.Text("role"), reader.Text("path"), {}};
    input.digest = ReadDigest(reader);
    if (auto fault = reader.Fault()) {
      return fault;
    }
    record.inputs.push_back(std::move(input));
  }
  return std::nullopt;
}

/// The name of a file within a folder, and of no other place.
bool IsPlainName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

std::optional<Problem> ReadOutputs(const toml::array& tables, RunRecord& record) {
  for (const toml::node& node : tables) {
    TableReader reader(*node.as_table());
    reader.Need({"file", "bytes", "sha256"});
    RecordedOutput output{reader.Text("file"), {}};
    output.digest = ReadDigest(reader);
    if (!IsPlainName(output.file)) {
      reader.Note(node, "file", "no name of a file in the folder of the record");
    }
    if (auto fault = reader.Fault()) {
      return fault;
    }
    record.outputs.push_back(std::move(output));
  }
  return std::nullopt;
}

void ReadWarnings(TableReader& head, RunRecord& record) {
  const toml::node* const node = head.Node("warnings");
  if (node == nullptr) {
    return;
  }
  const toml::array* const array = node->as_array();
  auto warnings = array != nullptr ? ArrayOf<std::string>(*array) : std::nullopt;
  if (!warnings) {
    head.Note(*node, "warnings", "no list of texts");
  }
  record.warnings = std::move(warnings).value_or(std::vector<std::string>());
}

std::optional<Problem> ReadSettings(const toml::table& settings, RunRecord& record) {
  for (const auto& [key, node] : settings) {
    const auto value = ValueOf(node);
    if (!value) {
      return Problem{.kind = ProblemKind::kNotARunRecord,
                     .line = node.source().begin.line,
                     .found = fmt::format("the setting {} has no value of a known kind",
                                          std::string(key.str()))};
    }
    record.settings.emplace_back(std::string(key.str()), *value);
  }
  return std::nullopt;
}

void ReadHead(TableReader& head, RunRecord& record) {
  record.version = head.Text("version");
  if (const auto date = head.Value<toml::date_time>("date", "no date")) {
    record.date = DateText(*date);
  }
  record.flow = head.Text("flow");
  record.folder = head.Text("folder");
  if (const auto seed = head.Whole("seed", 0, std::numeric_limits<std::uint32_t>::max())) {
    record.seed = static_cast<std::uint32_t>(*seed);
  }
  record.threads =
      head.Whole("threads", 1, std::numeric_limits<std::int32_t>::max()).value_or(record.threads);
  record.duration_seconds = head.Value<double>("duration_seconds", "no number").value_or(0);
  ReadWarnings(head, record);
}

/// Everything of a parsed file.
std::optional<Problem> ReadTable(const toml::table& table, RunRecord& record) {
  TableReader head(table);
  const toml::node* const settings = head.Node("settings");
  const toml::node* const program = head.Node("program");
  if (program == nullptr || program->value_exact<std::string>() != "KALDO" || settings == nullptr ||
      !settings->is_table()) {
    return Problem{.kind = ProblemKind::kNotARunRecord,
                   .found = "program = \"KALDO\" and [settings] are missing"};
  }
  ReadHead(head, record);
  const toml::array* const inputs = head.Tables("input");
  const toml::array* const outputs = head.Tables("output");
  if (auto fault = head.Fault()) {
    return fault;
  }
  if (auto fault = ReadSettings(*settings->as_table(), record)) {
    return fault;
  }
  auto fault = inputs != nullptr ? ReadInputs(*inputs, record) : std::nullopt;
  return fault || outputs == nullptr ? fault : ReadOutputs(*outputs, record);
}

}  // namespace

std::int32_t RecordedSettings::WholeNumber(std::string_view name) {
  const auto value = Needed<std::int64_t>(name);
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max()) {
    Note(name, "is out of range");
    return 0;
  }
  return static_cast<std::int32_t>(value);
}

std::optional<std::vector<std::int32_t>> RecordedSettings::WholeNumbers(std::string_view name) {
  const auto values = Optional<std::vector<std::int64_t>>(name);
  if (!values) {
    return std::nullopt;
  }
  std::vector<std::int32_t> numbers;
  numbers.reserve(values->size());
  for (const std::int64_t value : *values) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
      Note(name, "is out of range");
      return std::nullopt;
    }
    numbers.push_back(static_cast<std::int32_t>(value));
  }
  return numbers;
}

bool RecordedSettings::Has(std::string_view name) const {
  return std::any_of(record_.settings.begin(), record_.settings.end(),
                     [name](const auto& setting) { return setting.first == name; });
}

void RecordedSettings::Note(std::string_view name, std::string_view fault) {
  if (fault_.empty()) {
    fault_ = fmt::format("the setting \"{}\" {}", name, fault);
  }
}

std::optional<Problem> RecordedSettings::Fault(const std::string& path) const {
  std::string fault = fault_;
  for (const auto& [key, value] : record_.settings) {
    if (fault.empty() && !asked_.contains(key)) {
      fault = fmt::format("the setting {} has no place in this run", Quoted(key));
    }
  }
  if (fault.empty()) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kUnusableRunRecord, .file = path, .found = std::move(fault)};
}

tl::expected<RunRecord, Problem> ReadRunRecord(const std::string& path) {
  if (auto problem = RefuseSpecialFile(path, kMostRecordBytes)) {
    return tl::unexpected(std::move(*problem));
  }
  DiskFiles disk;
  const auto bytes = ReadText(path, disk);
  if (!bytes) {
    return tl::unexpected(bytes.error());
  }
  return ParseRunRecord({bytes->data(), bytes->size()}, path);
}

tl::expected<RunRecord, Problem> ParseRunRecord(std::string_view text, const std::string& path) {
  auto fault = ShapeFault(text);
  RunRecord record;
  if (!fault) {
    try {
      fault = ReadTable(toml::parse(text), record);
    } catch (const toml::parse_error& error) {
      fault = Problem{.kind = ProblemKind::kNotARunRecord,
                      .line = error.source().begin.line,
                      .found = std::string(error.description())};
    }
  }
  if (fault) {
    fault->file = path;
    return tl::unexpected(std::move(*fault));
  }
  return record;
}

}  // namespace kaldo
