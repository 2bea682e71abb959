#include <algorithm>
#include <iterator>

#include "host/KZUtility/KZTrace.h"

namespace {

constexpr std::string_view kOperator = "operator";
// As gcc and clang write it.
constexpr std::string_view kUnnamed[] = {"{anonymous}::", "(anonymous namespace)::"};

std::size_t afterParentheses(std::string_view text, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < text.size(); ++at) {
    if (text[at] == '(') ++depth;
    if (text[at] == ')' && --depth == 0) return at + 1;
  }
  return text.size();
}

// Where an operator's parameters begin: those of operator() are its second parentheses.
std::size_t operatorEnd(std::string_view text, std::size_t name) {
  const std::size_t open = text.find('(', name);
  if (open != name + kOperator.size()) return std::min(open, text.size());
  return std::min(text.find('(', open + 1), text.size());
}

std::string_view methodName(std::string_view text) {
  std::size_t begin = 0;
  int depth = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::string_view rest = text.substr(at);
    for (const std::string_view unnamed : kUnnamed) {
      if (depth == 0 && rest.starts_with(unnamed)) begin = at + unnamed.size();
    }
    if (begin > at) {
      at = begin - 1;
      continue;
    }
    const char sign = text[at];
    if (sign == '<') ++depth;
    if (sign == '>') --depth;
    if (depth > 0) continue;
    if (sign == ' ' || sign == '&' || sign == '*') begin = at + 1;
    if (sign == '(') {
      const std::string_view token = text.substr(begin, at - begin);
      if (!token.empty() && token != "decltype") return token;
      at = afterParentheses(text, at) - 1;
    }
    if (rest.starts_with(kOperator) && (at == begin || text[at - 1] == ':')) {
      return text.substr(begin, operatorEnd(text, at) - begin);
    }
  }
  return text.substr(begin);
}

}  // namespace

QString kzMethodName(const char* functionInfo) {
  if (!functionInfo) return {};
  const std::string_view name = methodName(functionInfo);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}
