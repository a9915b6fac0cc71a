// The files that a drag brings to a host's own windows, by the rules of the drops on a sheet.
#pragma once

#include <QStringList>

class QMimeData;

namespace vorlane {

// The paths of the local files of text/uri-list. Those of other hosts, what is no file, and names with control codes
// are left out. Whether a file is there is not looked at.
QStringList DroppedFiles(const QMimeData& mime);

}  // namespace vorlane
