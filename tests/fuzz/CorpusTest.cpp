#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr unsigned kMutationsPerInput = 500;

std::vector<std::string> ReadCorpus() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(KORVANE_FUZZ_CORPUS))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> inputs;
    for (const std::filesystem::path& path : paths) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return inputs;
}

void RunTarget(const std::string& input) {
    // A block of its exact size lets the sanitizer see every read beyond it.
    const std::vector<std::uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

class Mutator {
  public:
    explicit Mutator(std::vector<std::string> corpus) : corpus_(std::move(corpus)) {}

    std::string Mutate(std::string input) {
        for (std::size_t steps = 1 + Below(4); steps > 0; --steps)
            Step(input);
        return input;
    }

  private:
    std::size_t Below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }
    char AnyByte() {
        static const std::string telling("\0\x01\x7F\x80\xFE\xFF\r\n \t=[]\"\\;", 16);
        return Below(2) == 0 ? telling[Below(telling.size())] : static_cast<char>(random_());
    }

    void Step(std::string& input) {
        const std::size_t at = Below(input.size());
        const std::size_t length = Below(std::min<std::size_t>(input.size() - at, 16) + 1);
        switch (Below(7)) {
            case 0:
                if (!input.empty())
                    input[at] = AnyByte();
                break;
            case 1:
                if (!input.empty())
                    input[at] = static_cast<char>(input[at] ^ 1 << Below(8));
                break;
            case 2:
                input.insert(at, 1 + Below(4), AnyByte());
                break;
            case 3:
                input.erase(at, length);
                break;
            case 4:
                input.resize(at);
                break;
            case 5:
                input.insert(Below(input.size()), input.substr(at, length));
                break;
            case 6: {
                const std::string& other = corpus_[Below(corpus_.size())];
                input.replace(at, length, other.substr(Below(other.size()), 1 + Below(64)));
                break;
            }
        }
    }

    std::vector<std::string> corpus_;
    std::mt19937 random_{20240506};
};

}  // namespace

TEST(KORVANE_FUZZ_NAME, HoldsForItsCorpus) {
    const std::vector<std::string> corpus = ReadCorpus();
    ASSERT_FALSE(corpus.empty());
    for (const std::string& input : corpus)
        RunTarget(input);
}

TEST(KORVANE_FUZZ_NAME, HoldsForMutationsOfItsCorpus) {
    const std::vector<std::string> corpus = ReadCorpus();
    ASSERT_FALSE(corpus.empty());
    Mutator mutator(corpus);
    for (const std::string& input : corpus) {
        for (unsigned count = 0; count < kMutationsPerInput; ++count)
            RunTarget(mutator.Mutate(input));
    }
}
