#include "widgets/accessiblesheet.h"

#include "sheet/vorlane.h"
#include "widgets/accessibleslide.h"
#include "widgets/conversions.h"
#include "widgets/vorlanewidget.h"

#include <string>
#include <vector>

#include <QCoreApplication>

namespace vorlane {

namespace {

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<VorlaneWidget*>(object);
    return widget == nullptr ? nullptr : new AccessibleSheet(*widget);
}

void TellSlides(VorlaneWidget& widget) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(&widget, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

// Indices of the slides that show an item.
std::vector<int> ShownSlides(const VorlaneWidget& widget) {
    std::vector<int> shown;
    for (int slot = 0; slot <= widget.sheet().Diapo.UpperBound(); ++slot) {
        if (AccessibleSlide::Shows(widget, slot)) shown.push_back(slot);
    }
    return shown;
}

}  // namespace

AccessibleSheet::AccessibleSheet(VorlaneWidget& widget) : QAccessibleWidget(&widget, QAccessible::List) {}

AccessibleSheet::~AccessibleSheet() {
    for (const auto& [slot, id] : slides_) QAccessible::deleteAccessibleInterface(id);
}

void AccessibleSheet::Attach(VorlaneWidget& widget) {
    QAccessible::removeFactory(MakeInterface);
    QAccessible::installFactory(MakeInterface);
    auto& events = widget.sheet().Events;
    for (Event<>* shown : {&events.DisplayEnd, &events.TLRefresh, &events.TLClear}) {
        shown->connect([&widget] { TellSlides(widget); });
    }
    events.AfterEdit.connect([&widget](const std::string& name, const std::string&, bool canceled) {
        if (!canceled) TellName(widget, FromText(name));
    });
    events.OLECompleteDrag.connect([&widget](int32_t&) { TellSelection(widget); });
    events.MouseUp.connect([&widget](int16_t, int16_t, float, float) { TellSelection(widget); });
    events.KeyUp.connect([&widget](int16_t&, int16_t) { TellSelection(widget); });
    events.Click.connect(
        [&widget](int16_t, const vorlane::Picture&, const std::string&, int16_t) { TellSelection(widget); });
}

void AccessibleSheet::TellSelection(VorlaneWidget& widget) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent selection(&widget, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&selection);
    TellFocus(widget);
}

void AccessibleSheet::TellFocus(VorlaneWidget& widget) {
    if (!QAccessible::isActive()) return;
    QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&widget);
    QAccessibleInterface* current = sheet == nullptr ? nullptr : sheet->focusChild();
    if (current == nullptr || current == sheet) return;
    QAccessibleEvent focus(current, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

void AccessibleSheet::TellName(VorlaneWidget& widget, const QString& file) {
    if (!QAccessible::isActive()) return;
    for (const int slot : ShownSlides(widget)) {
        if (widget.ImageFullPath(widget.Value(slot)) == file) TellText(widget, slot, QAccessible::NameChanged);
    }
}

void AccessibleSheet::TellText(VorlaneWidget& widget, int slot, QAccessible::Event change) {
    if (!QAccessible::isActive() || !AccessibleSlide::Shows(widget, slot)) return;
    auto* sheet = dynamic_cast<AccessibleSheet*>(QAccessible::queryAccessibleInterface(&widget));
    if (sheet == nullptr) return;
    QAccessibleEvent event(sheet->SlideAt(slot), change);
    QAccessible::updateAccessibility(&event);
}

VorlaneWidget& AccessibleSheet::Widget() const {
    return *static_cast<VorlaneWidget*>(object());
}

QString AccessibleSheet::text(QAccessible::Text kind) const {
    const QString told = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !told.isEmpty()) return told;
    return QCoreApplication::translate("vorlane::AccessibleSheet", "Planche de diapos");
}

QAccessible::State AccessibleSheet::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = Widget().SelectionMultiple();
    return state;
}

// --- Children ---

int AccessibleSheet::childCount() const {
    return static_cast<int>(ShownSlides(Widget()).size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleSheet::child(int index) const {
    const std::vector<int> shown = ShownSlides(Widget());
    const int slides = static_cast<int>(shown.size());
    if (index < 0) return nullptr;
    return index < slides ? SlideAt(shown[static_cast<size_t>(index)]) : QAccessibleWidget::child(index - slides);
}

QAccessibleInterface* AccessibleSheet::SlideAt(int slot) const {
    const auto known = slides_.find(slot);
    if (known != slides_.end()) return QAccessible::accessibleInterface(known->second);
    auto* slide = new AccessibleSlide(Widget(), slot);
    slides_[slot] = QAccessible::registerAccessibleInterface(slide);
    return slide;
}

QAccessibleInterface* AccessibleSheet::childAt(int x, int y) const {
    if (QAccessibleInterface* native = QAccessibleWidget::childAt(x, y)) return native;
    for (const int slot : ShownSlides(Widget())) {
        QAccessibleInterface* slide = SlideAt(slot);
        if (slide->rect().contains(x, y)) return slide;
    }
    return nullptr;
}

QAccessibleInterface* AccessibleSheet::focusChild() const {
    const int current = Widget().CurrentDiapo();
    if (Widget().hasFocus() && AccessibleSlide::Shows(Widget(), current)) return SlideAt(current);
    return QAccessibleWidget::focusChild();
}

int AccessibleSheet::indexOfChild(const QAccessibleInterface* child) const {
    const std::vector<int> shown = ShownSlides(Widget());
    for (size_t i = 0; i < shown.size(); ++i) {
        const auto known = slides_.find(shown[i]);
        if (known != slides_.end() && QAccessible::accessibleInterface(known->second) == child)
            return static_cast<int>(i);
    }
    const int native = QAccessibleWidget::indexOfChild(child);
    return native < 0 ? -1 : native + static_cast<int>(shown.size());
}

}  // namespace vorlane
