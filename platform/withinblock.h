// WithinBlock: a flag that has a value until the end of a block, however that ends, and is down behind it.
#pragma once

namespace vorlane {

class WithinBlock {
public:
    explicit WithinBlock(bool& flag, bool value = true) : flag_(flag) { flag_ = value; }
    ~WithinBlock() { flag_ = false; }
    WithinBlock(const WithinBlock&) = delete;
    WithinBlock& operator=(const WithinBlock&) = delete;

private:
    bool& flag_;
};

}  // namespace vorlane
