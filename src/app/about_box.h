// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace kaldo {

/// Shows the about box: version, licence, how to cite.
void ShowAboutBox(QWidget* parent);

}  // namespace kaldo
