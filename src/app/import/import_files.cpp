// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/import/import_files.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/counted_text.h"

namespace kaldo {

namespace {

/// Who all in a file are.
struct Who {
  Phrase text;
  Role role;
  Sex sex;
};

constexpr std::array<Who, 5> kWho{{{Phrase("as its rows tell"), Role::kUnknown, Sex::kUnknown},
                                   {Phrase("parents"), Role::kParent, Sex::kUnknown},
                                   {Phrase("males"), Role::kParent, Sex::kMale},
                                   {Phrase("females"), Role::kParent, Sex::kFemale},
                                   {Phrase("offspring"), Role::kOffspring, Sex::kUnknown}}};

constexpr auto kWhoHelp = Phrase(
    "Who is in the file: parents, males, females or offspring alone, or both parents and "
    "offspring, "
    "told by a column, by populations or by the format itself.");

QComboBox* NewWho(const ImportedFile& file) {
  auto* const who = new QComboBox;
  for (const Who& each : kWho) {
    who->addItem(Tr(each.text));
    if (each.role == file.role && each.sex == file.sex) {
      who->setCurrentIndex(who->count() - 1);
    }
  }
  return who;
}

}  // namespace

ImportFiles::ImportFiles(const std::vector<ImportedFile>& files, std::function<void()> on_change)
    : on_change_(std::move(on_change)), list_(new QWidget) {
  auto* const rows = new QVBoxLayout(list_);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* const add =
      NewButton(Phrase("&Add a file..."), "ImportAdd",
                Phrase("A further file of the same study, for instance that of the offspring"));
  add->setAutoDefault(false);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(list_);
  column->addWidget(add, 0, Qt::AlignLeft);
  connect(add, &QPushButton::clicked, this, [this] { AskForFile(); });
  for (const ImportedFile& file : files) {
    AddRow(file);
  }
}

void ImportFiles::AddRow(const ImportedFile& file) {
  const QString number = QString::number(++made_);
  const QString name = QFileInfo(PathText(file.path)).fileName();
  auto* const widget = new QWidget;
  auto* const path = new QLineEdit(PathText(file.path));
  path->setObjectName(Text("ImportFile") + number);
  path->setReadOnly(true);
  path->setAccessibleName(Tr("File to convert"));
  path->setToolTip(TipText(PathText(file.path)));
  Row row{widget, file.path, NewWho(file), NewHint(nullptr)};
  row.who->setObjectName(Text("ImportWho") + number);
  row.who->setAccessibleName(Tr("Who is in %1").arg(name));
  row.who->setToolTip(Tr(kWhoHelp));
  auto* const remove = NewButton(Phrase("Remove"), "",
                                 Phrase("Leave this file out; nothing happens to the file itself"));
  remove->setObjectName(Text("ImportRemove") + number);
  remove->setAccessibleName(Tr("Remove %1").arg(name));
  remove->setAutoDefault(false);
  auto* const line = new QHBoxLayout;
  line->addWidget(path, 1);
  line->addWidget(row.who);
  line->addWidget(remove);
  auto* const column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(line);
  column->addWidget(row.found);
  list_->layout()->addWidget(widget);
  connect(row.who, &QComboBox::currentIndexChanged, this, [this] { on_change_(); });
  connect(remove, &QPushButton::clicked, this, [this, widget] { RemoveRow(widget); });
  rows_.push_back(std::move(row));
}

void ImportFiles::RemoveRow(const QWidget* widget) {
  const auto row = std::find_if(rows_.begin(), rows_.end(),
                                [widget](const Row& each) { return each.widget == widget; });
  row->widget->hide();
  row->widget->deleteLater();
  rows_.erase(row);
  on_change_();
}

void ImportFiles::AskForFile() {
  const QString near = rows_.empty() ? QString() : QFileInfo(PathText(rows_[0].path)).path();
  const QString picked = QFileDialog::getOpenFileName(this, Tr("A further file"), near);
  if (!picked.isEmpty()) {
    AddRow({PathBytes(picked)});
    on_change_();
  }
}

std::vector<ImportedFile> ImportFiles::Files() const {
  std::vector<ImportedFile> files;
  files.reserve(rows_.size());
  for (const Row& row : rows_) {
    const Who& who = kWho.at(static_cast<std::size_t>(row.who->currentIndex()));
    files.push_back({row.path, who.role, who.sex});
  }
  return files;
}

bool ImportFiles::HasOpenFile() const {
  return std::any_of(rows_.begin(), rows_.end(),
                     [](const Row& row) { return row.who->currentIndex() == 0; });
}

void ImportFiles::ShowFound(const std::vector<ReadFile>& found) {
  for (const Row& row : rows_) {
    const auto file = std::find_if(found.begin(), found.end(),
                                   [&row](const ReadFile& each) { return each.path == row.path; });
    row.found->setText(file == found.end()
                           ? Tr("not read")
                           : Tr("%1, %2; %3. Taken for that, since %4.")
                                 .arg(Text(file->format),
                                      TrCount("%n individuals", "%n individual", file->individuals),
                                      TrCore(file->text), TrCore(file->why)));
  }
}

}  // namespace kaldo
