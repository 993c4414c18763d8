// Another program of the user that changes the boost level of TRX-SELVA 200 times a second, as
// often as it is told, and ends with the last of the four levels.
#include <chrono>
#include <cstdlib>
#include <thread>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

int main(int argc, char **argv) {
  const int changes = argc == 2 ? std::atoi(argv[1]) : 0;
  for (int change = 1; change <= changes; ++change) {
    const auto level = static_cast<uint32_t>((changes - change + 3) % 4);
    if (ORV_SetBoostLevelIndex(ORV_PRODUCT_TRX_SELVA, level) != ORV_SUCCESS) return 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return changes > 0 ? 0 : 2;
}
