// PhotoX: a viewer of picture files that plays those that move. What it can open is the desktop's business. It plays
// while it is visible and let play.
#pragma once

#include "platform/film.h"
#include "platform/tessalylight.h"

#include <memory>
#include <string>

namespace vorlane {

class PhotoX final : public CompositeControl {
public:
    PhotoX(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container);
    ~PhotoX() override;

    bool CanOpen(const std::string& path) const { return Desktop().films.CanOpen(path); }
    // Shows the file from its start; a file that can't be read leaves the viewer empty.
    void Display(const std::string& path);
    void Clear();
    OLE_COLOR BackColor() const { return view_.BackColor(); }
    void SetBackColor(OLE_COLOR color);
    void Refresh() { Invalidate(); }

    // Whether films run. A film goes on where it was stopped.
    bool Playing() const { return playing_; }
    void SetPlaying(bool playing);

    // What is shown now.
    const vorlane::Picture& Picture() const { return view_.Picture(); }

protected:
    void Resized() override { view_.Move(0, 0, ScaleWidth(), ScaleHeight()); }
    void OnVisibleChanged() override { Schedule(); }

private:
    void Advance();
    // Waits for the next frame when there is one to come and playing is allowed.
    void Schedule();
    void StopWaiting();

    TessalyLight view_;
    std::unique_ptr<Film> film_;
    int32_t delay_ = 0;  // of the frame that is shown
    bool playing_ = true;
    Clock::TimerId waiting_ = 0;
};

}  // namespace vorlane
