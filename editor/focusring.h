// FocusRing: the ring around a sheet's current slide while the sheet has the keyboard.
#pragma once

#include <QWidget>

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Navigator;

class FocusRing : public QWidget {
    Q_OBJECT

public:
    // Lies over the sheet, whose child it is; what happens to the mouse goes through it.
    FocusRing(VorlaneWidget& sheet, const Navigator& navigator);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    VorlaneWidget& sheet_;
    const Navigator& navigator_;
};

}  // namespace vorlane::editor
