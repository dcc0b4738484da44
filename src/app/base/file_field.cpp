// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/file_field.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr int kTypingPause = 400;  // milliseconds
constexpr int kHintLines = 2;
constexpr int kNarrowest = 22;  // in characters, as the next
constexpr int kWide = 84;       // room for a usual path and the button beside it

/// The one local file that is being dragged, or nothing.
QString DraggedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
}

}  // namespace

FileField::FileField(const FieldText& text, QWidget* parent)
    : QWidget(parent), path_(new QLineEdit(this)), hint_(NewHint(this)) {
  Describe(*path_, text);
  title_ = path_->accessibleName();
  path_->setPlaceholderText(Tr("type, browse or drop a file here"));
  path_->setMinimumWidth(fontMetrics().averageCharWidth() * kNarrowest);
  path_->setAcceptDrops(false);  // a dropped file replaces the text, it is not inserted into it
  // The screen does not jump when a file is named, nor when much is to be said of it.
  hint_->setFixedHeight(kHintLines * fontMetrics().lineSpacing());
  hint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  hint_->setObjectName(path_->objectName() + Text("Hint"));
  convert_ = new QPushButton(Tr("Convert..."), this);
  convert_->setObjectName(path_->objectName() + Text("Convert"));
  convert_->setAccessibleName(Tr("Convert: %1").arg(title_));
  convert_->setToolTip(Tr("Make files that a run takes of this file of another program"));
  convert_->setAutoDefault(false);
  convert_->setMaximumHeight(fontMetrics().height() * 3 / 2);
  QSizePolicy policy = convert_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);  // as the hint does
  convert_->setSizePolicy(policy);
  convert_->hide();

  auto* const browse = new QPushButton(Tr("Browse..."), this);
  browse->setObjectName(path_->objectName() + Text("Browse"));
  browse->setAccessibleName(Tr("Browse for: %1").arg(title_));
  browse->setToolTip(Tr("Look for the file in the folders of this computer"));
  browse->setAutoDefault(false);

  auto* const row = new QHBoxLayout;
  row->addWidget(path_);
  row->addWidget(browse);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(column->spacing() / 2);
  column->addLayout(row);
  auto* const below = new QHBoxLayout;
  below->addWidget(hint_, 1);
  below->addWidget(convert_, 0, Qt::AlignTop);
  column->addLayout(below);

  setAcceptDrops(true);
  setFocusProxy(path_);
  typing_.setSingleShot(true);
  typing_.setInterval(kTypingPause);
  connect(path_, &QLineEdit::textChanged, &typing_, qOverload<>(&QTimer::start));
  connect(&typing_, &QTimer::timeout, this, [this] {
    Refresh();
    if (on_change_) {
      on_change_();
    }
  });
  connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
}

std::string FileField::Path() const { return PathBytes(path_->text()); }

QSize FileField::sizeHint() const {
  return {fontMetrics().averageCharWidth() * kWide, QWidget::sizeHint().height()};
}

void FileField::SetPath(const std::string& path) {
  path_->setText(PathText(path));
  typing_.stop();
  Refresh();
  if (on_change_) {
    on_change_();
  }
}

void FileField::Refresh() {
  if (!isVisible()) {
    return;  // read once, when it is shown
  }
  ShowHint(Path());
}

void FileField::ShowHint(const std::string& path) {
  const auto foreign = path.empty() || !recogniser_ ? std::nullopt : recogniser_(path);
  convert_->setVisible(foreign.has_value());
  hint_->setText(foreign                       ? TrCore(*foreign)
                 : path.empty() || !describer_ ? QString()
                                               : TrCore(describer_(path)));
  hint_->setToolTip(TipText(hint_->text()));
  ShowAsFault(*hint_, !foreign && !path.empty() && is_fault_ && is_fault_(path));
}

void FileField::SetRecogniser(Recogniser recogniser, std::function<void()> convert) {
  recogniser_ = std::move(recogniser);
  connect(convert_, &QPushButton::clicked, this, std::move(convert));
}

void FileField::Browse() {
  const QString picked =
      QFileDialog::getOpenFileName(this, title_, path_->text(),
                                   Tr("Text files (.txt) (*.txt);;Files of other programs (*.gen "
                                      "*.csv *.tsv *.xlsx *.dat *.str "
                                      "*.txt);;All files (*)"));
  if (!picked.isEmpty()) {
    SetPath(PathBytes(picked));
  }
}

void FileField::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) {
    event->acceptProposedAction();
  }
}

void FileField::dropEvent(QDropEvent* event) {
  const QString file = DraggedFile(*event->mimeData());
  if (file.isEmpty()) {
    hint_->setText(Tr("One file at a time can be dropped here."));
    return;
  }
  event->acceptProposedAction();
  SetPath(PathBytes(file));
}

void FileField::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!event->spontaneous()) {
    Refresh();
  }
}

FileField* AddFileField(QFormLayout& form, const FieldText& text) {
  auto* const field = new FileField(text);
  form.addRow(Tr(text.label), field);
  // The key of the label works only on what takes the keyboard itself.
  if (auto* const label = qobject_cast<QLabel*>(form.labelForField(field))) {
    label->setBuddy(field->focusProxy());
  }
  return field;
}

}  // namespace kaldo
