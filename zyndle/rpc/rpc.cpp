#include "zyndle/rpc/rpc.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <string>
#include <system_error>
#include <utility>

#include "Tonelake/platform/platform.h"
#include "zyndle/rpc/json_rpc.h"
#include "zyndle/rpc/line_reader.h"
#include "zyndle/rpc/line_writer.h"
#include "zyndle/rpc/method_table.h"

namespace zyndle {
namespace {

// Far above what any sensible request takes; a line without end must not fill the memory.
constexpr std::size_t lineLimitMebibytes = 8;
constexpr std::size_t lineLimit = lineLimitMebibytes << 20U;

bool isBlank(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

void answerLines(LineReader& reader, LineWriter& writer, const RpcMethodFinder& methods) {
  const AnswerSink sink = [&](std::string_view text) { writer.write(text); };
  while (const auto line = reader.next()) {
    if (line->isTooLong) {
      refuseMessage(RpcError::notJson,
                    "a line of more than " + std::to_string(lineLimitMebibytes) + " MiB", sink);
    } else if (!isBlank(line->text)) {
      answerMessage(line->text, methods, sink);
    }
    writer.flush();
  }
}

}  // namespace

int runRpc(int input, int output, RpcContext context) {
  // A write to a closed pipe then fails with EPIPE instead of ending the process in mid-air.
  std::signal(SIGPIPE, SIG_IGN);
  const RpcMethodFinder methods = methodsFor(std::move(context));
  LineReader reader(input, lineLimit);
  LineWriter writer(output);
  try {
    answerLines(reader, writer, methods);
  } catch (const std::system_error& error) {
    if (error.code().value() == EPIPE) return 0;
    tonelake::processPlatform().diagnostics->write(error.what());
    return 1;
  }
  return 0;
}

}  // namespace zyndle
