// FocusRing: the ring around a sheet's current slide while the sheet has the keyboard.
#pragma once

#include <QRectF>
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
    // The slide that the ring lies around, empty where there is none.
    QRectF Slide() const;

    VorlaneWidget& sheet_;
    const Navigator& navigator_;
    QRectF painted_;  // the slide as it stood when the ring was painted last
};

}  // namespace vorlane::editor
