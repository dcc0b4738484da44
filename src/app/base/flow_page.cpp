// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/flow_page.h"

namespace kaldo {

FlowPage::FlowPage(const ScreenEntry& entry, Phrase caption) : caption_(Tr(caption)) {
  Name(*this, entry);
}

}  // namespace kaldo
