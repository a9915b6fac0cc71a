// The editor's look of a sheet: slides as cards in the colours of the program's palette, light or dark.
#pragma once

#include <QPalette>

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

// The sheet's slides want filling then.
void ApplyLook(VorlaneWidget& sheet, const QPalette& palette);

}  // namespace vorlane::editor
