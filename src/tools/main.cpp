#include "records/store/machine.h"
#include "tools/tool.h"

int main(int count, char** words) {
  return grapplemont::tools::RunWorldToolHere(grapplemont::WordsOf(count, words));
}
