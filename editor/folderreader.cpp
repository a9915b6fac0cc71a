#include "editor/folderreader.h"

#include "editor/sortdata.h"
#include "widgets/filekind.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <filesystem>
#include <functional>
#include <iterator>
#include <mutex>
#include <optional>
#include <utility>

#include <QFile>
#include <QFileInfo>

namespace vorlane::editor {

namespace {

constexpr size_t kFirstPiece = 64;  // enough for a first look
constexpr size_t kPiece = 512;

struct Name {
    QString folder;  // with the separator behind it
    QString text;
    QString sortName;
};

bool IsPicture(const QString& folder, const QString& name) {
    if (name.startsWith(QLatin1Char('.')) || FileKindOf(name) != FileKind::Picture) return false;
    return HasExtension(name) || HoldsPicture(folder + name);
}

void Sort(std::vector<Name>& names) {
    std::sort(names.begin(), names.end(), [](const Name& a, const Name& b) {
        return a.sortName != b.sortName ? a.sortName < b.sortName : a.text < b.text;
    });
}

QString WithSeparator(const QString& folder) {
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

// Nothing for a folder that can't be read. One that breaks off gives what there was.
std::optional<std::vector<Name>> ReadNames(const QString& folder, const std::atomic<bool>& stopped) {
    std::error_code error;
    std::vector<Name> names;
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
    for (std::filesystem::directory_iterator entry(path, error), end; entry != end && !stopped;
         entry.increment(error)) {
        std::error_code unknown;
        if (!entry->is_regular_file(unknown)) continue;
        const QString name = QFile::decodeName(entry->path().filename().c_str());
        if (IsPicture(folder, name)) names.push_back({folder, name, SortName(name)});
    }
    if (error && names.empty()) return std::nullopt;
    Sort(names);
    return names;
}

std::vector<Name> GatherNames(const QStringList& paths, const std::atomic<bool>& stopped) {
    std::vector<Name> names;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        const QString folder = WithSeparator(file.path());
        if (file.isDir()) {
            const auto within = ReadNames(WithSeparator(path), stopped);
            if (within) names.insert(names.end(), within->begin(), within->end());
        } else if (file.isFile() && IsPicture(folder, file.fileName())) {
            names.push_back({folder, file.fileName(), SortName(file.fileName())});
        }
    }
    return names;
}

std::vector<Name> SplitNames(const QStringList& files) {
    std::vector<Name> names;
    names.reserve(static_cast<size_t>(files.size()));
    for (const QString& path : files) {
        const QFileInfo file(path);
        names.push_back({WithSeparator(file.path()), file.fileName(), SortName(file.fileName())});
    }
    return names;
}

FolderItem Item(const Name& name) {
    const QString path = name.folder + name.text;
    const QFileInfo file(path);
    return {path, SortData(FactsOf(file), name.sortName), !file.isFile()};
}

}  // namespace

// What the thread and the owner share.
struct FolderReader::Reading {
    // Nothing for a folder that can't be read.
    using Names = std::function<std::optional<std::vector<Name>>(const std::atomic<bool>& stopped)>;

    Reading(FolderReader* reader, QString path, Names reads)
        : owner(reader), folder(std::move(path)), names(std::move(reads)) {}

    FolderReader* owner;  // of the user's thread alone
    QString folder;       // empty: no folder is read
    Names names;
    std::atomic<bool> stopped = false;
    std::atomic<bool> read = false;   // to the end
    std::atomic<bool> ended = false;  // the thread has nothing more to do
    std::mutex mutex;                 // of what follows
    std::deque<FolderItem> items;
};

FolderReader::FolderReader(QObject* parent) : QObject(parent) {}

FolderReader::~FolderReader() {
    stop();
    for (Worker& worker : workers_) worker.thread.join();
}

void FolderReader::start(const QString& path) {
    const QString folder = WithSeparator(path);
    const auto names = [folder](const std::atomic<bool>& stopped) { return ReadNames(folder, stopped); };
    Begin(std::make_shared<Reading>(this, folder, names));
}

void FolderReader::gather(const QStringList& paths) {
    const auto names = [paths](const std::atomic<bool>& stopped) { return GatherNames(paths, stopped); };
    Begin(std::make_shared<Reading>(this, QString(), names));
}

void FolderReader::list(const QStringList& files) {
    const auto names = [files](const std::atomic<bool>&) { return SplitNames(files); };
    Begin(std::make_shared<Reading>(this, QString(), names));
}

void FolderReader::Begin(std::shared_ptr<Reading> reading) {
    stop();
    JoinEnded();
    reading_ = std::move(reading);
    const auto run = [reading = reading_] {
        Run(reading);
        reading->ended = true;
    };
    workers_.push_back({std::thread(run), reading_});
}

void FolderReader::stop() {
    if (reading_) reading_->stopped = true;
    reading_.reset();
}

void FolderReader::JoinEnded() {
    const auto ended = [](Worker& worker) {
        if (!worker.reading->ended) return false;
        worker.thread.join();
        return true;
    };
    std::erase_if(workers_, ended);
}

bool FolderReader::isRunning() const {
    if (!reading_) return false;
    const std::lock_guard lock(reading_->mutex);
    return !reading_->read || !reading_->items.empty();
}

std::vector<FolderItem> FolderReader::take(size_t most) {
    if (!reading_) return {};
    const std::lock_guard lock(reading_->mutex);
    auto& items = reading_->items;
    const auto end = items.begin() + static_cast<std::ptrdiff_t>(std::min(most, items.size()));
    std::vector<FolderItem> taken(std::make_move_iterator(items.begin()), std::make_move_iterator(end));
    items.erase(items.begin(), end);
    return taken;
}

// The owner waits for its threads before it ends, so it is there to be called.
template <class Signal>
void FolderReader::Tell(const std::shared_ptr<Reading>& reading, Signal signal) {
    const auto tell = [reading, signal] {
        if (!reading->stopped) signal(*reading->owner);
    };
    QMetaObject::invokeMethod(reading->owner, tell, Qt::QueuedConnection);
}

void FolderReader::Run(const std::shared_ptr<Reading>& reading) {
    const auto names = reading->names(reading->stopped);
    if (!names) {
        reading->read = true;
        Tell(reading, [](FolderReader& owner) { Q_EMIT owner.failed(owner.reading_->folder); });
        return;
    }
    const int total = static_cast<int>(names->size());
    Tell(reading, [total](FolderReader& owner) { Q_EMIT owner.opened(owner.reading_->folder, total); });
    size_t piece = kFirstPiece;
    for (size_t i = 0; i < names->size() && !reading->stopped; i += piece, piece = kPiece) {
        std::deque<FolderItem> items;
        const size_t end = std::min(i + piece, names->size());
        for (size_t k = i; k < end; ++k) items.push_back(Item((*names)[k]));
        {
            const std::lock_guard lock(reading->mutex);
            std::move(items.begin(), items.end(), std::back_inserter(reading->items));
        }
        Tell(reading, [](FolderReader& owner) { Q_EMIT owner.available(); });
    }
    reading->read = true;
    Tell(reading, [](FolderReader& owner) { Q_EMIT owner.finished(); });
}

}  // namespace vorlane::editor
