// Busy: a flag that is set for the length of a block, against re-entrance.
#pragma once

namespace vorlane {

class Busy {
public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
    ~Busy() { flag_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    bool& flag_;
};

}  // namespace vorlane
