#include "platform/headless/window.h"
#include "sheet/vorlane.h"

#include <gtest/gtest.h>
#include <string>

// A host's status line: how many slides are selected, and what could not be shown.
class StatusLine {
public:
    explicit StatusLine(vorlane::Vorlane& sheet) {
        sheet.Events.MouseUp.connect(
            [this, &sheet](auto...) { Text = std::to_string(sheet.CountSelected()) + " selected"; });
        sheet.Events.InvalidPicture.connect(
            [this](int16_t, const std::string& fileName) { Text = fileName + " can't be shown"; });
    }

    std::string Text;
};

class StatusLineTest : public ::testing::Test {
protected:
    vorlane::headless::Desktop desktop;
    vorlane::headless::Window window{desktop, {0, 0, 345, 180}};
    vorlane::Vorlane sheet{desktop.Roles(), window.Ambient()};
    StatusLine status{sheet};

    StatusLineTest() { window.Host(sheet); }

    void Show(std::initializer_list<const char*> files) {
        for (const char* file : files) sheet.Add(file, "");
        sheet.StartLecture();
    }
};

TEST_F(StatusLineTest, CountsWhatTheUserSelects) {
    desktop.pictures.Add("/sea.jpg", 600, 400);
    desktop.pictures.Add("/sky.jpg", 600, 400);
    Show({"/sea.jpg", "/sky.jpg"});

    window.Click(50, 40);
    EXPECT_EQ(status.Text, "1 selected");
    window.Click(160, 40, vorlane::headless::kLeftButton, vorlane::headless::kCtrl);
    EXPECT_EQ(status.Text, "2 selected");
}

TEST_F(StatusLineTest, NamesTheFileThatCantBeShown) {
    Show({"/missing.jpg"});
    EXPECT_EQ(status.Text, "/missing.jpg can't be shown");
}
