# Everything but main(), so that the tests can reach the parts that no command line of today shows.
add_library(trxctl-parts STATIC
  Linux/PlatformWords.cpp
  Linux/WatchLoop.cpp)
target_include_directories(trxctl-parts PUBLIC .)
target_link_libraries(trxctl-parts
  PUBLIC trx-client nlohmann_json::nlohmann_json CLI11::CLI11
  PRIVATE trxctl-shared)
# Both take longer to compile than all that is written here.
target_precompile_headers(trxctl-parts PRIVATE <CLI/CLI.hpp> <nlohmann/json.hpp>)

add_executable(trxctl main.cpp)
target_link_libraries(trxctl PRIVATE trxctl-parts)
find_libraries_relative_to_program(trxctl)
