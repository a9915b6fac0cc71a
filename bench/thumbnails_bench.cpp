// Thumbnails: what the first show of a grid of pictures costs, beside two plain threads of QImageReader over the same
// files in the same run, and what a grid costs that was seen before.
//
//   thumbnails_bench [folder for the pictures]
//
// It makes 36 pictures of 6 and of 24 megapixels in the folder, unless they are there from the last run.
#include "widgets/thumbnailservice.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <thread>
#include <vector>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>

using namespace vorlane;

namespace {

constexpr int kGrid = 36;
constexpr int kSide = 150;
constexpr int kRounds = 5;

// Something like a landscape: smooth slopes with grain, so that its jpeg is of a usual size.
QImage Landscape(QSize size, int number) {
    QImage image(size, QImage::Format_RGB32);
    quint32 grain = static_cast<quint32>(number) * 7919U + 1U;
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double wave = 90 * std::cos(y * 0.004 + number);
        for (int x = 0; x < size.width(); ++x) {
            grain = grain * 1664525U + 1013904223U;
            const int noise = static_cast<int>(grain >> 28);
            const int slope = 127 + static_cast<int>(wave * (x % 512) / 512);
            row[x] = qRgb(std::clamp(slope + noise, 0, 255), x * 239 / size.width() + noise,
                          y * 200 / size.height() + noise);
        }
    }
    return image;
}

QStringList Pictures(const QString& folder, QSize size) {
    QStringList paths;
    QDir().mkpath(folder);
    for (int i = 0; i < kGrid; ++i) {
        paths.push_back(QStringLiteral("%1/%2x%3-%4.jpg").arg(folder).arg(size.width()).arg(size.height()).arg(i));
        if (QFile::exists(paths.back())) continue;
        QImageWriter writer(paths.back());
        writer.setQuality(85);
        writer.write(Landscape(size, i));
        QFile file(paths.back());  // long enough ago for the cache on disk
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime);
    }
    return paths;
}

// Processor time of all threads of the program, in milliseconds. Unlike the clock's it hardly depends on what else the
// machine does.
double Computed() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class Times {
public:
    void Add(const std::function<void()>& work) {
        QElapsedTimer timer;
        timer.start();
        const double before = Computed();
        work();
        computed_.push_back(Computed() - before);
        clock_.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    void Print(const char* what) const {
        std::printf("  %-42s clock: best %8.2f, median %8.2f ms   computed: best %8.2f ms\n", what, At(clock_, 0),
                    At(clock_, clock_.size() / 2), At(computed_, 0));
    }

private:
    static double At(std::vector<double> values, size_t place) {
        std::sort(values.begin(), values.end());
        return values[place];
    }

    std::vector<double> clock_;
    std::vector<double> computed_;
};

void PlainThreads(const QStringList& paths) {
    std::atomic<qsizetype> next = 0;
    const auto work = [&] {
        for (qsizetype i = next++; i < paths.size(); i = next++) {
            QImageReader reader(paths[i]);
            reader.setAutoTransform(true);
            reader.setScaledSize(reader.size().scaled(kSide, kSide, Qt::KeepAspectRatio));
            if (reader.read().isNull()) std::abort();
        }
    };
    std::thread other(work);
    work();
    other.join();
}

// Asks for a whole grid, as a pass over the slides does, and waits until all of it is there.
void Show(ThumbnailService& service, const QStringList& paths) {
    service.setWanted(paths);
    for (const QString& path : paths) service.request(path, kSide);
    while (service.pending() > 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

ThumbnailOptions Options(const QString& cache) {
    ThumbnailOptions options;
    options.cacheFolder = cache;
    return options;
}

void Measure(const char* name, const QStringList& paths) {
    Times plain;
    Times first;
    Times written;
    Times fromDisk;
    Times revisited;
    ThumbnailService::Counts firstCounts;
    ThumbnailService::Counts diskCounts;
    int answered = 0;
    PlainThreads(paths);  // all files into the system's memory
    for (int round = 0; round < kRounds; ++round) {
        const QTemporaryDir cache;
        plain.Add([&] { PlainThreads(paths); });
        ThumbnailService service(Options(cache.filePath(QStringLiteral("thumbnails"))));
        first.Add([&] { Show(service, paths); });
        written.Add([&] { service.waitForWorkers(); });
        firstCounts = service.counts();
        revisited.Add([&] {
            answered = 0;
            for (const QString& path : paths)
                answered += service.request(path, kSide).state == ThumbnailService::State::Ready;
        });
        ThumbnailService second(Options(cache.filePath(QStringLiteral("thumbnails"))));
        fromDisk.Add([&] { Show(second, paths); });
        diskCounts = second.counts();
    }
    std::printf("%s, %d pictures to %d pixels, two workers\n", name, kGrid, kSide);
    std::printf("  counts: first show %d decodes; from disk %d decodes, %d entries; revisited %d answers at once\n",
                firstCounts.decoded, diskCounts.decoded, diskCounts.fromDisk, answered);
    plain.Print("two plain threads of QImageReader");
    first.Print("never seen");
    written.Print("  then writing the cache on disk, behind");
    fromDisk.Print("seen by another program, from disk");
    revisited.Print("revisited, from memory");
}

// More than the grid is asked for, then the view scrolls away from it.
void MeasureScrolledAway(const QStringList& paths) {
    ThumbnailService service(Options({}));
    for (const QString& path : paths) service.request(path, kSide);
    service.setWanted(paths.mid(kGrid - 6));
    while (service.pending() > 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("scrolled away: %lld asked for, %d dropped, %d decoded\n", static_cast<long long>(paths.size()),
                service.counts().dropped, service.counts().decoded);
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath() + "/vorlane-bench-pictures";
    const QStringList six = Pictures(folder, {3000, 2000});
    const QStringList twentyFour = Pictures(folder, {6000, 4000});
    Measure("6 megapixels", six);
    Measure("24 megapixels", twentyFour);
    MeasureScrolledAway(six);
    return 0;
}
