// Wildcards: a file pattern such as "*.jpg;*.png". A name matches the pattern when it matches one of its pieces, which
// ";" separates; blanks around a piece don't count, and an empty piece matches nothing. Case doesn't count, as far as
// Trelmic6::LowerCase goes. "*" stands for any characters, none included, "?" for one. A piece that ends in ".*" takes
// names without a point too, so "*.*" takes every name; one that ends in "." takes names without extension.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class Wildcards {
public:
    explicit Wildcards(std::string_view pattern);

    bool Match(std::string_view name) const;

private:
    std::vector<std::string> pieces_;  // in small letters
};

}  // namespace vorlane
