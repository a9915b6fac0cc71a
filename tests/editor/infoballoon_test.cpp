// What the info button tells of a picture's file, with the data of cameras in files that are put together here.
#include "editor/infoballoon.h"

#include "editor/cameradata.h"
#include "platform/qt/balloon.h"
#include "tests/editor/windowfixture.h"

#include <QCursor>
#include <QtEndian>

namespace vorlane::editor {
namespace {

// EXIF as a camera writes it, numbers in either order of bytes.
class Exif {
public:
    explicit Exif(bool big) : big_(big) {}

    void Text(quint16 tag, const QByteArray& text) { Add(tag, 2, static_cast<quint32>(text.size()) + 1, text + '\0'); }
    void Rational(quint16 tag, quint32 numerator, quint32 denominator) {
        Add(tag, 5, 1, Long(numerator) + Long(denominator));
    }
    void Number(quint16 tag, quint16 number) { Add(tag, 3, 1, Short(number) + Short(0)); }

    // A JPEG file with all of it: main holds what stands in the first directory, this what stands in the second.
    QByteArray Within(const QByteArray& jpeg, const Exif& main) const {
        Exif first = main;
        const quint32 second = first.Size() + 12 + 8;
        first.Add(0x8769, 4, 1, Long(second));
        const QByteArray tiff = QByteArray(big_ ? "MM" : "II") + Short(42) + Long(8) + first.At(8) + At(second);
        const QByteArray content = QByteArray("Exif\0\0", 6) + tiff;
        QByteArray size(2, 0);
        qToBigEndian(static_cast<quint16>(content.size() + 2), size.data());
        return jpeg.left(2) + QByteArray("\xFF\xE1", 2) + size + content + jpeg.mid(2);
    }

private:
    struct Field {
        quint16 tag;
        quint16 type;
        quint32 count;
        QByteArray value;
    };

    void Add(quint16 tag, quint16 type, quint32 count, const QByteArray& value) {
        fields_.push_back({tag, type, count, value});
    }
    QByteArray Short(quint16 value) const { return Bytes(value); }
    QByteArray Long(quint32 value) const { return Bytes(value); }
    template <class T>
    QByteArray Bytes(T value) const {
        QByteArray bytes(sizeof(T), 0);
        big_ ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
        return bytes;
    }
    quint32 Size() const {
        quint32 size = 6;
        for (const Field& field : fields_) {
            size += 12;
            if (field.value.size() > 4) size += static_cast<quint32>(field.value.size() + field.value.size() % 2);
        }
        return size;
    }
    // The directory as it stands at that place of the data.
    QByteArray At(quint32 place) const {
        QByteArray directory = Short(static_cast<quint16>(fields_.size()));
        QByteArray values;
        const quint32 behind = place + 6 + 12 * static_cast<quint32>(fields_.size());
        for (const Field& field : fields_) {
            directory += Short(field.tag) + Short(field.type) + Long(field.count);
            if (field.value.size() <= 4) {
                directory += field.value + QByteArray(4 - field.value.size(), '\0');
                continue;
            }
            directory += Long(behind + static_cast<quint32>(values.size()));
            values += field.value + QByteArray(field.value.size() % 2, '\0');
        }
        return directory + Long(0) + values;
    }

    bool big_;
    std::vector<Field> fields_;
};

const QLocale kFrench(QLocale::French, QLocale::France);

QByteArray Photo(bool big = false) {
    Exif main(big);
    main.Text(0x010F, "Kestrel");
    main.Text(0x0110, "Kestrel K-7");
    Exif exif(big);
    exif.Rational(0x829A, 1, 250);
    exif.Rational(0x829D, 28, 10);
    exif.Number(0x8827, 200);
    exif.Text(0x9003, "2024:05:01 10:20:30");
    exif.Rational(0x920A, 50, 1);
    return exif.Within(test::Encoded(test::Plain(300, 200, Qt::red)), main);
}

TEST(CameraData, IsReadInBothOrdersOfBytes) {
    test::PictureFolder files;
    for (const bool big : {false, true}) {
        const CameraData data = CameraDataOf(files.Write("a.jpg", Photo(big)));
        EXPECT_EQ(data.camera, "Kestrel K-7");
        EXPECT_DOUBLE_EQ(data.exposure, 0.004);
        EXPECT_DOUBLE_EQ(data.aperture, 2.8);
        EXPECT_EQ(data.sensitivity, 200);
        EXPECT_DOUBLE_EQ(data.focalLength, 50);
        EXPECT_EQ(data.taken, QDateTime(QDate(2024, 5, 1), QTime(10, 20, 30)));
    }
}

TEST(CameraData, PutsTheMakerInFrontOfAModelThatDoesNotNameIt) {
    test::PictureFolder files;
    Exif main(false);
    main.Text(0x010F, "Kestrel");
    main.Text(0x0110, "K-7");
    const QByteArray jpeg = test::Encoded(test::Plain(30, 20, Qt::red));
    EXPECT_EQ(CameraDataOf(files.Write("a.jpg", Exif(false).Within(jpeg, main))).camera, "Kestrel K-7");
}

TEST(CameraData, IsNoneOfFilesWithoutItOrThatAreDamaged) {
    test::PictureFolder files;
    EXPECT_TRUE(CameraDataOf(files.WritePicture("plain.jpg")).camera.isEmpty());
    EXPECT_TRUE(CameraDataOf(files.Write("text.jpg", "text")).camera.isEmpty());
    EXPECT_TRUE(CameraDataOf(files.Path("missing.jpg")).camera.isEmpty());
    const QByteArray photo = Photo();
    for (int length = 0; length < 200; length += 7) CameraDataOf(files.Write("cut.jpg", photo.left(length)));
}

TEST(InfoLines, TellSizeDateAndCamera) {
    test::PictureFolder files;
    const QString path = files.Write("a.jpg", Photo());
    const QString size = kFrench.formattedDataSize(QFileInfo(path).size(), 1, QLocale::DataSizeTraditionalFormat);
    const QString date = kFrench.toString(QFileInfo(path).lastModified(), QLocale::ShortFormat);
    EXPECT_EQ(InfoLines(path, kFrench),
              QStringList({"300 × 200 pixels", size, "Modifiée le " + date, "Prise le 01/05/2024 10:20", "Kestrel K-7",
                           "1/250 s · f/2,8 · 50 mm · ISO 200"}));
}

TEST(InfoLines, MeasureAPictureAsItIsShown) {
    test::PictureFolder files;
    Exif main(false);
    main.Number(0x0112, 6);  // to be turned by a quarter
    const QByteArray jpeg = test::Encoded(test::Plain(300, 200, Qt::red));
    EXPECT_EQ(InfoLines(files.Write("a.jpg", Exif(false).Within(jpeg, main)), kFrench).first(), "200 × 300 pixels");
}

TEST(InfoLines, TellWhatThereIsOfOtherFiles) {
    test::PictureFolder files;
    EXPECT_EQ(InfoLines(files.Write("broken.jpg", "text"), kFrench).mid(0, 2),
              QStringList({"Image illisible", "4 octets"}));
    EXPECT_EQ(InfoLines(files.Write("sound.mp3", "text"), kFrench).first(), "4 octets");
    EXPECT_TRUE(InfoLines(files.Path("missing.jpg"), kFrench).isEmpty());
}

class InfoBalloonTest : public WindowFixture {
protected:
    static Balloon* Shown() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* balloon = dynamic_cast<Balloon*>(window);
            if (balloon != nullptr && balloon->isVisible()) return balloon;
        }
        return nullptr;
    }
};

TEST_F(InfoBalloonTest, TellsOfAFileWithoutExtensionToo) {
    pictures_.Write("a", Photo());
    ASSERT_TRUE(Open(Folder()));
    QString title;
    QString text;
    int icon = 0;
    Q_EMIT window_->sheet().OnToolTipInfos(0, QString::fromStdString(Slide(0).ImageFullPath()), &title, &text, &icon);
    EXPECT_EQ(title, "a");
    EXPECT_EQ(icon, 1);
    EXPECT_TRUE(text.contains("300 × 200 pixels")) << text.toStdString();
}

TEST_F(InfoBalloonTest, ShowsWhileTheInfoButtonOfASlideIsHeld) {
    pictures_.Write("a.jpg", Photo());
    ASSERT_TRUE(Open(Folder()));
    const Box button = Slide(0).ImgInfo.BoundsInRoot();
    const QPoint place = QPointF(button.Left + button.Width / 2, button.Top + button.Height / 2).toPoint();
    QCursor::setPos(window_->sheet().mapToGlobal(place));
    QTest::mousePress(&window_->sheet(), Qt::LeftButton, {}, place);
    ASSERT_TRUE(QTest::qWaitFor([] { return Shown() != nullptr; }, 30000));
    EXPECT_EQ(Shown()->Title().text, "a.jpg");
    EXPECT_EQ(Shown()->Title().icon, 1);
    EXPECT_TRUE(Shown()->Text().contains("300 × 200 pixels"));
    EXPECT_TRUE(Shown()->Text().contains("ISO 200"));
    QTest::mouseRelease(&window_->sheet(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Shown(), nullptr);
}

}  // namespace
}  // namespace vorlane::editor
