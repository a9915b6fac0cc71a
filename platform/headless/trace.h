// Trace: what happened, in order, one line each. The first word of a line is its topic; a test reads the topics that
// it is about.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane::headless {

class Trace {
public:
    void Add(std::string line) { lines_.push_back(std::move(line)); }
    void Clear() { lines_.clear(); }

    const std::vector<std::string>& Lines() const { return lines_; }
    // All lines, or those of the given topics, each ended by a line feed.
    std::string Text(std::initializer_list<std::string_view> topics = {}) const;
    // The same, and forgets everything.
    std::string Take(std::initializer_list<std::string_view> topics = {});

private:
    std::vector<std::string> lines_;
};

}  // namespace vorlane::headless
