#include "Submission.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <optional>

#include "Answers.h"

namespace probe {

namespace {

using Contents = std::vector<BYTE>;

std::optional<Contents> readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::printf("%s cannot be read\n", path.c_str());
        return std::nullopt;
    }
    return Contents(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

const BYTE* bytesOf(const std::string& text)
{
    return reinterpret_cast<const BYTE*>(text.data());
}

DWORD sizeOf(const std::string& text)
{
    return static_cast<DWORD>(text.size());
}

std::string fileName(const std::string& path)
{
    return path.substr(path.find_last_of('/') + 1);
}

bool sendImage(DWORD handle, int id, const std::string& path, size_t piece)
{
    constexpr unsigned HALF = 32;
    const auto image = readFile(path);
    if (!image) {
        return false;
    }
    const uint64_t total = image->size();
    for (size_t from = 0; from < total; from += piece) {
        const auto size = static_cast<DWORD>(std::min<size_t>(piece, total - from));
        if (!report("SendDiscImage",
                    SendDiscImage(handle, id, image->data() + from, size, static_cast<DWORD>(total),
                                  static_cast<DWORD>(total >> HALF), fileName(path).c_str()))) {
            return false;
        }
    }
    return true;
}

/// The first file uses the running index; the others pass their own.
bool sendPrints(DWORD handle, int id, const std::vector<std::string>& paths)
{
    DWORD index = 0;
    for (const std::string& path : paths) {
        const auto data = readFile(path);
        if (!data) {
            return false;
        }
        const auto size = static_cast<DWORD>(data->size());
        const bool sent =
            index == 0 ? report("SendPrnData", SendPrnData(handle, id, data->data(), size))
                       : report("SendPrnDataExt", SendPrnDataExt(handle, id, data->data(), size, index));
        if (!sent) {
            return false;
        }
        ++index;
    }
    return true;
}

bool sendFiles(DWORD handle, int id, const NewJob& job)
{
    const std::string info = "<disc name=\"" + job.name + "\"/>\n";
    const std::string write = "images " + std::to_string(job.images.size()) + "\n";
    return report("SendDiscInfo", SendDiscInfo(handle, id, bytesOf(info), sizeOf(info))) &&
           std::all_of(job.images.begin(), job.images.end(),
                       [&](const std::string& path) { return sendImage(handle, id, path, job.piece); }) &&
           report("SendDiscWriteInfo", SendDiscWriteInfo(handle, id, bytesOf(write), sizeOf(write))) &&
           sendPrints(handle, id, job.prints);
}

std::string specialText(bool cleaning, const std::string& print)
{
    const std::string stackers =
        cleaning ? "Load = -1\nEject = -1\nCount = 0\n" : "Load = 1\nEject = 2\nCount = 1\n";
    return "[Common]\nVersion = 0x01030000\nID = \nPublisherID = \n" + stackers +
           "Create = " + std::to_string(std::time(nullptr)) +
           "\nPublisher = @UDSetup\nMode = 2\nJobName = " + (cleaning ? "Head Cleaning" : "Nozzle Check") +
           "\nSaveJobData = 0\nPublishID = \nSilent = 0\n\n[Print]\nPrintMode = " + (cleaning ? "4" : "5") +
           "\nDataPath = " + print + "\nDryingTime = 0\nPrintQuality = 0\n";
}

} // namespace

bool submit(DWORD handle, const NewJob& job)
{
    int id = 0;
    const std::string data = "[Common]\nID = PROBE_" + std::to_string(std::time(nullptr)) +
                             "\nCount = " + std::to_string(job.copies) +
                             "\nPublisher = probe\nJobName = " + job.name + "\n";
    if (!report("SendJobData", SendJobData(handle, bytesOf(data), sizeOf(data), &id))) {
        return false;
    }
    std::printf("SendJobData = %08x\n", static_cast<unsigned>(id));
    const bool sent = sendFiles(handle, id, job);
    if (sent && job.commit) {
        return report("CommitJob", CommitJob(handle, id));
    }
    return report("CancelJob", CancelJob(handle, id)) && sent;
}

bool submitSpecial(DWORD handle, const std::string& which, const std::string& print)
{
    const auto data = readFile(print);
    if (!data) {
        return false;
    }
    int id = 0;
    const std::string text = specialText(which == "cleaning", print);
    const bool sent =
        report("SendSpecialJobData", SendSpecialJobData(handle, bytesOf(text), sizeOf(text), data->data(),
                                                        static_cast<DWORD>(data->size()), &id));
    std::printf("SendSpecialJobData = %08x\n", static_cast<unsigned>(id));
    return sent;
}

bool command(DWORD handle, const std::string& what, const std::string& job)
{
    constexpr int HEXADECIMAL = 16;
    constexpr char USER[] = "probe";
    const int id = static_cast<int>(std::strtoul(job.c_str(), nullptr, HEXADECIMAL));
    if (what == "cancel") {
        return report("CancelJobForMonitor", CancelJobForMonitor(handle, id, USER, USER));
    }
    if (what == "stop") {
        return report("StopJobForMonitor", StopJobForMonitor(handle, id, USER, USER));
    }
    if (what == "restart") {
        return report("RestartJobForMonitor", RestartJobForMonitor(handle, id, USER, USER));
    }
    if (what == "front") {
        return report("ChangeJobPriorityForMonitor", ChangeJobPriorityForMonitor(handle, id, USER, USER));
    }
    if (what == "bridge-cancel") {
        return report("CancelJobForBridge", CancelJobForBridge(handle, job.c_str(), USER, USER));
    }
    if (what == "bridge-front") {
        return report("ChangeJobPriorityForBridge",
                      ChangeJobPriorityForBridge(handle, job.c_str(), USER, USER));
    }
    std::printf("unknown command %s\n", what.c_str());
    return false;
}

} // namespace probe
