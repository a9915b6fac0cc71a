// QtFilms: picture files as the desktop's decoders read them; animated ones, by their content, frame by frame.
#pragma once

#include "platform/film.h"

namespace vorlane {

class Pictures;

class QtFilms final : public Films {
public:
    // pictures reads the files that stand still.
    explicit QtFilms(Pictures& pictures) : pictures_(pictures) {}

    bool CanOpen(const std::string& path) const override;
    std::unique_ptr<Film> Open(const std::string& path) override;

private:
    Pictures& pictures_;
};

}  // namespace vorlane
