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

// A table may tell of more than a form designer shows: of properties that no form keeps, and of methods. Those have
// their help text here for the page of all members.
const PropertyTable& SheetProperties();
const PropertyTable& SlideProperties();
const PropertyTable& TimeLineProperties();

}  // namespace vorlane::designer
