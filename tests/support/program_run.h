#pragma once

#include <string>
#include <vector>

namespace tonelake::testing {

struct ProgramRun {
  std::vector<std::string> arguments;    ///< the program's path first
  std::vector<std::string> environment;  ///< all of it: "TZ=UTC"
  std::string input;
  std::string outputFile;     ///< where standard output goes; "" to capture it
  bool readerIsGone = false;  ///< standard output is a pipe that nobody reads
};

struct ProgramResult {
  int status = -1;  ///< exit status; 128 and the signal's number when a signal ended it
  std::string output;
  std::string errors;  ///< what was written to standard error
};

/// Runs a program to its end.
ProgramResult runProgram(const ProgramRun& run);

}  // namespace tonelake::testing
