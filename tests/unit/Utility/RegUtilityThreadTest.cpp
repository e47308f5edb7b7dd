// Several threads use the registry: an open key excludes the other threads, and no value is lost.
#include "RegUtility.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace {

const char LOCAL[] = "Software\\ARVEN\\Ulmar Disc Maker\\Local";

std::string DeviceKey(int device)
{
    return std::string(LOCAL) + "\\{device " + std::to_string(device) + "}";
}

} // namespace

TEST(RegUtilityThread, OneCallOperationsOfSeveralThreadsLoseNothing)
{
    constexpr int writers = 3;
    constexpr int readers = 3;
    constexpr int rounds = 60;
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker/Local]\n\n");

    std::latch start(writers + readers);
    std::atomic<int> working = writers;
    std::vector<std::thread> threads;
    for (int device = 0; device < writers; ++device) {
        threads.emplace_back([&, device] {
            start.arrive_and_wait();
            const std::string key = DeviceKey(device);
            for (int round = 0; round < rounds; ++round) {
                const std::string name = "n" + std::to_string(round);
                EXPECT_TRUE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, key.c_str(), name.c_str(),
                                                         static_cast<DWORD>(round)));
                EXPECT_TRUE(
                    CRegUtility::SetRegStrData(HKEY_LOCAL_MACHINE, key.c_str(), "last", name.c_str()));
            }
            --working;
        });
    }
    for (int reader = 0; reader < readers; ++reader) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            while (working > 0) {
                for (int device = 0; device < writers; ++device) {
                    DWORD number = 5;
                    CString text;
                    CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, DeviceKey(device).c_str(), "n5",
                                                 &number);
                    EXPECT_EQ(number, 5U);
                    if (CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, DeviceKey(device).c_str(), "last",
                                                   &text)) {
                        EXPECT_EQ(text.Left(1), "n");
                    }
                }
                CStringArray names;
                EXPECT_LE(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, LOCAL, &names), writers);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }

    for (int device = 0; device < writers; ++device) {
        for (int round = 0; round < rounds; ++round) {
            DWORD number = 0;
            EXPECT_TRUE(CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, DeviceKey(device).c_str(),
                                                     ("n" + std::to_string(round)).c_str(), &number));
            EXPECT_EQ(number, static_cast<DWORD>(round));
        }
    }
    CStringArray names;
    EXPECT_EQ(CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, LOCAL, &names), writers);
}

TEST(RegUtilityThread, AnOpenKeyExcludesOtherThreadsUntilItIsClosed)
{
    MakeConfFolder();
    CRegUtility reg;
    ASSERT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "k", FALSE, TRUE), 0);
    EXPECT_EQ(reg.SetRegNumValue("n", 1), 0);
    EXPECT_FALSE(std::async(std::launch::async, [] {
                     const bool free = RegistryMutex().try_lock();
                     if (free) {
                         RegistryMutex().unlock();
                     }
                     return free;
                 }).get());
    auto other = std::async(std::launch::async, [] {
        DWORD number = 0;
        CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "n", &number);
        return number;
    });
    EXPECT_EQ(reg.CloseReg(), 0);
    EXPECT_EQ(other.get(), 1U) << "the value was not reverted before it was written";
}

TEST(RegUtilityThread, OneThreadMayHoldSeveralKeys)
{
    MakeConfFolder();
    CRegUtility outer;
    ASSERT_EQ(outer.OpenReg(HKEY_LOCAL_MACHINE, "outer", FALSE, TRUE), 0);
    CRegUtility inner;
    ASSERT_EQ(inner.OpenReg(HKEY_LOCAL_MACHINE, "inner", FALSE, TRUE), 0);
    EXPECT_EQ(inner.CloseReg(), 0);
    EXPECT_TRUE(CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, "third", "n", 3));
    EXPECT_EQ(outer.CloseReg(), 0);
    EXPECT_EQ(ReadText(REGISTRY_FILE),
              "[HKLM/inner]\n\n[HKLM/outer]\n\n[HKLM/third]\n\"n\"=dword:00000003\n\n");
}

TEST(RegUtilityThread, AFailedOpenReleasesTheLock)
{
    MakeConfFolder();
    CRegUtility reg;
    EXPECT_EQ(reg.OpenReg(HKEY_LOCAL_MACHINE, "absent", TRUE, FALSE), 2);
    auto other = std::async(std::launch::async,
                            [] { return CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, "k", "n", 1); });
    EXPECT_TRUE(other.get());
}
