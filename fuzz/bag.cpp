// The text form of property bags: what can be read comes back the same when it is written and read again.
#include "fuzz/fuzzing.h"
#include "platform/bagtext.h"
#include "platform/failure.h"

#include <string>

using namespace vorlane;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        const std::string once = BagToText(BagFromText(fuzz::TextOf(data, size)));
        fuzz::Require(BagToText(BagFromText(once)) == once, "a bag that was written reads as it was");
    } catch (const Failure& failure) {
        fuzz::Require(!failure.Description.empty(), "a failure says what is wrong");
    }
    return 0;
}
