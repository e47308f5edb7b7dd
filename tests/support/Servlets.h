// Replies of the servlets of a publisher server, and an open connection to a server without a network.
#pragma once

#include "FakeComm.h"
#include "NW_Com_Lib_internal.h"

/// A number as four bytes on the wire, high byte first.
inline std::string WireWord(DWORD value)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(value >> shift);
    }
    return bytes;
}

inline std::string WireWords(const std::vector<DWORD>& values)
{
    std::string bytes;
    for (const DWORD value : values) {
        bytes += WireWord(value);
    }
    return bytes;
}

/// One item of a reply.
inline std::string ReplyItem(const std::string& data, unsigned char status = 0)
{
    std::string item(1, static_cast<char>(status));
    item += static_cast<char>(data.size() >> 8);
    item += static_cast<char>(data.size());
    return item + data;
}

/// A whole HTTP response.
inline std::string HttpResponse(const std::string& body, const std::string& status = "200 OK")
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

/// A whole HTTP response with one good item.
inline std::string GoodReply(const std::string& data)
{
    return HttpResponse(ReplyItem(data));
}

/// A GET request as the library sends it.
inline std::string GetRequest(const std::string& path)
{
    return "GET " + path + " HTTP/1.1\r\nHost:localhost\r\n\r\n";
}

/// A connection in the table, as StartConnection creates it, that receives prepared responses. The destructor
/// closes it.
class FakeServer
{
public:
    explicit FakeServer(const std::vector<std::string>& responses = {})
    {
        FakeConnection connection;
        for (const std::string& response : responses) {
            connection.reply += response;
        }
        Open(new FakeComm({connection}));
    }
    explicit FakeServer(std::vector<FakeConnection> connections)
    {
        Open(new FakeComm(std::move(connections)));
    }
    /// Takes ownership of the transport, which was created with new.
    explicit FakeServer(FakeComm& comm)
    {
        Open(&comm);
    }
    FakeServer(const FakeServer&) = delete;
    FakeServer& operator=(const FakeServer&) = delete;
    ~FakeServer()
    {
        EndConnection(m_handle);
    }

    DWORD Handle() const
    {
        return m_handle;
    }
    ST_NCL& Object()
    {
        return *m_ncl;
    }
    FakeComm& Comm()
    {
        return *m_comm;
    }
    /// All bytes sent, heads and bodies.
    std::string Sent() const
    {
        std::string all;
        for (const std::string& write : m_comm->writes) {
            all += write;
        }
        return all;
    }

private:
    void Open(FakeComm* comm)
    {
        m_comm = comm;      // owned by the client below
        m_ncl = new ST_NCL; // owned by the table
        m_ncl->m_pHttp = new FakeHttp(m_comm);
        m_ncl->m_strServerAddress = "server";
        m_ncl->m_dwServerMode = NCL_MODE_NORMAL;
        m_ncl->m_dwNPType = NCL_NPTYPE_300NII;
        m_ncl->m_bFinishStartConnection = TRUE;
        m_handle = SetNCLObj(m_ncl);
    }

    FakeComm* m_comm = nullptr;
    ST_NCL* m_ncl = nullptr;
    DWORD m_handle = 0;
};
