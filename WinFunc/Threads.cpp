#include "WinFunc.h"
#include "Win_def_MFC.h"

#include <algorithm>

#include <unistd.h>

constinit thread_local int g_stackDepthTLS = 0;
constinit thread_local char g_szThreadNameTLS[64] = {};
const char g_stackDepthSpace[31] = "                              ";

const char* _StackDepth::getSpace()
{
    constexpr int deepest = 15;
    return g_stackDepthSpace + 2 * (deepest - std::clamp(g_stackDepthTLS, 0, deepest));
}

const char* GetThreadName()
{
    if (g_szThreadNameTLS[0] == '\0') {
        snprintf(g_szThreadNameTLS, sizeof g_szThreadNameTLS, "%X", static_cast<unsigned int>(gettid()));
    }
    return g_szThreadNameTLS;
}

void SetThreadName(const char* szThreadName)
{
    strcpy_s(g_szThreadNameTLS, sizeof g_szThreadNameTLS, szThreadName);
}

int CWinThread::ExitInstance()
{
    assert(0);
}

BOOL CWinThread::PreTranslateMessage(MSG*)
{
    assert(0);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_messages.push_back(MSG{nullptr, message, wParam, lParam});
    return TRUE;
}

bool CWinThread::MessagePump()
{
    if (m_messages.empty()) {
        return true;
    }
    if (m_messages.front().message == WM_QUIT) {
        return false;
    }
    PreTranslateMessage(&m_messages.front());
    m_messages.pop_front();
    return true;
}

void CWinThread::PostQuitMessage(int)
{
    if (GetLogLevel() > 3) {
        LogDebug("CWinThread::PostQuitMessage");
    }
    m_messages.push_back(MSG{nullptr, WM_QUIT, 0, 0});
}

CWinApp* CWinApp::s_pApp = nullptr;

CWinApp::CWinApp()
{
    s_pApp = this;
}

CWinApp* CWinApp::GetApp()
{
    return s_pApp;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

CWinApp* AfxGetApp()
{
    return CWinApp::GetApp();
}

HINSTANCE AfxGetInstanceHandle()
{
    return nullptr;
}
