#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Tonelake/foundation/json.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/program_run.h"

namespace zyndle {

/// Runs the built program as a user would who starts with no settings.
class CommandRunner {
 public:
  tonelake::testing::ProgramResult run(std::vector<std::string> arguments,
                                       const std::string& zone = "UTC",
                                       const std::string& outputFile = "",
                                       std::vector<std::string> environment = {}) const {
    arguments.insert(arguments.begin(), ZYNDLE_PROGRAM);
    environment.insert(environment.end(), {"TZ=" + zone, "XDG_DATA_HOME=" + folder_.path()});
    return tonelake::testing::runProgram({arguments, environment, "", outputFile});
  }

  tonelake::json::Value json(const std::vector<std::string>& arguments,
                             const std::string& zone = "UTC") const {
    const auto result = run(arguments, zone);
    EXPECT_EQ(result.status, 0) << result.errors;
    return tonelake::json::parse(result.output);
  }

 protected:
  desktop::TemporaryFolder folder_;
};

inline std::size_t countLines(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace zyndle
