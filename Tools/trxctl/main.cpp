#include "CommandLine.h"

int main(int argc, char **argv) { return trxctl::RunCommandLine(argc, argv); }
