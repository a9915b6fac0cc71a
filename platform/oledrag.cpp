// Dragging out of a control.
#include "platform/control.h"
#include "platform/dataobject.h"
#include "platform/failure.h"
#include "platform/usercontrol.h"

namespace vorlane {

namespace {

void AskForContent(DataObject& data, InputEvents& input) {
    int16_t text = kFormatText;
    int16_t files = kFormatFiles;
    if (data.GetFormat(text) && data.Text().empty()) input.OLESetData(data, text);
    if (data.GetFormat(files) && data.Files().empty()) input.OLESetData(data, files);
}

// What a host that does without the system's pointers shows: the picture that the dragged control has for its pointer.
Picture PointerOf(const Control& dragged) {
    const Control* pointing = dragged.WithPointer();
    const bool pictured = pointing != nullptr && pointing->MousePointer() == Control::kPointerIsIcon;
    return pictured ? pointing->MouseIcon() : Picture{};
}

}  // namespace

void Control::OLEDrag() {
    const auto alive = KeepAlive();
    auto* root = dynamic_cast<UserControl*>(&Root());
    if (root == nullptr) throw failures::ObjectNotSet();
    DataObject data;
    int32_t allowed = kDropCopies;
    Input.OLEStartDrag(data, allowed);
    AskForContent(data, Input);
    const auto feedback = [this](int32_t effect) {
        bool defaultCursors = true;
        Attempt([&] { Input.OLEGiveFeedback(effect, defaultCursors); });
        return defaultCursors ? Picture{} : PointerOf(*this);
    };
    int32_t effect = data.Empty() ? 0 : root->Desktop().drags.DoDrag(root->Hwnd(), data, allowed, feedback);
    Input.OLECompleteDrag(effect);
}

}  // namespace vorlane
