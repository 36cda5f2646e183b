#include "zyndle/rpc/method_table.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace zyndle {
namespace {

using MethodsByName = std::unordered_map<std::string_view, Method>;

MethodsByName makeMethodsByName() {
  MethodsByName methods;
  for (const auto table : {theoryMethods(), chordMethods(), fingeringMethods(), contentMethods(),
                           todayMethods(), diagramMethods(), widgetMethods(), patternMethods()}) {
    for (const MethodRow& row : table) methods.emplace(row.name, row.method);
  }
  return methods;
}

// The method of this name; null when there is none.
Method findMethod(std::string_view name) {
  static const MethodsByName methods = makeMethodsByName();
  const auto found = methods.find(name);
  return found == methods.end() ? nullptr : found->second;
}

}  // namespace

RpcMethodFinder methodsFor(RpcContext host) {
  const auto context = std::make_shared<MethodContext>(std::move(host));
  return [context](std::string_view name) -> RpcMethod {
    const Method method = findMethod(name);
    if (method == nullptr) return {};
    return [method, context](const json::Node& parameters) { return method(parameters, *context); };
  };
}

}  // namespace zyndle
