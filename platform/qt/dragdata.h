// What a drag carries, from a DataObject to Qt's MIME data and back.
//
// Out: the files as text/uri-list, which any program understands, and with their keys in a form of the library's own;
// the text as plain text. In: the library's own form, else the local files of text/uri-list, and the paths and file
// addresses of plain text, one a line. Addresses of other hosts and schemes, paths that are not absolute and names with
// control codes are left out; data that holds nothing else comes in without that form. Whether a file is there is not
// looked at.
#pragma once

#include "platform/dataobject.h"

#include <memory>
#include <string>
#include <vector>

class QMimeData;

namespace vorlane {

inline constexpr char kOwnDragForm[] = "application/x-vorlane-files";

std::unique_ptr<QMimeData> MimeDataFrom(const DataObject& data);
DataObject DataObjectFrom(const QMimeData& mime);
// The paths of the local files that text/uri-list names, in its order.
std::vector<std::string> LocalFilesOf(const QMimeData& mime);

}  // namespace vorlane
