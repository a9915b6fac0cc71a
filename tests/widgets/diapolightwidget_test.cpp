#include "widgets/diapolightwidget.h"

#include "platform/qt/qtdesktop.h"
#include "slide/ediapolight.h"
#include "tests/widgets/mouse.h"
#include "tests/widgets/propertytable.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>

namespace vorlane {
namespace {

using test::Click;
using test::Plain;

class DiapoLightWidgetTest : public testing::Test {
protected:
    DiapoLightWidgetTest() {
        widget.resize(160, 140);
        widget.SetNoResize(false);
        widget.show();
        QCoreApplication::processEvents();
    }

    std::string Write(const char* name, const QImage& image) {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        return path.toStdString();
    }
    QPointF MiddleOf(const Control& control) const {
        const Box box = control.BoundsInRoot();
        return {box.Left + box.Width / 2, box.Top + box.Height / 2};
    }

    QTemporaryDir folder;
    DiapoLightWidget widget;
};

TEST_F(DiapoLightWidgetTest, HasThePersistedPropertiesOfTheSlideAndNoOther) {
    EXPECT_EQ(test::OwnProperties(widget), test::Keys(eDiapoLight::PersistedProperties()));
}

TEST_F(DiapoLightWidgetTest, EveryPropertyIsWrittenReadAndReported) {
    test::ExpectWritable(widget, widget.slide(), eDiapoLight::PersistedProperties());
}

TEST_F(DiapoLightWidgetTest, EnumerationsHaveTheirNames) {
    const QMetaObject& meta = *widget.metaObject();
    const QMetaEnum style = meta.property(meta.indexOfProperty("BorderStyle")).enumerator();
    EXPECT_STREQ(style.valueToKey(3), "BorderSunkenDouble");
    EXPECT_TRUE(widget.setProperty("BorderStyle", "FlatBackColor"));
    EXPECT_EQ(widget.BorderStyle(), ui::BorderStyle::FlatBackColor);
}

TEST_F(DiapoLightWidgetTest, AValueThatTheSlideCannotHoldIsReportedAndLeavesTheOldOne) {
    widget.SetBorderSize(7);
    QSignalSpy failed(&widget, &DiapoLightWidget::OnError);
    widget.SetBorderSize(300);
    EXPECT_EQ(widget.BorderSize(), 7);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toInt(), 6);
    EXPECT_EQ(failed.at(0).at(4).toString(), "DiapoLightWidget SetBorderSize");
}

TEST_F(DiapoLightWidgetTest, AProgramsWidgetsShareOneDesktop) {
    DiapoLightWidget other;
    EXPECT_EQ(&other.Desktop(), &widget.Desktop());
    QtDesktop own;
    DiapoLightWidget apart(own);
    EXPECT_EQ(&apart.Desktop(), &own);
}

TEST_F(DiapoLightWidgetTest, ASavedSlideIsRestoredInAnotherWidget) {
    widget.SetBorderSize(9);
    widget.SetCaptionBottom("caption");
    widget.SetFontBottom(QFont("DejaVu Sans", 11, QFont::Bold));
    QPixmap icon(8, 6);
    icon.fill(Qt::red);
    widget.SetMouseIcon(icon);
    const QByteArray saved = widget.SaveProperties();
    DiapoLightWidget other;
    EXPECT_TRUE(other.RestoreProperties(saved));
    EXPECT_EQ(other.SaveProperties(), saved);
    EXPECT_EQ(other.BorderSize(), 9);
    EXPECT_EQ(other.CaptionBottom(), "caption");
    EXPECT_FALSE(other.RestoreProperties("{]"));
    EXPECT_EQ(other.BorderSize(), 9);
}

TEST_F(DiapoLightWidgetTest, ADamagedTextChangesNothingAndIsReported) {
    widget.SetBorderSize(9);
    const QByteArray saved = widget.SaveProperties();
    QSignalSpy failed(&widget, &DiapoLightWidget::OnError);
    const QList<QByteArray> damaged = {"",
                                       "[]",
                                       "{\"BorderSize\": 3,",
                                       "{\"BorderSize\": null}",
                                       "{\"BorderSize\": 3, \"BorderSize\": 4}",
                                       "{\"BorderSize\": 3, \"FontBottom\": {\"font\": {\"size\": \"big\"}}}"};
    for (const QByteArray& text : damaged) EXPECT_FALSE(widget.RestoreProperties(text)) << text.toStdString();
    EXPECT_EQ(widget.SaveProperties(), saved);
    ASSERT_EQ(failed.count(), damaged.size());
    for (const auto& told : failed) EXPECT_EQ(told.at(4).toString(), "DiapoLightWidget RestoreProperties");
}

TEST_F(DiapoLightWidgetTest, AValueThatTheSlideCannotHoldIsPassedOver) {
    widget.SetBorderSize(9);
    widget.SetFontBottom(QFont("DejaVu Sans", 11));
    widget.SetFontImageName(QFont("DejaVu Sans", 12));
    QSignalSpy failed(&widget, &DiapoLightWidget::OnError);
    EXPECT_TRUE(widget.RestoreProperties(R"({"NoResize": "perhaps", "BorderSize": 300, "ShadowWidth": "wide",
        "BackColor": {"font": {}}, "FontBottom": {"font": {"name": "Serif", "size": 0}}, "FontImageName": 14,
        "MouseIcon": "none", "CaptionBottomNbLig": 40000, "ThumbnailSizeHigh": 2.5, "ImageMarge": -1, "Unknown": 1,
        "ThumbnailSizeNormal": 77})"));
    EXPECT_EQ(failed.count(), 0);
    EXPECT_EQ(widget.BorderSize(), 9);
    EXPECT_EQ(widget.ShadowWidth(), 5);
    EXPECT_EQ(widget.FontBottom().pointSizeF(), 11);
    EXPECT_EQ(widget.FontImageName().pointSizeF(), 12);
    EXPECT_EQ(widget.CaptionBottomNbLig(), 2);
    EXPECT_EQ(widget.ThumbnailSizeHigh(), 500);
    EXPECT_EQ(widget.ImageMarge(), 5);
    EXPECT_EQ(widget.ThumbnailSizeNormal(), 77) << "the last one is read all the same";
    EXPECT_FALSE(widget.grab().isNull());
}

TEST_F(DiapoLightWidgetTest, FontSizesOfASavedTextAreBounded) {
    widget.SetFontBottom(QFont("DejaVu Sans", 11));
    for (const char* size : {"0", "-3", "2161", "1e30", "1e300"}) {
        const QByteArray text = QByteArray(R"({"FontBottom": {"font": {"size": )") + size + "}}}";
        EXPECT_TRUE(widget.RestoreProperties(text)) << size;
        EXPECT_EQ(widget.FontBottom().pointSizeF(), 11) << size;
    }
    EXPECT_TRUE(widget.RestoreProperties(R"({"FontBottom": {"font": {"size": 2160}}, "NoResize": false})"));
    EXPECT_EQ(widget.FontBottom().pointSizeF(), 2160);
    widget.Refresh();
    EXPECT_FALSE(widget.grab().isNull());
}

TEST_F(DiapoLightWidgetTest, ASlideSavedWhileItIsSelectedKeepsItsNormalGround) {
    widget.SetBackColor(QColor(1, 2, 3));
    widget.SetSelected(true);
    ASSERT_EQ(widget.BackColor(), widget.BackColorSelected());
    DiapoLightWidget other;
    EXPECT_TRUE(other.RestoreProperties(widget.SaveProperties()));
    EXPECT_EQ(other.BackColor(), QColor(1, 2, 3));
}

// --- Pictures ---

TEST_F(DiapoLightWidgetTest, AFileIsShownWithItsName) {
    const std::string path = Write("red.png", Plain(60, 40, Qt::red));
    widget.PictureByString(QString::fromStdString(path));
    EXPECT_EQ(widget.ImageName(), "red.png");
    EXPECT_EQ(widget.ImageWidth(), 60);
    EXPECT_EQ(widget.Picture().size(), QSize(60, 40));
    const QImage image = widget.grab().toImage();
    EXPECT_EQ(image.pixelColor(MiddleOf(widget.slide().Img).toPoint()), QColor(Qt::red));
}

TEST_F(DiapoLightWidgetTest, AThumbnailReplacesTheFile) {
    widget.PictureByString("/nowhere/red.png", Plain(60, 40, Qt::blue));
    const QImage image = widget.grab().toImage();
    EXPECT_EQ(image.pixelColor(MiddleOf(widget.slide().Img).toPoint()), QColor(Qt::blue));
}

TEST_F(DiapoLightWidgetTest, ABrokenFileAsksForItsSubstitute) {
    QSignalSpy invalid(&widget, &DiapoLightWidget::OnInvalidPicture);
    ui::PictureIndex asked{};
    QObject::connect(&widget, &DiapoLightWidget::OnSetPicture, &widget,
                     [&](ui::PictureIndex index, QImage* picture, bool) {
                         asked = index;
                         *picture = Plain(20, 20, Qt::green);
                     });
    asked = ui::PictureIndex::PicBtText;
    widget.PictureByString("/nowhere/broken.png");
    EXPECT_EQ(asked, ui::PictureIndex::PicSubstitute);
    ASSERT_EQ(invalid.count(), 1);
    EXPECT_EQ(invalid.at(0).at(0).toString(), "/nowhere/broken.png");
    const QImage image = widget.grab().toImage();
    EXPECT_EQ(image.pixelColor(MiddleOf(widget.slide().Img).toPoint()), QColor(Qt::green));
}

TEST_F(DiapoLightWidgetTest, ANullPictureClearsTheSlide) {
    widget.SetPicture(Plain(20, 20, Qt::red));
    EXPECT_FALSE(widget.Picture().isNull());
    widget.SetPicture({});
    EXPECT_TRUE(widget.Picture().isNull());
}

TEST_F(DiapoLightWidgetTest, AThumbHasTheSizeThatIsAskedFor) {
    EXPECT_EQ(widget.Thumb(Plain(300, 150, Qt::red), 100).size(), QSize(100, 50));
    EXPECT_EQ(widget.Thumb(Plain(150, 300, Qt::red), 100).size(), QSize(50, 100));
    EXPECT_TRUE(widget.Thumb({}, 100).isNull());
}

// --- Events ---

TEST_F(DiapoLightWidgetTest, TheMouseIsTold) {
    QString heard;
    QObject::connect(&widget, &DiapoLightWidget::OnMouseDown, &widget, [&](int button, int, double x, double y) {
        heard += QString("down %1 %2,%3;").arg(button).arg(x).arg(y);
    });
    QObject::connect(&widget, &DiapoLightWidget::OnClick, &widget,
                     [&](int button) { heard += QString("click %1;").arg(button); });
    Click(widget, {30, 60}, Qt::RightButton);
    EXPECT_EQ(heard, "down 2 30,60;click 2;");
}

TEST_F(DiapoLightWidgetTest, AReceiverMaySwallowAKey) {
    int characters = 0;
    QObject::connect(&widget, &DiapoLightWidget::OnKeyDown, &widget, [](int* code, int) { *code = 0; });
    QObject::connect(&widget, &DiapoLightWidget::OnKeyPress, &widget, [&](int*) { ++characters; });
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QCoreApplication::sendEvent(&widget, &key);
    EXPECT_TRUE(key.isAccepted());
    EXPECT_EQ(characters, 0);
}

TEST_F(DiapoLightWidgetTest, TheKeyIsTheReceivers) {
    int stored = 0;
    EXPECT_EQ(widget.Key(), 0);
    QObject::connect(&widget, &DiapoLightWidget::OnGetKey, &widget, [](int* key) { *key = 42; });
    QObject::connect(&widget, &DiapoLightWidget::OnSetKey, &widget, [&](int key) { stored = key; });
    widget.SetKey(17);
    EXPECT_EQ(stored, 17);
    EXPECT_EQ(widget.Key(), 42);
}

TEST_F(DiapoLightWidgetTest, AButtonAsksForItsPictureAndIsClicked) {
    QString asked;
    QObject::connect(&widget, &DiapoLightWidget::OnSetPicture, &widget,
                     [&](ui::PictureIndex index, QImage*, bool invalid) {
                         asked += QString("%1%2 ").arg(static_cast<int>(index)).arg(invalid ? "!" : "");
                     });
    QSignalSpy clicked(&widget, &DiapoLightWidget::OnClickText);
    widget.SetShowDiapoTools(true);
    widget.SetHaveInvalidMusic(true);
    widget.SetHaveSoundMusic(true);
    widget.SetHaveTexte(true);
    EXPECT_EQ(asked, "5! 7 ");
    Click(widget, MiddleOf(widget.slide().BtTexte));
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(DiapoLightWidgetTest, AReceiverThatThrowsDoesNoHarm) {
    QObject::connect(&widget, &DiapoLightWidget::OnMouseDown, &widget,
                     [](int, int, double, double) { throw std::runtime_error("receiver"); });
    QObject::connect(&widget, &DiapoLightWidget::OnGetKey, &widget, [](int*) { throw std::runtime_error("receiver"); });
    QSignalSpy failed(&widget, &DiapoLightWidget::OnError);
    Click(widget, {30, 60});
    EXPECT_EQ(widget.Key(), 0);
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(4).toString(), "DiapoLightWidget Key");
}

}  // namespace
}  // namespace vorlane
