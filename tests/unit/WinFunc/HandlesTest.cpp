// The classes behind a handle, their destruction, and the warnings about invalid handles.
#include "HeapGrowth.h"
#include "StdoutCapture.h"
#include "WinFunc.h"

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include <gmock/gmock.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;

static_assert(std::is_polymorphic_v<IWinHandle> && !std::is_abstract_v<IWinHandle>);
static_assert(std::is_abstract_v<WinClosableHandle> && std::is_abstract_v<WinWaitableHandle>);
static_assert(std::is_same_v<CRITICAL_SECTION, pthread_mutex_t>);
static_assert(WAIT_OBJECT_0 == 0 && WAIT_ABANDONED == 0x80 && WAIT_TIMEOUT == 258 &&
              WAIT_FAILED == 0xFFFFFFFF && INFINITE == 0xFFFFFFFF);

/// Records its deletion.
class Mortal : public virtual IWinHandle
{
public:
    explicit Mortal(bool& deleted) : m_deleted(deleted) {}
    ~Mortal() override
    {
        m_deleted = true;
    }
    Mortal(const Mortal&) = delete;
    Mortal& operator=(const Mortal&) = delete;

private:
    bool& m_deleted;
};

/// Its Close returns a given result.
class Closable : public virtual WinClosableHandle, public Mortal
{
public:
    Closable(bool& deleted, bool result) : Mortal(deleted), m_result(result) {}
    bool Close() override
    {
        return m_result;
    }
    const char* name() override
    {
        return "Closable";
    }

private:
    bool m_result;
};

class ThrowsOnClose : public Closable
{
public:
    explicit ThrowsOnClose(bool& deleted) : Closable(deleted, true) {}
    bool Close() override
    {
        throw std::runtime_error("cannot close");
    }
};

/// Does not override name(), so that the name of the base class is tested.
class PlainClosable : public virtual WinClosableHandle
{
    bool Close() override
    {
        return true;
    }
};

class PlainWaitable : public virtual WinWaitableHandle
{
    bool Close() override
    {
        return true;
    }
    DWORD WaitForSingleObject(DWORD) override
    {
        return WAIT_TIMEOUT;
    }
};

TEST(HandlesTest, EachClassReturnsItsName)
{
    IWinHandle handle;
    PlainClosable closable;
    PlainWaitable waitable;
    WinEvent event(false, false);
    WinMutex mutex(false);
    WinFileHandle file(0);
    EXPECT_STREQ(handle.name(), "IWinHandle");
    const auto nameOf = [](IWinHandle& object) { return std::string(object.name()); };
    EXPECT_EQ(nameOf(closable), "WinClosableHandle");
    EXPECT_EQ(nameOf(waitable), "WinWaitableHandle");
    EXPECT_EQ(nameOf(event), "WinEvent");
    EXPECT_EQ(nameOf(mutex), "WinMutex");
    EXPECT_EQ(nameOf(file), "WinFileHandle");
}

TEST(HandlesTest, ClosingReturnsTheResultOfTheObjectAndDeletesIt)
{
    for (const bool result : {true, false}) {
        bool deleted = false;
        EXPECT_EQ(CloseHandle(ToHandle(new Closable(deleted, result))), result ? TRUE : FALSE);
        EXPECT_TRUE(deleted);
    }
}

TEST(HandlesTest, AnObjectThatThrowsOnCloseIsDeletedToo)
{
    bool deleted = false;
    EXPECT_EQ(CloseHandle(ToHandle(new ThrowsOnClose(deleted))), FALSE);
    EXPECT_TRUE(deleted);
}

TEST(HandlesTest, AnObjectThatCannotBeClosedIsDeletedToo)
{
    bool deleted = false;
    EXPECT_EQ(CloseHandle(ToHandle(new Mortal(deleted))), FALSE);
    EXPECT_TRUE(deleted);
}

TEST(HandlesTest, ClosingEventsAndMutexesSucceeds)
{
    EXPECT_EQ(CloseHandle(CreateEventA(nullptr, TRUE, TRUE, nullptr)), TRUE);
    EXPECT_EQ(CloseHandle(CreateMutexA(nullptr, FALSE, nullptr)), TRUE);
}

TEST(HandlesTest, ClosingAnInvalidHandleFailsAndLogsNothing)
{
    SetLogLevel(4);
    StdoutCapture console;
    EXPECT_EQ(CloseHandle(nullptr), FALSE);
    EXPECT_EQ(CloseHandle(INVALID_HANDLE_VALUE), FALSE);
    EXPECT_EQ(console.Stop(), "");
}

TEST(HandlesTest, AnEventCallOnAnotherObjectStopsTheProcess)
{
    WinMutex mutex(false);
    EXPECT_DEATH(SetEvent(ToHandle(&mutex)), "Assertion .object != nullptr. failed");
    EXPECT_DEATH(ResetEvent(ToHandle(&mutex)), "Assertion .object != nullptr. failed");
}

// The warnings name the callers, so these functions need external linkage.

} // namespace

[[gnu::noinline]] BOOL SetsAnEvent(HANDLE handle)
{
    const volatile BOOL result = SetEvent(handle); // volatile, so that the call is not a tail call
    return result;
}

[[gnu::noinline]] BOOL ResetsAnEvent(HANDLE handle)
{
    const volatile BOOL result = ResetEvent(handle);
    return result;
}

[[gnu::noinline]] DWORD WaitsForAnObject(HANDLE handle)
{
    const volatile DWORD result = WaitForSingleObject(handle, INFINITE);
    return result;
}

namespace {

/// The function that a warning names: `caller`, or `call` under the sanitizers, which add a frame of their
/// own.
const char* Named([[maybe_unused]] const char* call, [[maybe_unused]] const char* caller)
{
#ifdef ULMAR_SANITIZED
    return call;
#else
    return caller;
#endif
}

/// A warning on the console: its text in yellow, after the prefix and up to the end of the line.
auto IsWarning(const std::string& text)
{
    return EndsWith("\x1b[33m" + text + "\x1b[0m\n");
}

TEST(HandleWarningsTest, NameTheCallTheCallerAndTheValue)
{
    SetLogLevel(2);
    for (const auto& [handle, value] :
         {std::pair{HANDLE{nullptr}, std::string("NULL")},
          std::pair{INVALID_HANDLE_VALUE, std::string("INVALID_HANDLE_VALUE")}}) {
        const auto warning = [&value](const std::string& wrapper, const std::string& caller) {
            return IsWarning(wrapper + " called from " + caller + " with " + value);
        };
        StdoutCapture ofSet;
        EXPECT_EQ(SetsAnEvent(handle), FALSE);
        EXPECT_THAT(ofSet.Stop(), warning("BOOL SetEvent(HANDLE)", Named("SetEvent", "SetsAnEvent")));
        StdoutCapture ofReset;
        EXPECT_EQ(ResetsAnEvent(handle), FALSE);
        EXPECT_THAT(ofReset.Stop(), warning("BOOL ResetEvent(HANDLE)", Named("ResetEvent", "ResetsAnEvent")));
        StdoutCapture ofWait;
        EXPECT_EQ(WaitsForAnObject(handle), 0xFFFFFFFFu);
        EXPECT_THAT(ofWait.Stop(), warning("DWORD WaitForSingleObject(HANDLE, DWORD)",
                                           Named("WaitForSingleObject", "WaitsForAnObject")));
    }
}

TEST(HandleWarningsTest, AreSuppressedUpToLevelOne)
{
    for (const int level : {0, 1}) {
        SetLogLevel(level);
        StdoutCapture console;
        EXPECT_EQ(SetsAnEvent(nullptr), FALSE);
        EXPECT_EQ(ResetsAnEvent(nullptr), FALSE);
        EXPECT_EQ(WaitsForAnObject(INVALID_HANDLE_VALUE), 0xFFFFFFFFu);
        EXPECT_EQ(console.Stop(), "");
    }
}

TEST(SymbolTest, ContainsTheFunctionName)
{
    struct Symbol
    {
        std::string line;
        std::string function;
    };
    const Symbol symbols[] = {
        {"", ""},
        {"no bracket at all [0x1]", "no bracket at all [0x1]"},
        {"lib(no plus) [0x1]", "lib(no plus) [0x1]"},
        {"plus + in front (x", "plus + in front (x"},
        {"./program(+0x1b2c) [0x55]", ""},                               // no name to demangle
        {"./program(main+0x1b) [0x55]", ""},                             // not a mangled name
        {"./program(_Z8SetEventPv+0x1b) [0x55]", "SetEvent"},            // SetEvent(void*)
        {"./program(_ZN3One3twoEii+0x1b) [0x55]", "One::two"},           // One::two(int, int)
        {"./program(_Z3getIiET_v+0x1b) [0x55]", "get<int>"},             // int get<int>()
        {"./program(_ZTV8WinEvent+0x10) [0x55]", "vtable for WinEvent"}, // no parameters
    };
    for (const Symbol& symbol : symbols) {
        EXPECT_EQ(FunctionOfSymbol(symbol.line), symbol.function) << symbol.line;
    }
}

TEST(SymbolTest, ANameThatIsTooLongGivesTheEmptyText)
{
    EXPECT_EQ(FunctionOfSymbol("./program(_Z2000" + std::string(2000, 'x') + "v+0x1b) [0x55]"), "");
    const std::string fits(1000, 'x');
    EXPECT_EQ(FunctionOfSymbol("./program(_Z1000" + fits + "v+0x1b) [0x55]"), fits);
    const std::string longest(1017, 'x'); // with _Z1017, 1023 bytes
    EXPECT_EQ(FunctionOfSymbol("./program(_Z1017" + longest + "+0x1b) [0x55]"), longest);
    EXPECT_EQ(FunctionOfSymbol("./program(_Z1018" + longest + "x+0x1b) [0x55]"), "");
}

TEST(SymbolTest, LeavesNoMemoryAllocated)
{
    const size_t growth =
        HeapGrowth([] { EXPECT_EQ(FunctionOfSymbol("./program(_Z8SetEventPv+0x1b) [0x55]"), "SetEvent"); });
    EXPECT_LT(growth, 1000U);
}

} // namespace
