#include <exception>
#include <iostream>

#include "words/embedding.h"

// Makes C++ of the texts of words/; the build runs it before it compiles the rooms that speak.

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: embed-words WORDS OUT\n";
    return 2;
  }
  try {
    const auto mistakes = grapplemont::EmbedWords(arguments[1], arguments[2]);
    for (const std::string& mistake : mistakes) std::cerr << mistake << '\n';
    return mistakes.empty() ? 0 : 1;
  } catch (const std::exception& fault) {
    std::cerr << "embed-words: " << fault.what() << '\n';
    return 1;
  }
}
