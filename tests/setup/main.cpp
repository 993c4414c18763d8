// Every case runs in a process of its own under a simulator of its own: the program registers with
// the library once in its life.
#include "../acceptance/simulated/CaseRunner.h"

int main(int argc, char **argv) { return trxtest::RunCases(argc, argv, {}); }
