// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

#include "app/base/tr.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace kaldo {

class ResultTable;

/// The words of a SearchableTable.
struct SearchableTexts {
  std::string_view name;  ///< begins the object names of all parts
  Phrase title;           ///< read out to who cannot see the table
  Phrase find_hint;       ///< stands in the empty field
  Phrase find_help;
  Phrase show_help;
  std::string_view file;  ///< suggested for an export
};

/// A table of results with a text to look for, a list of what to show, the number of rows shown,
/// and buttons to copy and to export them.
///
/// Object names: NAME + "Find", "Show", "Count", "Table", "Copy", "Export".
class SearchableTable : public QWidget {
 public:
  /// Exports are suggested to go into `folder`.
  SearchableTable(const SearchableTexts& texts, const QString& folder, QWidget* parent = nullptr);

  ResultTable& Table() { return *table_; }

  /// The list of what to show, to be filled by the owner.
  QComboBox& Choices() { return *choices_; }

  QString SoughtText() const;

  /// Looks for nothing.
  void ClearSought();

  /// Tells how many rows are shown.
  void SetCount(const QString& text);

  /// Called whenever the user looks for something else or wants something else shown.
  void SetOnChoice(const std::function<void()>& narrow);

 private:
  QLayout* NewChoiceRow(const SearchableTexts& texts);

  ResultTable* table_;
  QLineEdit* find_;
  QComboBox* choices_;
  QLabel* count_;
};

}  // namespace kaldo
