#include "Scenario.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

#include "ControlDriver.h"

namespace mavCycEd::play {
namespace {

constexpr std::string_view blanks = " \t";

std::optional<std::string> readFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file)) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

bool isStep(std::string_view line) {
  const std::size_t first = line.find_first_not_of(blanks);
  return first != std::string_view::npos && line.front() != '#';
}

// The size of the JSON string literal that `text` begins with, its quotes included.
std::size_t literalSize(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == '"') {
      return i + 1;
    }
  }
  throw StepRefused("The text that begins with " + std::string(text.substr(0, 20)) + " has no closing quote.");
}

std::string literalValue(std::string_view literal) {
  const auto value = nlohmann::json::parse(literal, nullptr, false);
  if (!value.is_string()) throw StepRefused("This is no JSON string: " + std::string(literal));
  return value.get<std::string>();
}

std::string_view withoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::string contentOf(const std::filesystem::path& folder, std::string_view name) {
  std::optional<std::string> content = readFile(folder / name);
  if (!content) throw StepRefused("The file " + std::string(name) + " beside the scenario cannot be read.");
  return *std::move(content);
}

}  // namespace

Scenario::Scenario(const std::filesystem::path& file) : folder_(file.parent_path()) {
  const std::optional<std::string> content = readFile(file);
  if (!content) throw std::runtime_error("The scenario " + file.string() + " cannot be read.");
  std::string_view rest = *content;
  if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines_.emplace_back(line);
  }
}

bool Scenario::hasNext() {
  while (line_ < static_cast<int>(lines_.size()) && !isStep(lines_[static_cast<std::size_t>(line_)])) ++line_;
  return line_ < static_cast<int>(lines_.size());
}

Step Scenario::next() {
  const std::string& line = lines_.at(static_cast<std::size_t>(line_));
  ++line_;
  Step step = parsed(line, folder_);
  step.line = line_;
  return step;
}

Step Scenario::parsed(std::string_view line, const std::filesystem::path& folder) {
  Step step;
  for (std::string_view rest = withoutLeadingBlanks(line); !rest.empty(); rest = withoutLeadingBlanks(rest)) {
    if (rest.front() == '"') {
      const std::size_t size = literalSize(rest);
      step.words.push_back({literalValue(rest.substr(0, size)), true});
      rest.remove_prefix(size);
      if (!rest.empty() && blanks.find(rest.front()) == std::string_view::npos) {
        throw StepRefused("A blank is missing behind the text " + step.words.back().text + ".");
      }
      continue;
    }
    const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
    rest.remove_prefix(word.size());
    const bool isFile = word.front() == '@';
    step.words.push_back({isFile ? contentOf(folder, word.substr(1)) : std::string(word), isFile});
  }
  return step;
}

}  // namespace mavCycEd::play
