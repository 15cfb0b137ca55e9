#include "words/tables/embedtables.h"
#include "words/units.h"

// Makes headers of the tables of words/; the build runs it before it compiles any room.

int main(int count, char** arguments) {
  return grapplemont::RunEmbedding(grapplemont::EmbedTables, count, arguments);
}
