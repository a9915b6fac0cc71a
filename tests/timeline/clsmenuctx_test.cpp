#include "timeline/clsmenuctx.h"

#include "platform/headless/desktop.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

class ClsMenuCtxTest : public testing::Test {
protected:
    ClsMenuCtxTest() {
        menu.Events.ItemClic.connect([this](int32_t item) { desktop.trace.Add("clic " + std::to_string(item)); });
        menu.Events.GetSecond.connect([this](int32_t key, int32_t& second, std::string& name) {
            desktop.trace.Add("second of " + std::to_string(key) + ", given " + std::to_string(second) + " [" + name +
                              "]");
            if (key == 5) return;
            second = 60 * key;
            name = "slide" + std::to_string(key) + ".jpg";
        });
    }

    static std::shared_ptr<SonCollection> Sounds(std::initializer_list<int32_t> keys) {
        auto sounds = std::make_shared<SonCollection>();
        for (const int32_t key : keys) {
            tSon son;
            son.DiapoKey = key;
            son.Nom = "/s/" + std::to_string(key) + ".wav";
            sounds->Add(son, std::to_string(key) + "k");
        }
        return sounds;
    }
    // Shows the menu; only what it lists.
    std::string Items(const ClsMenuCtx::Sounds& music, const ClsMenuCtx::Sounds& comment, bool onlyFiles = false) {
        menu.MenuTimeLine(9, music, comment, onlyFiles);
        std::string text;
        for (const std::string& said : desktop.trace.Lines()) {
            const bool item = said.find(" [") != std::string::npos || said.ends_with("----");
            if (said.starts_with("menu") && item) text += said.substr(said.find(' ', 5) + 1) + "\n";
        }
        desktop.trace.Clear();
        return text;
    }

    headless::Desktop desktop;
    ClsMenuCtx menu{desktop.Roles()};
};

constexpr const char* kCommandsAlone =
    "-5 [Musique ou commentaire précédent\\t(F2)]\n"
    "-6 [Musique ou commentaire suivant\\t(F5)]\n"
    "----\n"
    "-1 [Musique précédente\\t(F3)]\n"
    "-2 [Musique suivante\\t(F6)]\n"
    "----\n"
    "-3 [Commentaire précédent\\t(F4)]\n"
    "-4 [Commentaire suivant\\t(F7)]\n"
    "----\n";

TEST_F(ClsMenuCtxTest, WithoutSoundsThereAreSixCommandsAndThreeSeparators) {
    EXPECT_EQ(Items(Sounds({}), Sounds({})), kCommandsAlone);
    EXPECT_EQ(Items(nullptr, nullptr), kCommandsAlone);
}

TEST_F(ClsMenuCtxTest, SoundsAreListedWithTheirSecondAndTheirPicture) {
    menu.MenuTimeLine(9, Sounds({1, 5}), Sounds({2}), false, 30, 40);
    EXPECT_EQ(desktop.trace.Take(),
              "menu 1 create\n"
              "menu 1 -5 [Musique ou commentaire précédent\\t(F2)]\n"
              "menu 1 -6 [Musique ou commentaire suivant\\t(F5)]\n"
              "menu 1 ----\n"
              "menu 1 -1 [Musique précédente\\t(F3)]\n"
              "menu 1 -2 [Musique suivante\\t(F6)]\n"
              "menu 1 ----\n"
              "second of 1, given 0 []\n"
              "menu 1 2 [1:00 /s/1.wav\\t(slide1.jpg)]\n"
              "second of 5, given 0 []\n"
              "menu 1 6 [0:00 /s/5.wav\\t()]\n"
              "menu 1 ----\n"
              "menu 1 -3 [Commentaire précédent\\t(F4)]\n"
              "menu 1 -4 [Commentaire suivant\\t(F7)]\n"
              "menu 1 ----\n"
              "second of 2, given 0 []\n"
              "menu 1 3 [2:00 /s/2.wav\\t(slide2.jpg)]\n"
              "menu bar of 9\n"
              "menu 1 track flags=1182 at 30,40 over 9 size=20 exclude=0,0,0,0\n"
              "menu 1 destroy\n"
              "clic 0\n");
}

TEST_F(ClsMenuCtxTest, AListedSoundOnASlideWithKey0HasId1) {
    EXPECT_EQ(Items(Sounds({0}), nullptr, true), "1 [0:00 /s/0.wav\\t(slide0.jpg)]\n");
}

TEST_F(ClsMenuCtxTest, AListOfFilesAloneHasItsSeparatorOnlyBeforeAnother) {
    EXPECT_EQ(Items(Sounds({1}), nullptr, true), "2 [1:00 /s/1.wav\\t(slide1.jpg)]\n");
    EXPECT_EQ(Items(Sounds({1}), Sounds({}), true), "2 [1:00 /s/1.wav\\t(slide1.jpg)]\n----\n");
    EXPECT_EQ(Items(nullptr, Sounds({2}), true), "3 [2:00 /s/2.wav\\t(slide2.jpg)]\n");
    EXPECT_EQ(Items(Sounds({}), Sounds({2}), true), "3 [2:00 /s/2.wav\\t(slide2.jpg)]\n");
}

TEST_F(ClsMenuCtxTest, TextsOfTheUsersLanguageReplaceTheFrenchOnes) {
    desktop.texts.Add("2058", "Next music");
    const std::string items = Items(nullptr, nullptr);
    EXPECT_NE(items.find("-2 [Next music\\t(F6)]"), std::string::npos);
    EXPECT_NE(items.find("-1 [Musique précédente\\t(F3)]"), std::string::npos) << "2057 is missing";
}

TEST_F(ClsMenuCtxTest, WithoutAPlaceItOpensAtThePointer) {
    desktop.screen.SetCursorPos({77, 88});
    const auto place = [&](int32_t x, int32_t y) {
        desktop.trace.Clear();
        menu.MenuTimeLine(9, nullptr, nullptr, true, x, y);
        const std::string trace = desktop.trace.Text({"menu"});
        const size_t at = trace.find(" at ") + 4;
        return trace.substr(at, trace.find(" over ") - at);
    };
    EXPECT_EQ(place(-1, -1), "77,88");
    EXPECT_EQ(place(5, -1), "77,88");
    EXPECT_EQ(place(-1, 5), "77,88");
    EXPECT_EQ(place(0, 5), "0,5");
}

TEST_F(ClsMenuCtxTest, TheChoiceIsToldOnceTheMenuIsGone) {
    desktop.menus.Choose(-4);
    menu.Events.ItemClic.connect([this](int32_t) { EXPECT_EQ(desktop.menus.OpenMenus(), 0); });
    desktop.menus.OnTrack = [this] { EXPECT_EQ(desktop.menus.OpenMenus(), 1); };
    menu.MenuTimeLine(9, nullptr, nullptr);
    EXPECT_EQ(desktop.trace.Take({"clic"}), "clic -4\n");
}

TEST_F(ClsMenuCtxTest, AHandlerThatFailsLeavesNoMenuBehind) {
    menu.Events.GetSecond.connect([](int32_t, int32_t&, std::string&) { throw 1; });
    EXPECT_ANY_THROW(menu.MenuTimeLine(9, Sounds({1}), nullptr));
    EXPECT_EQ(desktop.menus.OpenMenus(), 0);
    EXPECT_EQ(desktop.trace.Take({"clic"}), "");
}

TEST_F(ClsMenuCtxTest, AMenuThatCantBeMadeChoosesNothing) {
    desktop.menus.FailCreating(true);
    menu.MenuTimeLine(9, nullptr, nullptr);
    EXPECT_EQ(desktop.trace.Take({"clic"}), "clic 0\n");
}

}  // namespace
}  // namespace vorlane
