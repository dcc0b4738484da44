// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/figure_saver.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLayout>
#include <QPushButton>
#include <QSpinBox>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_layout.h"
#include "app/results/save_file.h"

namespace kaldo {

FigureSaver::FigureSaver(QWidget& owner, QString name, QString folder, Shown shown)
    : owner_(owner), name_(std::move(name)), folder_(std::move(folder)), shown_(std::move(shown)) {}

QSize FigureSaver::SizeOr(QSize natural) const {
  return millimetres_ ? ChartUnits(*millimetres_) : natural;
}

void FigureSaver::AskSize() {
  constexpr int kSmallest = 40;
  constexpr int kLargest = 400;
  QDialog dialog(owner_.window());
  dialog.setObjectName(Text("ChartSize"));
  dialog.setWindowTitle(Tr("Size of saved charts"));
  auto* const form = new QFormLayout(&dialog);
  const QSize now = Millimetres(SizeOr(shown_().second));
  const auto add = [&](Phrase label, std::string_view name, int value) {
    auto* const field = new QSpinBox;
    field->setObjectName(Text(name));
    field->setRange(kSmallest, kLargest);
    field->setSuffix(Tr(" mm"));
    field->setValue(value);
    form->addRow(Tr(label), field);
    return field;
  };
  const QSpinBox* const width = add(Phrase("&Width"), "ChartWidth", now.width());
  const QSpinBox* const height = add(Phrase("&Height"), "ChartHeight", now.height());
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  form->addRow(buttons);
  if (dialog.exec() == QDialog::Accepted) {
    millimetres_ = QSize(width->value(), height->value());
  }
}

void FigureSaver::AskAndSave() const {
  const QString path = AskWhereToSave(
      owner_.window(), Tr("Save chart"), folder_ + QLatin1Char('/') + name_.toLower(),
      {Tr("Vector graphics (*.svg)"), Tr("Portable document (*.pdf)"),
       Tr("Picture, 300 dpi (*.png)"), Tr("Numbers of the chart (*.csv)")});
  if (!path.isEmpty()) {
    const auto [figure, natural] = shown_();
    SaveFigure(owner_.window(), figure, path, SizeOr(natural));
  }
}

void FigureSaver::CopyPicture() const {
  const auto [figure, natural] = shown_();
  CopyFigure(figure, SizeOr(natural));
}

void FigureSaver::AddButtons(QLayout& row) {
  auto* const save = new QPushButton(Tr("Save c&hart..."));
  save->setObjectName(name_ + Text("Save"));
  save->setToolTip(Tr("Save the chart for an article (SVG, PDF, PNG) or its numbers (CSV)."));
  auto* const size =
      NewButton(Phrase("Si&ze..."), (name_ + Text("Size")).toStdString(),
                Phrase("Choose the width and the height of a saved chart in millimetres."));
  auto* const picture = NewButton(Phrase("Cop&y picture"), (name_ + Text("Picture")).toStdString(),
                                  Phrase("Copy the chart as a picture, for a text or a slide."));
  for (QPushButton* button : {save, size, picture}) {
    row.addWidget(button);
  }
  QObject::connect(save, &QPushButton::clicked, &owner_, [this] { AskAndSave(); });
  QObject::connect(size, &QPushButton::clicked, &owner_, [this] { AskSize(); });
  QObject::connect(picture, &QPushButton::clicked, &owner_, [this] { CopyPicture(); });
}

void FigureSaver::AddMenu(QWidget& widget) {
  widget.setContextMenuPolicy(Qt::ActionsContextMenu);
  const auto add = [&](Phrase text, auto act) {
    auto* const action = new QAction(Tr(text), &widget);
    QObject::connect(action, &QAction::triggered, &owner_, act);
    widget.addAction(action);
  };
  add(Phrase("Copy &picture"), [this] { CopyPicture(); });
  add(Phrase("&Save chart..."), [this] { AskAndSave(); });
  add(Phrase("Si&ze..."), [this] { AskSize(); });
}

}  // namespace kaldo
