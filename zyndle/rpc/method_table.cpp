#include "zyndle/rpc/method_table.h"

#include <unordered_map>

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

}  // namespace

Method findMethod(std::string_view name) {
  static const MethodsByName methods = makeMethodsByName();
  const auto found = methods.find(name);
  return found == methods.end() ? nullptr : found->second;
}

}  // namespace zyndle
