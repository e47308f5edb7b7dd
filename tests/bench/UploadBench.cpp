// A disc image of 1 GiB with its digest, against curl that sends the same ranges to the same server while the
// same digest is made beside it; and the memory that the client needs for it.
#include "HttpBenchServer.h"
#include "Stopwatch.h"

#include <fstream>

#include <fcntl.h>
#include <sched.h>

namespace {

constexpr DWORD MIB = 1024 * 1024;
constexpr ULONGLONG IMAGE_SIZE = ULONGLONG{1024} * MIB;
constexpr DWORD PIECE_SIZE = 64 * MIB;
constexpr DWORD REQUEST_SIZE = 10 * MIB;
constexpr int JOB_ID = 1234;
constexpr int PAIRS = 15;
constexpr char CURL_CONFIG[] = "/tmp/curl.conf";

/// Runs a program without input and output, to its good end.
void Run(std::vector<std::string> command)
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
    int status = 0;
    waitpid(process, &status, 0);
    Check(WIFEXITED(status) && WEXITSTATUS(status) == 0, command[0].c_str());
}

/// The ranges of the whole image, in the order in which the client sends them.
void WriteCurlConfig(const HttpBenchServer& server, const std::vector<BYTE>& piece)
{
    std::ofstream config(CURL_CONFIG);
    for (ULONGLONG pieceAt = 0; pieceAt < IMAGE_SIZE; pieceAt += PIECE_SIZE) {
        for (DWORD offset = 0; offset < PIECE_SIZE; offset += REQUEST_SIZE) {
            const DWORD size = std::min(REQUEST_SIZE, PIECE_SIZE - offset);
            const std::string file = "/tmp/range-" + std::to_string(size);
            if (pieceAt == 0) {
                std::ofstream(file, std::ios::binary)
                    .write(reinterpret_cast<const char*>(piece.data()), static_cast<std::streamsize>(size));
            }
            config << (pieceAt + offset == 0 ? "" : "next\n") << "url = \"" << server.Url("/uploads/x/Image")
                   << "\"\nupload-file = \"" << file
                   << "\"\nheader = \"Expect:\"\nheader = \"Content-Range: bytes " << pieceAt + offset << '-'
                   << pieceAt + offset + size - 1 << '/' << IMAGE_SIZE << "\"\nsilent\nfail\n";
        }
    }
}

void SendImage(DWORD handle, const std::vector<BYTE>& piece)
{
    for (ULONGLONG at = 0; at < IMAGE_SIZE; at += PIECE_SIZE) {
        Check(SendDiscImage(handle, JOB_ID, piece.data(), PIECE_SIZE, static_cast<DWORD>(IMAGE_SIZE),
                            static_cast<DWORD>(IMAGE_SIZE >> 32), "Image") == NCL_SUCCESS,
              "SendDiscImage");
    }
}

void SendWithCurl(const std::vector<BYTE>& piece)
{
    std::thread digest([&] {
        MessageDigest md(BCH_HASH_TYPE_SHA1);
        for (ULONGLONG at = 0; at < IMAGE_SIZE; at += PIECE_SIZE) {
            md.Update(piece.data(), piece.size());
        }
        md.End();
    });
    Run({"curl", "-K", CURL_CONFIG});
    digest.join();
}

/// A line of /proc/self/status, in KiB.
long Memory(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(name + ":")) {
            return std::strtol(line.c_str() + name.size() + 1, nullptr, 10);
        }
    }
    return -1;
}

} // namespace

int main()
{
    const HttpBenchServer server("");
    const std::vector<BYTE> piece(PIECE_SIZE, 0x5A);
    WriteCurlConfig(server, piece);
    const DWORD handle = server.OpenHandle();
    GetNCLObj(handle)->m_nServerJobID = JOB_ID;

    std::ofstream("/proc/self/clear_refs") << "5"; // the peak begins anew
    const long before = Memory("VmRSS");
    SendImage(handle, piece);
    std::printf("Memory beyond the caller's buffer while an image goes up: %ld KiB\n",
                Memory("VmHWM") - before);

    cpu_set_t processors;
    sched_getaffinity(0, sizeof processors, &processors);
    std::printf("On %d processors\n", CPU_COUNT(&processors));
    Compare("A disc image of 1 GiB and its digest",
            {{"SendDiscImage, pieces of 64 MiB", [&] { SendImage(handle, piece); }, {}},
             {"curl, the same ranges, the digest beside it", [&] { SendWithCurl(piece); }, {}}},
            PAIRS);
    return 0;
}
