#pragma once

#include <span>
#include <string_view>

#include "zyndle/rpc/json_rpc.h"
#include "zyndle/rpc/method_context.h"

namespace zyndle {

/// One method: its result for its named parameters. Throws json::DecodingError, which names the
/// parameter, for one that is missing, of the wrong type or breaks a precondition of the
/// operation. Parameters that a method does not know are ignored.
using Method = json::Value (*)(const json::Node& parameters, MethodContext& context);

/// All methods on one host. They share what they keep from call to call: for one thread at a time.
RpcMethodFinder methodsFor(RpcContext host);

struct MethodRow {
  std::string_view name;
  Method method;
};

// The methods, a table for each part of the library. A new method is one line in one of them.
std::span<const MethodRow> theoryMethods() noexcept;
std::span<const MethodRow> chordMethods() noexcept;
std::span<const MethodRow> fingeringMethods() noexcept;
std::span<const MethodRow> contentMethods() noexcept;
std::span<const MethodRow> todayMethods() noexcept;
std::span<const MethodRow> diagramMethods() noexcept;
std::span<const MethodRow> widgetMethods() noexcept;
std::span<const MethodRow> patternMethods() noexcept;

}  // namespace zyndle
