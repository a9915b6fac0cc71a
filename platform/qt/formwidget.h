// FormWidget: the window of one form. It paints a root control, takes neither focus nor input, and is cut to a region,
// to what is not of the colour key, and, at its end, to a rectangle that shrinks into a corner.
#pragma once

#include "platform/event.h"
#include "platform/forms.h"
#include "platform/qt/painttools.h"

#include <optional>

#include <QPixmap>
#include <QWidget>

namespace vorlane {

class FormWidget final : public QWidget {
public:
    explicit FormWidget(const PaintTools& tools);

    void SetContent(UserControl& content);
    void SetRegion(const Region& region);
    void SetColorKey(std::optional<OLE_COLOR> key);
    // Forgets the content, shrinks what was seen of it and deletes itself behind that.
    void CloseInto(const ClosingEffect& effect);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Brings seen_ up to date in part of the widget.
    void PaintContent(QRegion part);
    // Cuts the window to what there is of it.
    void Shape();
    // Paints and cuts to what is not of the colour key, soon: a window that is all hole is never asked to paint.
    void ShapeByKeySoon();
    QRegion KeyedOut() const;
    // What is left when that share of the closing is done, from 0 to 1.
    QRect Remaining(ClosingCorner corner, double done) const;

    PaintTools tools_;
    UserControl* content_ = nullptr;
    ScopedConnection damaged_;
    QPixmap seen_;  // what was painted last
    std::optional<QRegion> region_;
    std::optional<OLE_COLOR> key_;
    bool shapesSoon_ = false;
    std::optional<QRect> remaining_;  // while it closes
};

}  // namespace vorlane
