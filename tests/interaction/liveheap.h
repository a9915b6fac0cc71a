// How much of the heap is in use, for tests that run long.
#pragma once

#include <cstddef>

namespace vorlane {

// Bytes that are allocated and not yet freed: by new, or under the address sanitizer by any means.
size_t LiveHeap();

}  // namespace vorlane
