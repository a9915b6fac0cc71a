// What the controls take a file for by its name, for hosts that choose files.
#pragma once

#include <QString>

namespace vorlane {

enum class FileKind { Picture = 0, Sound = 1, Video = 2, Document = 3, Other = 5 };

// By the extension, in any case. A name without one counts as a picture, for only its content can tell.
FileKind FileKindOf(const QString& path);
bool HasExtension(const QString& path);
// The names of such files as a file dialog takes them: "*.aac *.aif". Empty for Other.
QString NamePatternsOf(FileKind kind);

// Whether the content of the file is a picture of a format that can be read, going by its first bytes.
bool HoldsPicture(const QString& path);

}  // namespace vorlane
