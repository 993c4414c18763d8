#include "Languages.h"

#include <array>

namespace client {

std::span<const Language> Languages() {
  static constexpr std::array<Language, 12> kLanguages{{{"English", "en"},
                                                        {"Japanese", "ja"},
                                                        {"French", "fr"},
                                                        {"German", "de"},
                                                        {"Italian", "it"},
                                                        {"Dutch", "nl"},
                                                        {"Spanish", "es"},
                                                        {"Russian", "ru"},
                                                        {"Portuguese", "pt"},
                                                        {"Simplified Chinese", "zh_CN"},
                                                        {"Traditional Chinese", "zh_TW"},
                                                        {"Korean", "ko"}}};
  return kLanguages;
}

}  // namespace client
