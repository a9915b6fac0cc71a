// Failures: the one exception type of the core, the pending error of a control, and the two helpers that carry the
// whole convention. Trap runs an operation and turns its failure into a report; Attempt runs one statement and
// forgets its failure. A handler of the host that throws anything at all counts as a failure of the operation that
// raised the event.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace vorlane {

class Failure : public std::exception {
public:
    Failure(int32_t number, std::string description, std::string source = "Vorlane", int32_t lastDllError = 0);

    const char* what() const noexcept override { return Description.c_str(); }

    int32_t Number;           // what failed, see namespace failures
    std::string Description;  // a sentence for the user, in French
    std::string Source;       // the component that failed
    int32_t LastDllError;     // the operating system's own number, 0 when it had no part in it
};

namespace failures {

Failure InvalidCall();                           // 5
Failure Overflow();                              // 6
Failure OutOfMemory();                           // 7
Failure SubscriptOutOfRange();                   // 9
Failure DivisionByZero();                        // 11
Failure TypeMismatch();                          // 13
Failure Internal(std::string description);       // 51
Failure FileNotFound(int32_t systemError = 0);   // 53
Failure FileExists(int32_t systemError = 0);     // 58
Failure AccessDenied(int32_t systemError = 0);   // 70
Failure PathNotFound(int32_t systemError = 0);   // 76
Failure ObjectNotSet();                          // 91
Failure InvalidFormat(std::string description);  // 321
Failure ControlNotLoaded();                      // 340
Failure ControlAlreadyLoaded();                  // 360
Failure InvalidProperty();                       // 380
Failure DuplicateKey();                          // 457
Failure InvalidPicture();                        // 481

}  // namespace failures

// The exception that is being handled, as a Failure: itself, a memory failure as OutOfMemory, any other standard
// exception as Internal with its text, anything else as Internal. Call it only inside a catch block.
Failure CurrentFailure();

// The failure that the last Trap of a control met. Number is 0 when there is none.
struct PendingError {
    int32_t Number = 0;
    std::string Description;
    std::string Source;
    int32_t LastDllError = 0;

    void Clear() { *this = PendingError{}; }
    void Set(const Failure& failure);
};

// Runs operation with the pending error cleared. On a failure stores it in pending and calls report(failure); a
// failure of the report itself ends there. Returns what the operation returned, or otherwise.
template <class Operation, class Report, class Result>
Result Trap(PendingError& pending, Operation&& operation, Report&& report, Result otherwise) {
    pending.Clear();
    try {
        return static_cast<Result>(std::forward<Operation>(operation)());
    } catch (...) {
        const Failure failure = CurrentFailure();
        pending.Set(failure);
        try {
            std::forward<Report>(report)(failure);
        } catch (...) {
            pending.Set(CurrentFailure());
        }
        return otherwise;
    }
}

template <class Operation, class Report>
void Trap(PendingError& pending, Operation&& operation, Report&& report) {
    Trap(
        pending,
        [&] {
            std::forward<Operation>(operation)();
            return true;
        },
        std::forward<Report>(report), false);
}

// Runs one statement and ignores its failure. Returns whether it succeeded.
template <class Statement>
bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace vorlane
