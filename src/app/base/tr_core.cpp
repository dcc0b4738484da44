// SPDX-License-Identifier: GPL-3.0-or-later
#include <QRegularExpression>
#include <algorithm>
#include <optional>
#include <vector>

#include "app/base/core_phrases.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

/// A sentence with places, as it is found in what the core said.
struct Frame {
  Phrase phrase;
  QRegularExpression pattern;
};

/// Only those with places: whole texts are found by their words. With `one_word` a sentence begins
/// with one word in its place, a number or a name, so that it is not found within another one.
std::vector<Frame> FramesOf(std::span<const Phrase> phrases, bool one_word) {
  static const QRegularExpression first(QStringLiteral("^\\\\%[1-9]"));
  static const QRegularExpression place(QStringLiteral("\\\\%[1-9]"));
  std::vector<Frame> frames;
  for (const Phrase& phrase : phrases) {
    const QString words = QRegularExpression::escape(Text(phrase.English()));
    QString pattern = words;
    if (one_word) {
      pattern.replace(first, QStringLiteral("(\\S+)"));
    }
    if (pattern.replace(place, QStringLiteral("(.+?)")) != words) {
      frames.push_back({phrase, QRegularExpression(QRegularExpression::anchoredPattern(pattern))});
    }
  }
  return frames;
}

/// Puts the parts into the places of a text, all at once: a part may look like a place.
QString Filled(const QString& text, const QStringList& parts) {
  QString filled;
  for (qsizetype k = 0; k < text.size(); ++k) {
    const bool is_place = text[k] == QLatin1Char('%') && k + 1 < text.size() &&
                          text[k + 1].isDigit() && text[k + 1] != QLatin1Char('0');
    filled += is_place ? parts.value(text[++k].digitValue() - 1) : QString(text[k]);
  }
  return filled;
}

std::optional<QString> Said(const QString& english);

/// A text of several lines is known by its lines.
QString SaidOrSame(const QString& english) {
  const auto said = Said(english);
  QStringList lines = english.split(QLatin1Char('\n'));
  if (said || lines.size() == 1) {
    return said.value_or(english);
  }
  std::transform(lines.begin(), lines.end(), lines.begin(), SaidOrSame);
  return lines.join(QLatin1Char('\n'));
}

std::optional<QString> SaidWhole(const QString& english) {
  const QByteArray words = english.toUtf8();
  const QString said = Tr(words.constData());
  return said == english ? std::nullopt : std::optional(said);
}

std::optional<QString> SaidInFrame(const QString& english) {
  static const std::vector<Frame> sentences = FramesOf(CoreSentences(), true);
  static const std::vector<Frame> frames = FramesOf(CoreFrames(), false);
  for (const auto* const kind : {&sentences, &frames}) {
    for (const Frame& frame : *kind) {
      const auto match = frame.pattern.match(english);
      if (!match.hasMatch()) {
        continue;
      }
      QStringList parts = match.capturedTexts().mid(1);
      if (kind == &frames) {
        std::transform(parts.begin(), parts.end(), parts.begin(), SaidOrSame);
      }
      return Filled(Tr(frame.phrase), parts);
    }
  }
  return std::nullopt;
}

/// A beginning is translated, and what follows it is shown as it is.
std::optional<QString> SaidAtBeginning(const QString& english) {
  for (const Phrase& beginning : CoreBeginnings()) {
    if (const QString words = Text(beginning.English()); english.startsWith(words)) {
      return Tr(beginning) + english.mid(words.size());
    }
  }
  return std::nullopt;
}

/// A list of which all parts are known.
std::optional<QString> SaidInParts(const QString& english, const QString& between) {
  const QStringList parts = english.split(between);
  QStringList said;
  for (const QString& part : parts) {
    const auto known = parts.size() > 1 ? Said(part) : std::nullopt;
    if (!known) {
      return std::nullopt;
    }
    said += *known;
  }
  return said.join(between);
}

std::optional<QString> Said(const QString& english) {
  if (auto said = SaidWhole(english)) {
    return said;
  }
  for (const char* const between : {"; ", ", "}) {
    if (auto said = SaidInParts(english, Text(between))) {
      return said;
    }
  }
  if (auto said = SaidInFrame(english)) {
    return said;
  }
  if (auto said = SaidAtBeginning(english)) {
    return said;
  }
  const bool is_sentence = english.endsWith(QLatin1Char('.'));
  const auto said = is_sentence ? Said(english.chopped(1)) : std::nullopt;
  return said ? std::optional(*said + QLatin1Char('.')) : std::nullopt;
}

}  // namespace

QString TrCore(std::string_view english) {
  const QString text = Text(english);
  const bool is_english = Tr("English") == Text("English");  // the name of the language in itself
  return is_english ? text : SaidOrSame(text);
}

}  // namespace kaldo
