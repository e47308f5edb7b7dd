#include "EnvArguments.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace {

std::string apply(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "UDSetup");
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    testing::internal::CaptureStdout();
    applyEnvArguments(static_cast<int>(argv.size()), argv.data());
    std::fflush(stdout);
    return testing::internal::GetCapturedStdout();
}

TEST(EnvArguments, AnUnsetVariableIsSetAndShownAsNull)
{
    ::unsetenv("FOO");
    EXPECT_EQ(apply({"-envFOO=bar"}), "FOO: \"(null)\"\n");
    EXPECT_STREQ(std::getenv("FOO"), "bar");
}

TEST(EnvArguments, AVariableThatHasAValueKeepsIt)
{
    ::setenv("FOO", "old", 1);
    EXPECT_EQ(apply({"-envFOO=bar"}), "FOO: \"old\"\n");
    EXPECT_STREQ(std::getenv("FOO"), "old");
}

TEST(EnvArguments, AnEmptyValueIsAValue)
{
    ::setenv("FOO", "", 1);
    EXPECT_EQ(apply({"-envFOO=bar"}), "FOO: \"\"\n");
    EXPECT_STREQ(std::getenv("FOO"), "");
}

TEST(EnvArguments, WithoutAnEqualsSignNothingHappens)
{
    ::unsetenv("FOO");
    EXPECT_EQ(apply({"-envFOO"}), "");
    EXPECT_EQ(std::getenv("FOO"), nullptr);
}

TEST(EnvArguments, AnEmptyNameIsPrintedAndNotSet)
{
    EXPECT_EQ(apply({"-env=bar"}), ": \"(null)\"\n");
}

TEST(EnvArguments, AnyNumberOfArgumentsIsAcceptedAnywhere)
{
    ::unsetenv("ONE");
    ::unsetenv("TWO");
    EXPECT_EQ(apply({"Studio A", "-envONE=1", "-x", "-envTWO=a=b"}), "ONE: \"(null)\"\nTWO: \"(null)\"\n");
    EXPECT_STREQ(std::getenv("ONE"), "1");
    EXPECT_STREQ(std::getenv("TWO"), "a=b");
}

TEST(EnvArguments, TheProgramNameIsNotAnArgument)
{
    ::unsetenv("FOO");
    std::string name = "-envFOO=bar";
    char* argv[] = {name.data()};
    applyEnvArguments(1, argv);
    EXPECT_EQ(std::getenv("FOO"), nullptr);
}

TEST(EnvArguments, TheNameFollowsThePrefixImmediately)
{
    EXPECT_FALSE(parseEnvArgument("-en"));
    EXPECT_FALSE(parseEnvArgument("-Env=x"));
    EXPECT_FALSE(parseEnvArgument("--envA=x"));
    EXPECT_FALSE(parseEnvArgument(""));
    ASSERT_TRUE(parseEnvArgument("-env A=x"));
    EXPECT_EQ(parseEnvArgument("-env A=x")->name, " A");
}

TEST(EnvArguments, ANameHasAtMost255Bytes)
{
    ASSERT_TRUE(parseEnvArgument("-env" + std::string(255, 'N') + "=v"));
    EXPECT_EQ(parseEnvArgument("-env" + std::string(255, 'N') + "=v")->name, std::string(255, 'N'));
    EXPECT_FALSE(parseEnvArgument("-env" + std::string(256, 'N') + "=v"));
}

TEST(EnvArguments, AValueIsTruncatedTo256Bytes)
{
    EXPECT_EQ(parseEnvArgument("-envA=" + std::string(256, 'v'))->value, std::string(256, 'v'));
    EXPECT_EQ(parseEnvArgument("-envA=" + std::string(5000, 'v'))->value, std::string(256, 'v'));
    EXPECT_EQ(parseEnvArgument("-envA=")->value, "");
}

} // namespace
