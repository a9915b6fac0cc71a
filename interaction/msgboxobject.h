// MsgBoxObject: what a host shows messages of a rename with, in place of the message box.
#pragma once

#include <cstdint>
#include <string>

namespace vorlane {

class MsgBoxObject {
public:
    virtual ~MsgBoxObject() = default;

    // Only an object of the type "DialogueBox" is asked to show anything.
    virtual std::string TypeName() const = 0;
    // flags: 16 error.
    virtual void Action(const std::string& text, const std::string& title, const std::string& subTitle,
                        int32_t flags) = 0;
};

}  // namespace vorlane
