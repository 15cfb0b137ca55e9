#include "words/units.h"

#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace grapplemont {

namespace fs = std::filesystem;

std::optional<std::string> BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return {};
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteIfNew(const fs::path& path, const std::string& bytes) {
  if (BytesOf(path) == bytes) return;
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error(path.string() + " cannot be written");
}

/// Other than plain letters go by their octal numbers, which end after three.
std::string Quoted(std::string_view text) {
  std::ostringstream out;
  out << '"' << std::oct << std::setfill('0');
  for (const char letter : text) {
    if (letter < ' ' || letter > '~')
      out << '\\' << std::setw(3) << int{static_cast<unsigned char>(letter)};
    else
      out << (letter == '"' || letter == '\\' ? "\\" : "") << letter;
  }
  out << '"';
  return out.str();
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string> CellsOf(std::string_view text, char separator) {
  std::vector<std::string> cells;
  for (;;) {
    const auto end = text.find(separator);
    cells.emplace_back(Trimmed(text.substr(0, end)));
    if (end == std::string_view::npos) return cells;
    text.remove_prefix(end + 1);
  }
}

int RunEmbedding(Embedding embed, int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: " << arguments[0] << " WORDS OUT\n";
    return 2;
  }
  try {
    const auto mistakes = embed(arguments[1], arguments[2]);
    for (const std::string& mistake : mistakes) std::cerr << mistake << '\n';
    return mistakes.empty() ? 0 : 1;
  } catch (const std::exception& fault) {
    std::cerr << arguments[0] << ": " << fault.what() << '\n';
    return 1;
  }
}

}  // namespace grapplemont
