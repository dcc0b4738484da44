// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/messages.h"

#include <QAbstractButton>
#include <QMessageBox>

#include "app/base/text.h"
#include "base/version.h"

namespace kaldo {

namespace {

void ShowBox(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& details) {
  QMessageBox box(icon, Text(kProductTitle), text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (!details.isEmpty()) {
    box.setDetailedText(details);
    // Where the fault is, is what the user needs: the details are open from the start.
    for (QAbstractButton* button : box.buttons()) {
      if (box.buttonRole(button) == QMessageBox::ActionRole) {
        button->click();
      }
    }
  }
  box.exec();
}

}  // namespace

void ShowSentence(QWidget* parent, std::string_view sentence) {
  ShowBox(parent, QMessageBox::Information, Text(sentence), {});
}

void ShowProblem(QWidget* parent, const Problem& problem) {
  ShowBox(parent, QMessageBox::Warning, Text(SentenceOf(problem)), Text(DetailLine(problem)));
}

void ShowFailure(QWidget* parent, const QString& text) {
  ShowBox(parent, QMessageBox::Critical, text, {});
}

bool AskYesNo(QWidget* parent, const QString& question) {
  QMessageBox box(QMessageBox::Question, Text(kProductTitle), question,
                  QMessageBox::Yes | QMessageBox::No, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace kaldo
