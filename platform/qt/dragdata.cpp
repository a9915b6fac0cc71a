#include "platform/qt/dragdata.h"

#include "platform/draggedfile.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>
#include <QMimeData>
#include <QString>
#include <QSysInfo>

namespace vorlane {

namespace {

const QString kUriList = QStringLiteral("text/uri-list");
const QString kPlainText = QStringLiteral("text/plain");
const QString kOwn = QLatin1String(kOwnDragForm);

constexpr std::string_view kScheme = "file:";
constexpr std::string_view kLineEnd = "\r\n";

std::string_view View(const QByteArray& bytes) {
    return {bytes.data(), static_cast<size_t>(bytes.size())};
}

QByteArray Bytes(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

// Calls visit with each line until it gives false. Lines end in a line feed, with or without a carriage return.
template <class Visit>
void ForEachLine(std::string_view text, Visit&& visit) {
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!visit(line)) return;
    }
}

// --- Paths and addresses ---

bool IsPath(std::string_view text) {
    const auto control = [](char unit) { return static_cast<unsigned char>(unit) < 0x20 || unit == 0x7F; };
    return text.starts_with('/') && std::none_of(text.begin(), text.end(), control);
}

// In an address the case of a scheme and of a host does not count.
bool SameWord(std::string_view one, std::string_view other) {
    return QByteArrayView(one).compare(QByteArrayView(other), Qt::CaseInsensitive) == 0;
}

bool IsThisHost(std::string_view host) {
    return host.empty() || SameWord(host, "localhost") || SameWord(host, View(QSysInfo::machineHostName().toUtf8()));
}

bool HasFileScheme(std::string_view text) {
    return SameWord(text.substr(0, kScheme.size()), kScheme);
}

// The path of a file address; nothing for any other. A query and a fragment are no part of a path.
std::optional<std::string> PathOfAddress(std::string_view address) {
    if (!HasFileScheme(address)) return std::nullopt;
    std::string_view path = address.substr(kScheme.size());
    if (path.starts_with("//")) {
        path.remove_prefix(2);
        const size_t hostEnd = std::min(path.find('/'), path.size());
        if (!IsThisHost(path.substr(0, hostEnd))) return std::nullopt;
        path.remove_prefix(hostEnd);
    }
    const QByteArray decoded = QByteArray::fromPercentEncoding(Bytes(path.substr(0, path.find_first_of("?#"))));
    const std::string plain(View(decoded));
    return IsPath(plain) ? std::optional(plain) : std::nullopt;
}

QByteArray AddressOf(const std::string& path) {
    return "file://" + Bytes(path).toPercentEncoding("/");
}

// --- The forms ---

QByteArray UriList(const std::vector<std::string>& files) {
    QByteArray list;
    for (const std::string& entry : files) {
        const std::string path = ReadDraggedFile(entry).Path;
        if (IsPath(path)) list += AddressOf(path) + "\r\n";
    }
    return list;
}

QByteArray OwnForm(const std::vector<std::string>& files) {
    QByteArray list;
    for (const std::string& entry : files) list += Bytes(entry).toPercentEncoding("/|") + "\n";
    return list;
}

std::vector<std::string> FilesOfOwnForm(const QByteArray& list) {
    std::vector<std::string> files;
    ForEachLine(View(list), [&](std::string_view line) {
        const std::string entry(View(QByteArray::fromPercentEncoding(Bytes(line))));
        if (IsPath(entry)) files.push_back(entry);
        return true;
    });
    return files;
}

// The lines in front of the first empty one that can be files.
std::string PathsOfText(const std::string& text) {
    std::string paths;
    ForEachLine(text, [&](std::string_view line) {
        if (line.empty()) return false;
        auto path = PathOfAddress(line);
        if (!path && IsPath(line)) path = std::string(line);
        if (path) paths.append(paths.empty() ? "" : kLineEnd).append(*path);
        return true;
    });
    return paths;
}

}  // namespace

std::unique_ptr<QMimeData> MimeDataFrom(const DataObject& data) {
    auto mime = std::make_unique<QMimeData>();
    if (data.GetFormat(kFormatFiles)) {
        mime->setData(kOwn, OwnForm(data.Files()));
        mime->setData(kUriList, UriList(data.Files()));
    }
    if (data.GetFormat(kFormatText)) mime->setText(QString::fromStdString(data.Text()));
    return mime;
}

std::vector<std::string> LocalFilesOf(const QMimeData& mime) {
    std::vector<std::string> paths;
    const QByteArray list = mime.data(kUriList);
    ForEachLine(View(list), [&](std::string_view line) {
        if (auto path = PathOfAddress(line)) paths.push_back(std::move(*path));
        return true;
    });
    return paths;
}

DataObject DataObjectFrom(const QMimeData& mime) {
    std::vector<std::string> files;
    if (mime.hasFormat(kOwn)) {
        files = FilesOfOwnForm(mime.data(kOwn));
    } else if (mime.hasFormat(kUriList)) {
        for (const std::string& path : LocalFilesOf(mime)) files.push_back(DraggedFileEntry(path));
    }
    std::string text;
    if (mime.hasFormat(kPlainText)) text = PathsOfText(mime.text().toStdString());
    DataObject data;
    if (!files.empty()) data.SetFiles(std::move(files));
    if (!text.empty()) data.SetText(std::move(text));
    return data;
}

}  // namespace vorlane
