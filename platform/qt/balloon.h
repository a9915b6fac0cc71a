// Balloon: the look of a tooltip, a title with an icon above lines of text, plain or as a balloon that points at a
// place. It takes neither focus nor input. When it shows is not its business.
#pragma once

#include <optional>

#include <QColor>
#include <QString>
#include <QWidget>

namespace vorlane {

// Where a balloon stands to point at a place.
struct BalloonPlace {
    QRect body;         // screen pixels
    int stem = 0;       // from the body's left to the middle of the stem
    bool below = true;  // the body is below the place
};

// Below the place and to the right of it, as far as screen allows; above it where there is no room below.
BalloonPlace PlaceBalloon(QPoint place, QSize body, const QRect& screen);

class Balloon final : public QWidget {
public:
    // 0 none, 1 information, 2 warning, 3 error; an icon shows with a title only.
    struct Heading {
        int icon = 0;
        QString text;
    };

    explicit Balloon(bool pointed);

    void SetHeading(Heading heading);
    const Heading& Title() const { return heading_; }
    void SetText(const QString& text);
    const QString& Text() const { return text_; }
    void SetTextColor(const QColor& color);
    void SetGroundColor(const QColor& color);
    // What the text is painted in: its colour, or black or white where that is too near to the ground to be read.
    QColor InkColor() const;
    QColor GroundColor() const { return groundColor_; }

    // Stands the balloon at a place of the screen, to which its stem points. centred: the body is in its middle.
    void PointAt(QPoint place, bool centred);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize BodySize() const;
    QRect HeadingBox(const QRect& inside) const;
    QRect TextBox(const QRect& inside) const;
    void Rearrange();

    bool pointed_;
    Heading heading_;
    QString text_;
    QColor textColor_;
    QColor groundColor_;
    std::optional<QPoint> target_;
    bool centred_ = false;
    BalloonPlace place_;
};

}  // namespace vorlane
