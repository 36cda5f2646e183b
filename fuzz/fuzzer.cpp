#include "fuzz/fuzzer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <memory>

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/platform/platform.h"

namespace fuzz {
namespace {

constexpr std::string_view seedsOption = "--seeds=";

// Of the processor, so that other work on the machine does no harm. Sanitizers make the code some
// ten times as slow: it is half a second for users.
constexpr std::clock_t longestTime = 5 * CLOCKS_PER_SEC;

// Most inputs are wrong somehow, and to say so each time would take longer than to read them.
class SilentDiagnostics final : public tonelake::Diagnostics {
 public:
  void write(std::string_view) override {}
};

void writeSeeds(const std::string& folder) {
  int number = 0;
  for (const std::string& seed : seeds()) {
    std::ofstream(folder + "/seed-" + std::to_string(number++), std::ios::binary) << seed;
  }
  require(number > 0, "there are seeds");
}

}  // namespace

void require(bool holds, std::string_view property) {
  if (!holds) tonelake::stopWithProgrammingError(property);
}

std::string projectFile(std::string_view path) {
  std::ifstream file(PROJECT_ROOT "/" + std::string(path), std::ios::binary);
  require(file.good(), path);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace fuzz

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  tonelake::Platform platform;
  platform.diagnostics = std::make_shared<fuzz::SilentDiagnostics>();
  tonelake::installPlatform(platform);
  const std::string_view option = *argc == 2 ? (*argv)[1] : "";
  if (!option.starts_with(fuzz::seedsOption)) return 0;
  fuzz::writeSeeds(std::string(option.substr(fuzz::seedsOption.size())));
  std::exit(EXIT_SUCCESS);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::clock_t begin = std::clock();
  fuzz::examine({reinterpret_cast<const char*>(data), size});
  fuzz::require(std::clock() - begin < fuzz::longestTime, "no input takes long");
  return 0;
}
