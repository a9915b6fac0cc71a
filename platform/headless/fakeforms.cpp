#include "platform/headless/fakeforms.h"

#include "platform/failure.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace vorlane::headless {

namespace {

std::string Hexadecimal(OLE_COLOR color) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "#%06X", color);
    return text.data();
}

std::string NameOf(ClosingCorner corner) {
    switch (corner) {
        case ClosingCorner::TopLeft:
            return "top-left";
        case ClosingCorner::TopRight:
            return "top-right";
        case ClosingCorner::BottomRight:
            return "bottom-right";
        case ClosingCorner::BottomLeft:
            return "bottom-left";
    }
    return {};
}

// Shows its frames in turn; a single one stays.
class FakeFilm final : public Film {
public:
    explicit FakeFilm(std::vector<FilmFrame> frames) : frames_(std::move(frames)) {}
    std::optional<FilmFrame> NextFrame() override { return frames_[next_++ % frames_.size()]; }

private:
    std::vector<FilmFrame> frames_;
    size_t next_ = 0;
};

}  // namespace

// --- Forms ---

const FakeForms::State* FakeForms::Find(Hwnd form) const {
    const auto found = forms_.find(form);
    return found == forms_.end() ? nullptr : &found->second;
}

FakeForms::State* FakeForms::Told(Hwnd form, const std::string& what) {
    trace_.Add("form " + std::to_string(form) + " " + what);
    const auto found = forms_.find(form);
    return found == forms_.end() ? nullptr : &found->second;
}

int32_t FakeForms::ShownForms() const {
    const auto shown = [](const auto& form) { return form.second.Visible; };
    return static_cast<int32_t>(std::count_if(forms_.begin(), forms_.end(), shown));
}

Ambient FakeForms::OpenForm() {
    Ambient ambient;
    ambient.Window = windows_.Open({});
    forms_[ambient.Window] = {};
    Told(ambient.Window, "open");
    return ambient;
}

void FakeForms::SetContent(Hwnd form, UserControl& content) {
    if (State* state = Told(form, "content")) state->Content = &content;
}

void FakeForms::Move(Hwnd form, const WinRect& place) {
    if (Told(form, "move " + std::to_string(place.Left) + "," + std::to_string(place.Top) + " " +
                       std::to_string(place.Right - place.Left) + "x" + std::to_string(place.Bottom - place.Top))) {
        windows_.Place(form, place);
    }
}

void FakeForms::Show(Hwnd form) {
    State* state = Told(form, "show");
    if (failShowing_) throw failures::InvalidCall();
    if (state != nullptr) state->Visible = true;
}

void FakeForms::Hide(Hwnd form) {
    if (State* state = Told(form, "hide")) state->Visible = false;
}

bool FakeForms::Visible(Hwnd form) const {
    const State* state = Find(form);
    return state != nullptr && state->Visible;
}

void FakeForms::KeepOnTop(Hwnd form) {
    if (State* state = Told(form, "top")) state->OnTop = true;
}

void FakeForms::SetWindowRgn(Hwnd form, const Region& region) {
    if (State* state = Told(form, "region " + region.dump())) state->Region = region;
}

void FakeForms::SetLayered(Hwnd form, uint8_t alpha, std::optional<OLE_COLOR> colorKey) {
    State* state = Told(form, "layered " + std::to_string(alpha) + (colorKey ? " key " + Hexadecimal(*colorKey) : ""));
    if (state == nullptr) return;
    state->Alpha = alpha;
    state->ColorKey = colorKey;
}

void FakeForms::CloseForm(Hwnd form) {
    Close(form, "close");
}

void FakeForms::CloseForm(Hwnd form, const ClosingEffect& effect) {
    Close(form, "close " + NameOf(effect.Corner) + " " + std::to_string(effect.Steps));
}

void FakeForms::Close(Hwnd form, const std::string& how) {
    if (!Told(form, how)) return;
    forms_.erase(form);
    windows_.Close(form);
}

// --- Films ---

void FakeFilms::Add(const std::string& path, int32_t width, int32_t height) {
    films_[path] = {{FakePictures::Make(path, width, height), 0}};
}

void FakeFilms::AddMoving(const std::string& path, int32_t width, int32_t height, int32_t frames, int32_t delay) {
    auto& film = films_[path];
    film.clear();
    for (int32_t i = 0; i < frames; ++i) {
        film.push_back({FakePictures::Make(path + "#" + std::to_string(i), width, height), delay});
    }
}

std::unique_ptr<Film> FakeFilms::Open(const std::string& path) {
    trace_.Add("film " + path);
    const auto found = films_.find(path);
    return found == films_.end() ? nullptr : std::make_unique<FakeFilm>(found->second);
}

}  // namespace vorlane::headless
