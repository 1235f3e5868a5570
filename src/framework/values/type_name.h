#pragma once

#include <string_view>

namespace framework {

/// The name of a class as the source spells it, without its namespaces: "TScale".
template <class T>
consteval std::string_view TypeName() {
  std::string_view name = __PRETTY_FUNCTION__;
  name.remove_prefix(name.find("T = ") + 4);
  name = name.substr(0, name.find_first_of(";]"));
  const auto colon = name.substr(0, name.find('<')).rfind(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

}  // namespace framework
