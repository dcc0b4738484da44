// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/error_page.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr int kShortField = 11;  // characters

struct KindText {
  ErrorKind kind;
  FieldText text;
};

constexpr std::array<KindText, 3> kKinds{{
    {ErrorKind::kNoError,
     {Phrase("&No Error"), "NoError",
      Phrase("Every allele of a parent is read as itself: one misread allele excludes a parent.")}},
    {ErrorKind::kUniform,
     {Phrase("&Uniform"), "Uniform",
      Phrase("An allele may be read as any other allele of its locus, all with the same "
             "probability.")}},
    {ErrorKind::kNonUniform,
     {Phrase("N&on Uniform"), "NonUniform",
      Phrase("An allele may be read one or two unit distances shorter or longer, as stutter and "
             "slips of "
             "the polymerase do.")}},
}};

constexpr FieldText kEpsilon{
    Phrase("&Global error"), "Epsilon",
    Phrase(
        "Probability that an allele is read as any other one, all others together: at most 0.1.")};

/// Over the five fields, in the order in which they stand.
struct ProbabilityText {
  FieldText text;
  double ErrorModel::*value;
};

constexpr std::array<ProbabilityText, 5> kProbabilities{{
    {{Phrase("-&2 units"), "Minus2",
      Phrase("Probability that an allele is read two unit distances shorter.")},
     &ErrorModel::minus2},
    {{Phrase("-&1 unit"), "Minus1",
      Phrase("Probability that an allele is read one unit distance shorter.")},
     &ErrorModel::minus1},
    {{Phrase("&Target Allele"), "Focal",
      Phrase("Probability that an allele is read as itself: 0.9 to 1.")},
     &ErrorModel::focal},
    {{Phrase("+1 un&it"), "Plus1",
      Phrase("Probability that an allele is read one unit distance longer.")},
     &ErrorModel::plus1},
    {{Phrase("+2 unit&s"), "Plus2",
      Phrase("Probability that an allele is read two unit distances longer.")},
     &ErrorModel::plus2},
}};

/// What the field of a probability shows before anything is typed.
std::string_view FirstShown(double ErrorModel::*value) {
  for (const NamedErrorModel& model : NamedErrorModels()) {
    for (const ErrorProbability& probability : model.probabilities) {
      if (probability.value == value) {
        return probability.first_shown;
      }
    }
  }
  return {};
}

QLineEdit* NewShortField(const FieldText& text, double ErrorModel::*value) {
  auto* const field = new QLineEdit(Text(FirstShown(value)));
  Describe(*field, text);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kShortField);
  return field;
}

Problem NoNumber(const QLineEdit& field) {
  return {.kind = ProblemKind::kNotADecimal,
          .found = Bytes(Tr("%1: %2 is not a number")
                             .arg(field.accessibleName(), Text(Quoted(Bytes(field.text())))))};
}

}  // namespace

ErrorModelBox::ErrorModelBox(Phrase title)
    : QGroupBox(Tr(title)), kinds_(new QButtonGroup(this)), sum_(NewHint(this)) {
  auto* const column = new QVBoxLayout(this);
  for (const KindText& kind : kKinds) {
    auto* const button = new QRadioButton(Tr(kind.text.label));
    Describe(*button, kind.text);
    kinds_->addButton(button, static_cast<int>(kind.kind));
    column->addWidget(button);
    if (kind.kind == ErrorKind::kUniform) {
      column->addLayout(UniformRow());
    } else if (kind.kind == ErrorKind::kNonUniform) {
      column->addLayout(NonUniformRow());
    }
  }
  sum_->setObjectName(Text("ProbabilitySum"));
  column->addWidget(sum_);
  column->addStretch();
  ShowSum();
}

QLayout* ErrorModelBox::UniformRow() {
  auto* const form = new QFormLayout;
  epsilon_ = NewShortField(kEpsilon, &ErrorModel::epsilon);
  form->addRow(Tr(kEpsilon.label), epsilon_);
  form->setContentsMargins(fontMetrics().height() * 2, 0, 0, 0);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  return form;
}

QLayout* ErrorModelBox::NonUniformRow() {
  auto* const grid = new QGridLayout;
  grid->setContentsMargins(fontMetrics().height() * 2, 0, 0, 0);
  for (int k = 0; const ProbabilityText& probability : kProbabilities) {
    QLineEdit* const field = NewShortField(probability.text, probability.value);
    auto* const label = new QLabel(Tr(probability.text.label));
    label->setBuddy(field);
    label->setAlignment(Qt::AlignHCenter);
    grid->addWidget(label, 0, k);
    grid->addWidget(field, 1, k);
    connect(field, &QLineEdit::textChanged, this, [this] { ShowSum(); });
    probabilities_.at(static_cast<std::size_t>(k)) = field;
    ++k;
  }
  return grid;
}

void ErrorModelBox::ShowSum() {
  double sum = 0;
  for (const QLineEdit* field : probabilities_) {
    if (field == nullptr) {
      return;  // the fields are still being made
    }
    const auto value = NumberIn(*field);
    if (!value) {
      sum_->setText(Tr("%1: enter a number with a decimal point").arg(field->accessibleName()));
      ShowAsFault(*sum_, true);
      return;
    }
    sum += *value;
  }
  ShowAsFault(*sum_, sum != 1.0);
  sum_->setText(sum == 1.0
                    ? Tr("The five probabilities sum to 1.")
                    : Tr("The five probabilities sum to %1, not to 1.").arg(NumberText(sum)));
}

void ErrorModelBox::Set(const ErrorModel& model) {
  if (QAbstractButton* const button = kinds_->button(static_cast<int>(model.kind))) {
    button->setChecked(true);
  }
  if (model.kind == ErrorKind::kUniform) {
    epsilon_->setText(NumberText(model.epsilon));
  }
  if (model.kind == ErrorKind::kNonUniform) {
    for (std::size_t k = 0; k < kProbabilities.size(); ++k) {
      const double value = model.*kProbabilities.at(k).value;
      if (NumberIn(*probabilities_.at(k)) != value) {  // "0.980" stays as it is
        probabilities_.at(k)->setText(NumberText(value));
      }
    }
  }
}

tl::expected<ErrorModel, Problem> ErrorModelBox::Model() const {
  ErrorModel model;
  const int chosen = kinds_->checkedId();
  model.kind = chosen < 0 ? ErrorKind::kNotChosen : static_cast<ErrorKind>(chosen);
  if (model.kind == ErrorKind::kUniform) {
    const auto epsilon = NumberIn(*epsilon_);
    if (!epsilon) {
      return tl::unexpected(NoNumber(*epsilon_));
    }
    model.epsilon = *epsilon;
  }
  if (model.kind == ErrorKind::kNonUniform) {
    for (std::size_t k = 0; k < kProbabilities.size(); ++k) {
      const auto value = NumberIn(*probabilities_.at(k));
      if (!value) {
        return tl::unexpected(NoNumber(*probabilities_.at(k)));
      }
      model.*kProbabilities.at(k).value = *value;
    }
  }
  return model;
}

ErrorPage::ErrorPage(Phrase caption)
    : FlowPage(kErrorScreen, caption), box_(new ErrorModelBox(Phrase("  Model of error  "))) {
  auto* const column = new QVBoxLayout(this);
  column->addWidget(box_);
}

}  // namespace kaldo
