// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/output_page.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/number_text.h"

namespace kaldo {

namespace {

constexpr FieldText kPrintIterations{
    Phrase("Print results for each &iteration"), "PrintIterations",
    Phrase("Write the tables of all iterations, a file per origin.")};
constexpr FieldText kPrintSubsets{
    Phrase("Print global statistics for each &subset of loci (recommended)"), "PrintSubsets",
    Phrase("Write means and standard deviations of every subset at the end of the summary.")};
constexpr FieldText kModernRandoms{
    Phrase("modern &random numbers"), "ModernRandoms",
    Phrase("Numbers of 64 bits, without the coarse draws of the default "
           "ones: needed where alleles have two "
           "digits.")};
constexpr FieldText kCommonRandoms{Phrase("the same random numbers for &all subsets"),
                                   "CommonRandoms",
                                   Phrase("All subsets of loci see the same parents and offspring, "
                                          "so that they differ less by chance.")};
constexpr FieldText kKeepParents{
    Phrase("simulated &parents"), "KeepParents",
    Phrase("Keep the simulated parents of the last iteration, one file per group.")};
constexpr FieldText kKeepOffspring{Phrase("pseudo-&offspring"), "KeepOffspring",
                                   Phrase("Keep the pseudo-offspring of the last iteration.")};
constexpr FieldText kKeepMatrices{Phrase("transmission &matrices"), "KeepMatrices",
                                  Phrase("Keep the listing of all allocated pseudo-offspring of "
                                         "all iterations. It can be very large.")};
constexpr FieldText kSeed{Phrase("S&eed"), "Seed",
                          Phrase("Start of the random numbers, 0 to 4294967295: the same seed "
                                 "gives the same results. Empty: "
                                 "the calendar time; the run record tells it.")};

QCheckBox* NewBox(QVBoxLayout& column, const FieldText& text) {
  auto* const box = new QCheckBox(Tr(text.label));
  Describe(*box, text);
  column.addWidget(box);
  return box;
}

}  // namespace

OutputPage::OutputPage(Flow flow) : FlowPage(kOutputScreen, SimulationCaption(flow)) {
  auto* const print = new QGroupBox(Tr("  Print  "));
  auto* const print_column = new QVBoxLayout(print);
  print_iterations_ = NewBox(*print_column, kPrintIterations);
  print_subsets_ = NewBox(*print_column, kPrintSubsets);
  auto* const keep = new QGroupBox(Tr("  Keep in file  "));
  auto* const keep_column = new QVBoxLayout(keep);
  keep_parents_ = NewBox(*keep_column, kKeepParents);
  keep_offspring_ = NewBox(*keep_column, kKeepOffspring);
  keep_matrices_ = NewBox(*keep_column, kKeepMatrices);
  auto* const randoms = new QGroupBox(Tr("  Random numbers  "));
  auto* const randoms_column = new QVBoxLayout(randoms);
  modern_randoms_ = NewBox(*randoms_column, kModernRandoms);
  common_randoms_ = NewBox(*randoms_column, kCommonRandoms);
  auto* const form = new QFormLayout;
  seed_ = AddLineEdit(*form, kSeed);
  seed_->setPlaceholderText(Tr("calendar time"));
  auto* const column = new QVBoxLayout(this);
  column->addWidget(print);
  column->addWidget(keep);
  column->addWidget(randoms);
  column->addLayout(form);
  column->addStretch();
  Set(FirstShownSimulation(flow));
}

void OutputPage::Set(const SimulationSettings& settings) {
  print_iterations_->setChecked(settings.print_iterations);
  print_subsets_->setChecked(settings.print_subset_statistics);
  const KeptFiles kept = KeptFilesOf(settings);
  keep_parents_->setChecked(kept.parents);
  keep_offspring_->setChecked(kept.offspring);
  keep_matrices_->setChecked(kept.matrices);
  modern_randoms_->setChecked(settings.random == RandomSource::kModern);
  common_randoms_->setChecked(settings.subset_randoms == SubsetRandoms::kCommon);
  seed_->setText(settings.seed ? Text(fmt::format("{}", *settings.seed)) : QString());
}

void OutputPage::FillIn(SimulationSettings& settings) const {
  settings.print_iterations = print_iterations_->isChecked();
  settings.print_subset_statistics = print_subsets_->isChecked();
  settings.keep = KeptFiles{keep_parents_->isChecked(), keep_offspring_->isChecked(),
                            keep_matrices_->isChecked()};
  settings.random = modern_randoms_->isChecked() ? RandomSource::kModern : RandomSource::kDefault;
  settings.subset_randoms =
      common_randoms_->isChecked() ? SubsetRandoms::kCommon : SubsetRandoms::kOwn;
  settings.seed = ParseSeedNumber(Bytes(seed_->text().trimmed()));
}

std::optional<Problem> OutputPage::SeedFault() const {
  const std::string typed = Bytes(seed_->text().trimmed());
  if (typed.empty() || ParseSeedNumber(typed)) {
    return std::nullopt;
  }
  return Problem{
      .kind = ProblemKind::kNotASeed,
      .found = Bytes(Tr("%1 is not a whole number from 0 to 4294967295").arg(Text(Quoted(typed))))};
}

}  // namespace kaldo
