// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/tolerance_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "app/base/form_fields.h"
#include "app/base/text.h"

namespace kaldo {

namespace {

constexpr std::string_view kNonSexedNote =
    "The pseudo-offspring are allocated as in an allocation with the model No Error, to the "
    "collected or pseudo-collected parents only.";
constexpr std::string_view kSexedNote =
    "The pseudo-offspring are allocated as in an allocation with the same transmission error, to "
    "the collected or pseudo-collected males and females only.";

}  // namespace

TolerancePage::TolerancePage(Flow flow) : FlowPage(kToleranceScreen, SimulationCaption(flow)) {
  auto* const group = new QGroupBox(Text("  Allocation of the pseudo-offspring  "));
  auto* const form = new QFormLayout(group);
  field_.emplace(*form);
  QLabel* const note = NewHint(nullptr);
  note->setText(Text(flow == Flow::kSexed ? kSexedNote : kNonSexedNote));
  note->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
  form->addRow(note);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);
  column->addStretch();
}

}  // namespace kaldo
