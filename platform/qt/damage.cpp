#include "platform/qt/damage.h"

#include <algorithm>
#include <cstdint>

namespace vorlane {

namespace {

constexpr size_t kFewParts = 4;
constexpr size_t kMostParts = 24;
constexpr int64_t kSpread = 2;  // times their own area: parts that lie farther apart stay parts

int64_t AreaOf(const QRect& part) {
    return int64_t{part.width()} * part.height();
}

}  // namespace

std::optional<QRect> Damage::Add(const QRect& part) {
    const auto covers = [&](const QRect& known) { return known.contains(part); };
    if (part.isEmpty() || std::any_of(parts_.begin(), parts_.end(), covers)) return std::nullopt;
    parts_.push_back(part);
    if (parts_.size() <= kFewParts) return part;
    QRect all;
    int64_t area = 0;
    for (const QRect& known : parts_) {
        all |= known;
        area += AreaOf(known);
    }
    if (parts_.size() <= kMostParts && AreaOf(all) > kSpread * area) return part;
    parts_.assign(1, all);
    return all;
}

}  // namespace vorlane
