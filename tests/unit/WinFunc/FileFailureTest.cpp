// Files of which a call fails once: what could not be read is never overwritten.
#include "FailingCalls.h"
#include "FailingMemory.h"
#include "OpenDescriptors.h"
#include "ProfileText.h"
#include "RegistryFile.h"
#include "SettledRegistry.h"
#include "StdoutCapture.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

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

TEST(FileFailure, NothingIsDeletedFromARegistryThatCannotBeRead)
{
    std::string text = TEXT;
    while (text.size() < 20000) { // is read in 16384 bytes
        text += "# a line\n";
    }
    text += "[HKLM/c]\n\n";
    for (const Failure& failure : {Failure{FailingCall::FSTAT, EIO, 0}, Failure{FailingCall::READ, EIO, 0},
                                   Failure{FailingCall::READ, EIO, 1}}) {
        SCOPED_TRACE(testing::Message()
                     << "call " << static_cast<int>(failure.call) << " after " << failure.passed);
        WriteRegistry(text);
        FailOne(failure.call, failure.error, failure.passed);
        EXPECT_EQ(RegDeleteKeyA(HKEY_LOCAL_MACHINE, "a"), 12);
        EXPECT_EQ(ReadText(REGISTRY_FILE), text);
        FailOne(failure.call, failure.error, failure.passed);
        CRegistryKey key{"HKLM/a", true};
        EXPECT_EQ(RegDeleteValueA(&key, "x"), 12);
        EXPECT_EQ(ReadText(REGISTRY_FILE), text);
    }
}

TEST(FileFailure, ALoadThatFailedIsRepeated)
{
    WriteRegistry(TEXT);
    WaitUntilSettled();
    for (const int flags : {O_RDONLY, O_RDWR}) {
        g_Registry.clear();
        RegForgetLoad();
        FailOne(FailingCall::READ, EIO);
        EXPECT_EQ(RegReadIn(flags), flags == O_RDONLY) << "only for reading";
        EXPECT_TRUE(g_Registry.empty());
        EXPECT_TRUE(RegReadIn(flags));
        EXPECT_EQ(g_Registry.size(), 2U);
    }
}

TEST(FileFailure, ThePiecesOfTheRegistryEndAtAFailure)
{
    WriteRegistry(TEXT);
    const LockedFile file(REGISTRY_FILE, O_RDONLY);
    std::string piece;
    FailOne(FailingCall::FSTAT, EIO);
    RegistryPieces withoutSize(file);
    EXPECT_TRUE(withoutSize.HasFailed());
    EXPECT_FALSE(withoutSize.Next(piece));
    EXPECT_FALSE(withoutSize.Complete());

    RegistryPieces pieces(file);
    FailOne(FailingCall::READ, EIO);
    EXPECT_FALSE(pieces.Next(piece));
    EXPECT_TRUE(pieces.HasFailed());
    EXPECT_FALSE(pieces.Next(piece)) << "the file is not read again";
    EXPECT_FALSE(pieces.Complete());
}

TEST(FileFailure, ARegistryThatCannotBeReplacedIsReported)
{
    for (const FailingCall call :
         {FailingCall::OPEN, FailingCall::TRUNCATE, FailingCall::WRITE, FailingCall::CLOSE}) {
        SCOPED_TRACE(static_cast<int>(call));
        WriteRegistry(TEXT);
        FailOne(call, EIO);
        EXPECT_FALSE(RegReplaceFile(TEXT));
        EXPECT_TRUE(RegReplaceFile(TEXT));
        EXPECT_EQ(ReadText(REGISTRY_FILE), TEXT);
    }
}

TEST(FileFailure, AFolderThatCannotBeListedIsKept)
{
    // The names are ".", ".." and "file".
    for (const Failure& failure :
         {Failure{FailingCall::OPEN_FOLDER, ENOMEM, 0}, Failure{FailingCall::READ_FOLDER, EIO, 0},
          Failure{FailingCall::READ_FOLDER, EIO, 3}}) {
        SCOPED_TRACE(testing::Message()
                     << "call " << static_cast<int>(failure.call) << " after " << failure.passed);
        std::filesystem::create_directories("/tmp/folder");
        WriteText("/tmp/folder/file", "text");
        const size_t before = OpenDescriptors();
        FailOne(failure.call, failure.error, failure.passed);
        EXPECT_FALSE(RemoveDirectoryA("/tmp/folder"));
        EXPECT_EQ(errno, failure.error);
        EXPECT_EQ(OpenDescriptors(), before);
        EXPECT_EQ(ReadText("/tmp/folder/file"), "text");
    }
    EXPECT_TRUE(RemoveDirectoryA("/tmp/folder"));
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

TEST(FileFailure, AProfileTooLargeForTheMemoryIsUnchanged)
{
    SetLogLevel(3);
    constexpr size_t size = 1 << 20;
    const std::string text = SECTION + std::string(size, 'x') + "\n";
    WriteText(PROFILE, text);
    for (const size_t passed : {0U, 1U}) { // the old text, then the new one
        StdoutCapture output;
        {
            const FailingMemory memory(size, passed, FailingMemory::ALL);
            EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "2", PROFILE));
            EXPECT_TRUE(memory.HasFailed());
        }
        const std::string lines = output.Stop();
        EXPECT_NE(lines.find("WritePrivateProfileStringA, read failed with errno=12\x1b"), std::string::npos)
            << lines;
        EXPECT_EQ(ReadText(PROFILE), text);
    }
}

TEST(FileFailure, AProfileThatEndsBeforeItsSizeIsWrittenAsItWasRead)
{
    WriteText(PROFILE, SECTION);
    ShortenOne(FailingCall::READ, 0); // as if the file had been cut after its size was read
    EXPECT_TRUE(WritePrivateProfileStringA("New", "Key", "2", PROFILE));
    EXPECT_EQ(ReadText(PROFILE), std::string(SECTION) + "[New]\nKey=2\n") << "an empty text ends no line";
}

TEST(FileFailure, AWriteOfNoByteToAProfileIsNotDetected)
{
    WriteText(PROFILE, SECTION);
    ShortenOne(FailingCall::WRITE, 0);
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "2", PROFILE));
    EXPECT_EQ(ReadText(PROFILE), SECTION);
}

TEST(FileFailure, AProfileWithAReadErrorIsIncomplete)
{
    WriteText(PROFILE, "[Common]\nKey=1\n;" + std::string(9000, 'x') + "\nLast=2\n");
    for (const int passed : {0, 1, 2}) {
        FailOne(FailingCall::READ, EIO, passed);
        const auto profile = ProfileText::Read(PROFILE);
        EXPECT_FALSE(profile->IsComplete());
        EXPECT_EQ(profile->Value("Common", "Key", 255), passed > 0 ? "1" : "");
        EXPECT_EQ(profile->Value("Common", "Last", 255), "");
    }
    FailOne(FailingCall::FSTAT, EIO);
    const auto profile = ProfileText::Read(PROFILE);
    ASSERT_NE(profile, nullptr);
    EXPECT_FALSE(profile->IsComplete());
    EXPECT_EQ(profile->Value("Common", "Key", 255), "");
}

TEST(FileFailure, AProfileEndsWhereItHasBeenCut)
{
    WriteText(PROFILE, "[Common]\nKey=1\n");
    ShortenOne(FailingCall::READ, 0); // the end of the file, although its size was larger
    auto profile = ProfileText::Read(PROFILE);
    EXPECT_TRUE(profile->IsComplete());
    EXPECT_EQ(profile->Value("Common", "Key", 255), "");
    WriteText(PROFILE, "[Common]\n;" + std::string(4079, 'x') + "\nKey=1234\n"); // 4096 bytes up to the 2
    FailOne(FailingCall::READ, EIO, 1);
    char value[16] = {};
    EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "", value, sizeof value, PROFILE), 2U);
    EXPECT_STREQ(value, "12") << "the end of the text also ends its last line";
}

TEST(LockedFileFailure, ReadingContinuesAfterAShortOrInterruptedCall)
{
    WriteText(PROFILE, "0123456789abcdef");
    const LockedFile file(PROFILE, O_RDONLY);
    char buffer[] = "................";
    ShortenOne(FailingCall::READ, 3);
    FailOne(FailingCall::READ, EINTR, 1);
    EXPECT_EQ(file.Read(buffer, 8), 8);
    EXPECT_STREQ(buffer, "01234567........");
    FailOne(FailingCall::READ, EIO, 1);
    EXPECT_EQ(file.Read(buffer, 2), 2) << "one call is enough";
    EXPECT_STREQ(buffer, "89234567........");
    EXPECT_EQ(file.Read(buffer, 1), -1);
    EXPECT_EQ(errno, EIO);
    errno = EINTR; // of an earlier call
    EXPECT_EQ(file.Read(buffer, 16), 6) << "up to the end of the file";
    EXPECT_STREQ(buffer, "abcdef67........");
}

TEST(LockedFileFailure, WritingContinuesAfterAShortOrInterruptedCall)
{
    const LockedFile file(PROFILE, O_WRONLY | O_CREAT, 0600);
    ShortenOne(FailingCall::WRITE, 3);
    FailOne(FailingCall::WRITE, EINTR, 1);
    EXPECT_TRUE(file.WriteAll("012345678"));
    errno = 0;
    EXPECT_TRUE(file.WriteAll("9"));
    EXPECT_EQ(ReadText(PROFILE), "0123456789");
    FailOne(FailingCall::WRITE, ENOSPC);
    EXPECT_FALSE(file.WriteAll("x"));
    ShortenOne(FailingCall::WRITE, 0);
    errno = EINTR; // of an earlier call
    EXPECT_FALSE(file.WriteAll("x")) << "a call that writes nothing";
    EXPECT_EQ(ReadText(PROFILE), "0123456789");
}

TEST(LockedFileFailure, ClosingReleasesTheLockOfAnInheritedDescriptor)
{
    LockedFile file(PROFILE, O_WRONLY | O_CREAT, 0600);
    const int copy = dup(file.Descriptor()); // as in a child that has just forked
    const int other = open(PROFILE, O_WRONLY | O_CLOEXEC);
    EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), -1);
    EXPECT_TRUE(file.Close());
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), 0);
    EXPECT_TRUE(file.Close()) << "has no effect";
    close(other);
    close(copy);
}

TEST(LockedFileFailure, ClosingReportsAFailure)
{
    LockedFile file(PROFILE, O_WRONLY | O_CREAT, 0600);
    close(file.Descriptor());
    EXPECT_FALSE(file.Close());
    EXPECT_FALSE(file.IsOpen());
}

TEST(LockedFileFailure, ANullPathSetsEfault)
{
    errno = 0;
    const LockedFile file(nullptr, O_RDONLY);
    EXPECT_EQ(errno, EFAULT);
    EXPECT_FALSE(file.IsOpen());
}
