// A small control of every kind of child, and a host for it.
#pragma once

#include "platform/image.h"
#include "platform/label.h"
#include "platform/ombrel.h"
#include "platform/qt/controlhost.h"
#include "platform/qt/qtdesktop.h"
#include "platform/scrollbarplus.h"
#include "platform/shape.h"
#include "platform/textbox.h"
#include "platform/usercontrol.h"

#include <memory>
#include <string>

#include <QEvent>

namespace vorlane::test {

// A control without children, such as a slide.
class Tile final : public UserControl {
public:
    Tile(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container)
        : UserControl(desktop, ambient, container) {
        Surface().SetBackColor(RGB(0, 0, 200));
    }
    void InitProperties() override {}
    void ReadProperties(const PropertyBag&) override {}
    void WriteProperties(PropertyBag&) const override {}
    void Show() override {}
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

private:
    void Resized() override {}
};

// Everything is hidden until a test shows it.
class Board final : public UserControl {
public:
    explicit Board(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient = {})
        : UserControl(desktop, ambient, nullptr), tile(desktop, ambient, this) {
        Surface().SetBackColor(RGB(255, 255, 255));
        for (Control* child : Children()) child->SetVisible(false);
    }
    void InitProperties() override { log += "init "; }
    void ReadProperties(const PropertyBag&) override {}
    void WriteProperties(PropertyBag&) const override {}
    void Show() override { log += "show "; }
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    std::string log;
    TextBox box{this};
    ScrollbarPlus bar{this};
    OmbrelProgressBar gauge{this};
    OmbrelSlider slider{this};
    OmbrelGradient panel{this};
    Shape shape{this};
    Image image{this};
    Image back{this};
    Label label{this};
    Tile tile;

private:
    void Resized() override {
        log += std::to_string(static_cast<int>(Width())) + "x" + std::to_string(static_cast<int>(Height())) + " ";
    }
};

// How often a widget has been painted since.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    int Count() const { return count_; }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        count_ += event->type() == QEvent::Paint;
        return false;
    }

private:
    int count_ = 0;
};

class BoardHost final : public ControlHost {
public:
    explicit BoardHost(QtDesktop& desktop)
        : ControlHost(desktop, nullptr), board(Host(std::make_unique<Board>(desktop.Roles(), AmbientOfHost()))) {}
    ~BoardHost() override { Release(); }

    Board& board;
};

}  // namespace vorlane::test
