#pragma once

namespace brimly {

// Makes Qt read Brimly's widgets as they say they are (see `AccessibleParts`) and list every open
// window, pop-ups included, under the application. Safe to call any number of times; every
// `AccessibleParts` calls it as it is made, before anything can ask for its interface.
void installAccessibility();

}  // namespace brimly
