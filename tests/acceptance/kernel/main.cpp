#include "../simulated/CaseRunner.h"

int main(int argc, char **argv) { return trxtest::RunCases(argc, argv, {"--usbip"}); }
