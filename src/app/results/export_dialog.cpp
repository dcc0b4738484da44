// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/export_dialog.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/file_field.h"
#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/base/wait_cursor.h"
#include "runs/run_refused.h"

namespace kaldo {

namespace {

constexpr FieldText kSexes{
    Phrase("&Sexes file"), "ExportSexes",
    Phrase(
        "Per line an individual and m or f. Without it pedigrees name parent 1 and parent 2, which "
        "some programs do not take.")};
constexpr FieldText kLeast{
    Phrase("&Least probability"), "ExportLeast",
    Phrase("Pedigrees leave out parents that are less sure, for instance 0.95. "
           "Empty: all that are named.")};
constexpr FieldText kFolder{
    Phrase("&Write to"), "ExportFolder",
    Phrase("In the folder of the run the files become a part of it, and its record lists them.")};

/// Makes the files and tells what kept them from being made; nothing then.
std::optional<Exported> Make(QWidget* parent, const ExportOffer& offer, const WantedExports& wanted,
                             const ExportPlace& place) {
  try {
    auto exported = [&] {
      const WaitCursor waiting;
      return offer.make(wanted, place);
    }();
    if (exported) {
      return std::move(*exported);
    }
    ShowProblem(parent, exported.error());
  } catch (const RunRefused& refused) {
    ShowProblem(parent, refused.Reason());
  } catch (const RunFailure& failure) {
    ShowFailure(parent, TrCore(failure.what()));
  }
  return std::nullopt;
}

std::string DoneText(const Exported& exported, const QString& folder) {
  std::string text = Bytes(Tr("Files in \"%1\":").arg(folder)) + '\n';
  for (const ExportedFile& file : exported.files) {
    text += fmt::format("  {}\n", file.name.substr(1));
  }
  for (const std::string& warning : exported.warnings) {
    text += '\n' + warning + '\n';
  }
  return text;
}

}  // namespace

bool ExportOffer::Has(ExportForm form) const {
  return std::any_of(forms.begin(), forms.end(),
                     [form](const NamedExportForm& each) { return each.choice == form; });
}

ExportDialog::ExportDialog(QWidget* parent, const ExportOffer& offer, QString folder)
    : QDialog(parent),
      offer_(offer),
      run_folder_(std::move(folder)),
      folder_(new QLineEdit(QDir::toNativeSeparators(run_folder_))) {
  setObjectName(Text("Exports"));
  setWindowTitle(Tr("Export the results"));
  auto* const column = new QVBoxLayout(this);
  AddForms(*column);
  if (offer.Has(&ExportForms::pedigree)) {
    column->addWidget(NewPedigreeFields());
  }
  column->addLayout(NewFolderRow());
  column->addStretch();
  column->addLayout(NewButtons());
  setMinimumWidth(fontMetrics().averageCharWidth() * 100);
}

void ExportDialog::AddForms(QLayout& column) {
  for (const NamedExportForm& form : offer_.forms) {
    auto* const box = new QCheckBox(Text("%1 (%2)").arg(TrCore(form.help), Text(form.name)));
    box->setObjectName(Text(fmt::format("ExportForm_{}", form.name)));
    box->setToolTip(Tr("Write the results in this form"));
    box->setChecked(offer_.forms.size() == 1);
    column.addWidget(box);
    forms_.push_back({form.choice, box});
  }
}

QWidget* ExportDialog::NewPedigreeFields() {
  auto* const fields = new QWidget;
  auto* const form = new QFormLayout(fields);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  if (offer_.needs_sexes) {
    sexes_ = AddFileField(*form, kSexes);
  }
  least_ = AddLineEdit(*form, kLeast);
  if (!offer_.without_probabilities.IsEmpty()) {
    least_->setEnabled(false);
    least_->setPlaceholderText(Tr(offer_.without_probabilities));
    least_->setToolTip(Tr(offer_.without_probabilities));
  }
  fields->setVisible(false);
  for (const Form& each : forms_) {
    if (each.form == &ExportForms::pedigree) {
      connect(each.box, &QCheckBox::toggled, fields, &QWidget::setVisible);
    }
  }
  return fields;
}

QLayout* ExportDialog::NewFolderRow() {
  Describe(*folder_, kFolder);
  auto* const label = new QLabel(Tr(kFolder.label));
  label->setBuddy(folder_);
  auto* const browse =
      NewButton(Phrase("&Browse..."), "ExportBrowse", Phrase("Choose another folder"));
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, [this] { BrowseFolder(); });
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(folder_, 1);
  row->addWidget(browse);
  return row;
}

QLayout* ExportDialog::NewButtons() {
  auto* const write = NewButton(Phrase("&Export"), "ExportWrite", Phrase("Write the files"));
  auto* const cancel =
      NewButton(Phrase("Cancel"), "ExportCancel", Phrase("Nothing is written (Esc)"));
  connect(write, &QPushButton::clicked, this, [this] { Write(); });
  return NewDialogButtons(*this, cancel, write);
}

void ExportDialog::BrowseFolder() {
  const QString picked =
      QFileDialog::getExistingDirectory(this, Tr("Folder for the files"), folder_->text());
  if (!picked.isEmpty()) {
    folder_->setText(QDir::toNativeSeparators(picked));
  }
}

std::optional<WantedExports> ExportDialog::Wanted() {
  WantedExports wanted;
  for (const Form& each : forms_) {
    wanted.forms.*each.form = each.box->isChecked();
  }
  if (!wanted.forms.Any()) {
    ShowSentence(this, Phrase("Tick the forms in which the results are wanted."));
    return std::nullopt;
  }
  if (wanted.forms.pedigree && sexes_ != nullptr) {
    wanted.sexes_file = sexes_->Path();
  }
  if (wanted.forms.pedigree && least_ != nullptr && !least_->text().trimmed().isEmpty()) {
    const auto least = LeastProbabilityKind().parse("Least probability", Bytes(least_->text()));
    if (!least) {
      ShowProblem(this, least.error());
      return std::nullopt;
    }
    wanted.least_probability = *least;
  }
  return wanted;
}

void ExportDialog::Write() {
  const auto wanted = Wanted();
  if (!wanted) {
    return;
  }
  ExportPlace place{.run_folder = PathBytes(run_folder_)};
  if (QDir(folder_->text()) != QDir(run_folder_)) {
    place.folder = PathBytes(folder_->text());
    place.may_replace = [this](const std::vector<std::string>& names) {
      return AskYesNo(this,
                      Tr("These files are in the folder already and would be replaced: %1. Go on?")
                          .arg(Text(fmt::format("{}", fmt::join(names, ", ")))));
    };
  }
  const auto exported = Make(this, offer_, *wanted, place);
  if (exported && !exported->files.empty()) {
    ShowSentence(this, DoneText(*exported, folder_->text()));
    accept();
  }
}

void OpenHtmlReport(QWidget* parent, const ExportOffer& offer, const QString& folder) {
  WantedExports wanted;
  wanted.forms.page = true;
  const auto exported = Make(parent, offer, wanted, {.run_folder = PathBytes(folder)});
  if (!exported) {
    return;
  }
  const auto page = std::find_if(exported->files.begin(), exported->files.end(),
                                 [](const auto& file) { return file.name.ends_with(".html"); });
  const QString path =
      folder + Text(page == exported->files.end() ? std::string_view() : page->name);
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
    ShowFailure(parent, Tr("The report \"%1\" was written, but cannot be opened.").arg(path));
  }
}

}  // namespace kaldo
