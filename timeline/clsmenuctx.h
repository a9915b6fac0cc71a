// ClsMenuCtx: the time line's popup menu, with the jumps from sound to sound and the sounds themselves. It knows no
// sheet: what it has to tell of a sound's slide it asks through GetSecond, and what was chosen it tells by ItemClic.
#pragma once

#include "platform/event.h"
#include "platform/menus.h"
#include "platform/trelmic6.h"
#include "timeline/soncollection.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vorlane {

// The commands of the menu. A positive number is a listed sound: the key of its slide and 1.
enum eMnuTimeLineID : int32_t {
    emnutlPreviousMusic = -1,
    emnutlNextMusic = -2,
    emnutlPreviousComment = -3,
    emnutlNextComment = -4,
    emnutlPreviousSound = -5,
    emnutlNextSound = -6,
};

struct ClsMenuCtxEvents {
    Event<int32_t> ItemClic;                           // mnuItemID; 0 when nothing was chosen
    Event<int32_t, int32_t&, std::string&> GetSecond;  // DiapoKey, SecStart, NomImage
};

class ClsMenuCtx {
public:
    using Sounds = std::shared_ptr<const SonCollection>;

    explicit ClsMenuCtx(const Desktop& desktop) : desktop_(desktop), utilities_(desktop) {}

    // Shows the menu and raises ItemClic once when it has closed. A list that is nothing is left out; onlyFiles leaves
    // the commands out. Screen pixels; where x or Y is -1 the menu opens at the pointer.
    void MenuTimeLine(Hwnd hWndParent, const Sounds& mColMusic, const Sounds& mColComment, bool onlyFiles = false,
                      int32_t x = -1, int32_t Y = -1);

    ClsMenuCtxEvents Events;

private:
    struct Command {
        const char* Number;  // of its text
        const char* Default;
        const char* Key;
        eMnuTimeLineID ID;
    };

    int32_t Choose(Hwnd hWndParent, const Sounds& music, const Sounds& comment, bool onlyFiles, Point place);
    void AppendCommand(Hmenu popup, const Command& command) const;
    void AppendSounds(Hmenu popup, const SonCollection& sounds) const;
    void AppendSeparator(Hmenu popup) const { desktop_.menus.AppendMenuA(popup, MF_SEPARATOR, 0, {}); }

    Desktop desktop_;
    Trelmic6 utilities_;
    Hmenu popup_ = 0;  // the open one
};

}  // namespace vorlane
