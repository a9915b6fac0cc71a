// What is dropped on a sheet: the first byte says in which form the rest comes.
#include "fuzz/fuzzing.h"
#include "interaction/droptext.h"
#include "platform/draggedfile.h"
#include "platform/qt/dragdata.h"

#include <array>
#include <string>
#include <vector>

#include <QMimeData>

using namespace vorlane;

namespace {

constexpr std::array kForms{"text/uri-list", "text/plain", kOwnDragForm};

// Paths are absolute, and no line is hidden in one.
void CheckPath(const std::string& path) {
    fuzz::Require(!path.empty() && path.front() == '/', "a dropped path is absolute");
    for (const char letter : path)
        fuzz::Require(static_cast<unsigned char>(letter) >= 32, "a dropped path holds no control codes");
}

void CheckText(const DataObject& dropped) {
    const std::vector<std::string> paths = DroppedPaths(dropped.Text());
    for (const std::string& path : paths) CheckPath(path);
    const bool whole = paths.empty() || static_cast<int64_t>(paths.size()) == DroppedLines(dropped.Text());
    fuzz::Require(whole, "a dropped text holds nothing but paths");
}

void CheckFiles(const DataObject& dropped) {
    for (const std::string& entry : dropped.Files()) {
        const DraggedFile file = ReadDraggedFile(entry);
        CheckPath(file.Path);
        fuzz::Require(ReadDraggedFile(DraggedFileEntry(file.Path, file.Key)).Key == file.Key, "a key comes back");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const std::string text(fuzz::TextOf(data + 1, size - 1));
    const auto paths = static_cast<int64_t>(DroppedPaths(text).size());
    fuzz::Require(paths <= DroppedLines(text), "no more paths than lines");

    QMimeData mime;
    mime.setData(QString::fromLatin1(kForms.at(data[0] % kForms.size())),
                 QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    const DataObject dropped = DataObjectFrom(mime);
    CheckFiles(dropped);
    CheckText(dropped);
    const DataObject again = DataObjectFrom(*MimeDataFrom(dropped));
    fuzz::Require(again.Files() == dropped.Files(), "what is dragged on comes in as it went out");
    return 0;
}
