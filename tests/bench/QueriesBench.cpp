// Sends small requests on one persistent connection, compared with libcurl on one connection to the same
// server.
#include "HttpBenchServer.h"
#include "Stopwatch.h"
#include "SystemLog.h"

#include <curl/curl.h>

namespace {

constexpr int REQUESTS = 1000;
constexpr int REPETITIONS = 15;

/// One item: status 0, four bytes of data.
const std::string ANSWER("\0\0\4\0\0\0\7", 7);

size_t Append(char* data, size_t size, size_t count, void* text)
{
    static_cast<std::string*>(text)->append(data, size * count);
    return size * count;
}

CURL* NewCurl(std::string* answer)
{
    CURL* curl = curl_easy_init();
    Check(curl != nullptr, "curl_easy_init");
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Append);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, answer);
    return curl;
}

void Perform(CURL* curl, std::string* answer)
{
    for (int count = 0; count < REQUESTS; ++count) {
        answer->clear();
        Check(curl_easy_perform(curl) == CURLE_OK && *answer == ANSWER, "curl_easy_perform");
    }
}

void Query(DWORD handle)
{
    for (int count = 0; count < REQUESTS; ++count) {
        DWORD number = 0;
        Check(GetPrnPossibilityNumber(handle, &number) == NCL_SUCCESS && number == 7,
              "GetPrnPossibilityNumber");
    }
}

void Post(DWORD handle)
{
    for (int count = 0; count < REQUESTS; ++count) {
        Check(StopJobForMonitor(handle, 1234, "", "") == NCL_SUCCESS, "StopJobForMonitor");
    }
}

} // namespace

int main()
{
    const HttpBenchServer server(ANSWER); // forks, so it comes before any thread
    const SystemLog log;
    const DWORD handle = server.OpenHandle();
    std::string answer;
    CURL* get = NewCurl(&answer);
    curl_easy_setopt(get, CURLOPT_URL, server.Url("/webapp2/PrnPosNumGetter").c_str());
    CURL* post = NewCurl(&answer);
    curl_easy_setopt(post, CURLOPT_URL, server.Url("/webapp2/JobController").c_str());
    curl_easy_setopt(post, CURLOPT_POSTFIELDS, "action=2&serverjobid=000004d2");

    PrintRatioGoal("query on a kept connection, vs libcurl",
                   Compare("1000 queries on one connection",
                           {{"GetPrnPossibilityNumber", [&] { Query(handle); }, {}},
                            {"libcurl", [&] { Perform(get, &answer); }, {}}},
                           REPETITIONS),
                   1);
    // Head and body are two writes: a request that waited for a delayed acknowledgement would take 40 ms.
    PrintRatioGoal("small form, vs libcurl",
                   Compare("1000 small forms on one connection",
                           {{"StopJobForMonitor", [&] { Post(handle); }, {}},
                            {"libcurl", [&] { Perform(post, &answer); }, {}}},
                           REPETITIONS),
                   1);
    curl_easy_cleanup(get);
    curl_easy_cleanup(post);
    return 0;
}
