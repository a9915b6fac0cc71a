// What a class of a public header offers, read from its text. The headers of the controls are regular enough for that:
// a member a statement, its comment in front of it or behind it.
#pragma once

#include <string>
#include <vector>

namespace vorlane::docs {

struct Member {
    enum class Kind { Function, Event, Data };

    Kind Is = Kind::Function;
    std::string Name;
    std::string Type;       // what a function gives, an event hands over, a variable is
    std::string Arguments;  // of a function
    bool Const = false;
    bool Static = false;
    std::string Text;
};

// The public members of a class or struct of a header, in their order, without what overrides a base's.
std::vector<Member> MembersOf(const std::string& header, const std::string& name);

}  // namespace vorlane::docs
