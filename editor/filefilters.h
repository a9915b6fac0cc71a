// What the editor's dialogs show of a folder when the user chooses files.
#pragma once

#include "widgets/filekind.h"

#include <QString>

namespace vorlane::editor {

// Pictures or sounds first, then all files: a picture may have no extension.
QString FilterFor(FileKind kind);

}  // namespace vorlane::editor
