// The one log line of a failure on the time line: "TimeLine ", the operation, a blank, then the operation's arguments
// with " - " between them.
#pragma once

#include "sheet/log.h"

#include <string>
#include <string_view>

namespace vorlane {

template <class... Arguments>
std::string TimeLineLogText(std::string_view operation, const Arguments&... arguments) {
    std::string text = "TimeLine ";
    text.append(operation).append(" ");
    std::string_view separator;
    ((text.append(separator).append(LogArgument(arguments)), separator = " - "), ...);
    return text;
}

}  // namespace vorlane
