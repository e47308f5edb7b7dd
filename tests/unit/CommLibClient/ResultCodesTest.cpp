#include "NW_Com_Lib_internal.h"

#include "SyslogLines.h"

#include <climits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Code
{
    DWORD code;
    DWORD value;
    const char* text;
};

const Code codes[] = {
    {NCL_SUCCESS, 0, "Success"},
    {NCL_ERR_PARAMETER, 1, "Parameter"},
    {NCL_ERR_GET_MEMORY, 2, "Get Memory"},
    {NCL_ERR_SOCK_INITIALIZATION, 3, "Socket Initialization"},
    {NCL_ERR_SOCK_CONNECTION, 4, "Socket Connection"},
    {NCL_ERR_SSL_INITIALIZATION, 5, "SSL Initialization"},
    {NCL_ERR_SSL_CONNECTION, 6, "SSL Connection"},
    {NCL_ERR_COMMUNICATION, 7, "Commutication"},
    {NCL_ERR_NETWORK_TIMEOUT, 8, "Network Timeout"},
    {NCL_ERR_CONNECTION_CLOSE, 9, "Conection Close"},
    {NCL_ERR_BUF_SIZE, 10, "Buffer Size"},
    {NCL_ERR_PROCESS_CREATE, 11, "Process Creation"},
    {NCL_ERR_CANCEL_SENDING, 12, "Cancel Sending"},
    {NCL_ERR_INVALID_COMM_SPEC, 13, "Invalid Comm Spec"},
    {NCL_ERR_CALC_HASH, 14, "Hash calculation error"},
    {NCL_ERR_SERVER_OTHER, 8000, "Server Other"},
    {NCL_ERR_APP_VERSION, 8001, "Version Discrepancy"},
    {NCL_ERR_DEVICE_OFFLINE, 8002, "Device Offline"},
    {NCL_ERR_AUTHENTICATION, 8003, "Authentication"},
    {NCL_ERR_PASSWORD_EXPIRED, 8004, "Password Expired"},
    {NCL_ERR_REGISTRATION_BUSY, 8005, "Registration Busy"},
    {NCL_ERR_HARD_DISC_CAPACITY, 8006, "Hard Disc Capacity"},
    {NCL_ERR_SERVER_JOB_ID, 8007, "Server Job ID"},
    {NCL_ERR_JOB_FILE_INVALID, 8008, "Invalid Job File"},
    {NCL_ERR_PERMISSION_DENIED, 8009, "Permission Denied"},
    {NCL_ERR_USER_NOT_REGISTERED, 8010, "User Not Registered"},
    {NCL_ERR_SERVER_BUSY, 8011, "Server Busy (Backup or Restore)"},
    {NCL_ERR_SPOOL_JOB_LIMIT, 8012, "Spool Job Limit"},
    // Codes without a text of their own.
    {15, 15, "Success"},
    {7999, 7999, "Success"},
    {8013, 8013, "Server Other"},
    {10000, 10000, "Server Other"},
    {0xFFFFFFFF, 0xFFFFFFFF, "Server Other"},
};

struct ServletStatus
{
    DWORD status;
    DWORD code;
    const char* line; ///< null if nothing is logged
};

const ServletStatus servletStatuses[] = {
    {0, 0, nullptr},
    {1, 8001, "<3>[Servlet] Version Discrepancy"},
    {2, 8002, "<3>[Servlet] Device Offline"},
    {3, 8003, "<3>[Servlet] Authentication"},
    {4, 8004, "<3>[Servlet] Password Expired"},
    {5, 8005, "<3>[Servlet] Registration Busy"},
    {6, 8006, "<3>[Servlet] Hard Disk Capacity"},
    {7, 8007, "<3>[Servlet] ServerJobID"},
    {8, 8008, "<3>[Servlet] Invalid Job File"},
    {9, 8000, "<3>[Servlet] Server Other"},
    {10, 8009, "<3>[Servlet] Permission Denied"},
    {11, 8010, "<3>[Servlet] User Not Registered"},
    {12, 8011, "<3>[Servlet] Server Busy (Backup or Restore)"},
    {13, 8012, "<3>[Servlet] Spool Job Limit"},
    {14, 8000, nullptr},
    {200, 8000, nullptr},
    {255, 8000, nullptr},
    {0xFFFFFFFF, 8000, nullptr},
};

} // namespace

TEST(ResultCodes, HaveTheirNumbersAndTexts)
{
    for (const Code& code : codes) {
        EXPECT_EQ(code.code, code.value);
        EXPECT_STREQ(GetNCLErrorString(code.code), code.text) << code.value;
    }
}

TEST(ResultCodes, ComeFromInternetResults)
{
    const DWORD expected[] = {
        0,     10000, 2, 10000, 10000, // 0 to -4
        7,     8,     8, 8,     7,     // -5 to -9
        7,     9,     3, 3,     4,     // -10 to -14
        10000, 5,     5, 6,     10000, // -15 to -19
        10000, 5,     5, 5,     5,     // -20 to -24
        13,    10000,                  // -25, -26
    };
    ASSERT_EQ(std::size(expected), 27U);
    for (int value = 0; value <= 26; ++value) {
        EXPECT_EQ(ConvertInternetError(-value), expected[value]) << -value;
        EXPECT_EQ(ConvertInternetError(value), expected[value]) << value;
    }
    for (const int value : {-27, 27, -1000, INT_MAX, INT_MIN, INT_MIN + 1}) {
        EXPECT_EQ(ConvertInternetError(value), 10000U) << value;
    }
}

TEST(ResultCodes, ComeFromAServletsStatus)
{
    for (const ServletStatus& row : servletStatuses) {
        SyslogLines lines;
        EXPECT_EQ(ConvertServerStatus(row.status), row.code) << row.status;
        if (row.line != nullptr) {
            EXPECT_THAT(lines.Take(), ElementsAre(row.line));
        } else {
            EXPECT_THAT(lines.Take(), IsEmpty()) << row.status;
        }
    }
}

TEST(ResultCodes, ComeFromTheHttpStatus)
{
    for (int status = CHttp::STATUS_EMPTY; status <= CHttp::STATUS_NO_EXTENDED; ++status) {
        SyslogLines lines;
        ST_HTTP_RESPONSE response;
        response.m_eStatus = static_cast<CHttp::STATUS>(status);
        response.m_eMethod = CHttp::METHOD_GET;
        const int code = CHttp::GetStatusCode(response.m_eStatus);
        const DWORD result = CheckHttpResponseStatus(&response, "/webapp2/ServerModeGetter");
        if (code == 200 || code == 201 || code == 204) {
            EXPECT_EQ(result, 0U) << code;
            EXPECT_THAT(lines.Take(), IsEmpty());
            continue;
        }
        EXPECT_EQ(result, code == 401 ? 8007U : code == 507 ? 8006U : 8000U) << code;
        EXPECT_THAT(lines.Take(), ElementsAre("<3>[Apache/Tomcat] HTTP " + std::to_string(code) +
                                              " error (GET, /webapp2/ServerModeGetter)"));
    }
}

TEST(ResultCodes, LogTheRefusedRequest)
{
    SyslogLines lines;
    ST_HTTP_RESPONSE response;
    response.m_eStatus = CHttp::STATUS_FORBIDDEN;
    response.m_eMethod = CHttp::METHOD_MKCOL;
    EXPECT_EQ(CheckHttpResponseStatus(&response, "/uploads/0000002a/"), 8000U);
    response.m_eMethod = CHttp::EMPTY;
    response.m_eStatus = CHttp::STATUS_PAYMENT_REQUIRED;
    EXPECT_EQ(CheckHttpResponseStatus(&response, "/"), 8000U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[Apache/Tomcat] HTTP 403 error (MKCOL, /uploads/0000002a/)",
                                          "<3>[Apache/Tomcat] HTTP 0 error (Error, /)"));
}

TEST(ResultCodes, NumberKindsAndModesOfAServer)
{
    EXPECT_EQ(NCL_NPTYPE_UNKNOWN, 0U);
    EXPECT_EQ(NCL_NPTYPE_300N, 1U);
    EXPECT_EQ(NCL_NPTYPE_300NII, 2U);
    EXPECT_EQ(NCL_NPTYPE_300NII_BDXL, 3U);
    EXPECT_EQ(NCL_MODE_SECURITY, 0U);
    EXPECT_EQ(NCL_MODE_OUTPUT_CONTROL, 1U);
    EXPECT_EQ(NCL_MODE_NORMAL, 2U);
    EXPECT_EQ(NCL_MODE_OUTPUT, 3U);
    EXPECT_EQ(NCL_MODE_BATCH, 4U);
}
