// Feeds a fuzzer with files, each once.
#include "fuzz/fuzzing.h"

#include <fstream>
#include <iterator>
#include <string>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "no files to read\n");
        return 1;
    }
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        if (!file) {
            std::fprintf(stderr, "can't read %s\n", argv[i]);
            return 1;
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(text.data()), text.size());
    }
}
