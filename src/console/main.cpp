#include "console/run.h"
#include "records/store/machine.h"

int main(int count, char** words) {
  return grapplemont::console::RunConsoleHere(grapplemont::WordsOf(count, words));
}
