// The forms and films of the headless desktop. A form says in the trace what is done to it, as "form <its number> ...",
// and keeps its state for a test to look at.
#pragma once

#include "platform/film.h"
#include "platform/forms.h"
#include "platform/headless/roles.h"

#include <map>
#include <string>
#include <vector>

namespace vorlane::headless {

class FakeForms final : public vorlane::Forms {
public:
    struct State {
        bool Visible = false;
        bool OnTop = false;
        std::optional<vorlane::Region> Region;  // nothing: the whole form
        uint8_t Alpha = 255;
        std::optional<OLE_COLOR> ColorKey;
        UserControl* Content = nullptr;
    };

    // windows names and places the forms among the other windows.
    FakeForms(Trace& trace, FakeWindows& windows) : trace_(trace), windows_(windows) {}

    // nullptr for a form that is not open.
    const State* Find(Hwnd form) const;
    int32_t OpenForms() const { return static_cast<int32_t>(forms_.size()); }
    int32_t ShownForms() const;
    // From now on a form that is to be shown fails.
    void FailShowing(bool fail) { failShowing_ = fail; }

    Ambient OpenForm() override;
    void SetContent(Hwnd form, UserControl& content) override;
    void Move(Hwnd form, const WinRect& place) override;
    void Show(Hwnd form) override;
    void Hide(Hwnd form) override;
    bool Visible(Hwnd form) const override;
    void KeepOnTop(Hwnd form) override;
    void SetWindowRgn(Hwnd form, const Region& region) override;
    void SetLayered(Hwnd form, uint8_t alpha, std::optional<OLE_COLOR> colorKey) override;
    void CloseForm(Hwnd form) override;
    void CloseForm(Hwnd form, const ClosingEffect& effect) override;

private:
    // The open form, behind a line of the trace; nullptr for one that is not open.
    State* Told(Hwnd form, const std::string& what);
    void Close(Hwnd form, const std::string& how);

    Trace& trace_;
    FakeWindows& windows_;
    std::map<Hwnd, State> forms_;
    bool failShowing_ = false;
};

// Films by path, as a test declares them; nothing else can be opened.
class FakeFilms final : public vorlane::Films {
public:
    explicit FakeFilms(Trace& trace) : trace_(trace) {}

    // Declares a file of one frame.
    void Add(const std::string& path, int32_t width, int32_t height);
    // Declares a film whose frames "<path>#0" and so on follow each other after delay milliseconds, over and over.
    void AddMoving(const std::string& path, int32_t width, int32_t height, int32_t frames, int32_t delay);

    bool CanOpen(const std::string& path) const override { return films_.count(path) != 0; }
    std::unique_ptr<Film> Open(const std::string& path) override;

private:
    Trace& trace_;
    std::map<std::string, std::vector<FilmFrame>> films_;
};

}  // namespace vorlane::headless
