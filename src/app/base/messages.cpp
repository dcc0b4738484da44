// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/messages.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QUrl>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/version.h"

namespace kaldo {

namespace {

struct Message {
  QMessageBox::Icon icon = QMessageBox::Information;
  QString text = {};
  QString details = {};
  QString file = {};       ///< offered to be opened where it is there
  bool at_bottom = false;  ///< of its window
};

/// Opens what the desktop opens such files with; the message stays.
void OfferToOpen(QMessageBox& box, const QString& file) {
  const QFileInfo info(file);
  if (file.isEmpty() || !info.isFile()) {
    return;
  }
  auto* const open = new QPushButton(Tr("&Open the file"));
  open->setObjectName(Text("OpenFile"));
  open->setToolTip(TipText(QDir::toNativeSeparators(info.absoluteFilePath())));
  box.addButton(open, QMessageBox::HelpRole);
  open->disconnect();  // or it would close the message
  QObject::connect(open, &QPushButton::clicked, &box, [path = info.absoluteFilePath()] {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
  });
}

void ShowBox(QWidget* parent, const Message& message) {
  QMessageBox box(message.icon, Text(kProductTitle), message.text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (!message.details.isEmpty()) {
    box.setDetailedText(message.details);
    // Where the fault is, is what the user needs: the details are open from the start.
    for (QAbstractButton* button : box.buttons()) {
      if (box.buttonRole(button) == QMessageBox::ActionRole) {
        button->click();
      }
    }
  }
  OfferToOpen(box, message.file);
  if (message.at_bottom && parent != nullptr) {
    box.adjustSize();
    const QRect window = parent->frameGeometry();
    box.move(window.center().x() - box.width() / 2, window.bottom() - box.height());
  }
  box.exec();
}

bool Ask(QWidget* parent, const QString& question, QMessageBox::StandardButton at_enter) {
  QMessageBox box(QMessageBox::Question, Text(kProductTitle), question,
                  QMessageBox::Yes | QMessageBox::No, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(at_enter);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace

void ShowSentence(QWidget* parent, std::string_view sentence) {
  ShowBox(parent, {.text = TrCore(sentence)});
}

void ShowSentence(QWidget* parent, Phrase sentence) { ShowBox(parent, {.text = Tr(sentence)}); }

void ShowSentenceAbout(QWidget* parent, std::string_view sentence, const QString& file) {
  ShowBox(parent, {.text = TrCore(sentence), .file = file, .at_bottom = true});
}

void ShowClosingSentence(QWidget* results, std::string_view sentence) {
  ShowBox(results, {.text = TrCore(sentence), .at_bottom = true});
}

void ShowProblem(QWidget* parent, const Problem& problem) {
  ShowBox(parent, {.icon = QMessageBox::Warning,
                   .text = TrCore(SentenceOf(problem)),
                   .details = TrDetails(problem),
                   .file = PathText(problem.file)});
}

QString TrDetails(const Problem& problem) {
  const ProblemKind kind = problem.kind;
  QStringList places{Text(DetailLine({.kind = kind, .file = problem.file}))};
  for (const Problem& place :
       {Problem{.kind = kind, .line = problem.line},
        Problem{.kind = kind, .record = problem.record, .individual = problem.individual},
        Problem{.kind = kind, .locus = problem.locus}}) {
    places += TrCore(DetailLine(place));
  }
  places.removeAll(QString());
  const QString place = places.join(Text(", "));
  const QString found = TrCore(DetailLine({.kind = kind, .found = problem.found}));
  return place.isEmpty() || found.isEmpty() ? place + found : place + Text(": ") + found;
}

void ShowFailure(QWidget* parent, const QString& text) {
  ShowBox(parent, {.icon = QMessageBox::Critical, .text = text});
}

bool AskYesNo(QWidget* parent, const QString& question) {
  return Ask(parent, question, QMessageBox::Yes);
}

bool AskBeforeLoss(QWidget* parent, const QString& question) {
  return Ask(parent, question, QMessageBox::No);
}

}  // namespace kaldo
