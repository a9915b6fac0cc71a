// Show files on the disk: they are written at once as a whole, so that a file holds the former show or the new one and
// never a part of it.
#pragma once

#include "editor/savedshow.h"

namespace vorlane::editor {

// The extension of a show's file, without its point.
inline constexpr QLatin1String kShowExtension("vorlane");

// Whether the name is that of a show's file.
bool IsShowFile(const QString& path);

// A show, or a sentence for the user that names the file.
ShowReading LoadShow(const QString& path);
// Gives that sentence when it fails, and leaves what was there before as it was; empty when it is done.
QString SaveShow(const QString& path, const SavedShow& show);

}  // namespace vorlane::editor
