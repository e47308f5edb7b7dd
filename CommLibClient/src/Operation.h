// The steps common to all operations on a handle, from the start line in the log to the end line.
//
//     NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetSomething , Start");
//     DWORD result = operation.Enter(pOut != nullptr);
//     if (result == NCL_SUCCESS) {
//         result = operation.Exchange({.path = "/webapp2/SomethingGetter"}, 1,
//                                     {.request = "\t## trace ## GetSomething SendRequest() %s",
//                                      .reply = "\t## trace ## GetSomething ParseCommReply() %s"});
//     }
//     if (result != NCL_SUCCESS) {
//         return result;
//     }
//     if (operation.Item().m_dwDataSize != 4) {
//         return LogInvalid("[CommLib] GetSomething %s 1");
//     }
//     *pOut = BigEndian32(operation.Item().m_pData);
//     return operation.End("%s , GetSomething , End");
#pragma once

#include "NW_Com_Lib_internal.h"

#include <new>
#include <optional>

/// Finds the object of a handle, and prevents EndConnection from destroying it while the guard exists.
class NCLGuard
{
public:
    explicit NCLGuard(DWORD dwHandle);

    /// Null if the handle is invalid.
    ST_NCL* Object() const
    {
        return m_pNCL;
    }

private:
    ST_NCL* m_pNCL;
    std::optional<CAutoRefCounter<std::atomic<int>>> m_counter;
};

/// Refuses new operations on the object, and waits until none is in progress. The wait spins, because it is
/// expected to be short.
void StopOperations(ST_NCL& ncl);
/// Closes and destroys an object that refuses new operations, and frees its entry.
void DestroyNCL(DWORD dwHandle, ST_NCL* pNCL);

/// Leaves an object whose handle was not returned to a caller in the table, with its connection open, until
/// its entry is needed.
void LeaveUnclaimed(ST_NCL& ncl);
/// Destroys the oldest unclaimed object and frees its entry. False if there is none.
bool DestroyOldestUnclaimedNCL();

/// A server of unknown kind that answers counts as NCL_NPTYPE_300NII from then on.
void NoteAnswer(ST_NCL& ncl);

/// The Host header of every request, whatever the address of the server.
inline constexpr char HOST_OF_REQUESTS[] = "localhost";

/// A request to the server. The caller owns the body.
struct NCLRequest
{
    std::string path;
    CHttp::METHOD method = CHttp::METHOD_GET;
    const char* body = nullptr;
    DWORD bodySize = 0;
    CommType type = COMM_TYPE_HTTP;
    DWORD option = 0; ///< a set of SEND_OPTION_ values
};

/// Sends the request in the form that the servlets expect, without credentials or further headers.
DWORD SendRequest(ST_NCL* pNCL, const NCLRequest& request, ST_HTTP_RESPONSE* pstHttpRes);

/// Logs that a callee failed, with the text of the code, which is the result.
DWORD LogTrace(NCLLine line, DWORD dwCode);
/// Logs that a check of a reply failed. NCL_ERR_INVALID_COMM_SPEC.
DWORD LogInvalid(NCLLine line);
/// The same, with the number of the check, counted from 1.
DWORD LogInvalid(NCLNumberedLine line, int nCheck);

/// Logs that an allocation failed in a public operation. Returns NCL_ERR_GET_MEMORY. No exception leaves the
/// library.
DWORD OutOfMemory(const char* pszOperation);

/// The log lines of a failed exchange.
struct NCLExchangeLines
{
    NCLLine request; ///< the request failed, or the HTTP status is bad
    NCLLine reply;   ///< the reply could not be parsed
};

/// One call of a public operation.
class NCLOperation
{
public:
    enum Level
    {
        QUERY, ///< start and end lines at LOG_DEBUG
        ACTION ///< at LOG_INFO
    };

    /// Logs the start line.
    NCLOperation(DWORD dwHandle, Level eLevel, NCLLine line);
    NCLOperation(DWORD dwHandle, Level eLevel, NCLNumberedLine line, int nValue);
    NCLOperation(const NCLOperation&) = delete;
    NCLOperation& operator=(const NCLOperation&) = delete;

    /// NCL_SUCCESS if there is an object that is not being closed and the arguments of the operation are
    /// good; otherwise logs bad parameters and returns NCL_ERR_PARAMETER. The functions below require
    /// success. Defined in the header, so that static analysis can use what success implies about the
    /// arguments.
    DWORD Enter(bool areArgumentsGood)
    {
        if (!areArgumentsGood || !MayStart()) {
            ReturnErrParam();
            return NCL_ERR_PARAMETER;
        }
        return NCL_SUCCESS;
    }

    /// Null if the handle is invalid.
    ST_NCL* Object() const
    {
        return m_guard.Object();
    }

    /// Sends a request and splits its reply into `dwItemCount` items, 0 for any number. A failure is
    /// logged.
    DWORD Exchange(const NCLRequest& request, DWORD dwItemCount, const NCLExchangeLines& lines);

    /// The items of the reply, valid as long as the operation exists.
    std::list<ST_COMM_REPLY>& Items()
    {
        return m_items;
    }
    /// The first item, which must exist.
    const ST_COMM_REPLY& Item() const
    {
        return m_items.front();
    }
    ST_HTTP_RESPONSE* Response()
    {
        return &m_response;
    }

    /// Logs the end line. NCL_SUCCESS.
    DWORD End(NCLLine line) const;
    DWORD End(NCLNumberedLine line, int nValue) const;

private:
    bool MayStart() const;
    template <class... Args>
    void Log(LogFormat<const char*, Args...> line, Args... args) const;

    NCLGuard m_guard;
    Level m_eLevel;
    ST_HTTP_RESPONSE m_response;
    std::list<ST_COMM_REPLY> m_items;
};
