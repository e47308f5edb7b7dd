#include "StdoutCapture.h"
#include "Win_def_MFC.h"
#include "Win_def_log.h"

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

static_assert(std::is_same_v<decltype(CWinThread::m_bQuit), bool>);
static_assert(std::is_same_v<decltype(CWinThread::m_messages), std::deque<MSG>>);
static_assert(std::is_same_v<decltype(CWinApp::s_pApp), CWinApp*>);
static_assert(std::is_base_of_v<CWinThread, CWinApp>);
static_assert(WM_QUIT == 18);

namespace {

/// Records each message and returns `answer`.
class NotingThread final : public CWinThread
{
public:
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        handled.push_back(*pMsg);
        if (postsOneMore) {
            postsOneMore = false;
            PostThreadMessage(99, 0, 0);
        }
        return answer;
    }

    std::vector<MSG> handled;
    BOOL answer = FALSE;
    bool postsOneMore = false;
};

class BareThread final : public CWinThread
{
};

class BareApp final : public CWinApp
{
};

/// The index of a virtual function in the table of its class, from 0.
template <class MEMBER>
size_t SlotOf(MEMBER member)
{
    uintptr_t offset = 0;
    memcpy(&offset, &member, sizeof offset);
    return (offset & ~uintptr_t{1}) / sizeof(void*);
}

} // namespace

TEST(WinThread, VirtualFunctionsHaveFixedSlots)
{
    EXPECT_EQ(SlotOf(&CWinThread::ExitInstance), 0U);
    EXPECT_EQ(SlotOf(&CWinThread::PreTranslateMessage), 1U);
}

TEST(WinThread, PostedMessagesAreQueued)
{
    NotingThread thread;
    EXPECT_EQ(thread.PostThreadMessage(5, 6, -7), TRUE);
    EXPECT_EQ(thread.PostThreadMessage(8, UINTPTR_MAX, 9), TRUE);
    ASSERT_EQ(thread.m_messages.size(), 2U);
    EXPECT_EQ(thread.m_messages[0].hwnd, nullptr);
    EXPECT_EQ(thread.m_messages[0].message, 5U);
    EXPECT_EQ(thread.m_messages[0].wParam, 6U);
    EXPECT_EQ(thread.m_messages[0].lParam, -7);
    EXPECT_EQ(thread.m_messages[1].message, 8U);
    EXPECT_EQ(thread.m_messages[1].wParam, UINTPTR_MAX);
}

TEST(WinThread, PumpHandlesOneMessagePerCall)
{
    for (const BOOL answer : {FALSE, TRUE}) { // the answer is ignored
        NotingThread thread;
        thread.answer = answer;
        EXPECT_TRUE(thread.MessagePump()); // empty
        thread.PostThreadMessage(1, 0, 0);
        thread.PostThreadMessage(2, 0, 0);
        EXPECT_TRUE(thread.MessagePump());
        ASSERT_EQ(thread.handled.size(), 1U);
        EXPECT_EQ(thread.handled[0].message, 1U);
        EXPECT_EQ(thread.m_messages.size(), 1U);
        EXPECT_TRUE(thread.MessagePump());
        ASSERT_EQ(thread.handled.size(), 2U);
        EXPECT_EQ(thread.handled[1].message, 2U);
        EXPECT_TRUE(thread.MessagePump());
        EXPECT_EQ(thread.handled.size(), 2U);
    }
}

TEST(WinThread, AHandlerMayPostMore)
{
    NotingThread thread;
    thread.postsOneMore = true;
    thread.PostThreadMessage(1, 0, 0);
    EXPECT_TRUE(thread.MessagePump());
    ASSERT_EQ(thread.m_messages.size(), 1U);
    EXPECT_EQ(thread.m_messages[0].message, 99U);
}

TEST(WinThread, QuitStaysAtTheHead)
{
    SetLogLevel(3);
    NotingThread thread;
    thread.PostThreadMessage(1, 0, 0);
    thread.PostQuitMessage(0);
    thread.PostThreadMessage(2, 0, 0);
    EXPECT_TRUE(thread.MessagePump());
    EXPECT_FALSE(thread.MessagePump());
    EXPECT_FALSE(thread.MessagePump());
    EXPECT_EQ(thread.handled.size(), 1U);
    EXPECT_EQ(thread.m_messages.size(), 2U);
    EXPECT_FALSE(thread.m_bQuit); // nothing sets it
}

TEST(WinThread, QuitMessageIgnoresTheExitCode)
{
    SetLogLevel(3);
    NotingThread thread;
    thread.PostQuitMessage(7);
    ASSERT_EQ(thread.m_messages.size(), 1U);
    EXPECT_EQ(thread.m_messages[0].hwnd, nullptr);
    EXPECT_EQ(thread.m_messages[0].message, 18U);
    EXPECT_EQ(thread.m_messages[0].wParam, 0U);
    EXPECT_EQ(thread.m_messages[0].lParam, 0);
}

TEST(WinThread, QuitMessageIsTracedAboveLevel3)
{
    SetThreadName("main");
    NotingThread thread;
    for (const int level : {0, 1, 2, 3, 4, 5}) {
        SetLogLevel(level);
        StdoutCapture capture;
        thread.PostQuitMessage(0);
        EXPECT_EQ(capture.Stop(), level > 3 ? "\x1b[35m[main]\x1b[0mCWinThread::PostQuitMessage\n" : "")
            << level;
    }
}

TEST(WinThread, BaseVersionsStopTheProcess)
{
    BareThread thread;
    EXPECT_DEATH(thread.ExitInstance(), "Assertion `0' failed");
    EXPECT_DEATH(thread.PreTranslateMessage(nullptr), "Assertion `0' failed");
    thread.PostThreadMessage(1, 0, 0);
    EXPECT_DEATH(thread.MessagePump(), "Assertion `0' failed");
}

TEST(WinApp, NoObjectExistsInThisSystem)
{
    EXPECT_EQ(CWinApp::s_pApp, nullptr);
    EXPECT_EQ(CWinApp::GetApp(), nullptr);
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetInstanceHandle(), nullptr);
}

TEST(WinApp, GetAppReturnsAConstructedObject)
{
    BareApp app;
    EXPECT_EQ(AfxGetApp(), &app);
    EXPECT_EQ(CWinApp::GetApp(), &app);
    EXPECT_EQ(app.InitInstance(), TRUE);
    CWinApp::s_pApp = nullptr;
}

TEST(Exception, OperationsDoNothingAndFollowTheDestructorInTheTable)
{
    static_assert(std::has_virtual_destructor_v<CException>);
    EXPECT_EQ(SlotOf(&CException::Delete), 2U);
    EXPECT_EQ(SlotOf(&CException::GetErrorMessage), 3U);

    CException exception;
    exception.Delete();
    char text[4] = "old";
    UINT help = 5;
    EXPECT_EQ(exception.GetErrorMessage(text, sizeof text, &help), FALSE);
    EXPECT_STREQ(text, "old");
    EXPECT_EQ(help, 5U);
}
