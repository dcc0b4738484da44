// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kaldo {

/// A text of the core, UTF-8, as windows show it. Bytes that are no UTF-8 show as a question mark.
QString Text(std::string_view text);

/// What a user typed, as the core takes it.
std::string Bytes(const QString& text);

/// A text for a tip, which shows it as it is, in lines that a small screen has room for: a name of
/// a file or a locus may look like HTML, of which a tip would load pictures and follow the format.
QString TipText(const QString& text);

/// A file name of the core, UTF-8 on every system, as windows show it, and back to its bytes.
QString PathText(const std::string& path);
std::string PathBytes(const QString& path);

}  // namespace kaldo
