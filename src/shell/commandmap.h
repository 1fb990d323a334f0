#pragma once

#include "platform/menutable.h"
#include "platform/toolbartable.h"

#include <vector>

namespace zt {

class Tessara;
class Zelvo;

// The command map of the two views: their menus, one row per item in menu order,
// the keys of their toolbars and the buttons of their format bars, each with the
// handler it runs.
const std::vector<MenuRow<Zelvo>>& zelvoMenus();
const std::vector<MenuRow<Tessara>>& tessaraMenus();
const std::vector<ToolKey<Zelvo>>& zelvoToolKeys();
const std::vector<ToolKey<Tessara>>& tessaraToolKeys();
const std::vector<FormatButton<Zelvo>>& zelvoFormatButtons();
const std::vector<FormatButton<Tessara>>& tessaraFormatButtons();

} // namespace zt
