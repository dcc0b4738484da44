// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/allocation_file_page.h"

#include <QCheckBox>
#include <QFormLayout>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/file_field.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "genotypes/file_summary.h"

namespace kaldo {

namespace {

constexpr FieldText kParents{
    Phrase("Collected &parents file"), "ParentsFile",
    Phrase("Genotypes of all collected candidate parents: a name and one field per locus. Lines "
           "with * "
           "divide them into groups; only parents of one group are tried as a pair.")};
constexpr FieldText kMales{Phrase("Collected &males file"), "MalesFile",
                           Phrase("Genotypes of the collected males: a name and one field per "
                                  "locus. Lines with * divide them "
                                  "into groups; males of a group are tried with the females of the "
                                  "group of the same number.")};
constexpr FieldText kFemales{
    Phrase("Collected &females file"), "FemalesFile",
    Phrase("Genotypes of the collected females, in as many groups as the males.")};
constexpr FieldText kOffspring{Phrase("&Offspring file"), "OffspringFile",
                               Phrase("Genotypes of the offspring to allocate. A locus that could "
                                      "not be typed is a field of zeros.")};
constexpr FieldText kLoci{Phrase("Names of &loci file"), "LociFile",
                          Phrase("The names of the loci, in the order in which their fields follow "
                                 "each individual's name.")};

constexpr FieldText kUndefinedParents{
    Phrase("Parents may be undefined at some loci"), "AllowUndefinedParents",
    Phrase("A parent that could not be typed at a locus is tried there with what its population "
           "would have. Else every parent has to be typed at every locus.")};

constexpr FieldText kSomethingKnown{
    Phrase("Something is &known of single offspring"), "SomethingKnown",
    Phrase("For a known mother, candidates or a group of each offspring: "
           "only pairs that agree are tried.")};
constexpr FieldText kKnownMothers{
    Phrase("Known mothers file"), "KnownMothersFile",
    Phrase("Per line an offspring and its mother; where sexes are not known, one of its parents.")};
constexpr FieldText kCandidates{
    Phrase("Candidates file"), "CandidatesFile",
    Phrase("Per line an offspring and the parents that may be its own.")};
constexpr FieldText kOffspringGroups{
    Phrase("Groups of offspring file"), "OffspringGroupsFile",
    Phrase("Per line an offspring and the number of its group of parents: 1, 2 and so on.")};

const ScreenEntry& EntryOf(Flow flow) {
  return flow == Flow::kSexed ? kSexedAllocationScreen : kNonSexedAllocationScreen;
}

}  // namespace

AllocationFilePage::AllocationFilePage(Flow flow, OpenedFiles& opened)
    : FlowPage(EntryOf(flow), AllocationCaption(flow)),
      opened_(opened),
      offer_(*this, {.flow = flow}, opened,
             [this](const AllocationSettings& imported) { TakeImported(imported); }) {
  auto* const form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  if (flow == Flow::kSexed) {
    males_ = AddFile(*form, {&AllocationSettings::males_file, Role::kParent, Sex::kMale}, kMales);
    females_ =
        AddFile(*form, {&AllocationSettings::females_file, Role::kParent, Sex::kFemale}, kFemales);
    males_->SetOnChange([this] { females_->Refresh(); });
    females_->SetOnChange([this] { males_->Refresh(); });
  } else {
    AddFile(*form, {&AllocationSettings::parents_file, Role::kParent}, kParents);
  }
  AddFile(*form, {&AllocationSettings::offspring_file, Role::kOffspring}, kOffspring);
  loci_ = AddFileField(*form, kLoci);
  loci_->SetDescriber(
      [this](const std::string& file) { return DescribeLociFile(file, opened_.Opener()); });
  loci_->SetJudge(
      [this](const std::string& file) { return IsLociFileAtFault(file, opened_.Opener()); });
  loci_->SetOnChange([this] { RefreshFiles(); });
  offer_.Watch(*loci_);
  undefined_parents_ = new QCheckBox(Tr(kUndefinedParents.label), this);
  Describe(*undefined_parents_, kUndefinedParents);
  form->addRow(undefined_parents_);
  AddKnowledge(*form);
  tolerance_.emplace(*form);
}

FileField* AllocationFilePage::AddFile(QFormLayout& form, FileOf file, const FieldText& text) {
  FileField* const field = AddFileField(form, text);
  const bool holds_parents = file.role == Role::kParent;
  field->SetDescriber([this, holds_parents](const std::string& path) {
    std::string line = DescribeGenotypeFile(
        path, loci_->Path(), holds_parents ? Separators::kAllowed : Separators::kNone,
        opened_.Opener());
    return holds_parents ? line + GroupsFault() : line;
  });
  field->SetJudge([this, holds_parents](const std::string& path) {
    const Separators separators = holds_parents ? Separators::kAllowed : Separators::kNone;
    return IsGenotypeFileAtFault(path, loci_->Path(), separators, opened_.Opener()) ||
           (holds_parents && !GroupsFault().empty());
  });
  offer_.Watch(*field, file.role, file.sex);
  rows_.push_back({file.path, field});
  return field;
}

void AllocationFilePage::AddKnowledge(QFormLayout& form) {
  something_known_ = new QCheckBox(Tr(kSomethingKnown.label), this);
  Describe(*something_known_, kSomethingKnown);
  form.addRow(something_known_);
  for (const auto& [path, text] : {
           std::pair(&AllocationSettings::known_mother_file, kKnownMothers),
           std::pair(&AllocationSettings::candidates_file, kCandidates),
           std::pair(&AllocationSettings::offspring_groups_file, kOffspringGroups),
       }) {
    knowledge_.push_back({path, AddFileField(form, text)});
    offer_.Watch(*knowledge_.back().field);
  }
  const auto show_rows = [this, &form](bool shown) {
    for (const Row& row : knowledge_) {
      form.setRowVisible(row.field, shown);
    }
  };
  show_rows(false);
  connect(something_known_, &QCheckBox::toggled, this, show_rows);
}

std::optional<std::size_t> AllocationFilePage::GroupsIn(const FileField& field) const {
  const auto file = opened_.Open(field.Path());
  if (!file) {
    return std::nullopt;
  }
  return CountTokens(file->Tokens(), {0, Separators::kAllowed}).separators + 1;
}

std::string AllocationFilePage::GroupsFault() const {
  if (males_ == nullptr || females_ == nullptr) {
    return {};
  }
  const auto males = GroupsIn(*males_);
  const auto females = GroupsIn(*females_);
  if (!males || !females || *males == *females) {
    return {};
  }
  return '\n' +
         Bytes(Tr("The numbers of groups differ: %1 of males, %2 of females. No run can start.")
                   .arg(*males)
                   .arg(*females));
}

void AllocationFilePage::RefreshFiles() {
  for (const Row& row : rows_) {
    row.field->Refresh();
  }
}

void AllocationFilePage::TakeImported(const AllocationSettings& imported) {
  undefined_parents_->setChecked(imported.allow_undefined_parents);
  loci_->SetPath(imported.loci_file);
  for (const auto* const rows : {&rows_, &knowledge_}) {
    for (const Row& row : *rows) {
      if (const std::string& path = imported.*row.path; !path.empty()) {
        row.field->SetPath(path);
        something_known_->setChecked(something_known_->isChecked() || rows == &knowledge_);
      }
    }
  }
}

void AllocationFilePage::Set(const AllocationSettings& settings) {
  loci_->SetPath(settings.loci_file);
  for (const Row& row : rows_) {
    row.field->SetPath(settings.*row.path);
  }
  for (const Row& row : knowledge_) {
    row.field->SetPath(settings.*row.path);
  }
  something_known_->setChecked(
      std::any_of(knowledge_.begin(), knowledge_.end(),
                  [&](const Row& row) { return !(settings.*row.path).empty(); }));
  undefined_parents_->setChecked(settings.allow_undefined_parents);
  tolerance_->Set(settings.tolerance);
}

void AllocationFilePage::FillIn(AllocationSettings& settings) const {
  settings.loci_file = loci_->Path();
  for (const Row& row : rows_) {
    settings.*row.path = row.field->Path();
  }
  for (const Row& row : knowledge_) {
    settings.*row.path = something_known_->isChecked() ? row.field->Path() : "";
  }
  settings.allow_undefined_parents = undefined_parents_->isChecked();
  settings.tolerance = tolerance_->Value();
}

}  // namespace kaldo
