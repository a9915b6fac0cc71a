#include "widgets/droppedfiles.h"

#include "platform/qt/dragdata.h"
#include "widgets/conversions.h"

namespace vorlane {

QStringList DroppedFiles(const QMimeData& mime) {
    QStringList files;
    for (const std::string& path : LocalFilesOf(mime)) files.push_back(FromText(path));
    return files;
}

}  // namespace vorlane
