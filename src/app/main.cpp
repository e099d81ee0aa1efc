#include "app/Program.h"

int main(int argc, char** argv) {
  return fidaleon::app::runProgram(argc, argv);
}
