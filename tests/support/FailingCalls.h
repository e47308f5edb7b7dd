// Makes single system calls of a test fail.
#pragma once

enum class FailingCall
{
    OPEN,
    FSTAT,
    READ
};

/// After `passed` such calls of this thread, the next one fails with `error`, an errno; later ones succeed.
void FailOne(FailingCall call, int error, int passed = 0);
