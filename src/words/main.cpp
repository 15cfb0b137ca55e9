#include "words/embedding.h"
#include "words/units.h"

// Makes C++ of the lines of words/; the build runs it before it compiles the rooms that speak.

int main(int count, char** arguments) {
  return grapplemont::RunEmbedding(grapplemont::EmbedWords, count, arguments);
}
