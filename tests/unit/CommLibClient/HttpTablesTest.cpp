#include "Http.h"

#include <type_traits>

#include <gtest/gtest.h>

static_assert(std::has_virtual_destructor_v<CHttp>);

namespace {

struct Method
{
    CHttp::METHOD method;
    int value;
    const char* text;
};

const Method methods[] = {
    {CHttp::METHOD_GET, 0, "GET"},
    {CHttp::METHOD_HEAD, 1, "HEAD"},
    {CHttp::METHOD_POST, 2, "POST"},
    {CHttp::METHOD_PUT, 3, "PUT"},
    {CHttp::METHOD_DELETE, 4, "DELETE"},
    {CHttp::METHOD_OPTIONS, 5, "OPTIONS"},
    {CHttp::METHOD_TRACE, 6, "TRACE"},
    {CHttp::METHOD_CONNECT, 7, "CONNECT"},
    {CHttp::METHOD_PATCH, 8, "PATCH"},
    {CHttp::METHOD_LINK, 9, "LINK"},
    {CHttp::METHOD_UPLINK, 10, "UPLINK"},
    {CHttp::METHOD_PROPFIND, 11, "PROPFIND"},
    {CHttp::METHOD_PROPPATCH, 12, "PROPPATCH"},
    {CHttp::METHOD_MKCOL, 13, "MKCOL"},
    {CHttp::METHOD_COPY, 14, "COPY"},
    {CHttp::METHOD_MOVE, 15, "MOVE"},
    {CHttp::METHOD_LOCK, 16, "LOCK"},
    {CHttp::METHOD_UNLOCK, 17, "UNLOCK"},
    {CHttp::EMPTY, 18, "Error"},
    {static_cast<CHttp::METHOD>(19), 19, "Error"},
    {static_cast<CHttp::METHOD>(31), 31, "Error"},
};

struct Status
{
    CHttp::STATUS status;
    int value;
    int code;
};

const Status statuses[] = {
    {CHttp::STATUS_EMPTY, 0, 0},
    {CHttp::STATUS_CONTINUE, 1, 100},
    {CHttp::STATUS_SWITCHING_PROTOCOLS, 2, 101},
    {CHttp::STATUS_OK, 3, 200},
    {CHttp::STATUS_CREATED, 4, 201},
    {CHttp::STATUS_ACCEPTED, 5, 202},
    {CHttp::STATUS_NON_AUTHORITATIVE_INFOMATION, 6, 203},
    {CHttp::STATUS_NO_CONTENT, 7, 204},
    {CHttp::STATUS_RESET_CONTENT, 8, 205},
    {CHttp::STATUS_PARTIAL_CONTENT, 9, 206},
    {CHttp::STATUS_MULTIPLE_CHOICES, 10, 300},
    {CHttp::STATUS_MOVED_PERMANENTLY, 11, 301},
    {CHttp::STATUS_MOVED_TEMPORARILY, 12, 302},
    {CHttp::STATUS_SEE_OTHER, 13, 303},
    {CHttp::STATUS_NOT_MODIFIED, 14, 304},
    {CHttp::STATUS_USE_PROXY, 15, 305},
    {CHttp::STATUS_BAD_REQUEST, 16, 400},
    {CHttp::STATUS_UNAUTHORIZED, 17, 401},
    {CHttp::STATUS_PAYMENT_REQUIRED, 18, 0},
    {CHttp::STATUS_FORBIDDEN, 19, 403},
    {CHttp::STATUS_NOT_FOUND, 20, 404},
    {CHttp::STATUS_METHOD_NOT_ALLOWED, 21, 405},
    {CHttp::STATUS_NOT_ACCEPTABLE, 22, 406},
    {CHttp::STATUS_PROXY_AUTHENTICATION_REQUIRED, 23, 407},
    {CHttp::STATUS_REQUEST_TIME_OUT, 24, 408},
    {CHttp::STATUS_CONFLICT, 25, 409},
    {CHttp::STATUS_GONE, 26, 410},
    {CHttp::STATUS_LENGTH_REQUIRED, 27, 411},
    {CHttp::STATUS_RRECONDITION_FAILED, 28, 412},
    {CHttp::STATUS_REQUEST_ENTITY_TOO_LARGE, 29, 413},
    {CHttp::STATUS_REQUEST_URI_TOO_LARGE, 30, 414},
    {CHttp::STATUS_UNSUPPORTED_MEDIA_TYPE, 31, 415},
    {CHttp::STATUS_INTERNAL_SERVER_ERROR, 32, 500},
    {CHttp::STATUS_NOT_IMPLEMENTED, 33, 501},
    {CHttp::STATUS_BAD_GATEWAY, 34, 502},
    {CHttp::STATUS_SERVICE_UNAVAILABLE, 35, 503},
    {CHttp::STATUS_GATEWAY_TIME_OUT, 36, 504},
    {CHttp::STATUS_HTTP_VERSION_NO_SUPPORTED, 37, 505},
    {CHttp::STATUS_VARIANT_ALSO_NEGOTIATES, 38, 506},
    {CHttp::STATUS_INSUFFICIENT_STORAGE, 39, 507},
    {CHttp::STATUS_NO_EXTENDED, 40, 510},
    {static_cast<CHttp::STATUS>(41), 41, 0},
    {static_cast<CHttp::STATUS>(63), 63, 0},
};

// Gives the test access to a private member: an explicit instantiation may name it.
template <auto member>
struct Base64ErrorTable
{
    friend int ConvertBase64Error(int value)
    {
        return member(value);
    }
};
template struct Base64ErrorTable<&CHttp::ConvertBase64Error>;
int ConvertBase64Error(int value);

} // namespace

TEST(HttpTables, NameTheMethods)
{
    for (const Method& row : methods) {
        EXPECT_EQ(row.method, row.value);
        EXPECT_STREQ(CHttp::GetMethodStringPtr(row.method), row.text);
    }
}

TEST(HttpTables, NumberTheStatuses)
{
    for (const Status& row : statuses) {
        EXPECT_EQ(row.status, row.value);
        EXPECT_EQ(CHttp::GetStatusCode(row.status), row.code);
    }
}

TEST(HttpTables, NumberTheVersions)
{
    EXPECT_EQ(CHttp::VERSION_1_0, 0);
    EXPECT_EQ(CHttp::VERSION_1_1, 1);
}

TEST(HttpTables, ConvertBase64ResultsToInternetResults)
{
    const int expected[] = {0, -26, -2, -26, -26, -26, -21, -22, -23, -24, -26};
    for (int value = 0; value <= 10; ++value) {
        EXPECT_EQ(ConvertBase64Error(value), expected[value]);
        EXPECT_EQ(ConvertBase64Error(-value), expected[value]);
    }
    EXPECT_EQ(ConvertBase64Error(11), -26);
    EXPECT_EQ(ConvertBase64Error(-1000), -26);
}
