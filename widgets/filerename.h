// Gives files other names in the sheet's way, for hosts that take a rename back.
#pragma once

#include <QString>

namespace vorlane {

// On the same volume. Overwrites and copies nothing; a link is renamed itself, wherever it leads. Gives whether the
// file has its new name.
bool RenameFile(const QString& from, const QString& to);

}  // namespace vorlane
