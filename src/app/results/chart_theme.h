// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <vector>

#include "confidence/certainty.h"

class QPalette;

namespace kaldo {

/// The colours of a chart. Series follow a set that people with any colour vision tell apart; they
/// differ in their markers as well.
struct ChartTheme {
  QColor background;
  QColor text;
  QColor grid;
  std::vector<QColor> series;
};

/// For files, which end on paper: dark on white.
ChartTheme LightTheme();

/// For the screen, light or dark like its windows.
ChartTheme ThemeOf(const QPalette& palette);

/// What a locus says about a parent, as the background of a table cell and the text on it.
struct CellColours {
  QColor background;
  QColor text;
};

struct FitColours {
  CellColours exact;
  CellColours tolerated;
  CellColours excluded;
};

/// Of a table that tells how sure allocations are.
struct CertaintyColours {
  CellColours sure;
  CellColours likely;
  CellColours open;
  CellColours uncollected;

  const CellColours& Cell(Certainty certainty) const;
};

CertaintyColours CertaintyColoursOf(const QPalette& palette);

/// The colours of a comparison that can be read on this palette.
FitColours FitColoursOf(const QPalette& palette);

}  // namespace kaldo
