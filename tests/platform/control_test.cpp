#include "platform/control.h"

#include "panel.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/ombrel.h"
#include "platform/scrollbarplus.h"
#include "platform/shape.h"
#include "platform/textbox.h"

#include <gtest/gtest.h>
#include <optional>

namespace vorlane {
namespace {

using Boxes = std::vector<Box>;
using Controls = std::vector<Control*>;

class ControlTest : public testing::Test {
protected:
    headless::Desktop desktop;
    Panel root{desktop, 200, 100};
};

// --- Stacking ---

TEST_F(ControlTest, TheFirstDeclaredStandsInFront) {
    Label a(&root);
    Label b(&root);
    Label c(&root);
    EXPECT_EQ(root.Children(), (Controls{&a, &b, &c}));
}

TEST_F(ControlTest, AWindowedControlStandsAboveAllWindowlessOnes) {
    Label a(&root);
    TextBox box(&root);
    Label b(&root);
    ScrollbarPlus bar(&root);
    EXPECT_EQ(root.Children(), (Controls{&box, &bar, &a, &b}));
}

TEST_F(ControlTest, ZOrderMovesAControlWithinItsLayer) {
    Label a(&root);
    Label b(&root);
    Label c(&root);
    TextBox box(&root);
    ScrollbarPlus bar(&root);
    c.ZOrder();
    EXPECT_EQ(root.Children(), (Controls{&box, &bar, &c, &a, &b}));
    c.ZOrder(ZOrderPosition::Back);
    EXPECT_EQ(root.Children(), (Controls{&box, &bar, &a, &b, &c}));
    bar.ZOrder(ZOrderPosition::Front);
    EXPECT_EQ(root.Children(), (Controls{&bar, &box, &a, &b, &c}));
    bar.ZOrder(ZOrderPosition::Back);
    EXPECT_EQ(root.Children(), (Controls{&box, &bar, &a, &b, &c}));
}

TEST_F(ControlTest, ARestackedControlIsDamagedWhereItStands) {
    Label a(&root);
    Label b(&root);
    b.Move(1, 2, 3, 4);
    root.TakeDamage();
    b.ZOrder();
    EXPECT_EQ(root.TakeDamage(), (Boxes{{1, 2, 3, 4}}));
}

TEST_F(ControlTest, OfARedrawnSurfaceOnlyWhatHasChangedIsDamaged) {
    Panel inner(desktop, &root, {100, 50, 80, 40});
    inner.SetBorderStyle(1);
    const auto redraw = [](UserControl& control, int32_t x) {
        control.Surface().Redraw([&] {
            control.Surface().Cls();
            control.Surface().SetPixel(5, 5, 0);
            control.Surface().SetPixel(x, 20, 0);
        });
    };
    redraw(root, 30);
    redraw(inner, 30);
    root.TakeDamage();
    redraw(root, 34);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{28, 18, 8, 4}}));
    redraw(inner, 77);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{129, 69, 50, 4}})) << "within its frame";
    redraw(inner, 77);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
    root.Surface().SetPixel(0, 0, 0);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{0, 0, 200, 100}}));
}

TEST_F(ControlTest, AControlThatEndsLeavesItsContainer) {
    {
        Label a(&root);
        a.Move(1, 2, 3, 4);
        root.TakeDamage();
    }
    EXPECT_TRUE(root.Children().empty());
    EXPECT_EQ(root.TakeDamage(), (Boxes{{1, 2, 3, 4}}));
}

TEST_F(ControlTest, AContainerThatEndsFirstLeavesItsChildrenAlone) {
    auto inner = std::make_unique<Panel>(desktop, &root, Box{0, 0, 10, 10});
    Label orphan(inner.get());
    inner.reset();
    EXPECT_EQ(orphan.Container(), nullptr);
    orphan.Move(1, 1, 5, 5);
    orphan.ZOrder();
}

// --- Places ---

TEST_F(ControlTest, PlacesAreSinglesAndMayBeNegative) {
    Label a(&root);
    a.Move(0.1, -2, 3.5, -4);
    EXPECT_EQ(a.Left(), 0.1F);
    EXPECT_EQ(a.Top(), -2);
    EXPECT_EQ(a.Width(), 3.5F);
    EXPECT_EQ(a.Height(), -4);
    a.SetLeft(1);
    a.SetTop(2);
    a.SetWidth(3);
    a.SetHeight(4);
    EXPECT_EQ(a.Bounds(), (Box{1, 2, 3, 4}));
    a.Move(5, 6);
    EXPECT_EQ(a.Bounds(), (Box{5, 6, 3, 4}));
}

TEST_F(ControlTest, BoundsInRootAddUpTheContainersAndTheirFrames) {
    Panel outer(desktop, &root, {10, 20, 100, 60});
    Panel inner(desktop, &outer, {3, 4, 50, 30});
    Label label(&inner);
    label.Move(1, 2, 5, 5);
    EXPECT_EQ(label.BoundsInRoot(), (Box{14, 26, 5, 5}));
    inner.SetBorderStyle(1);
    root.SetBorderStyle(1);
    EXPECT_EQ(label.BoundsInRoot(), (Box{16, 28, 5, 5}));
    EXPECT_EQ(root.BoundsInRoot(), (Box{0, 0, 200, 100}));
    EXPECT_EQ(&label.Root(), &root);
    EXPECT_EQ(&root.Root(), &root);
}

TEST_F(ControlTest, TheWholeRectangleIsHitButNothingOfAShapeOrOfANegativeSize) {
    Label label(&root);
    label.Move(50, 50, 10, 10);
    EXPECT_TRUE(label.HitTest(0, 9.5F));
    EXPECT_FALSE(label.HitTest(10, 0));
    label.SetWidth(-10);
    EXPECT_FALSE(label.HitTest(-5, 5));
    Shape shape(&root);
    shape.Move(0, 0, 10, 10);
    EXPECT_FALSE(shape.HitTest(5, 5));
}

// --- Align ---

TEST_F(ControlTest, AnAlignedControlSticksToItsSideWithItsThickness) {
    ScrollbarPlus bar(&root);
    bar.SetAlign(Align::Right);
    EXPECT_EQ(bar.Bounds(), (Box{184, 0, 16, 100}));
    bar.SetAlign(Align::None);
    bar.SetOrientation(Orientation::Horizontal);
    bar.SetAlign(Align::Bottom);
    EXPECT_EQ(bar.Bounds(), (Box{0, 84, 200, 16}));
    bar.SetAlign(Align::Top);
    EXPECT_EQ(bar.Bounds(), (Box{0, 0, 200, 16}));
    bar.SetAlign(Align::None);
    EXPECT_EQ(bar.Bounds(), (Box{0, 0, 200, 16}));
}

TEST_F(ControlTest, AnAlignedControlFollowsItsContainersInside) {
    ScrollbarPlus bar(&root);
    bar.SetAlign(Align::Right);
    root.Move(0, 0, 300, 50);
    EXPECT_EQ(bar.Bounds(), (Box{284, 0, 16, 50}));
    root.SetBorderStyle(1);
    EXPECT_EQ(bar.Bounds(), (Box{282, 0, 16, 48}));
    root.Move(0, 0, 10, 0);
    EXPECT_EQ(bar.Bounds(), (Box{-8, 0, 16, -2}));
    root.Move(0, 0, 100, 50);
    EXPECT_EQ(bar.Bounds(), (Box{82, 0, 16, 48}));
}

TEST_F(ControlTest, AnAlignedControlThatMovesMayEndAnother) {
    ScrollbarPlus first(&root);
    auto second = std::make_unique<ScrollbarPlus>(&root);
    ScrollbarPlus third(&root);
    for (ScrollbarPlus* bar : {&first, second.get(), &third}) bar->SetAlign(Align::Right);
    first.Changed.connect([&] { second.reset(); });
    root.Move(0, 0, 300, 50);
    EXPECT_EQ(root.Children(), (Controls{&first, &third}));
    EXPECT_EQ(third.Bounds(), (Box{284, 0, 16, 50}));
}

TEST_F(ControlTest, OnlyTheThicknessOfAnAlignedControlCanBeSet) {
    ScrollbarPlus bar(&root);
    bar.SetAlign(Align::Right);
    bar.SetWidth(20);
    EXPECT_EQ(bar.Bounds(), (Box{180, 0, 20, 100}));
    bar.Move(5, 5, 20, 5);
    EXPECT_EQ(bar.Bounds(), (Box{180, 0, 20, 100}));
    Label label(&root);
    label.SetAlign(Align::Left);
    label.SetWidth(7);
    EXPECT_EQ(label.Bounds(), (Box{0, 0, 7, 100}));
}

// --- Damage ---

TEST_F(ControlTest, AMoveDamagesTheOldAndTheNewPlace) {
    Label label(&root);
    label.Move(1, 2, 10, 10);
    root.TakeDamage();
    label.Move(30, 2);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{1, 2, 10, 10}, {30, 2, 10, 10}}));
    label.Move(30, 2, 10, 10);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
}

TEST_F(ControlTest, DamageReachesTheRootInItsPixels) {
    Panel outer(desktop, &root, {10, 20, 100, 60});
    Panel inner(desktop, &outer, {3, 4, 50, 30});
    Label label(&inner);
    label.Move(1, 2, 5, 5);
    root.TakeDamage();
    label.SetCaption("a");
    EXPECT_EQ(root.TakeDamage(), (Boxes{{14, 26, 5, 5}}));
    inner.Surface().Line(0, 0, 1, 1, 0);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{13, 24, 50, 30}}));
    outer.SetBorderStyle(1);
    root.TakeDamage();
    label.SetCaption("b");
    EXPECT_EQ(root.TakeDamage(), (Boxes{{15, 27, 5, 5}}));
}

TEST_F(ControlTest, TheRootsOwnDrawingDamagesAllOfIt) {
    root.Surface().Line(0, 0, 1, 1, 0);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{0, 0, 200, 100}}));
}

TEST_F(ControlTest, WhatIsHiddenDamagesNothing) {
    Panel panel(desktop, &root, {10, 20, 100, 60});
    Label label(&panel);
    label.Move(0, 0, 10, 10);
    label.SetVisible(false);
    root.TakeDamage();
    label.SetCaption("a");
    label.Move(5, 5);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
    label.SetVisible(true);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{15, 25, 10, 10}}));
    panel.SetVisible(false);
    EXPECT_EQ(root.TakeDamage(), (Boxes{{10, 20, 100, 60}}));
    label.SetCaption("b");
    EXPECT_EQ(root.TakeDamage(), Boxes{});
}

TEST_F(ControlTest, AnEmptyOrNegativeRectangleDamagesNothing) {
    Label label(&root);
    label.SetCaption("a");
    label.Move(5, 5, -10, 10);
    label.Move(6, 6, 10, 0);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
}

TEST_F(ControlTest, ASetterThatChangesNothingDamagesNothing) {
    Label label(&root);
    label.Move(0, 0, 10, 10);
    label.SetCaption("a");
    root.TakeDamage();
    int changes = 0;
    label.Changed.connect([&] { ++changes; });
    label.SetCaption("a");
    label.SetVisible(true);
    label.SetEnabled(true);
    label.SetMousePointer(0);
    label.SetForeColor(0);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
    EXPECT_EQ(changes, 0);
}

TEST_F(ControlTest, ChangedFollowsEveryChangeForAPeerAlsoOfAHiddenControl) {
    TextBox box(&root);
    int changes = 0;
    box.Changed.connect([&] { ++changes; });
    box.SetVisible(false);
    box.SetText("a");
    box.Move(1, 1);
    box.SetEnabled(false);
    EXPECT_EQ(changes, 4);
}

// --- Life ---

TEST_F(ControlTest, ANewControlIsInitialisedSizedAndShown) {
    root.life.clear();
    root.Start();
    EXPECT_EQ(root.life, "init resize show ");
    root.life.clear();
    PropertyBag bag;
    bag.SetValue("name", std::string("saved"));
    root.Start(bag);
    EXPECT_EQ(root.life, "read:saved resize show ");
}

TEST_F(ControlTest, OnlyANewSizeIsAResize) {
    root.life.clear();
    root.Move(5, 5);
    EXPECT_EQ(root.life, "");
    root.SetWidth(10);
    root.SetWidth(10);
    EXPECT_EQ(root.life, "resize ");
}

TEST_F(ControlTest, TheFrameTakesOnePixelOnEachSide) {
    EXPECT_EQ(root.ScaleWidth(), 200);
    root.life.clear();
    root.SetBorderStyle(1);
    EXPECT_EQ(root.ScaleWidth(), 198);
    EXPECT_EQ(root.ScaleHeight(), 98);
    EXPECT_EQ(root.life, "resize ");
    root.SetBorderStyle(1);
    EXPECT_EQ(root.life, "resize ");
}

TEST_F(ControlTest, ThePanelTakesOverTheContainersColourFontAndScale) {
    Ambient ambient;
    ambient.BackColor = 0x123456;
    ambient.Font.Name = "Vera";
    ambient.ContainerScale = ScaleMode::Twips;
    ambient.Window = 7;
    const Panel panel(desktop, 10, 10, ambient);
    EXPECT_EQ(panel.Surface().BackColor(), 0x123456U);
    EXPECT_EQ(panel.Surface().Font().Name, "Vera");
    EXPECT_EQ(panel.ToContainer(2), 30.0F);
    EXPECT_EQ(panel.Hwnd(), 7);
    EXPECT_EQ(root.ToContainer(2.5), 2.5F);
}

// --- The plain properties ---

TEST_F(ControlTest, TagAndToolTipAreTextsThatDamageNothing) {
    Image image(&root);
    image.Move(0, 0, 10, 10);
    root.TakeDamage();
    image.SetTag("12");
    image.SetToolTipText("Lire");
    image.SetOLEDragMode(1);
    image.SetOLEDropMode(2);
    EXPECT_EQ(image.Tag(), "12");
    EXPECT_EQ(image.ToolTipText(), "Lire");
    EXPECT_EQ(image.OLEDragMode(), 1);
    EXPECT_EQ(image.OLEDropMode(), 2);
    EXPECT_EQ(root.TakeDamage(), Boxes{});
}

TEST_F(ControlTest, AnImageKeepsThePictureAndIsPaintedAnewForAnotherOne) {
    Image image(&root);
    image.Move(0, 0, 10, 10);
    const Picture picture = headless::FakePictures::Make("a", 5, 5);
    root.TakeDamage();
    image.SetPicture(picture);
    EXPECT_EQ(image.Picture(), picture);
    EXPECT_EQ(root.TakeDamage().size(), 1U);
    image.SetPicture(Picture(picture));
    EXPECT_EQ(root.TakeDamage(), Boxes{});
}

TEST_F(ControlTest, AGaugeKeepsAValueOutsideItsRange) {
    OmbrelProgressBar gauge(&root);
    gauge.SetValue(500);
    gauge.SetMin(10);
    gauge.SetMax(5);
    EXPECT_EQ(gauge.Value(), 500);
    EXPECT_EQ(gauge.Min(), 10);
    EXPECT_EQ(gauge.Max(), 5);
}

// Every concrete control shows itself to a visitor as what it is.
struct Naming final : ControlVisitor {
    void Visit(const UserControl&) override { name = "UserControl"; }
    void Visit(const Image&) override { name = "Image"; }
    void Visit(const Label&) override { name = "Label"; }
    void Visit(const Shape&) override { name = "Shape"; }
    void Visit(const TextBox&) override { name = "TextBox"; }
    void Visit(const ScrollbarPlus&) override { name = "ScrollbarPlus"; }
    void Visit(const OmbrelProgressBar&) override { name = "OmbrelProgressBar"; }
    void Visit(const OmbrelSlider&) override { name = "OmbrelSlider"; }
    void Visit(const OmbrelGradient&) override { name = "OmbrelGradient"; }
    std::string name;
};

template <class T>
std::string NameOf(UserControl& container) {
    Naming naming;
    T(&container).Accept(naming);
    return naming.name;
}

TEST_F(ControlTest, EveryControlIsVisitedAsWhatItIs) {
    EXPECT_EQ(NameOf<Image>(root), "Image");
    EXPECT_EQ(NameOf<Label>(root), "Label");
    EXPECT_EQ(NameOf<Shape>(root), "Shape");
    EXPECT_EQ(NameOf<TextBox>(root), "TextBox");
    EXPECT_EQ(NameOf<ScrollbarPlus>(root), "ScrollbarPlus");
    EXPECT_EQ(NameOf<OmbrelProgressBar>(root), "OmbrelProgressBar");
    EXPECT_EQ(NameOf<OmbrelSlider>(root), "OmbrelSlider");
    EXPECT_EQ(NameOf<OmbrelGradient>(root), "OmbrelGradient");
}

}  // namespace
}  // namespace vorlane
