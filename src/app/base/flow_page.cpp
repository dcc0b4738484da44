// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/flow_page.h"

#include "app/base/text.h"

namespace kaldo {

FlowPage::FlowPage(const ScreenEntry& entry, std::string_view caption) : caption_(Text(caption)) {
  Name(*this, entry);
}

}  // namespace kaldo
