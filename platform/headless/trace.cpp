#include "platform/headless/trace.h"

#include <algorithm>
#include <utility>

namespace vorlane::headless {

std::string Trace::Text(std::initializer_list<std::string_view> topics) const {
    std::string text;
    for (const std::string& line : lines_) {
        const std::string_view topic = std::string_view(line).substr(0, line.find(' '));
        const bool wanted = topics.size() == 0 || std::find(topics.begin(), topics.end(), topic) != topics.end();
        if (wanted) text += line + "\n";
    }
    return text;
}

std::string Trace::Take(std::initializer_list<std::string_view> topics) {
    std::string text = Text(topics);
    Clear();
    return text;
}

}  // namespace vorlane::headless
