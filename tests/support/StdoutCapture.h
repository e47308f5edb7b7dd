// Captures every byte that this process writes to its standard output, with or without stdio.
#pragma once

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

/// Captures the standard output from construction until `Stop` or destruction. The constructor throws
/// std::runtime_error on failure.
class StdoutCapture
{
public:
    StdoutCapture()
    {
        std::fflush(stdout);
        m_original = ::dup(STDOUT_FILENO);
        m_memory = ::memfd_create("stdout", MFD_CLOEXEC);
        if (m_original < 0 || m_memory < 0 || ::dup2(m_memory, STDOUT_FILENO) < 0) {
            throw std::runtime_error(std::string("StdoutCapture: ") + std::strerror(errno));
        }
    }
    StdoutCapture(const StdoutCapture&) = delete;
    StdoutCapture& operator=(const StdoutCapture&) = delete;
    ~StdoutCapture()
    {
        Stop();
        ::close(m_memory);
    }

    /// Restores the standard output and returns the captured bytes.
    std::string Stop()
    {
        if (m_original >= 0) {
            std::fflush(stdout);
            ::dup2(m_original, STDOUT_FILENO);
            ::close(m_original);
            m_original = -1;
        }
        std::string text;
        char piece[4096];
        off_t position = 0;
        ssize_t count = 0;
        while ((count = ::pread(m_memory, piece, sizeof piece, position)) > 0) {
            text.append(piece, static_cast<size_t>(count));
            position += count;
        }
        return text;
    }

private:
    int m_original = -1;
    int m_memory = -1;
};
