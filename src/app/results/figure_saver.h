// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <utility>

#include "app/results/chart_files.h"

class QLayout;
class QPushButton;

namespace kaldo {

/// Saves and copies what a page shows as a figure, in a size that the user may choose.
///
/// Object names, with `name` as given: "<name>Save", "<name>Size", "<name>Picture"; in the dialog
/// for the size "ChartSize", "ChartWidth" and "ChartHeight".
class FigureSaver {
 public:
  /// A figure with its natural size in units of 1/96 inch.
  using Shown = std::function<std::pair<Figure, QSize>()>;

  /// Dialogs open over the window of `owner`; `folder` is where files are suggested to go.
  FigureSaver(QWidget& owner, QString name, QString folder, Shown shown);

  void AskAndSave() const;
  void AskSize();
  void CopyPicture() const;

  /// Puts a button for each of these at the end of a row.
  void AddButtons(QLayout& row);

  /// Gives a widget a context menu of the same.
  void AddMenu(QWidget& widget);

 private:
  /// The size chosen, or the natural one.
  QSize SizeOr(QSize natural) const;

  QWidget& owner_;
  QString name_;
  QString folder_;
  Shown shown_;
  std::optional<QSize> millimetres_;  ///< as chosen
};

}  // namespace kaldo
