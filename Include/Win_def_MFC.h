// Strings, arrays and thread objects in the style of the Microsoft class library (implemented in WinFunc).
#pragma once

#include "Win_def.h"

#include <deque>
#include <string>
#include <vector>

/// A byte string; the whole std::string interface stays available. Not safe for concurrent use of one object.
class CString : public std::string
{
public:
    CString() = default;
    CString(const std::string& text);
    CString(std::string&& text) noexcept;
    /// NULL gives the empty text.
    CString(LPCTSTR text);

    /// A buffer of at least `size` bytes that initially holds the text and its NUL. Valid until
    /// ReleaseBuffer.
    LPTSTR GetBuffer(int size);
    /// Sets the text to the buffer up to its first NUL. No effect without a buffer.
    void ReleaseBuffer();
    /// Formats into a buffer of 1024 bytes without a bound: the result must be shorter than 1024 bytes.
    void Format(LPCTSTR format, ...) __attribute__((format(printf, 2, 3)));
    /// The first `nCount` bytes up to an embedded NUL; a negative count gives the whole text.
    CString Left(int nCount) const;
    /// The last `nCount` bytes; a negative count stops the process.
    CString Right(int nCount) const;
    /// Last position or -1.
    int ReverseFind(char ch) const;
    /// First position from `start` on or -1.
    int Find(char ch, int start = 0) const;
    void TrimRight(char ch);
    int Compare(LPCTSTR other) const;
    /// Case matters here, despite the name.
    int CompareNoCase(LPCTSTR other) const;
    int GetLength() const;

private:
    std::vector<char> buf;
};

/// An array in the style of the Microsoft class library, based on std::deque. An index out of range stops the
/// process.
template <class TYPE, class ARG_TYPE>
class CArray : public std::deque<TYPE>
{
public:
    INT_PTR GetSize() const
    {
        return static_cast<INT_PTR>(this->size());
    }
    INT_PTR GetCount() const
    {
        return GetSize();
    }
    bool IsEmpty() const
    {
        return this->empty();
    }
    void SetSize(INT_PTR nNewSize)
    {
        this->resize(index(nNewSize));
    }
    void RemoveAll()
    {
        this->clear();
    }
    /// Returns the index of the new element.
    INT_PTR Add(ARG_TYPE newElement)
    {
        this->push_back(newElement);
        return GetSize() - 1;
    }
    const TYPE& GetAt(INT_PTR nIndex) const
    {
        return (*this)[inside(nIndex)];
    }
    TYPE& GetAt(INT_PTR nIndex)
    {
        return (*this)[inside(nIndex)];
    }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement)
    {
        (*this)[inside(nIndex)] = newElement;
    }
    void Copy(const CArray& src)
    {
        *this = src;
    }
    /// Grows the array if `nIndex` lies beyond its end.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement)
    {
        ASSERT(nIndex >= 0);
        if (nIndex > GetSize()) {
            SetSize(nIndex);
        }
        this->insert(this->begin() + nIndex, newElement);
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        ASSERT(nIndex >= 0 && nCount >= 0 && nCount <= GetSize() - nIndex);
        this->erase(this->begin() + nIndex, this->begin() + nIndex + nCount);
    }

private:
    static size_t index(INT_PTR nIndex)
    {
        ASSERT(nIndex >= 0);
        return static_cast<size_t>(nIndex);
    }
    size_t inside(INT_PTR nIndex) const
    {
        ASSERT(nIndex >= 0 && nIndex < GetSize());
        return static_cast<size_t>(nIndex);
    }
};

class CStringArray : public CArray<CString, const char*>
{
public:
    using CArray<CString, const char*>::Add;
    INT_PTR Add(const CString& newElement)
    {
        push_back(newElement);
        return GetSize() - 1;
    }
};

/// Extracts the part with the index `iSubString`, which starts at 0. FALSE, with `rString` unchanged, if the
/// text has fewer separators.
BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, char chSep);

/// Base of the exceptions of the class library. No code of this system throws one.
class CException
{
public:
    virtual ~CException() = default;
    virtual void Delete();
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext);
};

/// A thread object with a message queue. Post and pump in one thread only: the queue has no lock.
class CWinThread
{
public:
    /// The base versions stop the process: derived classes must override them.
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Handles at most one message. False once WM_QUIT is at the head of the queue.
    bool MessagePump();
    /// The exit code is ignored.
    void PostQuitMessage(int nExitCode);

    bool m_bQuit = false;
    std::deque<MSG> m_messages;

protected:
    ~CWinThread() = default;
};

class CWinApp : public CWinThread
{
public:
    CWinApp();
    static CWinApp* GetApp();
    virtual BOOL InitInstance();

    static CWinApp* s_pApp;

protected:
    ~CWinApp() = default;
};

/// Returns NULL in this system: no CWinApp object exists.
CWinApp* AfxGetApp();
/// Always returns NULL.
HINSTANCE AfxGetInstanceHandle();
