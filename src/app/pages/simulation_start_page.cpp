// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/simulation_start_page.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/base/file_field.h"
#include "app/base/form_fields.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/problem.h"
#include "genotypes/file_summary.h"

namespace kaldo {

namespace {

constexpr FieldText kLoci{Phrase("Names of &loci file"), "LociFile",
                          Phrase("The names of the loci, in the order in which their fields follow "
                                 "each individual's name.")};
constexpr FieldText kIterations{
    Phrase("Number of &iterations"), "Iterations",
    Phrase("How often parents are drawn and pseudo-offspring are produced and allocated: fewer "
           "than 1000 "
           "in the non-sexed flow, at most 1000 in the sexed one. More give steadier averages.")};
constexpr FieldText kParental{
    Phrase("&parental procedure (real collected parents)"), "Parental",
    Phrase("After the field work: the collected parents are read from a file.")};
constexpr FieldText kPreParental{
    Phrase("pr&e-parental procedure (pseudo-collected parents)"), "PreParental",
    Phrase("Before the field work: parents as you hope to collect them are drawn from the allele "
           "frequencies of a sample.")};

}  // namespace

SimulationStartPage::SimulationStartPage(Flow flow, OpenedFiles& opened,
                                         ImportOffer::OnImported on_imported)
    : FlowPage(flow == Flow::kSexed ? kSexedSimulationScreen : kNonSexedSimulationScreen,
               SimulationCaption(flow)),
      offer_(*this, {flow, true}, opened, std::move(on_imported)),
      procedure_(new QButtonGroup(this)) {
  auto* const form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  loci_ = AddFileField(*form, kLoci);
  loci_->SetDescriber(
      [&opened](const std::string& file) { return DescribeLociFile(file, opened.Opener()); });
  loci_->SetJudge(
      [&opened](const std::string& file) { return IsLociFileAtFault(file, opened.Opener()); });
  offer_.Watch(*loci_);
  iterations_ = AddLineEdit(*form, kIterations);
  const SimulationSettings first_shown = FirstShownSimulation(flow);
  iterations_->setText(NumberText(first_shown.iterations));

  auto* const group = new QGroupBox(Tr("  Type of simulations  "));
  auto* const inside = new QVBoxLayout(group);
  for (const auto& [procedure, text] :
       {std::pair{Procedure::kParental, kParental}, {Procedure::kPreParental, kPreParental}}) {
    auto* const button = new QRadioButton(Tr(text.label));
    Describe(*button, text);
    button->setChecked(procedure == first_shown.procedure);
    procedure_->addButton(button, static_cast<int>(procedure));
    inside->addWidget(button);
  }
  auto* const column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(group);
  column->addStretch();
}

void SimulationStartPage::Set(const SimulationSettings& settings) {
  loci_->SetPath(settings.loci_file);
  iterations_->setText(NumberText(settings.iterations));
  procedure_->button(static_cast<int>(settings.procedure))->setChecked(true);
}

void SimulationStartPage::SetLociFile(const std::string& path) { loci_->SetPath(path); }

void SimulationStartPage::FillIn(SimulationSettings& settings) const {
  settings.loci_file = loci_->Path();
  settings.iterations = WholeNumberIn(*iterations_).value_or(0);
  settings.procedure = static_cast<Procedure>(procedure_->checkedId());
}

void SimulationStartPage::TellTyped(Problem& problem) const {
  if (problem.kind == ProblemKind::kNoIteration) {
    TellIfNoWholeNumber(*iterations_, problem);
  }
}

}  // namespace kaldo
