// The time line from its making to its end.
#include "timeline/etimeline.h"

#include <utility>

namespace vorlane {

namespace {

// The families of systems without gradients of their own, and the system colours of the background.
constexpr bool IsOld(int32_t systemFamily) {
    return systemFamily == 1 || systemFamily == 2 || systemFamily == 3 || systemFamily == 7;
}

constexpr auto kStartColor = static_cast<int32_t>(SystemColor::ButtonHighlight);
constexpr auto kEndColor = static_cast<int32_t>(SystemColor::GradientInactiveCaption);
constexpr auto kOldEndColor = static_cast<int32_t>(SystemColor::ActiveBorder);

}  // namespace

eTimeLine::eTimeLine(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container,
                     int32_t systemFamily)
    : UserControl(desktop, ambient, container),
      utilities_(desktop),
      life_{.OldSystem = IsOld(systemFamily)},
      defaultColorStart_(utilities_.SysColor(kStartColor)),
      defaultColorEnd_(utilities_.SysColor(life_.OldSystem ? kOldEndColor : kEndColor)) {
    SetMusiques(std::make_shared<ClsSon>(desktop));
    SetComments(std::make_shared<ClsSon>(desktop));
    Musiques()->SetTypeSon(kMusic);
    Comments()->SetTypeSon(kComment);
    Input.Click.connect([this] { Events.Click(); });
    Input.DblClick.connect([this] { Events.DblClick(); });
    Input.MouseMove.connect([this](int16_t, int16_t, float x, float y) { SetToolTipText(ToolTipAt(x, y)); });
    ConnectMenu();
}

eTimeLine::~eTimeLine() {
    Terminate();
}

void eTimeLine::Terminate() {
    SetMusiques(nullptr);
    SetComments(nullptr);
    AttachVorlane(nullptr);
    musics_.Bars.clear();
    comments_.Bars.clear();
    menu_ = {};
}

void eTimeLine::Show() {
    life_.ShownOnce = true;
    Paint();
}

void eTimeLine::Clear() {
    for (const Row* row : {&musics_, &comments_}) {
        if (!row->Sounds) throw failures::ObjectNotSet();
        row->Sounds->Clear();
    }
}

void eTimeLine::Report(const Failure& failure, const std::string& text) const {
    Events.Error(failure.Number, failure.Description, failure.Source, failure.LastDllError, text);
}

}  // namespace vorlane
