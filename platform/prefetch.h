// Prefetch: asks for memory that is read soon, so that walks in a random order don't wait for each place in turn.
#pragma once

namespace vorlane {

inline void Prefetch([[maybe_unused]] const void* place) {
#if defined(__GNUC__)
    __builtin_prefetch(place);
#endif
}

}  // namespace vorlane
