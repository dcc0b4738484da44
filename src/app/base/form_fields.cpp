// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/form_fields.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include <fmt/format.h>

#include "app/base/text.h"
#include "base/number_text.h"
#include "base/problem.h"

namespace kaldo {

namespace {

/// The label without its key and the arrow that leads to the field.
QString SpokenName(Phrase label) {
  QString name = Tr(label).remove(QLatin1Char('&'));
  while (name.endsWith(QLatin1Char('>')) || name.endsWith(QLatin1Char('-')) ||
         name.endsWith(QLatin1Char(' ')) || name.endsWith(QLatin1Char(':'))) {
    name.chop(1);
  }
  return name.trimmed();
}

std::string Typed(const QLineEdit& field) { return Bytes(field.text().trimmed()); }

}  // namespace

void Describe(QWidget& widget, const FieldText& text) {
  widget.setObjectName(Text(text.object_name));
  widget.setToolTip(Tr(text.help));
  widget.setWhatsThis(Tr(text.help));
  widget.setAccessibleName(SpokenName(text.label));
  widget.setAccessibleDescription(Tr(text.help));
}

QLineEdit* AddLineEdit(QFormLayout& form, const FieldText& text) {
  auto* const field = new QLineEdit;
  Describe(*field, text);
  form.addRow(Tr(text.label), field);
  return field;
}

QPushButton* NewButton(Phrase caption, std::string_view name, Phrase help) {
  auto* const button = new QPushButton(Tr(caption));
  button->setObjectName(Text(name));
  button->setToolTip(Tr(help));
  return button;
}

QLayout* NewDialogButtons(QDialog& dialog, QPushButton* cancel, QPushButton* act) {
  act->setDefault(true);
  cancel->setAutoDefault(false);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(cancel);
  row->addWidget(act);
  return row;
}

QLabel* NewHint(QWidget* parent) {
  auto* const hint = new QLabel(parent);
  hint->setWordWrap(true);
  hint->setTextFormat(Qt::PlainText);
  hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return hint;
}

void ShowAsFault(QLabel& hint, bool is_fault) {
  QPalette palette;
  if (is_fault) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    palette.setColor(QPalette::WindowText, dark ? QColor(255, 170, 120) : QColor(165, 45, 0));
  }
  hint.setPalette(palette);
}

std::optional<std::int32_t> WholeNumberIn(const QLineEdit& field) {
  return ParseInteger(Typed(field));
}

std::optional<double> NumberIn(const QLineEdit& field) { return ParseDouble(Typed(field)); }

void TellIfNoWholeNumber(const QLineEdit& field, Problem& problem) {
  if (!WholeNumberIn(field)) {
    problem.found = Bytes(Tr("%1 is no whole number").arg(Text(Quoted(Bytes(field.text())))));
  }
}

void TellIfNoNumber(const QLineEdit& field, Problem& problem) {
  if (!NumberIn(field)) {
    problem.found = Bytes(Tr("%1 is no number").arg(Text(Quoted(Bytes(field.text())))));
  }
}

QString NumberText(double value) { return Text(fmt::format("{}", value)); }

QString NumberText(std::int32_t value) { return Text(fmt::format("{}", value)); }

}  // namespace kaldo
