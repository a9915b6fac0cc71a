// Show files: either a show comes of a text, which comes back the same when it is written and read again, or a
// sentence.
#include "editor/savedshow.h"
#include "fuzz/fuzzing.h"

using namespace vorlane;
using namespace vorlane::editor;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QDir folder(QStringLiteral("/shows/one"));
    const std::string_view text = fuzz::TextOf(data, size);
    const ShowReading reading = ReadShow(QByteArray(text.data(), static_cast<qsizetype>(text.size())), folder);
    fuzz::Require(reading.show.has_value() == reading.failure.isEmpty(), "a show or a sentence");
    if (!reading.show) return 0;
    for (const QString& path : reading.show->pictures)
        fuzz::Require(QDir::isAbsolutePath(path), "a picture's path is absolute");
    const ShowReading again = ReadShow(ShowText(*reading.show, folder), folder);
    fuzz::Require(again.show == reading.show, "a show that was written reads as it was");
    return 0;
}
