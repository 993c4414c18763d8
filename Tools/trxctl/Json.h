#pragma once

#include <nlohmann/json.hpp>

#include "client/Delivery.h"
#include "client/Settings.h"

namespace trxctl {

// The shapes that docs/trxctl.md promises to programs.
using Json = nlohmann::ordered_json;

/// {"index": 1, "text": "-10 dB"}; the text is null for a number that is no choice.
Json ChoiceAsJson(const client::Setting &setting, int32_t index);

/// The members "setting" and, where it has channels, "channel".
Json NameAsJson(const client::Setting &setting);

/// The members "model", "setting" and, where it has channels, "channel".
Json HeadingAsJson(const client::Setting &setting);

/// {"index": 1, "text": "-10 dB", "stored": true} for the choice in use.
Json CurrentAsJson(const client::Setting &setting);

/// A connected mixer.
Json MixerAsJson(const client::Mixer &mixer);

/// A connected mixer, and whether it may be opened.
Json AccessAsJson(const client::MixerResult &result);

/// The members "connected", "sent_to" and "mixers", each mixer with its result.
Json DeliveryAsJson(const client::Delivery &delivery);

/// The member "status", as the library answered, and those of the delivery.
Json ResultAsJson(const client::SendResult &result);

}  // namespace trxctl
