#include "zyndle/embedding/tonelake_call.h"

#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>

#include "Desktop/gregorian_calendar.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/rpc/json_rpc.h"
#include "zyndle/rpc/method_table.h"

namespace zyndle {
namespace {

RpcContext makeHost() {
  tonelake::Platform platform;
  // Standard output is the caller's.
  platform.diagnostics = tonelake::makeStreamDiagnostics(tonelake::DiagnosticStream::standardError);
  platform.calendar = desktop::makeMachineCalendar(platform.diagnostics);
  tonelake::installPlatform(platform);
  return {platform.calendar,
          [](const std::string& zone) { return desktop::makeGregorianCalendar(zone); }};
}

std::string answer(const char* message) {
  // Never destroyed: a thread may still be calling while the process ends.
  static auto& turn = *new std::mutex;
  const std::lock_guard lock(turn);
  static const auto& methods = *new RpcMethodFinder(methodsFor(makeHost()));
  std::string text;
  answerMessage(message, methods, [&text](std::string_view piece) { text += piece; });
  if (text.ends_with('\n')) text.pop_back();
  return text;
}

}  // namespace
}  // namespace zyndle

char* tonelake_call(const char* message) {
  if (message == nullptr) return nullptr;
  try {
    const std::string text = zyndle::answer(message);
    return text.empty() ? nullptr : ::strdup(text.c_str());
  } catch (...) {
    // Only memory can be missing, and no exception may cross into another language.
    return nullptr;
  }
}

void tonelake_free(char* answer) {
  std::free(answer);
}

const char* tonelake_version() {
  return ZYNDLE_VERSION;
}
