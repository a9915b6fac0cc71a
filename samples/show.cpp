#include "samples/show.h"

#include "samples/picture.h"
#include "samples/sounds.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace samples {
namespace {

void Save(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw std::runtime_error((path + ": " + file.errorString()).toStdString());
    }
}

// Runs work(0) to work(count - 1) on all processors; rethrows the first failure.
template <class Work>
void InParallel(size_t count, Work work) {
    std::atomic<size_t> next = 0;
    std::mutex guard;
    std::exception_ptr failure;
    const auto run = [&] {
        for (size_t i = next++; i < count; i = next++) {
            try {
                work(i);
            } catch (...) {
                const std::lock_guard lock(guard);
                failure = std::current_exception();
                next = count;
            }
        }
    };
    std::vector<std::thread> threads;
    for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i) threads.emplace_back(run);
    run();
    for (std::thread& thread : threads) thread.join();
    if (failure) std::rethrow_exception(failure);
}

File PictureFile(const Picture& picture) {
    const qint64 pixels = qint64{picture.Size.width()} * picture.Size.height();
    return {QString::fromUtf8(picture.Name), pixels, [picture] { return Encode(picture); }};
}

// A JPEG file that ends before its first line of pixels.
QByteArray CutOff() {
    const Picture small{"cut.jpg", {600, 400}, [](Canvas& canvas) { canvas.Disc(0.75F, 0.5F, 0.3F, 0.1F, 0xC08040); }};
    return Encode(small).left(300);
}

// The first line tells the version, the others are the names of its files.
QStringList StampOf(const std::vector<File>& files, const QString& version) {
    QStringList lines{version};
    for (const File& file : files) lines.append(file.Name);
    return lines;
}

QStringList ReadStamp(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n') : QStringList();
}

}  // namespace

std::vector<File> Show() {
    std::vector<File> files;
    for (const auto& topic : {Mountains, Woods, Waters, Skies, Towns, Shapes, StillLifes}) {
        for (const Picture& picture : topic()) files.push_back(PictureFile(picture));
    }
    files.push_back({"Photo abîmée.jpg", 0, CutOff});
    files.push_back({"Photo vide.jpg", 0, [] { return QByteArray(); }});
    files.push_back({"Carillon.wav", 0, Chime});
    files.push_back({"Ressac.wav", 0, Surf});
    files.push_back({"Petite mélodie.wav", 0, Melody});
    return files;
}

void Write(const std::vector<File>& files, const QString& folder) {
    if (!QDir().mkpath(folder)) throw std::runtime_error((folder + ": cannot be made").toStdString());
    std::vector<File> sorted = files;  // the most work first, so that no thread is left with it at the end
    std::stable_sort(sorted.begin(), sorted.end(), [](const File& a, const File& b) { return a.Work > b.Work; });
    InParallel(sorted.size(), [&](size_t i) { Save(folder + '/' + sorted[i].Name, sorted[i].Content()); });
}

QString Version() {
    return VORLANE_SAMPLES_VERSION;
}

bool Refresh(const std::vector<File>& files, const QString& version, const QString& folder) {
    const QString stampPath = QDir::cleanPath(folder) + ".stamp";
    const QStringList held = ReadStamp(stampPath);
    const QStringList stamp = StampOf(files, version);
    if (held == stamp && QDir(folder).exists()) return false;
    QFile::remove(stampPath);  // a run that is cut short leaves none
    for (const QString& name : held.mid(1)) {
        if (!stamp.contains(name)) QFile::remove(folder + '/' + name);
    }
    Write(files, folder);
    Save(stampPath, stamp.join('\n').toUtf8());
    return true;
}

}  // namespace samples
