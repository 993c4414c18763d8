// The texts that were made at run time and given to hosts.
#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <string_view>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

namespace orv {

/// A set of texts that only grows, so that the texts stay valid and readers need no lock. Any
/// thread.
///
/// @tparam PlatformText  the platform's text, made from characters that outlive it; Reference() is
///                       the text for the host.
template <typename PlatformText>
class KeptTexts {
 public:
  /// The one text of these characters, made when they are first asked for. Null, and nothing is
  /// kept, when the platform has none for them: it may have one the next time.
  ORVStringRef Keep(std::string_view characters) {
    const Kept *known = nullptr;
    Kept *newest = newest_.load();
    if (const Kept *kept = Find(characters, newest, known)) return kept->text.Reference();
    auto added = std::make_unique<Kept>(characters, newest);
    if (added->text.Reference() == nullptr) return nullptr;
    for (known = newest; !newest_.compare_exchange_weak(added->earlier, added.get());
         known = added->earlier) {
      // Another thread was faster, perhaps with the same characters.
      if (const Kept *kept = Find(characters, added->earlier, known)) return kept->text.Reference();
    }
    return added.release()->text.Reference();
  }

 private:
  struct Kept {
    Kept(std::string_view from, Kept *before)
        : characters(from), text(characters), earlier(before) {}

    const std::string characters;
    const PlatformText text;
    Kept *earlier;
  };

  // Looks from the newest text back to one that was looked at before.
  static const Kept *Find(std::string_view characters, const Kept *newest, const Kept *known) {
    for (const Kept *kept = newest; kept != known; kept = kept->earlier) {
      if (kept->characters == characters) return kept;
    }
    return nullptr;
  }

  std::atomic<Kept *> newest_ = nullptr;
};

}  // namespace orv
