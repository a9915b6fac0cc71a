// Films: the desktop's role for picture files that are to be viewed, which may move. A file that stands still is a film
// of one frame.
#pragma once

#include "platform/picture.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace vorlane {

struct FilmFrame {
    vorlane::Picture Picture;
    int32_t Delay = 0;  // milliseconds until the next one; 0: it stays for good
};

// An open file.
class Film {
public:
    virtual ~Film() = default;

    // The next frame, from the first on, and round again as often as the file asks for. Nothing when there is none any
    // more, or when it can't be read.
    virtual std::optional<FilmFrame> NextFrame() = 0;
};

class Films {
public:
    virtual ~Films() = default;

    virtual bool CanOpen(const std::string& path) const = 0;
    // nullptr for a file that can't be opened.
    virtual std::unique_ptr<Film> Open(const std::string& path) = 0;
};

}  // namespace vorlane
