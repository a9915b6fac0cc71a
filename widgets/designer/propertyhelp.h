// What a form designer tells of the properties of the controls: the group of each and its tool tip, in French.
#pragma once

#include <vector>

namespace vorlane::designer {

struct PropertyHelp {
    const char* Name;
    const char* Group;
    const char* Text;
};

using PropertyTable = std::vector<PropertyHelp>;

// A table may tell of more than a control has.
const PropertyTable& SheetProperties();
const PropertyTable& SlideProperties();
const PropertyTable& TimeLineProperties();

}  // namespace vorlane::designer
