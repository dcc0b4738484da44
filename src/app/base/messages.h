// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string_view>

#include "app/base/tr.h"
#include "base/problem.h"

class QWidget;

namespace kaldo {

/// Shows one sentence with "OK" and waits for it.
void ShowSentence(QWidget* parent, std::string_view sentence);
void ShowSentence(QWidget* parent, Phrase sentence);

/// The same about a file, with a button that opens it.
void ShowSentenceAbout(QWidget* parent, std::string_view sentence, const QString& file);

/// Shows the sentence that closes a run: at the lower edge of its results, which it does not cover.
void ShowClosingSentence(QWidget* results, std::string_view sentence);

/// Shows the sentence of a problem; where to look (file, line, record, what was found) stands below
/// it as details, which can be selected and copied. A file that is there can be opened.
void ShowProblem(QWidget* parent, const Problem& problem);

/// The details of a problem in the language of the windows, names and numbers as they are.
QString TrDetails(const Problem& problem);

/// Tells that something could not be done, for instance that a file cannot be written.
void ShowFailure(QWidget* parent, const QString& text);

/// Asks a question with "Yes" and "No"; "No" is the answer to Esc.
bool AskYesNo(QWidget* parent, const QString& question);

/// The same before something would be lost: "No" is the answer to Enter, too.
bool AskBeforeLoss(QWidget* parent, const QString& question);

}  // namespace kaldo
