// TooltipWindow: one tooltip with its tool. It watches the pointer over the tool's part of its widget, shows its
// balloon when the pointer has rested there, and hides it when its time is over, the pointer leaves or a button goes
// down; while it tracks, it shows where it is told to instead.
#pragma once

#include "platform/qt/balloon.h"
#include "platform/tooltips.h"

#include <optional>

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace vorlane {

class TooltipWindow final : public QObject {
public:
    TooltipWindow(int32_t style, QWidget* parent);

    Balloon& Shown() { return balloon_; }

    void SetActive(bool active);
    // Milliseconds.
    void SetInitialDelay(int delay);
    void SetShowingTime(int time) { showingTime_ = time; }
    // nullopt takes the tool away.
    void SetTool(std::optional<TOOLINFO> tool);
    void SetToolText(const TOOLINFO& tool);
    void SetTracking(bool tracking);
    void SetTrackPosition(QPoint place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool PointerIsOverTool() const;
    // Shows the balloon in a while when the pointer is over the tool, and hides it when it is not.
    void FollowPointer();
    void ShowAtPointer();
    void Hide();
    // Where the balloon points: at the pointer, or at the middle of the tool's lower edge.
    QPoint Target() const;

    int32_t style_;
    QPointer<QWidget> widget_;
    Balloon balloon_;
    std::optional<TOOLINFO> tool_;
    bool active_ = true;
    bool tracking_ = false;
    bool spent_ = false;  // it has shown for this stay of the pointer
    QPoint trackPosition_;
    int showingTime_ = 5000;
    QTimer rest_;
    QTimer showing_;
};

}  // namespace vorlane
