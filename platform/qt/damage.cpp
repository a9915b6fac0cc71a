#include "platform/qt/damage.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr size_t kMostParts = 4;

}  // namespace

std::optional<QRect> Damage::Add(const QRect& part) {
    const auto covers = [&](const QRect& known) { return known.contains(part); };
    if (part.isEmpty() || std::any_of(parts_.begin(), parts_.end(), covers)) return std::nullopt;
    parts_.push_back(part);
    if (parts_.size() <= kMostParts) return part;
    QRect all;
    for (const QRect& known : parts_) all |= known;
    parts_.assign(1, all);
    return all;
}

}  // namespace vorlane
