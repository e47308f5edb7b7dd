// Makes single system calls of a test fail or transfer fewer bytes.
#pragma once

#include <cstddef>

enum class FailingCall
{
    OPEN,
    FSTAT,
    READ,
    WRITE,
    TRUNCATE,
    CLOSE, ///< closes the descriptor nevertheless
    OPEN_FOLDER,
    READ_FOLDER
};

/// After `passed` such calls of this thread, the next one fails with `error`, an errno; later ones succeed.
void FailOne(FailingCall call, int error, int passed = 0);

/// The next such call of this thread, READ or WRITE, transfers at most `size` bytes.
void ShortenOne(FailingCall call, size_t size);
