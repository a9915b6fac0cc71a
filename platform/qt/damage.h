// Damage: the parts of a widget that have been asked to be painted and are not painted yet. A control that changes in
// many places at once costs its widget a few requests and one painting.
#pragma once

#include <optional>
#include <vector>

#include <QRect>

namespace vorlane {

class Damage {
public:
    // What is to be asked for now that part is damaged; nothing when it has been asked for already. What lies between
    // many parts is painted with them, unless it is much more than they are.
    std::optional<QRect> Add(const QRect& part);
    // Everything has been painted.
    void Clear() { parts_.clear(); }

private:
    std::vector<QRect> parts_;
};

}  // namespace vorlane
