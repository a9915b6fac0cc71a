#include "editor/preferences.h"

#include <algorithm>
#include <array>

#include <QSettings>

namespace vorlane::editor {

namespace {

const QString kGeometry = QStringLiteral("window/geometry");
const QString kSlideWidth = QStringLiteral("slideWidth");
const QString kSortBy = QStringLiteral("sort/by");
const QString kDescending = QStringLiteral("sort/descending");
const QString kHorizontal = QStringLiteral("horizontal");
const QString kExposition = QStringLiteral("exposition");

// At the place of its number.
constexpr std::array kCriteria{"hand", "name", "modified", "created", "length", "extension"};

SortBy CriterionOf(const QString& name, SortBy otherwise) {
    const auto found = std::find(kCriteria.begin(), kCriteria.end(), name);
    return found == kCriteria.end() ? otherwise : static_cast<SortBy>(found - kCriteria.begin());
}

}  // namespace

Preferences Preferences::Load(const QSettings& settings) {
    Preferences loaded;
    loaded.geometry = settings.value(kGeometry).toByteArray();
    bool number = false;
    const int width = settings.value(kSlideWidth).toInt(&number);
    if (number) loaded.slideWidth = std::clamp(width, slidesize::kLeast, slidesize::kMost);
    loaded.sort.by = CriterionOf(settings.value(kSortBy).toString(), loaded.sort.by);
    loaded.sort.descending = settings.value(kDescending).toBool();
    const int seconds = settings.value(kExposition).toInt(&number);
    if (number) loaded.exposition = std::clamp(seconds, 1, kLongestExposition);
    loaded.horizontal = settings.value(kHorizontal).toBool();
    return loaded;
}

void Preferences::Save(QSettings& settings) const {
    if (!geometry.isEmpty()) settings.setValue(kGeometry, geometry);
    settings.setValue(kSlideWidth, slideWidth);
    settings.setValue(kSortBy, QLatin1String(kCriteria.at(static_cast<size_t>(sort.by))));
    settings.setValue(kDescending, sort.descending);
    settings.setValue(kHorizontal, horizontal);
    settings.setValue(kExposition, exposition);
}

}  // namespace vorlane::editor
