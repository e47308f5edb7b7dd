// Mutexes, which cannot be released, and critical sections.
#include "CountedSleep.h"
#include "DirtyStack.h"
#include "WinFunc.h"

#include <string>
#include <thread>

#include <gmock/gmock.h>

namespace {

using Runs = CountedSleep::Runs;

/// The result of a wait in another thread.
DWORD WaitElsewhere(HANDLE handle, DWORD timeout)
{
    DWORD result = WAIT_FAILED;
    std::thread([&] { result = WaitForSingleObject(handle, timeout); }).join();
    return result;
}

TEST(MutexesTest, AZeroTimeoutNeverTakesAFreeMutex)
{
    CountedSleep::The().Start();
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, nullptr);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), 258u);
    EXPECT_EQ(WaitElsewhere(mutex, 1), 0u) << "the mutex is still free";
    EXPECT_EQ(CountedSleep::The().Count(), 0u);
    EXPECT_EQ(CloseHandle(mutex), TRUE);
}

TEST(MutexesTest, OneMillisecondTakesAFreeMutex)
{
    CountedSleep::The().Start();
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, "ignored");
    EXPECT_EQ(WaitForSingleObject(mutex, 1), 0u);
    EXPECT_EQ(CountedSleep::The().Counted(), Runs{});
    EXPECT_EQ(WaitElsewhere(mutex, 3), 258u);
    EXPECT_EQ(CountedSleep::The().Counted(), (Runs{{1000, 3}})) << "one sleep after each failed attempt";
    EXPECT_EQ(CloseHandle(mutex), TRUE);
}

TEST(MutexesTest, AnInfiniteWaitTakesAFreeMutex)
{
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, nullptr);
    EXPECT_EQ(WaitForSingleObject(mutex, INFINITE), 0u);
    EXPECT_EQ(WaitElsewhere(mutex, 1), 258u);
    EXPECT_EQ(CloseHandle(mutex), TRUE);
}

TEST(MutexesTest, AnInitialOwnerKeepsTheMutex)
{
    for (const BOOL initialOwner : {TRUE, 5}) {
        const HANDLE mutex = CreateMutexA(nullptr, initialOwner, nullptr);
        EXPECT_EQ(WaitElsewhere(mutex, 2), 258u);
        EXPECT_EQ(WaitForSingleObject(mutex, 2), 258u) << "not recursive: a wait by the owner times out too";
        EXPECT_EQ(CloseHandle(mutex), TRUE);
    }
}

TEST(MutexesTest, AMutexFreedBetweenTwoAttemptsIsTaken)
{
    for (const DWORD timeout : {100u, 0x80000000u, 0xFFFFFFFEu}) {
        const HANDLE handle = CreateMutexA(nullptr, TRUE, nullptr);
        auto* mutex = dynamic_cast<WinMutex*>(static_cast<IWinHandle*>(handle));
        ASSERT_NE(mutex, nullptr);
        CountedSleep::The().Start([&](uint64_t number) {
            if (number == 2) {
                mutex->mtx.unlock();
            }
        });
        EXPECT_EQ(WaitForSingleObject(handle, timeout), 0u);
        EXPECT_EQ(CountedSleep::The().Counted(), (Runs{{1000, 2}}));
        EXPECT_EQ(CloseHandle(handle), TRUE);
    }
}

TEST(MutexesTest, MutexesOfTheSameNameAreNotShared)
{
    const HANDLE one = CreateMutexA(nullptr, TRUE, "same");
    const HANDLE other = CreateMutexA(nullptr, FALSE, "same");
    EXPECT_EQ(WaitElsewhere(other, 1), 0u);
    EXPECT_EQ(CloseHandle(one), TRUE);
    EXPECT_EQ(CloseHandle(other), TRUE);
}

TEST(MutexesTest, OpenMutexAlwaysReturnsNull)
{
    const HANDLE existing = CreateMutexA(nullptr, FALSE, "existing");
    for (const char* name : {"existing", "absent", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(OpenMutexA(0, FALSE, name), nullptr);
        EXPECT_EQ(OpenMutexA(0xFFFFFFFF, TRUE, name), nullptr);
    }
    EXPECT_EQ(CloseHandle(existing), TRUE);
}

/// The result of TryEnterCriticalSection in another thread.
BOOL TryElsewhere(LPCRITICAL_SECTION section)
{
    BOOL entered = FALSE;
    std::thread([&] {
        entered = TryEnterCriticalSection(section);
        if (entered != FALSE) {
            LeaveCriticalSection(section);
        }
    }).join();
    return entered;
}

TEST(CriticalSectionTest, TheOwnerMayEnterAgain)
{
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    EnterCriticalSection(&section);
    EnterCriticalSection(&section);
    EXPECT_EQ(TryEnterCriticalSection(&section), TRUE);
    EXPECT_EQ(TryElsewhere(&section), FALSE);
    LeaveCriticalSection(&section);
    LeaveCriticalSection(&section);
    EXPECT_EQ(TryElsewhere(&section), FALSE) << "entered three times, left twice";
    LeaveCriticalSection(&section);
    EXPECT_EQ(TryElsewhere(&section), TRUE);
    DeleteCriticalSection(&section);
}

TEST(CriticalSectionTest, IsRecursiveWhateverIsOnTheStack)
{
    CRITICAL_SECTION section = {};
    DirtyStack(-1);                                 // would be invalid attributes
    [&] { InitializeCriticalSection(&section); }(); // its variables are inside the range of DirtyStack
    EXPECT_EQ(TryEnterCriticalSection(&section), TRUE);
    EXPECT_EQ(TryEnterCriticalSection(&section), TRUE);
    LeaveCriticalSection(&section);
    LeaveCriticalSection(&section);
    DeleteCriticalSection(&section);
}

TEST(CriticalSectionTest, AdmitsOneThreadAtATime)
{
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    int count = 0;
    const auto work = [&] {
        for (int i = 0; i < 10000; ++i) {
            EnterCriticalSection(&section);
            ++count;
            LeaveCriticalSection(&section);
        }
    };
    std::thread one(work);
    std::thread other(work);
    one.join();
    other.join();
    EXPECT_EQ(count, 20000);
    DeleteCriticalSection(&section);
}

} // namespace
