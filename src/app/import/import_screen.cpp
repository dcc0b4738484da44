// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/import/import_screen.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <filesystem>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/base/wait_cursor.h"
#include "app/import/import_fields.h"
#include "app/import/import_files.h"
#include "app/import/import_preview.h"
#include "base/path_text.h"
#include "runs/run_refused.h"

namespace kaldo {

namespace {

constexpr int kTypingPause = 400;  // milliseconds

constexpr auto kNotYet =
    Phrase("The files cannot be converted yet. What is to be settled stands in the list.");
constexpr FieldText kFolder{
    Phrase("&Write to"), "ImportFolder",
    Phrase("The folder for the converted files; it is made where it is not there.")};
constexpr auto kNoSexes = Phrase(
    "This flow needs the sexes of all parents. Tell them by file (\"males\" and \"females\") or by "
    "a "
    "column of sexes (\"More choices\"), or convert the files in the NON-SEXED flow.");

/// Beside the first file, under its name.
std::string FolderBeside(const std::vector<ImportedFile>& files) {
  const std::filesystem::path first = files.empty() ? "study" : FilePath(files.front().path);
  std::filesystem::path folder = first.parent_path() / first.stem();
  return PathText(folder += "-imported");
}

/// A line per fault in the language of the windows; options in it stay, for InWordsOfFields.
QString TrFaults(const ImportFaults& faults) {
  QString text;
  for (const ImportFault& fault : faults.kept) {
    QStringList places{Text(Escaped(fault.file))};
    if (fault.line != 0) {
      places += Tr("line %1").arg(fault.line);
    }
    if (!fault.column.empty()) {
      places += Tr("column %1").arg(Text(Quoted(fault.column)));
    }
    places.removeAll(QString());
    QString place = places.join(Text(", "));
    if (!fault.sample.empty()) {
      place += Text(" (%1)").arg(Text(Escaped(fault.sample)));
    }
    text += (place.isEmpty() ? place : place + Text(": ")) + TrCore(fault.found) + Text("\n");
  }
  return faults.more == 0 ? text : text + Tr("... and %1 more").arg(faults.more) + Text("\n");
}

QLabel* NewLabelOf(QWidget& field, Phrase text) {
  auto* const label = new QLabel(Tr(text));
  label->setBuddy(&field);
  return label;
}

}  // namespace

ImportScreen::ImportScreen(QWidget* parent, ImportNeed need, const std::vector<ImportedFile>& files,
                           FileSource& source)
    : QDialog(parent),
      need_(need),
      source_(source),
      files_(new ImportFiles(files, [this] { TryLater(); })),
      fields_(new ImportFields(need, [this] { TryLater(); })),
      status_(NewHint(nullptr)),
      findings_(new QPlainTextEdit),
      preview_(new ImportPreview),
      folder_(new QLineEdit(PathText(FolderBeside(files)))) {
  setObjectName(Text("Import"));
  setWindowTitle(Tr("Convert files of another program"));
  auto* const area = new QScrollArea;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidget(NewBody());
  auto* const column = new QVBoxLayout(this);
  column->addWidget(area, 1);
  column->addLayout(NewFolderRow());
  column->addLayout(NewButtons());
  pause_.setSingleShot(true);
  pause_.setInterval(kTypingPause);
  connect(&pause_, &QTimer::timeout, this, [this] { Try(); });
  Try();
  const QSize wanted(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 46);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

QWidget* ImportScreen::NewBody() {
  status_->setObjectName(Text("ImportStatus"));
  QFont strong = status_->font();
  strong.setBold(true);
  status_->setFont(strong);
  findings_->setObjectName(Text("ImportFindings"));
  findings_->setAccessibleName(Tr("What is to be settled, and what was found"));
  findings_->setToolTip(Tr("Everything at once, with file, line and cell; can be copied"));
  findings_->setReadOnly(true);
  findings_->setTabChangesFocus(true);
  findings_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  findings_->setMinimumHeight(fontMetrics().lineSpacing() * 6);
  auto* const body = new QWidget;
  auto* const column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(files_);
  column->addWidget(fields_);
  column->addWidget(status_);
  column->addWidget(findings_, 1);
  column->addWidget(NewLabelOf(*preview_, Phrase("&The first individuals")));
  column->addWidget(preview_, 2);
  return body;
}

QLayout* ImportScreen::NewFolderRow() {
  Describe(*folder_, kFolder);
  auto* const browse = NewButton(Phrase("&Browse..."), "ImportBrowse",
                                 Phrase("Choose a folder that is there already"));
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, [this] { BrowseFolder(); });
  connect(folder_, &QLineEdit::textChanged, this, [this] { TryLater(); });
  auto* const row = new QHBoxLayout;
  row->addWidget(NewLabelOf(*folder_, kFolder.label));
  row->addWidget(folder_, 1);
  row->addWidget(browse);
  return row;
}

QLayout* ImportScreen::NewButtons() {
  auto* const convert = NewButton(Phrase("&Convert"), "ImportConvert",
                                  Phrase("Write the files and fill in the fields of the flow"));
  auto* const cancel = NewButton(Phrase("Cancel"), "ImportCancel",
                                 Phrase("Back to the flow; nothing is written (Esc)"));
  connect(convert, &QPushButton::clicked, this, [this] { Convert(); });
  return NewDialogButtons(*this, cancel, convert);
}

void ImportScreen::TryLater() {
  study_.reset();
  pause_.start();
}

void ImportScreen::Try() {
  pause_.stop();
  const WaitCursor waiting;
  study_.reset();
  choices_ = {};
  choices_.files = files_->Files();
  choices_.folder = PathBytes(folder_->text());
  const auto not_understood = fields_->FillIn(choices_);
  ImportTry tried = TryImport(choices_, source_);
  std::string faults = not_understood ? *not_understood + '\n' : "";
  if (choices_.files.empty()) {
    faults += Bytes(Tr("Name a file to be converted.")) + '\n';
  } else if (!tried.study) {
    faults += Bytes(TrFaults(tried.study.error()));
  } else {
    faults += FaultForFlow(*tried.study);
  }
  if (choices_.folder.empty()) {
    faults += Bytes(Tr("Name the folder for the converted files.")) + '\n';
  }
  ShowTry(tried, faults);
  if (faults.empty()) {
    study_ = std::move(*tried.study);
  }
}

std::string ImportScreen::FaultForFlow(const ImportedStudy& study) const {
  return study.settings.flow == need_.flow ? "" : Bytes(Tr(kNoSexes)) + '\n';
}

void ImportScreen::ShowTry(const ImportTry& tried, const std::string& faults) {
  std::string text = faults;
  if (faults.empty()) {
    text = tried.study->summary +
           Bytes(Tr("\"Import report.txt\" in the folder will tell all that is done.")) + '\n';
    for (const std::string& warning : tried.study->warnings) {
      text += Bytes(Tr("Warning: ") + TrCore(warning)) + '\n';
    }
    if (tried.study->settings.offspring_file.empty() && !need_.is_simulation) {
      text += Bytes(Tr("There are no offspring among them.")) + '\n';
    }
  }
  status_->setText(faults.empty() ? Tr("Ready to convert.") : Tr("To be settled first:"));
  findings_->setPlainText(InWordsOfFields(EscapedLines(text)));
  files_->ShowFound(tried.files);
  fields_->ShowNeeded(tried, text, files_->HasOpenFile());
  preview_->Show(tried.preview);
}

void ImportScreen::BrowseFolder() {
  const QString picked =
      QFileDialog::getExistingDirectory(this, Tr("Folder for the files"), folder_->text());
  if (!picked.isEmpty()) {
    folder_->setText(picked);
  }
}

bool ImportScreen::MayReplace() {
  const auto names = FilesToReplace(choices_);
  return names.empty() || AskYesNo(this, Tr("These files are in the folder \"%1\" already and "
                                            "would be replaced or removed: %2. "
                                            "Go on?")
                                             .arg(Text(choices_.folder),
                                                  Text(fmt::format("{}", fmt::join(names, ", ")))));
}

void ImportScreen::Convert() {
  Try();
  if (!study_) {
    ShowSentence(this, kNotYet);
    findings_->setFocus();
    return;
  }
  if (!MayReplace()) {
    return;
  }
  choices_.may_replace = true;  // was asked
  try {
    WriteStudy(choices_, *study_);
  } catch (const RunRefused& refused) {
    return ShowProblem(this, refused.Reason());
  } catch (const RunFailure& failure) {
    return ShowFailure(this, TrCore(failure.what()));
  }
  imported_ = study_->settings;
  accept();
}

}  // namespace kaldo
