// Without libFuzzer (an ordinary or sanitizer build), each fuzz target is
// linked with this main instead: it feeds the target every file it is given,
// and every file inside every folder it is given, once. The tests run it over
// the seed corpus and the inputs that once crashed, so that those stay fixed.
// A folder that does not exist holds nothing to replay.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

bool replay(const std::filesystem::path &file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return false;
    }
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(in), {}};
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    int count = 0;
    bool readable = true;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (const auto &entry : std::filesystem::recursive_directory_iterator(path)) {
                if (entry.is_regular_file()) {
                    readable = replay(entry.path()) && readable;
                    ++count;
                }
            }
        } else if (std::filesystem::exists(path)) {
            readable = replay(path) && readable;
            ++count;
        }
    }
    std::printf("replayed %d inputs\n", count);
    return readable ? 0 : 1;
}
