// The screenshot of the command line: a window that nobody sees, or only for a moment, saved as a picture.
#pragma once

#include "editor/commandline.h"

namespace vorlane::editor {

// Shows the window as the commands say, waits until every slide shows its picture, saves it and gives 0. Gives 1, and
// tells why on the error output, when the folder can't be read or the file can't be written. The user's settings play
// no part in it.
int TakeScreenshot(const CommandLine& commands);

}  // namespace vorlane::editor
