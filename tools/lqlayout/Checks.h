#pragma once

#include <string>
#include <vector>

#include "tools/commandline/ScreenSize.h"
#include "tools/lqlayout/Findings.h"
#include "tools/lqlayout/Layout.h"

/// What may be wrong with a layout that can be loaded. Images, fonts and language tables are those of the
/// device root.
namespace korvane::tools {

/// What a text says and no control takes: unknown keys, values of another type or out of range. Finds
/// nothing in a compiled layout.
void CheckValues(Layout& layout, Findings& findings);

/// Names that several controls have, controls that no application can find, kinds that only one knows.
void CheckNames(const Layout& layout, Findings& findings);

/// Images that are missing or damaged, or larger than the area that shows them.
void CheckPictures(const Layout& layout, Findings& findings);

/// Controls that cannot be seen or reach beyond the screen; overlaps of those that take touches.
void CheckPlaces(const Layout& layout, const ScreenSize& screen, Findings& findings);

/// Texts that are too wide for their place. Those of a language identifier are looked up in each of the
/// language tables, which are named as for CLQLangManager::LoadLanguage.
void CheckTexts(const Layout& layout, const std::vector<std::string>& languages, Findings& findings);

}  // namespace korvane::tools
