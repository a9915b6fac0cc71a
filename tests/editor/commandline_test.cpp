#include "editor/commandline.h"

#include <gtest/gtest.h>

using namespace vorlane::editor;

namespace {

CommandLineAnswer Parse(QStringList arguments) {
    arguments.prepend("vorlane-editor");
    return ParseCommandLine(arguments);
}

}  // namespace

TEST(CommandLine, NothingIsAsked) {
    const auto answer = Parse({});
    ASSERT_TRUE(answer.commands);
    EXPECT_TRUE(answer.commands->path.isEmpty());
    EXPECT_TRUE(answer.commands->screenshot.isEmpty());
    EXPECT_FALSE(answer.commands->size.isValid());
}

TEST(CommandLine, AllIsAsked) {
    const auto answer = Parse({"--screenshot", "a.png", "--size", "1200x800", "/pictures"});
    ASSERT_TRUE(answer.commands);
    EXPECT_EQ(answer.commands->path, "/pictures");
    EXPECT_EQ(answer.commands->screenshot, "a.png");
    EXPECT_EQ(answer.commands->size, QSize(1200, 800));
}

TEST(CommandLine, MistakesAreTold) {
    for (const QStringList& arguments :
         {QStringList({"--size", "big"}), QStringList({"--size", "0x10"}), QStringList({"--size", "10"}),
          QStringList({"--screenshot", ""}), QStringList({"/a", "/b"}), QStringList({"--unknown"})}) {
        const auto answer = Parse(arguments);
        EXPECT_FALSE(answer.commands) << arguments.first().toStdString();
        EXPECT_TRUE(answer.wrong);
        EXPECT_FALSE(answer.text.isEmpty());
    }
}

TEST(CommandLine, HelpAndVersionAreNoMistakes) {
    for (const char* argument : {"--help", "-h", "--version", "-v"}) {
        const auto answer = Parse({argument});
        EXPECT_FALSE(answer.commands);
        EXPECT_FALSE(answer.wrong);
        EXPECT_FALSE(answer.text.isEmpty());
    }
    EXPECT_TRUE(Parse({"--help"}).text.contains("--screenshot"));
}
