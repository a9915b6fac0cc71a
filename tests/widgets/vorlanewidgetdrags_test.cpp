// Drops on the sheet's widget, by sent events, and what its host hears of them.
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

namespace vorlane {
namespace {

class VorlaneWidgetDragsTest : public testing::Test {
protected:
    VorlaneWidgetDragsTest() {
        widget.resize(500, 300);
        widget.SetShowJauge(false);
        widget.SetOLEDropMode(2);
        widget.SetSortedSens(ui::SortSens::ssNone);
        widget.show();
        QCoreApplication::processEvents();
        for (int i = 0; i < 3; ++i) widget.Add(Write(QString("%1.png").arg(i)), {}, 1000 + i);
        widget.StartLecture();
    }

    QString Write(const QString& name) {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(test::Plain(30, 20, Qt::red).save(path));
        return path;
    }

    // Drops at a place; whether it was taken.
    bool Drop(QMimeData& mime, const QPoint& place) {
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(place, actions, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &enter);
        QDragMoveEvent over(place, actions, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &over);
        if (!over.isAccepted()) return false;
        QDropEvent drop(place, actions, &mime, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(over.dropAction());
        QCoreApplication::sendEvent(&widget, &drop);
        return drop.isAccepted();
    }

    // A place in the left part of a slide.
    QPoint LeftOf(int slide) const {
        const QRectF rect = widget.DiapoRect(slide);
        return {qRound(rect.left() + rect.width() * 0.2), qRound(rect.center().y())};
    }

    QString Names() const {
        QStringList names;
        for (int i = 0; i < widget.Count(); ++i) names += QFileInfo(widget.ImageFullPath(i)).completeBaseName();
        return names.join(' ');
    }

    QTemporaryDir folder;
    VorlaneWidget widget;
};

TEST_F(VorlaneWidgetDragsTest, FilesFromAnotherProgramGoInAtTheMark) {
    QStringList heard;
    QObject::connect(&widget, &VorlaneWidget::OnOLENewFileAdded, &widget,
                     [&](const QString& name, int*, bool*) { heard += QFileInfo(name).fileName(); });
    int added = 0;
    QObject::connect(&widget, &VorlaneWidget::OnAfterDropAdd, &widget, [&](int count) { added = count; });
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(Write("été 100%.png")), QUrl::fromLocalFile(folder.filePath("missing.png"))});
    EXPECT_TRUE(Drop(mime, LeftOf(1)));
    EXPECT_EQ(Names(), QStringLiteral("0 été 100% 1 2"));
    EXPECT_EQ(heard, QStringList{QStringLiteral("été 100%.png")});
    EXPECT_EQ(added, 1);
}

TEST_F(VorlaneWidgetDragsTest, AFolderBringsItsPictures) {
    QDir(folder.path()).mkdir("album");
    Write("album/a.png");
    Write("album/b.png");
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(folder.filePath("album"))});
    EXPECT_TRUE(Drop(mime, LeftOf(0)));
    EXPECT_EQ(widget.Count(), 5);
}

TEST_F(VorlaneWidgetDragsTest, APathInAPlainTextComesIn) {
    QMimeData mime;
    mime.setText(Write("t.png") + "\n");
    EXPECT_TRUE(Drop(mime, LeftOf(2)));
    EXPECT_EQ(Names(), QStringLiteral("0 1 t 2"));
}

TEST_F(VorlaneWidgetDragsTest, AMereTextIsNotTaken) {
    QMimeData mime;
    mime.setText("Il était une fois");
    EXPECT_FALSE(Drop(mime, LeftOf(2)));
    EXPECT_EQ(widget.Count(), 3);
}

TEST_F(VorlaneWidgetDragsTest, SlidesOfAnotherSheetBringTheirKeys) {
    DataObject data;
    data.SetFiles({Write("k.png").toStdString() + "|77"});
    EXPECT_EQ(widget.CountObject(&data), 1);
    QMimeData mime;
    mime.setData("application/x-vorlane-files", QByteArray::fromStdString(data.Files().front()));
    EXPECT_TRUE(Drop(mime, LeftOf(0)));
    EXPECT_EQ(widget.Key(0), 77);
}

TEST_F(VorlaneWidgetDragsTest, AHostCanCancelADrop) {
    QObject::connect(&widget, &VorlaneWidget::OnOLEBeforeDropStart, &widget, [](int, bool* cancel) { *cancel = true; });
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(Write("x.png"))});
    Drop(mime, LeftOf(0));
    EXPECT_EQ(widget.Count(), 3);
}

}  // namespace
}  // namespace vorlane
