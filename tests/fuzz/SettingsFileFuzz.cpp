// The input is a settings file, byte for byte. All getters read it as the file of every model. Then
// one setting is set, and all getters read again.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

#include <unistd.h>

#include <TRX-SELVASetup/TRX-SELVASetup.h>

#include "Promise.h"
#include "StoredList.h"
#include "Surroundings.h"

namespace trxfuzz {
namespace {

enum class Family { kBoostLevel, kInputAudio, kOutputAudio, kMidiChannel };

struct Model {
  ProductId productId;
  const char *name;
};

constexpr std::array<Model, 6> kModels = {{{ORV_PRODUCT_TRX_ARDEN, "TRX-Arden"},
                                           {ORV_PRODUCT_TRX_VOLT, "TRX-VOLT"},
                                           {ORV_PRODUCT_TRX_HALDEN, "TRX-HALDEN"},
                                           {ORV_PRODUCT_TRX_LUMEN, "TRX-LUMEN"},
                                           {ORV_PRODUCT_TRX_MORROW, "TRX-MORROW"},
                                           {ORV_PRODUCT_TRX_SELVA, "TRX-SELVA"}}};

// One current value that can be read. A null key: the getter works but reads no entry.
struct Value {
  Family family;
  ProductId productId;
  std::int32_t channel;
  const char *key;
  std::int32_t byDefault;
};

constexpr std::array<Value, 20> kValues = {{
    {Family::kBoostLevel, ORV_PRODUCT_TRX_ARDEN, 0, "MaxLevel", 3},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_VOLT, 0, "MaxLevel", 3},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_HALDEN, 0, "MaxLevel", 3},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_LUMEN, 0, "MaxLevel", 3},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_MORROW, 0, "MaxLevel", 3},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_SELVA, 0, "MaxLevel", 3},
    {Family::kInputAudio, ORV_PRODUCT_TRX_ARDEN, 3, "Output3", 3},
    {Family::kInputAudio, ORV_PRODUCT_TRX_VOLT, 1, "Output1", 1},
    {Family::kInputAudio, ORV_PRODUCT_TRX_VOLT, 2, "Output2", 5},
    {Family::kInputAudio, ORV_PRODUCT_TRX_HALDEN, 4, "Output4", 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_MORROW, 5, nullptr, 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 0, "Output0", 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 1, "Output1", 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 2, "Output2", 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 3, "Output3", 0},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 5, nullptr, 0},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 0, "Input0", 0},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 1, "Input1", 1},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 2, "Input2", 2},
    {Family::kMidiChannel, ORV_PRODUCT_TRX_VOLT, 0, "MidiChannel", 0},
}};

// One value that can be set.
struct Setting {
  Family family;
  ProductId productId;
  std::int32_t channel;
  std::uint32_t index;
  const char *key;
};

constexpr std::array<Setting, 12> kSettings = {{
    {Family::kBoostLevel, ORV_PRODUCT_TRX_SELVA, 0, 1, "MaxLevel"},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_ARDEN, 0, 0, "MaxLevel"},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_VOLT, 0, 2, "MaxLevel"},
    {Family::kBoostLevel, ORV_PRODUCT_TRX_LUMEN, 0, 3, "MaxLevel"},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 0, 4, "Output0"},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 1, 7, "Output1"},
    {Family::kInputAudio, ORV_PRODUCT_TRX_SELVA, 2, 6, "Output2"},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 0, 2, "Input0"},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 2, 0, "Input2"},
    {Family::kOutputAudio, ORV_PRODUCT_TRX_SELVA, 4, 2, "Input4"},
    {Family::kMidiChannel, ORV_PRODUCT_TRX_VOLT, 0, 0, "MidiChannel"},
    {Family::kMidiChannel, ORV_PRODUCT_TRX_VOLT, 0, 15, "MidiChannel"},
}};

StatusCode Get(const Value &value, std::int32_t *result) {
  switch (value.family) {
    case Family::kBoostLevel:
      return ORV_GetCurrentBoostLevelIndex(value.productId, result);
    case Family::kInputAudio:
      return ORV_GetCurrentUSBInputAudioIndex(value.productId, value.channel, result);
    case Family::kOutputAudio:
      return ORV_GetCurrentUSBOutputAudioIndex(value.productId, value.channel, result);
    case Family::kMidiChannel:
      return ORV_GetCurrentMidiChannelIndex(value.productId, result);
  }
  std::abort();
}

StatusCode Set(const Setting &setting) {
  switch (setting.family) {
    case Family::kBoostLevel:
      return ORV_SetBoostLevelIndex(setting.productId, setting.index);
    case Family::kInputAudio:
      return ORV_SetUSBInputAudio(setting.productId, setting.channel, setting.index);
    case Family::kOutputAudio:
      return ORV_SetUSBOutputAudio(setting.productId, setting.channel, setting.index);
    case Family::kMidiChannel:
      return ORV_SetMidiChannelIndex(setting.productId, setting.index);
  }
  std::abort();
}

/// The settings files of all models, in a private folder.
class SettingsFiles {
 public:
  explicit SettingsFiles(std::string folder) : folder_(std::move(folder)) {}

  std::string PathOf(ProductId productId) const {
    const auto *const model = std::find_if(kModels.begin(), kModels.end(), [=](const Model &one) {
      return one.productId == productId;
    });
    return folder_ + "/com.orvikaudio." + model->name + "autosetup.plist";
  }

  std::string BytesOf(ProductId productId) const {
    std::ifstream file(PathOf(productId), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  /// Writes the same bytes to each file.
  void Make(const std::string &bytes) const {
    const std::string first = PathOf(kModels.front().productId);
    for (const Model &model : kModels) unlink(PathOf(model.productId).c_str());
    std::ofstream(first, std::ios::binary) << bytes;
    for (const Model &model : kModels) {
      // Each is replaced as a whole, so one file with six names is enough.
      [[maybe_unused]] const int made = link(first.c_str(), PathOf(model.productId).c_str());
    }
  }

  std::size_t Count() const {
    const std::filesystem::directory_iterator all(folder_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

 private:
  std::string folder_;
};

const SettingsFiles &Files() {
  static const SettingsFiles files(MakeSurroundings());
  return files;
}

std::int32_t Expected(const Value &value, const StoredList &list) {
  if (value.key == nullptr) return 0;
  return StoredInteger(list, value.key).value_or(value.byDefault);
}

void CheckGetter(const Value &value, const StoredList &list) {
  std::int32_t result = -77;
  Promise(Get(value, &result) == ORV_SUCCESS, "a getter succeeds whatever the file holds");
  const std::int32_t expected = Expected(value, list);
  Promise(result == expected, "a getter gives the stored integer or the default",
          "got " + std::to_string(result) + " and not " + std::to_string(expected));
}

// Returns the dictionary in the changed file.
StoredList CheckSet(const Setting &setting, const std::string &before,
                    const StoredList &listBefore) {
  Promise(Set(setting) == ORV_SUCCESS, "a setter succeeds whatever the file holds");
  Promise(Files().Count() == kModels.size(), "a setter leaves no litter");
  const std::string after = Files().BytesOf(setting.productId);
  if (IsTooMuch(before)) {
    Promise(after == before, "a setter leaves what is more than can be read");
    return nullptr;
  }
  if (after == before && listBefore && !HasXmlForm(listBefore)) return ListIn(before);

  StoredList list = XmlListIn(after);
  Promise(list != nullptr, "a setter leaves an XML property list that can be read again", after);
  Promise(StoredInteger(list, setting.key) == static_cast<std::int32_t>(setting.index),
          "a setter stores its value");
  const auto difference = Difference(listBefore, list, setting.key);
  Promise(!difference, "a setter keeps all other entries", difference.value_or(""));
  return list;
}

void Run(const std::string &bytes) {
  Files().Make(bytes);
  const StoredList list = ListIn(bytes);
  for (const Value &value : kValues) CheckGetter(value, list);

  const unsigned sum = std::accumulate(bytes.begin(), bytes.end(), 0U, [](unsigned so, char byte) {
    return so + static_cast<unsigned char>(byte);
  });
  const Setting &setting = kSettings[sum % kSettings.size()];
  const StoredList listAfter = CheckSet(setting, bytes, list);
  for (const Value &value : kValues) {
    if (value.productId == setting.productId) CheckGetter(value, listAfter);
  }
}

}  // namespace
}  // namespace trxfuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  trxfuzz::Run(std::string(reinterpret_cast<const char *>(data), size));
  return 0;
}
