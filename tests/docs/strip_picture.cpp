// Paints docs/strip.png, twice as dense as a plain screen: the editor's time line in both its styles, with musics, one
// of them repeated, and comments. Above the show plays, below a comment is recorded.
//
//   strip_picture FILE
#include "editor/strip.h"
#include "samples/sounds.h"
#include "widgets/vorlanewidget.h"

#include <cstdio>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

using namespace vorlane;

namespace {

constexpr int kWidth = 1200;
constexpr int kGap = 10;
constexpr int kSlides = 40;
constexpr double kDensity = 2;

// A strip under a sheet that nobody sees.
class Stage {
public:
    Stage(const QString& sounds, bool sideways) : sounds_(sounds) {
        QObject::connect(
            &sheet_, &VorlaneWidget::OnBeforeSetPicture, &sheet_,
            [](int, const QString&, SlideContent* content) { content->Picture = QImage(60, 40, kFormat); });
        sheet_.SetShowJauge(false);
        if (sideways) sheet_.SetScrollDirection(ui::ScrollDirection::sdHorizontal);
        sheet_.resize(kWidth, 400);
        sheet_.DiapoSizeChange(true, 180, 140);
        sheet_.show();
        strip_.resize(kWidth, strip_.height());
        strip_.applyLook(strip_.palette());
        strip_.show();
        for (int n = 0; n < kSlides; ++n) sheet_.Add(QStringLiteral("/show/%1.jpg").arg(n), {}, n);
        sheet_.StartLecture();
    }

    void Music(int slide, const QString& name, bool repeats = false) {
        strip_.Musiques().Add(sounds_ + name, slide, -1, repeats);
    }
    void Comment(int slide, const QString& name) { strip_.Comments().Add(sounds_ + name, slide); }
    editor::Strip& strip() { return strip_; }

private:
    static constexpr QImage::Format kFormat = QImage::Format_RGB32;

    QString sounds_;
    VorlaneWidget sheet_;
    editor::Strip strip_{sheet_};
};

void Write(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) std::perror(qPrintable(path));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 2) return 2;
    const QTemporaryDir folder;
    const QString sounds = folder.path() + u'/';
    Write(sounds + "melody.wav", samples::Melody());
    Write(sounds + "chime.wav", samples::Chime());
    Write(sounds + "surf.wav", samples::Surf());

    Stage played(sounds, true);
    played.Music(0, "melody.wav", true);
    played.Music(4, "surf.wav");
    played.Comment(1, "chime.wav");
    played.Comment(3, "melody.wav");
    played.strip().Lecture(8, 0);

    Stage recorded(sounds, false);
    recorded.Music(0, "surf.wav");
    recorded.Music(3, "melody.wav", true);
    recorded.Music(9, "surf.wav");
    recorded.Comment(1, "melody.wav");
    recorded.Comment(7, "chime.wav");
    recorded.strip().Record(12, 4);

    const int height = played.strip().height();
    QImage picture(QSize(kWidth, 2 * height + kGap) * kDensity, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kDensity);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    played.strip().render(&painter, QPoint(0, 0));
    recorded.strip().render(&painter, QPoint(0, height + kGap));
    painter.end();
    return picture.save(QString::fromLocal8Bit(argv[1]), "PNG") ? 0 : 1;
}
