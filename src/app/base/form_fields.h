// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "app/base/tr.h"

class QDialog;
class QFormLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QString;
class QWidget;

namespace kaldo {

struct Problem;

/// How a field of a screen is labelled and explained.
struct FieldText {
  Phrase label;  ///< with "&" before its key
  std::string_view object_name;
  Phrase help;  ///< what the value means to a geneticist, with unit and range
};

/// Sets object name, tooltip and the name that a screen reader says.
void Describe(QWidget& widget, const FieldText& text);

/// A line for one value, with its label.
QLineEdit* AddLineEdit(QFormLayout& form, const FieldText& text);

/// A button with its name and its tooltip.
QPushButton* NewButton(Phrase caption, std::string_view name, Phrase help);

/// The last row of a dialog: the button that leaves it, and the one that acts, which Enter presses.
QLayout* NewDialogButtons(QDialog& dialog, QPushButton* cancel, QPushButton* act);

/// A line of plain words that explains or warns; wraps.
QLabel* NewHint(QWidget* parent);

/// Colours a hint that tells a fault, or takes the colour back.
void ShowAsFault(QLabel& hint, bool is_fault);

// Numbers are read and written with a decimal point, whatever the language of the desktop.

/// The whole number in the field, blanks around it left out, or nothing.
std::optional<std::int32_t> WholeNumberIn(const QLineEdit& field);

/// Any number in the field, blanks around it left out, or nothing.
std::optional<double> NumberIn(const QLineEdit& field);

/// Has the problem say what stands in the field, where that is no whole number, or no number.
void TellIfNoWholeNumber(const QLineEdit& field, Problem& problem);
void TellIfNoNumber(const QLineEdit& field, Problem& problem);

/// The shortest text that reads back as the same number.
QString NumberText(double value);
QString NumberText(std::int32_t value);

}  // namespace kaldo
