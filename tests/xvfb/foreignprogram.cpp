// A small program that knows nothing of sheets: it speaks text/uri-list, and moves files where that is offered.
#include "tests/xvfb/program.h"

#include <cstdio>

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

namespace vorlane::test {

namespace {

void Tell(const QString& line) {
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

QString NameOf(Qt::DropActions actions) {
    QStringList names;
    if (actions & Qt::CopyAction) names += "copy";
    if (actions & Qt::MoveAction) names += "move";
    return names.isEmpty() ? QString("nothing") : names.join('+');
}

class Foreigner : public QWidget {
public:
    explicit Foreigner(const QStringList& files) : files_(files) { setAcceptDrops(true); }

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!(event->buttons() & Qt::LeftButton) || files_.isEmpty()) return;
        QList<QUrl> urls;
        for (const QString& file : files_) urls += QUrl::fromLocalFile(file);
        auto* dragged = new QMimeData;
        dragged->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(dragged);
        Tell("drags");
        Tell("dragged " + NameOf(drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction)));
    }
    void dragEnterEvent(QDragEnterEvent* event) override {
        Tell("offered " + NameOf(event->possibleActions()));
        Take(*event);
    }
    void dragMoveEvent(QDragMoveEvent* event) override {
        Take(*event);
        Tell("over");
    }
    void dropEvent(QDropEvent* event) override {
        Take(*event);
        QStringList names;
        for (const QUrl& url : event->mimeData()->urls()) names += QFileInfo(url.toLocalFile()).fileName();
        Tell("got " + NameOf(event->dropAction()) + " " + names.join(' '));
    }

private:
    static void Take(QDropEvent& event) {
        event.setDropAction(event.possibleActions() & Qt::MoveAction ? Qt::MoveAction : Qt::CopyAction);
        event.accept();
    }

    QStringList files_;
};

}  // namespace

int ForeignProgram(const QRect& place, const QStringList& files) {
    Foreigner window(files);
    window.setGeometry(place);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 1;
    Tell("ready");
    return QApplication::exec();
}

}  // namespace vorlane::test
