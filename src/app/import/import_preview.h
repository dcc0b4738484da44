// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableWidget>

#include "interchange/import/study_preview.h"

namespace kaldo {

/// The first individuals of a study side by side, locus below locus: however many loci there are,
/// nothing scrolls sideways.
class ImportPreview : public QTableWidget {
 public:
  ImportPreview();

  void Show(const StudyPreview& preview);

  QSize sizeHint() const override;

 private:
  void SetCell(int row, int column, const std::string& text);
};

}  // namespace kaldo
