// The expected results of an operation on a network publisher if one of its requests fails, and if none does.
#pragma once

#include "NetworkOperations.h"

#include <gtest/gtest.h>

/// The number of requests that start a connection: the mode, the support of BD-R TL and QL, the interface
/// version and the server version.
inline constexpr size_t OF_CONNECTION = 4;
inline constexpr size_t OF_LARGE_DISCS = 1;
inline constexpr size_t OF_VERSION = 3; ///< its failure is ignored

/// Expects the result of an operation that fails with `code` at this request, counted from the first request
/// of the connection.
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

/// Expects the result of an operation without a failed request.
inline void ExpectSuccess(const NetworkOperation& operation, const NetworkAnswer& answer)
{
    const std::string name = operation.name;
    if (name == "IsFatalErrorInPublisher") {
        EXPECT_EQ(answer.result, 0) << "there is no fatal error";
    } else {
        EXPECT_NE(answer.result, operation.resultWhenRefused);
    }
    EXPECT_EQ(answer.code, operation.CodeWhenDone());
}
