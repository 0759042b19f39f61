// Prints the memory of a process that has loaded the state file named on its command line, and what a large
// file needs. `state_file_memory --write FILE` makes such a file first.

#include "model/StateFile.h"
#include "support/LargeState.h"
#include "support/ProcessMemory.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

using namespace cuebright;

int writeLargeFile(const char* path)
{
    std::ofstream file(path, std::ios::binary);
    file << bench::encoded(bench::largeState());
    return file.flush() ? 0 : 1;
}

std::optional<AppState> load(const char* path)
{
    const auto size = std::filesystem::file_size(path);
    std::string json;
    json.reserve(size + kDecodePadding);
    json.resize(size);
    std::ifstream(path, std::ios::binary).read(json.data(), static_cast<std::streamsize>(size));
    return decodeState(json);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::string_view(argv[1]) == "--write")
        return writeLargeFile(argv[2]);
    if (argc != 2) {
        std::cerr << "usage: state_file_memory [--write] FILE\n";
        return 2;
    }
    const auto begin = std::chrono::steady_clock::now();
    const auto state = load(argv[1]);
    const std::chrono::duration<double, std::milli> duration = std::chrono::steady_clock::now() - begin;
    const auto memory = bench::processMemory();
    std::cout << (state ? "loaded" : "refused") << " in " << duration.count() << " ms, file "
              << std::filesystem::file_size(argv[1]) / 1024 << " KiB";
    if (memory)
        std::cout << ", resident " << memory->residentKib << " KiB, peak " << memory->peakKib << " KiB";
    std::cout << '\n';
}
