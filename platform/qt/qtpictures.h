// QtPictures: picture files, reductions and the library's own artwork.
#pragma once

#include "platform/desktop.h"
#include "platform/event.h"

#include <map>
#include <string>

namespace vorlane {

class QtPictures final : public Pictures {
public:
    // Raises the program's allocation limit for pictures to 512 MiB when it stands lower.
    QtPictures();

    // Nothing for whatever can't be read whole: missing, empty, cut, corrupt, too large. A path with a point behind
    // the name of a file without extension finds that file.
    std::optional<Picture> LoadImageFile(const std::string& path) override;
    // The result is as dense as the densest screen, as far as the source goes.
    Picture ResizePicture(const Picture& picture, int32_t width, int32_t height) override;
    Picture Get(Artwork artwork) override;

    // A file is about to be read on the user's thread. A handler that knows it for broken spares that; the file then
    // counts as one that can't be read: the path of the file as it is found, broken.
    Event<const std::string&, bool&> BeforeLoad;

private:
    std::map<Artwork, Picture> artwork_;
};

}  // namespace vorlane
