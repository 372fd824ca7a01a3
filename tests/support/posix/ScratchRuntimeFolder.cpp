#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

// Says that the runtime folder is that of a test.
constexpr char kMark[] = "KORVANE_TEST_RUNTIME";

// Gives each test program, and the programs that it starts, a runtime folder of its own, so that windows of
// tests that run at the same time do not meet. Linked into every test program.
class ScratchRuntimeFolder {
  public:
    ScratchRuntimeFolder() {
        if (std::getenv(kMark))
            return;
        std::string pattern = (std::filesystem::temp_directory_path() / "korvane-runtime-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            return;
        path_ = pattern;
        setenv("KORVANE_RUNTIME_DIR", path_.c_str(), 1);
        setenv(kMark, "1", 1);
    }
    ~ScratchRuntimeFolder() {
        // A forked copy of the program leaves it alone.
        if (getpid() != owner_ || path_.empty())
            return;
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

  private:
    const pid_t owner_ = getpid();
    std::string path_;
};

const ScratchRuntimeFolder scratchRuntimeFolder;

}  // namespace
