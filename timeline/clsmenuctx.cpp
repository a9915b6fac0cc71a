#include "timeline/clsmenuctx.h"

namespace vorlane {

namespace {

constexpr uint32_t kTracking = TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD | TPM_VERNEGANIMATION;
constexpr int32_t kParametersSize = 20;

// A popup that is gone at the end of its scope.
class Popup {
public:
    Popup(Menus& menus, Hmenu& handle) : menus_(menus), handle_(handle) { handle_ = menus_.CreatePopupMenu(); }
    ~Popup() {
        menus_.DestroyMenu(handle_);
        handle_ = 0;
    }
    Popup(const Popup&) = delete;
    Popup& operator=(const Popup&) = delete;

private:
    Menus& menus_;
    Hmenu& handle_;
};

}  // namespace

void ClsMenuCtx::MenuTimeLine(Hwnd hWndParent, const Sounds& mColMusic, const Sounds& mColComment, bool onlyFiles,
                              int32_t x, int32_t Y) {
    Events.ItemClic(Choose(hWndParent, mColMusic, mColComment, onlyFiles, {x, Y}));
}

int32_t ClsMenuCtx::Choose(Hwnd hWndParent, const Sounds& music, const Sounds& comment, bool onlyFiles, Point place) {
    static constexpr Command kBoth[] = {
        {"2061", "Musique ou commentaire précédent", "(F2)", emnutlPreviousSound},
        {"2062", "Musique ou commentaire suivant", "(F5)", emnutlNextSound},
    };
    static constexpr Command kMusics[] = {
        {"2057", "Musique précédente", "(F3)", emnutlPreviousMusic},
        {"2058", "Musique suivante", "(F6)", emnutlNextMusic},
    };
    static constexpr Command kComments[] = {
        {"2059", "Commentaire précédent", "(F4)", emnutlPreviousComment},
        {"2060", "Commentaire suivant", "(F7)", emnutlNextComment},
    };
    const Popup popup(desktop_.menus, popup_);
    const auto commands = [&](const auto& group) {
        if (onlyFiles) return;
        for (const Command& command : group) AppendCommand(popup_, command);
        AppendSeparator(popup_);
    };
    commands(kBoth);
    commands(kMusics);
    if (music && music->Count() > 0) {
        AppendSounds(popup_, *music);
        if (!onlyFiles || comment) AppendSeparator(popup_);
    }
    commands(kComments);
    if (comment && comment->Count() > 0) AppendSounds(popup_, *comment);

    desktop_.menus.DrawMenuBar(hWndParent);
    if (place.X == -1 || place.Y == -1) place = utilities_.CursorPos();
    return desktop_.menus.TrackPopupMenuEx(popup_, kTracking, place, hWndParent, {kParametersSize, {}});
}

void ClsMenuCtx::AppendCommand(Hmenu popup, const Command& command) const {
    std::string text = utilities_.ResText(command.Number);
    if (text == Trelmic6::ResMissing()) text = command.Default;
    desktop_.menus.AppendMenuA(popup, MF_STRING, command.ID, text + "\t" + command.Key);
}

void ClsMenuCtx::AppendSounds(Hmenu popup, const SonCollection& sounds) const {
    for (int32_t i = 1; i <= sounds.Count(); ++i) {
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a handler may change the list
        const tSon son = sounds.Item(i);
        int32_t secStart = 0;
        std::string nomImage;
        Events.GetSecond(son.DiapoKey, secStart, nomImage);
        std::string text = Trelmic6::SecondsToText(secStart, false);
        text.append(" ").append(son.Nom).append("\t(").append(nomImage).append(")");
        desktop_.menus.AppendMenuA(popup, MF_STRING, ToInt32(int64_t{son.DiapoKey} + 1), text);
    }
}

}  // namespace vorlane
