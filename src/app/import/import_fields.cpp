// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/import/import_fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/counted_text.h"
#include "interchange/import/format_readers.h"
#include "interchange/import/import_words.h"

namespace kaldo {

namespace {

enum class FieldKind { kFormat, kPopulations, kWay, kRows, kColumn, kText, kBox };

/// A field, and the option of the command line that says the same: by it the rules of the import
/// name the choice that they ask for.
struct ImportField {
  std::string_view option;
  FieldKind kind;
  FieldText text;
  std::string_view format;  ///< that alone has a use for it, by its key; empty: all
};

constexpr std::string_view kFormatOption = "--from";
constexpr std::string_view kPopulationsOption = "--offspring-populations";
constexpr std::string_view kNoGroupsOption = "--no-groups";

constexpr std::array<ImportField, 16> kFields{{
    {kFormatOption,
     FieldKind::kFormat,
     {Phrase("&Format"), "ImportFormat",
      Phrase("What the files were written for; recognised by what they hold.")},
     ""},
    {kPopulationsOption,
     FieldKind::kPopulations,
     {Phrase("&Populations of offspring"), "ImportPopulations",
      Phrase("Tick the populations whose members are offspring; all others are parents.")},
     ""},
    {"--missing-parents",
     FieldKind::kWay,
     {Phrase("Parents with undefined loci"), "ImportMissingParents",
      Phrase(
          "Parents have to be typed at every locus unless a run allows otherwise; the list below "
          "tells what each way costs.")},
     ""},
    {"--repeat-length",
     FieldKind::kText,
     {Phrase("Repeat lengths"), "ImportRepeatLengths",
      Phrase(
          "Loci whose alleles count repeats, with the length of a repeat in base pairs: Ssa85=4, "
          "Ssa197=2")},
     ""},
    {"--missing",
     FieldKind::kText,
     {Phrase("Missing code"), "ImportMissingCode",
      Phrase("One more word for an allele that was not typed, beside 0, -9, NA and the like.")},
     ""},
    {"--loci",
     FieldKind::kText,
     {Phrase("Loci to keep"), "ImportLoci", Phrase("Names between commas; empty: all loci.")},
     ""},
    {"--sheet",
     FieldKind::kText,
     {Phrase("Sheet"), "ImportSheet", Phrase("The sheet of a workbook; empty: the first one.")},
     ""},
    {"--id",
     FieldKind::kColumn,
     {Phrase("Column of names"), "ImportId", Phrase("The column that names the individuals.")},
     "table"},
    {"--sex",
     FieldKind::kColumn,
     {Phrase("Column of sexes"), "ImportSex", Phrase("m, male, 1 or f, female, 2.")},
     "table"},
    {"--group",
     FieldKind::kColumn,
     {Phrase("Column of populations"), "ImportGroup",
      Phrase("Populations of parents become groups.")},
     "table"},
    {"--role",
     FieldKind::kColumn,
     {Phrase("Column of roles"), "ImportRole", Phrase("The column that says parent or offspring.")},
     "table"},
    {"--rows",
     FieldKind::kRows,
     {Phrase("Rows per individual"), "ImportRows",
      Phrase("How many rows of the file an individual has.")},
     "structure"},
    {"--leading",
     FieldKind::kText,
     {Phrase("Before the genotypes"), "ImportLeading",
      Phrase("What stands there in each row, between commas: id, group, sex, role, other.")},
     "structure"},
    {kNoGroupsOption,
     FieldKind::kBox,
     {Phrase("Populations do not become groups"), "ImportNoGroups",
      Phrase("All parents may meet, whatever population they are from.")},
     ""},
    {"--unique-names",
     FieldKind::kBox,
     {Phrase("Refuse repeated names"), "ImportUniqueNames",
      Phrase("Individuals without a name, or with that of another, are a fault; else they are "
             "named by "
             "population and row.")},
     "genepop"},
    {"--half-missing",
     FieldKind::kBox,
     {Phrase("Refuse half a genotype"), "ImportHalfMissing",
      Phrase("A genotype of which one allele is missing is a fault; else it counts as not typed.")},
     ""},
}};

/// What else the rules name, in the words of this screen.
constexpr std::array<std::pair<std::string_view, Phrase>, 6> kOtherWords{
    {{"--parents FILE --offspring", Phrase(R"("parents" and "offspring")")},
     {"--no-sexes", Phrase("take the NON-SEXED flow")},
     {"--parents", Phrase("\"parents\"")},
     {"--males", Phrase("\"males\"")},
     {"--females", Phrase("\"females\"")},
     {"--offspring", Phrase("\"offspring\"")}}};

struct Way {
  Phrase text;
  MissingParents way;
};

constexpr std::array<Way, 5> kWays{
    {{Phrase("not chosen yet"), MissingParents::kRefused},
     {Phrase("drop-individuals: leave such parents out"), MissingParents::kDropIndividuals},
     {Phrase("drop-loci: leave such loci out"), MissingParents::kDropLoci},
     {Phrase("least: leave out so that most genotypes stay"), MissingParents::kLeast},
     {Phrase("keep: leave nothing out; the run allows undefined parents"), MissingParents::kKeep}}};

/// The option with the word for its value, and no longer one that begins alike.
QRegularExpression Named(std::string_view option) {
  return QRegularExpression(Text(option) +
                            Text(R"((?![a-z-])(?: (?:FILE|COLUMN|NAME,\.\.\.)(?![a-z]))?)"));
}

QString Caption(const FieldText& text) { return Tr(text.label).remove(QLatin1Char('&')); }

QComboBox* NewChoice(const QStringList& entries) {
  auto* const choice = new QComboBox;
  choice->addItems(entries);
  // The longest entry must not make the screen wider than a small monitor.
  choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  choice->setMinimumContentsLength(16);
  return choice;
}

QStringList NamesOfFormats() {
  QStringList names{Tr("as recognised")};
  for (const FormatReader& reader : FormatReaders()) {
    names += TrCore(reader.name);
  }
  return names;
}

QStringList NamesOfWays() {
  QStringList names;
  for (const Way& way : kWays) {
    names += Tr(way.text);
  }
  return names;
}

}  // namespace

QString InWordsOfFields(const std::string& text) {
  QString words = Text(text);
  const auto replace = [&words](std::string_view option, const QString& name) {
    words.replace(Named(option), name);
  };
  for (const ImportField& field : kFields) {
    replace(field.option, QLatin1Char('"') + Caption(field.text) + QLatin1Char('"'));
  }
  for (const auto& [option, name] : kOtherWords) {
    replace(option, Tr(name));
  }
  return words;
}

ImportFields::ImportFields(ImportNeed need, std::function<void()> on_change)
    : need_(need),
      on_change_(std::move(on_change)),
      form_(new QFormLayout(this)),
      more_(new QCheckBox(Tr("&More choices"))) {
  form_->setContentsMargins(0, 0, 0, 0);
  form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
  more_->setObjectName(Text("ImportMore"));
  more_->setToolTip(Tr("Show all that can be chosen for files of this format"));
  for (std::size_t place = 0; place < kFields.size(); ++place) {
    QWidget* const field = NewField(place);
    Describe(*field, kFields.at(place).text);
    fields_[kFields.at(place).option] = field;
    if (kFields.at(place).kind == FieldKind::kBox) {
      form_->addRow(field);
    } else {
      form_->addRow(Tr(kFields.at(place).text.label), field);
    }
  }
  form_->addRow(more_);
  connect(more_, &QCheckBox::toggled, this, [this] { ShowRows(); });
  ShowRows();
}

QWidget* ImportFields::NewField(std::size_t place) {
  const ImportField& field = kFields.at(place);
  switch (field.kind) {
    case FieldKind::kPopulations:
      return NewPopulations();
    case FieldKind::kBox: {
      auto* const box = new QCheckBox(Tr(field.text.label));
      connect(box, &QCheckBox::toggled, this, [this] { on_change_(); });
      return box;
    }
    case FieldKind::kText: {
      auto* const line = new QLineEdit;
      connect(line, &QLineEdit::textChanged, this, [this] { on_change_(); });
      return line;
    }
    case FieldKind::kFormat:
    case FieldKind::kWay:
    case FieldKind::kRows:
    case FieldKind::kColumn:
      break;
  }
  QComboBox* const choice = NewChoice(
      field.kind == FieldKind::kFormat ? NamesOfFormats()
      : field.kind == FieldKind::kWay  ? NamesOfWays()
      : field.kind == FieldKind::kRows ? QStringList{Tr("as the file looks"), Text("1"), Text("2")}
                                       : QStringList{Tr("as recognised")});
  connect(choice, &QComboBox::currentIndexChanged, this, [this] { on_change_(); });
  return choice;
}

QWidget* ImportFields::NewPopulations() {
  auto* const list = new QListWidget;
  list->setTabKeyNavigation(false);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setTextElideMode(Qt::ElideMiddle);
  connect(list, &QListWidget::itemChanged, this, [this] { on_change_(); });
  return list;
}

void ImportFields::ShowPopulations(const std::vector<CountedPopulation>& populations) {
  constexpr int kMostShown = 5;
  auto& list = *qobject_cast<QListWidget*>(fields_.at(kPopulationsOption));
  const std::vector<std::string> ticked = TickedPopulations();
  const QSignalBlocker quiet(list);
  const int current = list.currentRow();
  list.clear();
  for (const CountedPopulation& population : populations) {
    auto* const item = new QListWidgetItem(
        Text("%1 (%2)").arg(Text(population.name),
                            TrCount("%n individuals", "%n individual", population.individuals)),
        &list);
    item->setData(Qt::UserRole, Text(population.name));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    const bool is_ticked = std::find(ticked.begin(), ticked.end(), population.name) != ticked.end();
    item->setCheckState(is_ticked ? Qt::Checked : Qt::Unchecked);
  }
  list.setCurrentRow(std::max(current, 0));
  const int rows = std::clamp(list.count(), 1, kMostShown);
  list.setFixedHeight(rows * std::max(list.sizeHintForRow(0), 1) + 2 * list.frameWidth());
}

std::vector<std::string> ImportFields::TickedPopulations() const {
  const auto& list = *qobject_cast<const QListWidget*>(fields_.at(kPopulationsOption));
  std::vector<std::string> ticked;
  for (int row = 0; has_populations_ && row < list.count(); ++row) {
    if (list.item(row)->checkState() == Qt::Checked) {
      ticked.push_back(Bytes(list.item(row)->data(Qt::UserRole).toString()));
    }
  }
  return ticked;
}

void ImportFields::ShowHeads(const std::vector<std::string>& heads) {
  for (const ImportField& field : kFields) {
    if (field.kind != FieldKind::kColumn) {
      continue;
    }
    auto& choice = *qobject_cast<QComboBox*>(fields_.at(field.option));
    const QSignalBlocker quiet(choice);
    const QString chosen = choice.currentIndex() > 0 ? choice.currentText() : QString();
    while (choice.count() > 1) {
      choice.removeItem(1);
    }
    for (const std::string& head : heads) {
      if (!head.empty()) {
        choice.addItem(Text(head));
      }
    }
    choice.setCurrentIndex(std::max(chosen.isEmpty() ? 0 : choice.findText(chosen), 0));
  }
}

void ImportFields::ShowNeeded(const ImportTry& tried, const std::string& asked, bool open) {
  asked_ = asked;
  format_ = tried.files.empty() ? "" : tried.files.front().format;
  has_populations_ = open && !tried.populations.empty();
  ShowPopulations(tried.populations);
  ShowHeads(tried.heads);
  ShowRows();
}

bool ImportFields::IsShown(std::size_t place) const {
  const ImportField& field = kFields.at(place);
  if (field.kind == FieldKind::kFormat) {
    return true;
  }
  if (field.kind == FieldKind::kPopulations) {
    return has_populations_;
  }
  if (need_.is_simulation && field.option == kNoGroupsOption) {
    return false;  // settled
  }
  const FormatReader* const only = FindFormatReader(field.format);
  const bool has_use = only == nullptr || only->name == format_;
  const bool is_asked = Text(asked_).contains(Named(field.option));
  return Said(field.option) || (has_use && (is_asked || more_->isChecked()));
}

void ImportFields::ShowRows() {
  for (std::size_t place = 0; place < kFields.size(); ++place) {
    form_->setRowVisible(fields_.at(kFields.at(place).option), IsShown(place));
  }
}

std::optional<std::string> ImportFields::Said(std::string_view option) const {
  QWidget* const field = fields_.at(option);
  if (const auto* const line = qobject_cast<const QLineEdit*>(field)) {
    const std::string typed = Bytes(line->text().trimmed());
    return typed.empty() ? std::nullopt : std::optional(typed);
  }
  if (const auto* const choice = qobject_cast<const QComboBox*>(field)) {
    return choice->currentIndex() <= 0 ? std::nullopt : std::optional(Bytes(choice->currentText()));
  }
  const auto* const box = qobject_cast<const QCheckBox*>(field);
  return box != nullptr && box->isChecked() ? std::optional<std::string>("") : std::nullopt;
}

std::optional<std::string> ImportFields::FillIn(ImportChoices& choices) const {
  const auto index = [this](std::string_view option) {
    return static_cast<std::size_t>(
        std::max(qobject_cast<const QComboBox*>(fields_.at(option))->currentIndex(), 0));
  };
  const auto names = [this](std::string_view option) {
    return NamesBetweenCommas(Said(option).value_or(""));
  };
  if (const std::size_t format = index(kFormatOption); format > 0) {
    choices.format = std::string(FormatReaders()[format - 1].key);
  }
  choices.sheet = Said("--sheet");
  choices.id_column = Said("--id");
  choices.sex_column = Said("--sex");
  choices.group_column = Said("--group");
  choices.role_column = Said("--role");
  choices.offspring_populations = TickedPopulations();
  choices.loci = names("--loci");
  choices.missing_code = Said("--missing");
  choices.missing_parents = kWays.at(index("--missing-parents")).way;
  choices.rows_per_individual = index("--rows");
  choices.leading = names("--leading");
  choices.half_missing_is_error = Said("--half-missing").has_value();
  choices.unique_names = Said("--unique-names").has_value();
  choices.no_groups = need_.is_simulation || Said(kNoGroupsOption).has_value();
  choices.no_sexes = need_.flow == Flow::kNonSexed;
  auto lengths = RepeatLengthsIn(Said("--repeat-length").value_or(""));
  if (!lengths) {
    return std::move(lengths.error());
  }
  choices.repeat_lengths = std::move(*lengths);
  return std::nullopt;
}

}  // namespace kaldo
