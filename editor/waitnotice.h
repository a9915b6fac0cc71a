// The wait window over the sheet during the show's long work.
#pragma once

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class Show;

void ShowWaitDuringLongWork(VorlaneWidget& sheet, Show& show);

}  // namespace vorlane::editor
