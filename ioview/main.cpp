#include "ioview/command_line.h"

int main(int argc, char** argv) {
  return ioview::RunCommandLine(argc, argv);
}
