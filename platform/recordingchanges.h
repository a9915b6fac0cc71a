// What two recordings of a surface differ in, and where.
#pragma once

#include "platform/drawcommands.h"

#include <cstddef>
#include <limits>
#include <span>

namespace vorlane::draw {

// A part of a surface, pixels; at first it holds nothing.
struct Extent {
    float Left = std::numeric_limits<float>::max();
    float Top = std::numeric_limits<float>::max();
    float Right = std::numeric_limits<float>::lowest();
    float Bottom = std::numeric_limits<float>::lowest();

    void Include(const Extent& other);
    bool Empty() const { return Left >= Right || Top >= Bottom; }
    bool Holds(const Extent& other) const;
    bool Touches(const Extent& other) const;
};

// What a command can touch at most, in any font and at any density.
Extent ExtentOf(const Command& command);

// The commands that two recordings don't both begin or end with.
struct Changes {
    size_t Count = 0;
    Extent Where;
};
Changes ChangesBetween(std::span<const Command> before, std::span<const Command> after);

}  // namespace vorlane::draw
