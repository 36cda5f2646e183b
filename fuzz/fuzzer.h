#pragma once

#include <string>
#include <string_view>
#include <vector>

// What every fuzzer is made of: fuzzer.cpp is the program, NAME_fuzzer.cpp the two functions below.
//
//   NAME_fuzzer --seeds=FOLDER   writes the seeds, one a file, into a folder that exists
//   NAME_fuzzer FOLDER           searches on from the inputs in a folder
//   NAME_fuzzer FILE             examines one input again

namespace fuzz {

/// Hands one input to the code under test and requires of the results what always holds. Any other
/// end than returning soon is a finding: an exception, a stop for a programming error, an error
/// that a sanitizer sees, five seconds gone by.
void examine(std::string_view input);

/// Real values, which the search starts from.
std::vector<std::string> seeds();

/// Stops where a property does not hold, in every kind of build.
void require(bool holds, std::string_view property);

/// The file at a path below the project's root, for seeds.
std::string projectFile(std::string_view path);

}  // namespace fuzz
