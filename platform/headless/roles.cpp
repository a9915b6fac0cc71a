#include "platform/headless/roles.h"

#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/region.h"

#include <algorithm>
#include <array>

namespace vorlane::headless {

namespace {

std::string Spelled(const WinRect& rect) {
    return std::to_string(rect.Left) + "," + std::to_string(rect.Top) + "," + std::to_string(rect.Right) + "," +
           std::to_string(rect.Bottom);
}

}  // namespace

// --- Clock ---

Clock::TimerId FakeClock::StartTimer(int32_t interval, std::function<void()> tick) {
    const int32_t period = std::max(interval, 1);
    timers_.emplace(++lastTimer_, Running{now_ + period, period, std::move(tick)});
    return lastTimer_;
}

bool FakeClock::FireNext(int64_t limit) {
    auto next = timers_.end();
    for (auto it = timers_.begin(); it != timers_.end(); ++it) {
        const bool due = !it->second.ticking && it->second.due <= limit;
        if (due && (next == timers_.end() || it->second.due < next->second.due)) next = it;
    }
    if (next == timers_.end()) return false;
    const TimerId id = next->first;
    const std::function<void()> tick = next->second.tick;
    now_ = std::max(now_, next->second.due);
    next->second.due = now_ + next->second.interval;
    next->second.ticking = true;
    Attempt(tick);
    const auto after = timers_.find(id);
    if (after != timers_.end()) after->second.ticking = false;
    return true;
}

void FakeClock::Advance(int64_t milliseconds) {
    const int64_t end = now_ + milliseconds;
    while (FireNext(end)) {
    }
    now_ = std::max(now_, end);
}

void FakeClock::AtYield(int32_t n, std::function<void()> action) {
    atYield_.emplace(yields_ + n, std::move(action));
}

void FakeClock::DoEvents() {
    ++yields_;
    trace_.Add("yield");
    const auto [first, last] = atYield_.equal_range(yields_);
    std::vector<std::function<void()>> actions;
    for (auto it = first; it != last; ++it) actions.push_back(it->second);
    atYield_.erase(first, last);
    for (const auto& action : actions) Attempt(action);
    while (FireNext(now_)) {
    }
}

void FakeClock::Sleep(int32_t milliseconds) {
    trace_.Add("sleep " + std::to_string(milliseconds));
    now_ += milliseconds;
}

// --- Screen and keyboard ---

void FakeScreen::SetMousePointer(int16_t shape) {
    trace_.Add("pointer " + std::to_string(shape));
    pointer_ = shape;
}

OLE_COLOR FakeScreen::SysColor(int32_t number) const {
    switch (static_cast<SystemColor>(number)) {
        case SystemColor::Window:
        case SystemColor::ButtonHighlight:
        case SystemColor::HighlightText:
            return 0xFFFFFF;
        case SystemColor::ScrollBar:
        case SystemColor::ButtonFace:
            return 0xF0F0F0;
        case SystemColor::ActiveBorder:
            return 0xB4B4B4;
        case SystemColor::GradientInactiveCaption:
            return 0xF0DCC8;
        case SystemColor::Light:
            return 0xE3E3E3;
        case SystemColor::ButtonShadow:
            return 0xA0A0A0;
        case SystemColor::WindowFrame:
            return 0x646464;
        case SystemColor::DarkShadow:
            return 0x696969;
        case SystemColor::GrayText:
            return 0x6D6D6D;
        case SystemColor::Highlight:
            return 0xD77800;
        case SystemColor::InfoBackground:
            return 0xE1FFFF;
        default:
            return 0;
    }
}

void FakeScreen::SetCapture(Hwnd window) {
    trace_.Add("capture " + std::to_string(window));
    captured_ = window;
}

void FakeScreen::ReleaseCapture() {
    trace_.Add("release-capture");
    captured_ = 0;
}

void FakeKeyboard::Set(int32_t virtualKey, bool down) {
    if (down) {
        down_.insert(virtualKey);
    } else {
        down_.erase(virtualKey);
    }
}

// --- Texts and their sizes ---

float FakeTextMetrics::TextWidth(const Font& font, std::string_view text) const {
    const auto characters = std::count_if(text.begin(), text.end(), [](char unit) { return (unit & 0xC0) != 0x80; });
    return static_cast<float>(Round(static_cast<double>(font.Size) * 0.727) * static_cast<double>(characters));
}

float FakeTextMetrics::TextHeight(const Font& font, std::string_view text) const {
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    return static_cast<float>(Round(static_cast<double>(font.Size) * 1.6) * static_cast<double>(lines));
}

std::optional<std::string> FakeTexts::Text(std::string_view number) const {
    const auto found = texts_.find(number);
    return found == texts_.end() ? std::nullopt : std::optional(found->second);
}

// --- Windows and dialogs ---

Hwnd FakeWindows::Open(const WinRect& place) {
    windows_[++last_] = place;
    return last_;
}

WinRect FakeWindows::GetWindowRect(Hwnd window) const {
    const auto found = windows_.find(window);
    return found == windows_.end() ? WinRect{} : found->second;
}

WinRect FakeWindows::GetClientRect(Hwnd window) const {
    const WinRect place = GetWindowRect(window);
    return {0, 0, place.Right - place.Left, place.Bottom - place.Top};
}

Point FakeWindows::ClientToScreen(Hwnd window, Point place) const {
    const WinRect rect = GetWindowRect(window);
    return {place.X + rect.Left, place.Y + rect.Top};
}

Picture FakeWindows::Grab(Hwnd window, const WinRect& part) {
    return FakePictures::Make("window " + std::to_string(window) + " at " + Spelled(part), part.Right - part.Left,
                              part.Bottom - part.Top);
}

void FakeWindows::RedrawWindow(Hwnd window, const WinRect& part, int32_t flags) {
    trace_.Add("redraw " + std::to_string(window) + " " + Spelled(part) + " " + std::to_string(flags));
}

void FakeWindows::SetWindowRgn(Hwnd window, const Region& region, bool redraw) {
    trace_.Add("region " + std::to_string(window) + " " + region.dump() + (redraw ? " redraw" : ""));
}

void FakeDialogs::MsgBox(std::string_view text, int32_t style, std::string_view caption) {
    trace_.Add("msgbox " + std::to_string(style) + " [" + std::string(caption) + "] " + std::string(text));
}

// --- Pictures and sounds ---

std::string NameOf(const Picture& picture) {
    const auto* info = dynamic_cast<const PictureInfo*>(picture.Data().get());
    return info == nullptr ? "" : info->Name;
}

Picture FakePictures::Make(std::string name, int32_t width, int32_t height, PictureType type) {
    auto info = std::make_shared<PictureInfo>();
    info->Name = std::move(name);
    return {type, static_cast<double>(width), static_cast<double>(height), std::move(info)};
}

Picture FakePictures::Add(const std::string& path, int32_t width, int32_t height, PictureType type) {
    return files_[path] = Make(path, width, height, type);
}

std::optional<Picture> FakePictures::LoadImageFile(const std::string& path) {
    ++loads_;
    trace_.Add("load " + path);
    auto found = files_.find(path);
    if (found == files_.end() && path.ends_with('.')) found = files_.find(path.substr(0, path.size() - 1));
    return found == files_.end() ? std::nullopt : std::optional(found->second);
}

Picture FakePictures::ResizePicture(const Picture& picture, int32_t width, int32_t height) {
    ++resizes_;
    trace_.Add("resize " + NameOf(picture) + " " + std::to_string(width) + "x" + std::to_string(height));
    if (failResizing_ || width < 1 || height < 1) throw failures::InvalidPicture();
    return Make("resized:" + NameOf(picture), width, height);
}

Picture FakePictures::Get(Artwork artwork) {
    static constexpr std::array kNames{
        "zoom-corner", "info-button", "file-substitute", "file-sound",   "file-video", "file-document", "file-other",
        "play",        "stop",        "play-music",      "play-comment", "show-text",  "sound-missing"};
    auto& picture = artwork_[artwork];
    if (picture.Type() == 0) {
        const int32_t side = artwork <= Artwork::InfoButton ? 9 : artwork <= Artwork::FileOther ? 32 : 16;
        picture = Make(kNames[static_cast<size_t>(artwork)], side, side);
    }
    return picture;
}

double FakeSounds::SoundSeconds(const std::string& path) {
    const auto found = seconds_.find(path);
    return found == seconds_.end() ? 0 : found->second;
}

}  // namespace vorlane::headless
