// StatusPanel: what stands in the window's status bar: how much there is and is selected, how far the reading and the
// thumbnails are, and the slider for the size of the slides.
#pragma once

#include <array>

#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;
class QSlider;
class QToolButton;

namespace vorlane::editor {

class StatusPanel : public QWidget {
    Q_OBJECT

public:
    explicit StatusPanel(QWidget* parent = nullptr);

    // The counts, in place of any message.
    void setCounts(int images, int selected);
    void setMessage(const QString& message);
    // Nothing to say, as long as no folder is open.
    void clear();
    QString text() const;
    // The length of the whole show, in seconds; none for 0. The most that it tells is what an int holds.
    void setLength(qint64 seconds);
    QString length() const;

    // value of maximum is done; hidden when all is.
    void setProgress(int value, int maximum);
    bool isProgressShown() const;

    // The slider is there only where there are slides.
    void setZoomShown(bool shown);
    int slideWidth() const;
    void setSlideWidth(int width);

Q_SIGNALS:
    void slideWidthChanged(int width);

protected:
    void changeEvent(QEvent* event) override;

private:
    std::array<QWidget*, 4> ZoomParts() const;
    QToolButton* MakeButton(const QString& sign);
    void Retranslate();
    void ShowPercent(int width);
    void ShowLength();

    QLabel* text_;
    QLabel* length_;
    QProgressBar* progress_;
    QToolButton* smaller_;
    QSlider* slider_;
    QToolButton* larger_;
    QLabel* percent_;
    int seconds_ = 0;
};

}  // namespace vorlane::editor
