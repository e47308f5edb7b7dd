// Uploads a disc image to a server with the client library and with curl: the same ranges, with the same
// digest computed in parallel.
#pragma once

#include "HttpBenchServer.h"

#include <fstream>

#include <fcntl.h>
#include <poll.h>

constexpr DWORD MIB = 1024 * 1024;
constexpr int JOB_ID = 1234;

/// Starts a program without input and output.
inline pid_t Start(std::vector<std::string> command)
{
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    const pid_t process = fork();
    Check(process >= 0, "fork");
    if (process == 0) {
        const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDOUT_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    return process;
}

class ImageUpload
{
public:
    /// An image of `size` bytes, sent in pieces of `pieceSize` bytes. curl sends it to `url`.
    ImageUpload(const std::string& url, ULONGLONG size, DWORD pieceSize)
        : m_size(size), m_piece(pieceSize, 0x5A)
    {
        WriteCurlConfig(url);
    }

    void SendWithLibrary(DWORD handle) const
    {
        for (ULONGLONG at = 0; at < m_size; at += m_piece.size()) {
            Check(SendDiscImage(handle, JOB_ID, m_piece.data(), static_cast<DWORD>(m_piece.size()),
                                static_cast<DWORD>(m_size), static_cast<DWORD>(m_size >> 32),
                                "Image") == NCL_SUCCESS,
                  "SendDiscImage");
        }
    }

    void SendWithCurl() const
    {
        std::thread digest([&] {
            MessageDigest md(BCH_HASH_TYPE_SHA1);
            for (ULONGLONG at = 0; at < m_size; at += m_piece.size()) {
                md.Update(m_piece.data(), m_piece.size());
            }
            md.End();
        });
        int status = 0;
        waitpid(Start({"curl", "-K", CURL_CONFIG}), &status, 0);
        Check(WIFEXITED(status) && WEXITSTATUS(status) == 0, "curl");
        digest.join();
    }

private:
    static constexpr DWORD REQUEST_SIZE = 10 * MIB; ///< of the client library
    static constexpr char CURL_CONFIG[] = "/tmp/curl.conf";

    /// The ranges of the whole image, in the order in which the client sends them.
    void WriteCurlConfig(const std::string& url) const
    {
        std::ofstream config(CURL_CONFIG);
        const auto pieceSize = static_cast<DWORD>(m_piece.size());
        for (ULONGLONG pieceAt = 0; pieceAt < m_size; pieceAt += pieceSize) {
            for (DWORD offset = 0; offset < pieceSize; offset += REQUEST_SIZE) {
                const DWORD size = std::min(REQUEST_SIZE, pieceSize - offset);
                const std::string file = "/tmp/range-" + std::to_string(size);
                if (pieceAt == 0) {
                    std::ofstream(file, std::ios::binary)
                        .write(reinterpret_cast<const char*>(m_piece.data()),
                               static_cast<std::streamsize>(size));
                }
                config << (pieceAt + offset == 0 ? "" : "next\n") << "url = \"" << url
                       << "\"\nupload-file = \"" << file
                       << "\"\nheader = \"Expect:\"\nheader = \"Content-Range: bytes " << pieceAt + offset
                       << '-' << pieceAt + offset + size - 1 << '/' << m_size << "\"\nsilent\nfail\n";
            }
        }
    }

    ULONGLONG m_size;
    std::vector<BYTE> m_piece;
};
