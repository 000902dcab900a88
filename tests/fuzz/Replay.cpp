#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {
void replay(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}
} // namespace

/// Runs every file of the folders given through the fuzz target; fails when there is none.
int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; i++)
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i]))
            if (entry.is_regular_file()) {
                replay(entry.path());
                count++;
            }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
