// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/parental_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "app/base/file_field.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "genotypes/file_summary.h"

namespace kaldo {

namespace {

constexpr auto kDrawnHelp =
    Phrase("How many of them are drawn anew at every iteration: a whole number.");
constexpr auto kProportionHelp = Phrase(
    "How many there may be in the population; sets the proportion of collected parents, and with "
    "it the share of each origin of the pseudo-offspring.");

/// The labels of one set of parents.
struct SetTexts {
  Phrase title;
  FieldText collected_file;
  FieldText pseudo_collected_sample;
  FieldText pseudo_collected;
  FieldText uncollected_sample;
  FieldText uncollected;
  FieldText estimated_collected;
  FieldText estimated_uncollected;
};

constexpr auto kCollectedHelp = Phrase(
    "Genotypes of the parents collected: a name and one field per locus, no undefined alleles.");
constexpr auto kPseudoCollectedHelp = Phrase(
    "A representative sample: pseudo-collected parents are drawn from its allele frequencies.");
constexpr auto kUncollectedHelp = Phrase(
    "A representative sample: the uncollected parents are drawn from its allele frequencies at "
    "every iteration.");
constexpr auto kPseudoNumberHelp =
    Phrase("How many parents you expect to collect; as many are drawn at every iteration.");

constexpr SetTexts kParentTexts{
    Phrase("  Parents  "),
    {Phrase("Collected &parents file"), "CollectedFile", kCollectedHelp},
    {Phrase("Sample of &pseudo-collected parents"), "PseudoCollectedSample", kPseudoCollectedHelp},
    {Phrase("&Estimated number of pseudo-collected parents"), "PseudoCollected", kPseudoNumberHelp},
    {Phrase("Sample of &uncollected parents"), "UncollectedSample", kUncollectedHelp},
    {Phrase("Estimated &number of uncollected parents"), "Uncollected",
     Phrase(
         "How many true parents were not collected; as many are drawn at every iteration. Together "
         "with the collected ones they set the share of each origin of the pseudo-offspring.")},
    {},
    {}};

constexpr SetTexts kMaleTexts{
    Phrase("  Males  "),
    {Phrase("Collected &males file"), "CollectedMalesFile", kCollectedHelp},
    {Phrase("Sample of pseudo-collected &males"), "PseudoCollectedMalesSample",
     kPseudoCollectedHelp},
    {Phrase("&Number of pseudo-collected males"), "PseudoCollectedMales", kPseudoNumberHelp},
    {Phrase("Sample of &uncollected males"), "UncollectedMalesSample", kUncollectedHelp},
    {Phrase("Num&ber of uncollected males"), "UncollectedMales", kDrawnHelp},
    {Phrase("Estimated number of (pseudo)collected male parents   -------------- >"),
     "EstimatedCollectedMales", kProportionHelp},
    {Phrase("Estimated number of uncollected male parents   ------------------------ >"),
     "EstimatedUncollectedMales", kProportionHelp}};

constexpr SetTexts kFemaleTexts{
    Phrase("  Females  "),
    {Phrase("Collected &females file"), "CollectedFemalesFile", kCollectedHelp},
    {Phrase("Sample of pseudo-collected &females"), "PseudoCollectedFemalesSample",
     kPseudoCollectedHelp},
    {Phrase("Number &of pseudo-collected females"), "PseudoCollectedFemales", kPseudoNumberHelp},
    {Phrase("Sample of unco&llected females"), "UncollectedFemalesSample", kUncollectedHelp},
    {Phrase("Numbe&r of uncollected females"), "UncollectedFemales", kDrawnHelp},
    {Phrase("Estimated number of (pseudo)collected female parents   ----------- >"),
     "EstimatedCollectedFemales", kProportionHelp},
    {Phrase("Estimated number of uncollected female parents   --------------------- >"),
     "EstimatedUncollectedFemales", kProportionHelp}};

const SetTexts& TextsOf(Flow flow, std::size_t set) {
  return flow == Flow::kNonSexed ? kParentTexts : set == 0 ? kMaleTexts : kFemaleTexts;
}

void ShowRow(QFormLayout& form, QWidget* field, bool shown) {
  field->setVisible(shown);
  form.labelForField(field)->setVisible(shown);
}

}  // namespace

ParentalPage::ParentalPage(Flow flow, OpenedFiles& opened, ImportOffer::OnImported on_imported)
    : FlowPage(kParentalScreen, SimulationCaption(flow)),
      flow_(flow),
      opened_(opened),
      collected_(NewOffer(&SetFields::collected_file, on_imported)),
      pseudo_collected_(NewOffer(&SetFields::pseudo_collected_sample, on_imported)),
      uncollected_(NewOffer(&SetFields::uncollected_sample, on_imported)) {
  auto* const column = new QVBoxLayout(this);
  for (std::size_t set = 0; set < Sets().size(); ++set) {
    column->addWidget(NewSet(set));
  }
  column->addStretch();
  Set(FirstShownSimulation(flow));
}

std::span<const ParentalPage::SetFields> ParentalPage::Sets() const {
  return std::span(sets_).first(flow_ == Flow::kSexed ? 2 : 1);
}

ImportOffer ParentalPage::NewOffer(FileField* SetFields::*field,
                                   ImportOffer::OnImported on_imported) {
  return {*this,
          {flow_, true},
          opened_,
          [this, field, on_imported = std::move(on_imported)](const AllocationSettings& imported) {
            FillFields(field, imported);
            on_imported(imported);
          }};
}

void ParentalPage::FillFields(FileField* SetFields::*field, const AllocationSettings& imported) {
  const std::array<const std::string*, 2> files =
      flow_ == Flow::kSexed ? std::array{&imported.males_file, &imported.females_file}
                            : std::array{&imported.parents_file, &imported.parents_file};
  for (std::size_t set = 0; set < Sets().size(); ++set) {
    (sets_.at(set).*field)->SetPath(*files.at(set));
  }
}

void ParentalPage::TakeImported(Procedure procedure, const AllocationSettings& imported) {
  FillFields(procedure == Procedure::kParental ? &SetFields::collected_file
                                               : &SetFields::pseudo_collected_sample,
             imported);
}

FileField* ParentalPage::NewFile(QFormLayout& form, const FieldText& text, std::size_t set,
                                 ImportOffer& offer) {
  FileField* const field = AddFileField(form, text);
  const Sex sex = flow_ == Flow::kNonSexed ? Sex::kUnknown : set == 0 ? Sex::kMale : Sex::kFemale;
  offer.Watch(*field, Role::kParent, sex);
  field->SetDescriber([this](const std::string& file) {
    return DescribeGenotypeFile(file, loci_file_, Separators::kNone, opened_.Opener());
  });
  field->SetJudge([this](const std::string& file) {
    return IsGenotypeFileAtFault(file, loci_file_, Separators::kNone, opened_.Opener());
  });
  return field;
}

QWidget* ParentalPage::NewSet(std::size_t set) {
  const SetTexts& texts = TextsOf(flow_, set);
  SetFields& fields = sets_.at(set);
  auto* const group = new QGroupBox(Tr(texts.title));
  auto* const form = new QFormLayout(group);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  fields.form = form;
  fields.collected_file = NewFile(*form, texts.collected_file, set, collected_);
  fields.pseudo_collected_sample =
      NewFile(*form, texts.pseudo_collected_sample, set, pseudo_collected_);
  fields.pseudo_collected = AddLineEdit(*form, texts.pseudo_collected);
  fields.uncollected_sample = NewFile(*form, texts.uncollected_sample, set, uncollected_);
  fields.uncollected = AddLineEdit(*form, texts.uncollected);
  if (flow_ == Flow::kSexed) {
    fields.estimated_collected = AddLineEdit(*form, texts.estimated_collected);
    fields.estimated_uncollected = AddLineEdit(*form, texts.estimated_uncollected);
  }
  return group;
}

void ParentalPage::Prepare(Procedure procedure, const std::string& loci_file) {
  procedure_ = procedure;
  loci_file_ = loci_file;
  const bool parental = procedure == Procedure::kParental;
  for (const SetFields& fields : Sets()) {
    ShowRow(*fields.form, fields.collected_file, parental);
    ShowRow(*fields.form, fields.pseudo_collected_sample, !parental);
    ShowRow(*fields.form, fields.pseudo_collected, !parental);
    fields.collected_file->Refresh();
    fields.pseudo_collected_sample->Refresh();
    fields.uncollected_sample->Refresh();
  }
}

std::vector<ParentalPage::NumberRow> ParentalPage::NumbersOf(const SetFields& fields) {
  const bool sexed = fields.estimated_collected != nullptr;
  std::vector<NumberRow> rows = {{fields.uncollected, &ParentalSet::uncollected, sexed}};
  if (sexed) {
    rows.push_back({fields.estimated_collected, &ParentalSet::estimated_collected, false});
    rows.push_back({fields.estimated_uncollected, &ParentalSet::estimated_uncollected, false});
  }
  return rows;
}

void ParentalPage::Set(const SimulationSettings& settings) {
  Prepare(settings.procedure, settings.loci_file);
  for (std::size_t k = 0; k < Sets().size(); ++k) {
    const ParentalSet& set = settings.sets.at(k);
    const SetFields& fields = sets_.at(k);
    fields.collected_file->SetPath(set.collected_file);
    fields.pseudo_collected_sample->SetPath(set.pseudo_collected_sample);
    fields.pseudo_collected->setText(NumberText(set.pseudo_collected));
    fields.uncollected_sample->SetPath(set.uncollected_sample);
    fields.uncollected->setText(NumberText(set.uncollected));
    if (flow_ == Flow::kSexed) {
      fields.estimated_collected->setText(NumberText(set.estimated_collected));
      fields.estimated_uncollected->setText(NumberText(set.estimated_uncollected));
    }
  }
}

void ParentalPage::FillIn(SimulationSettings& settings) const {
  for (std::size_t k = 0; k < Sets().size(); ++k) {
    ParentalSet& set = settings.sets.at(k);
    const SetFields& fields = sets_.at(k);
    set.uncollected_sample = fields.uncollected_sample->Path();
    if (settings.procedure == Procedure::kParental) {
      set.collected_file = fields.collected_file->Path();
    } else {
      set.pseudo_collected_sample = fields.pseudo_collected_sample->Path();
      set.pseudo_collected = WholeNumberIn(*fields.pseudo_collected).value_or(0);
    }
    for (const NumberRow& row : NumbersOf(fields)) {
      set.*row.value = NumberIn(*row.field).value_or(0);
    }
  }
}

std::optional<Problem> ParentalPage::NumberFault() const {
  const auto fault = [](const QLineEdit& field, const QString& wanted) {
    return Problem{.kind = ProblemKind::kImpossibleNumberOfParents,
                   .found = Bytes(Tr("%1: %2 is not %3")
                                      .arg(field.accessibleName(),
                                           Text(Quoted(Bytes(field.text()))), wanted))};
  };
  for (const SetFields& fields : Sets()) {
    if (procedure_ == Procedure::kPreParental && !WholeNumberIn(*fields.pseudo_collected)) {
      return fault(*fields.pseudo_collected, Tr("a whole number"));
    }
    for (const NumberRow& row : NumbersOf(fields)) {
      if (row.whole && !WholeNumberIn(*row.field)) {
        return fault(*row.field, Tr("a whole number"));
      }
      if (!NumberIn(*row.field)) {
        return fault(*row.field, Tr("a number with a decimal point"));
      }
    }
  }
  return std::nullopt;
}

}  // namespace kaldo
