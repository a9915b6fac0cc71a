#include "widgets/filerename.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "widgets/conversions.h"

namespace vorlane {

bool RenameFile(const QString& from, const QString& to) {
    return Attempt([&] { files::Rename(ToText(from), ToText(to)); });
}

}  // namespace vorlane
