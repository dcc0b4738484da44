// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/tolerance_page.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "simulation/allocation_model.h"

namespace kaldo {

namespace {

constexpr auto kNonSexedNote = Phrase(
    "The pseudo-offspring are allocated to the collected or pseudo-collected parents only. A "
    "tolerance acts where the allocation knows of errors.");
constexpr auto kSexedNote = Phrase(
    "The pseudo-offspring are allocated as in an allocation with the same transmission error, to "
    "the collected or pseudo-collected males and females only.");

constexpr FieldText kStrictly{
    Phrase("with the model &No Error"), "AllocateWithNone",
    Phrase(
        "Strict exclusion: a pair fits every allele or is no pair. The figures are not those of an "
        "allocation with an error model.")};
constexpr FieldText kAsRun{
    Phrase("with the &same transmission error, as an allocation would"), "AllocateWithRun",
    Phrase(
        "The figures tell how often an allocation with this model and this tolerance is right.")};
constexpr FieldText kAsInRecord{Phrase("with the model of the &record"), "AllocateWithRecorded",
                                Phrase("Another model than that of the transmission error.")};

}  // namespace

TolerancePage::TolerancePage(Flow flow)
    : FlowPage(kToleranceScreen, SimulationCaption(flow)), flow_(flow) {
  auto* const group = new QGroupBox(Tr("  Allocation of the pseudo-offspring  "));
  auto* const inside = new QVBoxLayout(group);
  if (flow == Flow::kNonSexed) {
    AddChoices(*inside);
  }
  auto* const form = new QFormLayout;
  field_.emplace(*form);
  QLabel* const note = NewHint(nullptr);
  note->setText(Tr(flow == Flow::kSexed ? kSexedNote : kNonSexedNote));
  note->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
  form->addRow(note);
  inside->addLayout(form);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);
  column->addStretch();
  ShowTolerance();
}

void TolerancePage::AddChoices(QBoxLayout& column) {
  choices_ = new QButtonGroup(this);
  int place = kExcludeStrictly;
  for (const FieldText& text : {kStrictly, kAsRun, kAsInRecord}) {
    auto* const button = new QRadioButton(Tr(text.label));
    Describe(*button, text);
    column.addWidget(button);
    choices_->addButton(button, place);
    ++place;
  }
  choices_->button(kExcludeStrictly)->setChecked(true);
  choices_->button(kAsRecorded)->hide();
  connect(choices_, &QButtonGroup::idToggled, this, [this] { ShowTolerance(); });
}

void TolerancePage::Set(const SimulationSettings& settings) {
  field_->Set(settings.tolerance);
  if (choices_ != nullptr) {
    const bool is_usual = settings.allocate_with == SimulationSettings().allocate_with;
    recorded_ = is_usual ? std::nullopt : settings.allocate_with;
    const Choice choice = is_usual ? kExcludeStrictly : recorded_ ? kAsRecorded : kLikeTheRun;
    choices_->button(kAsRecorded)->setVisible(recorded_.has_value());
    if (recorded_) {
      choices_->button(kAsRecorded)
          ->setText(Tr(kAsInRecord.label) + Text(": ") + TrCore(ShortDescription(*recorded_)));
    }
    choices_->button(choice)->setChecked(true);
  }
  SetErrorModel(settings.error_model);
}

void TolerancePage::FillIn(SimulationSettings& settings) const {
  settings.tolerance = field_->Value();
  if (choices_ == nullptr || choices_->checkedId() == kExcludeStrictly) {
    return;
  }
  settings.allocate_with = choices_->checkedId() == kLikeTheRun ? std::nullopt : recorded_;
}

void TolerancePage::SetErrorModel(const ErrorModel& model) {
  error_model_ = model;
  ShowTolerance();
}

void TolerancePage::ShowTolerance() {
  SimulationSettings settings;
  settings.flow = flow_;
  settings.error_model = error_model_;
  FillIn(settings);
  field_->SetActs(ToleranceActs(settings));
}

}  // namespace kaldo
