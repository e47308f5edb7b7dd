// Files of which a call fails once: what could not be read is never overwritten.
#include "FailingCalls.h"
#include "RegistryFile.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

const char TEXT[] = "[HKLM/a]\n\"x\"=\"1\"\n\n[HKLM/b]\n\n";
const char PROFILE[] = "/tmp/profile.ini";
const char SECTION[] = "[Common]\nKey=1\n";

struct Failure
{
    FailingCall call;
    int error;
    int passed;
};

} // namespace

TEST(FileFailure, ARegistryThatCannotBeReadIsNotOverwritten)
{
    const Failure failures[] = {
        {FailingCall::OPEN, EMFILE, 0}, {FailingCall::OPEN, ENOMEM, 0},
        {FailingCall::FSTAT, EIO, 0}, // of the stamp
        {FailingCall::FSTAT, EIO, 1}, // of the size
        {FailingCall::READ, EIO, 0},
    };
    for (const Failure& failure : failures) {
        SCOPED_TRACE(testing::Message()
                     << "call " << static_cast<int>(failure.call) << " after " << failure.passed);
        WriteRegistry(TEXT);
        g_Registry.clear();
        RegForgetLoad();
        FailOne(failure.call, failure.error, failure.passed);
        HKEY key = nullptr;
        const LSTATUS result =
            RegCreateKeyExA(HKEY_LOCAL_MACHINE, "c", 0, nullptr, 0, KEY_READ, nullptr, &key, nullptr);
        if (result == ERROR_SUCCESS) {
            RegCloseKey(key);
            EXPECT_EQ(ReadText(REGISTRY_FILE), std::string(TEXT) + "[HKLM/c]\n\n");
        } else {
            EXPECT_EQ(result, ERROR_ACCESS_DENIED);
            EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
        }
        FailOne(failure.call, 0);
    }
}

TEST(FileFailure, AnUnreadableRegistryIsNotWritable)
{
    WriteRegistry(TEXT);
    FailOne(FailingCall::READ, EIO);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, "a", 0, KEY_READ, &key), ERROR_SUCCESS); // by the second load
    EXPECT_FALSE(static_cast<CRegistryKey*>(key)->bWritable);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
}

TEST(FileFailure, AProfileThatCannotBeReadIsUnchanged)
{
    for (const FailingCall call : {FailingCall::OPEN, FailingCall::FSTAT, FailingCall::READ}) {
        SCOPED_TRACE(static_cast<int>(call));
        WriteText(PROFILE, SECTION);
        FailOne(call, EIO);
        EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "2", PROFILE));
        EXPECT_EQ(ReadText(PROFILE), SECTION);
    }
}
