// Uploads a disc image of 1 GiB with its digest, compared with curl sending the same ranges to the same
// server while the same digest is computed in parallel. Also measures the memory that the client needs.
#include "ImageUpload.h"
#include "Stopwatch.h"

#include <sched.h>

namespace {

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
    const ImageUpload upload(server.Url("/uploads/x/Image"), ULONGLONG{1024} * MIB, 64 * MIB);
    const DWORD handle = server.OpenHandle();
    GetNCLObj(handle)->m_nServerJobID = JOB_ID;

    std::ofstream("/proc/self/clear_refs") << "5"; // resets the peak
    const long before = Memory("VmRSS");
    upload.SendWithLibrary(handle);
    PrintGoal("memory beyond the caller's buffer in an upload",
              static_cast<double>(Memory("VmHWM") - before) / 1024, 1, "MiB");

    cpu_set_t processors;
    sched_getaffinity(0, sizeof processors, &processors);
    std::printf("On %d processors\n", CPU_COUNT(&processors));
    PrintRatioGoal(
        "upload of 1 GiB with hash, vs curl",
        Compare("A disc image of 1 GiB and its digest",
                {{"SendDiscImage, pieces of 64 MiB", [&] { upload.SendWithLibrary(handle); }, {}},
                 {"curl, same ranges, digest in a second thread", [&] { upload.SendWithCurl(); }, {}}},
                15),
        0.9);
    return 0;
}
