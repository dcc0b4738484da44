// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_theme.h"

#include <QPalette>

namespace kaldo {

namespace {

constexpr int kHalfLight = 128;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < kHalfLight;
}

std::vector<QColor> SeriesColours(bool on_dark) {
  // Six of the eight colours that Okabe and Ito proposed; the darker or the lighter blue first.
  const QColor blue(0, 114, 178);
  const QColor sky(86, 180, 233);
  const QColor vermilion(213, 94, 0);
  const QColor green(0, 158, 115);
  const QColor purple(204, 121, 167);
  const QColor orange(230, 159, 0);
  const QColor grey = on_dark ? QColor(200, 200, 200) : QColor(80, 80, 80);
  return on_dark ? std::vector<QColor>{sky, orange, green, purple, vermilion, grey}
                 : std::vector<QColor>{blue, vermilion, green, purple, orange, grey};
}

}  // namespace

ChartTheme LightTheme() {
  return {QColor(255, 255, 255), QColor(0, 0, 0), QColor(221, 221, 221), SeriesColours(false)};
}

ChartTheme ThemeOf(const QPalette& palette) {
  const QColor background = palette.color(QPalette::Active, QPalette::Base);
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  const auto between = [](int a, int b) { return (5 * a + b) / 6; };
  const QColor grid(between(background.red(), text.red()),
                    between(background.green(), text.green()),
                    between(background.blue(), text.blue()));
  return {background, text, grid, SeriesColours(IsDark(palette))};
}

const CellColours& CertaintyColours::Cell(Certainty certainty) const {
  switch (certainty) {
    case Certainty::kSure:
      return sure;
    case Certainty::kLikely:
      return likely;
    case Certainty::kOpen:
      return open;
    case Certainty::kUncollected:
      break;
  }
  return uncollected;
}

CertaintyColours CertaintyColoursOf(const QPalette& palette) {
  const FitColours fit = FitColoursOf(palette);
  const CellColours plain = IsDark(palette) ? CellColours{QColor(72, 72, 74), QColor(255, 255, 255)}
                                            : CellColours{QColor(228, 228, 228), QColor(0, 0, 0)};
  return {fit.exact, fit.tolerated, fit.excluded, plain};
}

FitColours FitColoursOf(const QPalette& palette) {
  if (IsDark(palette)) {
    const QColor text(255, 255, 255);
    return {{QColor(16, 62, 92), text}, {QColor(92, 66, 0), text}, {QColor(122, 44, 8), text}};
  }
  const QColor text(0, 0, 0);
  return {
      {QColor(207, 231, 245), text}, {QColor(255, 232, 178), text}, {QColor(250, 196, 160), text}};
}

}  // namespace kaldo
