// The headless desktop: the roles together, for tests and servers. What was asked of it stands in one trace. Its end
// checks for leaks: a timer, a window, a form that shows, an attached window message or a capture that is still there,
// or an action whose yield has never come, calls OnLeak, which aborts unless a test says otherwise.
#pragma once

#include "platform/headless/fakedrags.h"
#include "platform/headless/fakeforms.h"
#include "platform/headless/fakemenus.h"
#include "platform/headless/fakesounds.h"
#include "platform/headless/faketooltips.h"
#include "platform/headless/roles.h"
#include "platform/sharedobjects.h"

#include <functional>
#include <string>

namespace vorlane::headless {

class Desktop {
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    vorlane::Desktop Roles() {
        return {clock,  screen, keyboard, metrics, windows,  drags, dialogs, pictures,
                sounds, texts,  forms,    films,   tooltips, menus, shared};
    }

    // What is still running, one line each; empty when all is released.
    std::string Leaks() const;

    Trace trace;
    FakeClock clock{trace};
    FakeScreen screen{trace};
    FakeKeyboard keyboard;
    FakeTextMetrics metrics;
    FakeWindows windows{trace};
    FakeDrags drags{*this};
    FakeDialogs dialogs{trace};
    FakePictures pictures{trace};
    FakeSounds sounds{trace, clock};
    FakeTexts texts;
    FakeForms forms{trace, windows};
    FakeFilms films{trace};
    FakeTooltips tooltips{trace, windows};
    FakeMenus menus{trace};
    SharedObjects shared;

    std::function<void(const std::string& leaks)> OnLeak;
};

}  // namespace vorlane::headless
