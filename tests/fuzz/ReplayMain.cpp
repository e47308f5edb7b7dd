// Runs a fuzz harness on the files of a folder, without libFuzzer.
#include "TextFiles.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: harness FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        const std::string text = ReadText(entry.path());
        std::printf("%s\n", entry.path().filename().c_str());
        std::fflush(stdout); // the last one printed is the one that failed
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(text.data()), text.size());
        ++count;
    }
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
