// What an operation on a network publisher gives when a request of its connection fails, and when none does.
#pragma once

#include "NetworkOperations.h"

#include <gtest/gtest.h>

/// What a connection asks before any operation can: the mode, whether BD-R TL and QL are taken, the
/// interface's version, and the server's.
inline constexpr size_t OF_CONNECTION = 4;
inline constexpr size_t OF_LARGE_DISCS = 1;
inline constexpr size_t OF_VERSION = 3; ///< whatever becomes of it

/// What an operation gives that fails with `code` at its request of this number, counted from the first of
/// the connection's.
inline void ExpectFailure(const NetworkOperation& operation, size_t request, DWORD code,
                          const NetworkAnswer& answer)
{
    const bool isConnected = request >= OF_CONNECTION;
    EXPECT_EQ(answer.result, isConnected ? operation.resultWhenRefused : operation.ResultWhenUnreachable());
    EXPECT_EQ(answer.code,
              CodeBy(isConnected ? operation.codeWhenRefused : operation.codeWhenUnreachable, code));
    if (!isConnected || operation.keepsOutput) {
        EXPECT_TRUE(answer.isKept);
    }
}

/// One that none of its requests failed to.
inline void ExpectSuccess(const NetworkOperation& operation, const NetworkAnswer& answer)
{
    const std::string name = operation.name;
    if (name == "IsFatalErrorInPublisher") {
        EXPECT_EQ(answer.result, 0) << "there is none";
    } else {
        EXPECT_NE(answer.result, operation.resultWhenRefused);
    }
    EXPECT_EQ(answer.code, operation.CodeWhenDone());
}
