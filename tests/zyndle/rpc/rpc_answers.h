#pragma once

#include <string>
#include <vector>

#include "zyndle/rpc/rpc_context.h"

namespace zyndle {

/// The machine's zone is UTC; "Asia/Tokyo", nine hours ahead, is the only other one that is known,
/// and its clock has stopped at midnight, the 8th of March 2025.
RpcContext testContext();

/// The lines that come back for a whole input.
std::vector<std::string> answersTo(const std::string& input);

std::string request(const std::string& method, const std::string& parameters);

/// A method, its parameters without the braces, and a part of its result: `path` leads there, ""
/// for the whole of it, "/size" for its length.
struct MethodCase {
  std::string method;
  std::string parameters;
  std::string path;
  std::string value;
};
void expectResults(const std::vector<MethodCase>& rows);

/// What the error for wrong parameters begins with.
struct RefusalCase {
  std::string method;
  std::string parameters;
  std::string message;
};
void expectRefusals(const std::vector<RefusalCase>& rows);

/// A file of such rows, one JSON object a line: "method" and "params", then either "result", with
/// "at" for a part of it, or what the "error" begins with.
void expectExamples(const std::string& file);

}  // namespace zyndle
