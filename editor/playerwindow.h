// PlayerWindow: shows one picture of a show after the other on the whole screen, each fading into the next. It follows
// orders and tells the user's; what comes when is not its affair.
#pragma once

#include "editor/pictureloader.h"

#include <QImage>
#include <QStringList>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace vorlane::editor {

class PlayerWindow : public QWidget {
    Q_OBJECT

public:
    static constexpr int kFade = 700;  // milliseconds

    explicit PlayerWindow(ThumbnailDecoder decoder = DecodeThumbnail, QWidget* parent = nullptr);

    // The one before stays until this is read.
    void present(const QString& path);
    // The one that comes after it.
    void expect(const QString& path);
    void setPaused(bool paused);
    // Shows it over the pictures, for a moment.
    void tell(const QString& notice);
    // What stands over the picture at present, one below the other.
    QStringList texts() const;
    // How far the present picture has come out of the one before: 0 to 1.
    double fade() const { return fade_; }
    const QImage& picture() const { return picture_; }

Q_SIGNALS:
    void stepAsked(int slides);
    void pauseAsked();
    void endAsked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int Edge() const;
    void Take(const QString& path, const ReadPicture& picture);
    void DrawFitted(QPainter& painter, const QImage& image, double opacity) const;
    void DrawTexts(QPainter& painter) const;

    PictureLoader loader_;
    QVariantAnimation fading_{this};
    QTimer restless_{this};  // runs while the pointer has moved a moment ago, and shows
    QTimer noticeEnd_{this};
    QImage former_;
    QImage picture_;
    QString trouble_;  // with the picture that should show
    QString notice_;
    double fade_ = 1;
    bool paused_ = false;
};

}  // namespace vorlane::editor
