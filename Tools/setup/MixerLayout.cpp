#include "MixerLayout.h"

#include <algorithm>
#include <array>
#include <vector>

namespace setup {
namespace {

// The middle of each channel strip.
constexpr double kAux = 65.5;
constexpr double kCh1 = 175.5;
constexpr double kCh2 = 277.5;
constexpr double kMaster = 379.5;

// The jacks of a channel strip stand on both sides of its middle.
constexpr double kJackApart = 24;

// The lanes that no label and no socket is in.
constexpr double kJackLane = 209;
constexpr double kMasterLane = 334;
constexpr double kFaderLane = 494;
constexpr double kCrossfaderLane = 547;

constexpr double kInputRow = 35;
constexpr double kJackRow = 184;
constexpr double kMicRow = 312;
constexpr double kFaderRow = 470;
constexpr double kCrossfaderRow = 521.5;

constexpr std::array<Socket, 3> kPlayback{{
    {"CH1", {kCh1, kInputRow}, 0},
    {"CH2", {kCh2, kInputRow}, 0},
    {"AUX", {kAux, kInputRow}, 0},
}};

constexpr std::array<Socket, 11> kRecording{{
    {"CH1 Control Tone PHONO", {kCh1 - kJackApart, kJackRow}, kJackLane},
    {"CH1 Control Tone LINE", {kCh1 + kJackApart, kJackRow}, kJackLane},
    {"CH2 Control Tone PHONO", {kCh2 - kJackApart, kJackRow}, kJackLane},
    {"CH2 Control Tone LINE", {kCh2 + kJackApart, kJackRow}, kJackLane},
    {"AUX", {kAux, kJackRow}, kJackLane},
    {"MIC", {kAux, kMicRow}, kMasterLane},
    {"REC OUT", {kMaster, kMicRow}, kMasterLane},
    {"Post CH1 Fader", {kCh1, kFaderRow}, kFaderLane},
    {"Post CH2 Fader", {kCh2, kFaderRow}, kFaderLane},
    {"Cross Fader A", {114.5, kCrossfaderRow}, kCrossfaderLane},
    {"Cross Fader B", {339, kCrossfaderRow}, kCrossfaderLane},
}};

constexpr double kStripLabel = 14;
constexpr double kJackLabel = 9.5;
constexpr double kToneLabel = 10;

constexpr std::array<PrintedLabel, 21> kLabels{{
    {"AUX", {kAux, 54.5}, kStripLabel, false},
    {"CH1", {kCh1, 54.5}, kStripLabel, false},
    {"CH2", {kCh2, 54.5}, kStripLabel, false},
    {"MASTER", {kMaster, 54.5}, kStripLabel, false},
    {"AUX", {kAux, 166}, kJackLabel, false},
    {"PHONO", {kCh1 - kJackApart, 166}, kJackLabel, false},
    {"LINE", {kCh1 + kJackApart, 166}, kJackLabel, false},
    {"PHONO", {kCh2 - kJackApart, 166}, kJackLabel, false},
    {"LINE", {kCh2 + kJackApart, 166}, kJackLabel, false},
    {"HI", {kCh1 + 26, 236.5}, kToneLabel, true},
    {"MID", {kCh1 + 26, 272.5}, kToneLabel, true},
    {"LOW", {kCh1 + 26, 308.5}, kToneLabel, true},
    {"HI", {kCh2 + 26, 236.5}, kToneLabel, true},
    {"MID", {kCh2 + 26, 272.5}, kToneLabel, true},
    {"LOW", {kCh2 + 26, 308.5}, kToneLabel, true},
    {"MIC", {kAux, 293}, kJackLabel, false},
    {"REC OUT", {kMaster, 293}, kJackLabel, false},
    {"POST FADER", {kCh1, 451.5}, kJackLabel, false},
    {"POST FADER", {kCh2, 451.5}, kJackLabel, false},
    {"A", {132, kCrossfaderRow}, 13, false},
    {"B", {320.5, kCrossfaderRow}, 13, false},
}};

constexpr double kSmallKnob = 11;
constexpr double kLargeKnob = 15;

constexpr std::array<SceneryKnob, 9> kKnobs{{
    {{kAux, 120}, kLargeKnob},
    {{kAux, 257}, kLargeKnob},
    {{kMaster, 257}, kLargeKnob},
    {{kCh1, 236.5}, kSmallKnob},
    {{kCh1, 272.5}, kSmallKnob},
    {{kCh1, 308.5}, kSmallKnob},
    {{kCh2, 236.5}, kSmallKnob},
    {{kCh2, 272.5}, kSmallKnob},
    {{kCh2, 308.5}, kSmallKnob},
}};

constexpr SceneryFader ChannelFader(double middle) {
  return {{middle - 2.5, 351, 5, 83}, {middle - 14.5, 383, 29, 17}};
}

constexpr std::array<SceneryFader, 3> kFaders{{
    ChannelFader(kCh1),
    ChannelFader(kCh2),
    {{146, kCrossfaderRow - 2.5, 162, 5}, {219, kCrossfaderRow - 14.5, 16, 29}},
}};

constexpr std::array<SelectorKnob, 2> kSelectors{{
    {{kCh1, 107}, {kCh1 + 38.5, 132}},
    {{kCh2, 107}, {kCh2 + 38.5, 132}},
}};

constexpr std::array<double, 3> kSeparators{122, 227, 329};

constexpr int kLampRows = 9;
constexpr double kFirstLamp = 84;
constexpr double kBetweenLamps = 13;

std::vector<QPointF> Lamps() {
  std::vector<QPointF> lamps;
  for (int row = 0; row < kLampRows; ++row) {
    for (const double beside : {-6.0, 6.0}) {
      lamps.emplace_back(kMaster + beside, kFirstLamp + kBetweenLamps * row);
    }
  }
  return lamps;
}

}  // namespace

std::span<const Socket> PlaybackSockets() { return kPlayback; }

std::span<const Socket> RecordingSockets() { return kRecording; }

const Socket *SocketFor(std::span<const Socket> sockets, std::string_view choice) {
  const auto found = std::find_if(sockets.begin(), sockets.end(), [choice](const Socket &socket) {
    return socket.choice == choice;
  });
  return found == sockets.end() ? nullptr : &*found;
}

std::span<const PrintedLabel> PrintedLabels() { return kLabels; }

std::span<const SceneryKnob> SceneryKnobs() { return kKnobs; }

std::span<const SceneryFader> SceneryFaders() { return kFaders; }

std::span<const SelectorKnob> SelectorKnobs() { return kSelectors; }

double SelectorAngle(int position) {
  constexpr double kFirst = -135;
  constexpr double kStep = 270.0 / (kSelectorPositions - 1);
  return kFirst + kStep * position;
}

std::span<const double> Separators() { return kSeparators; }

std::span<const QPointF> MeterLamps() {
  static const std::vector<QPointF> kLamps = Lamps();
  return kLamps;
}

}  // namespace setup
