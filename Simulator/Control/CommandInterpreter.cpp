#include "CommandInterpreter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "CommandArguments.h"
#include "UnitKindText.h"

namespace trxsim {

namespace {

constexpr std::uint32_t kMostChannels = 16;

using Lines = std::vector<std::string>;

/// What a command works on.
struct Context {
  Desk &desk;
  const Lines &environment;
  CommandArguments &arguments;
};

/// One command: its first word, how it is written, what it does.
struct Command {
  std::string_view word;
  std::string_view usage;
  std::string_view help;
  Lines (*run)(Context &);
};

/// One setting of the command "set".
struct Setting {
  std::string_view word;
  std::string_view usage;
  std::string_view help;
  std::function<void(MixerState &)> (*read)(CommandArguments &);
};

std::string Hex(std::uint32_t value, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*x", digits, value);
  return text;
}

template <typename Bytes>
std::string HexBytes(const Bytes &bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += ' ' + Hex(byte, 2);
  return text;
}

std::string AddressText(const std::optional<BusAddress> &address) {
  if (!address) return "unplugged";
  char text[48];
  std::snprintf(text, sizeof text, "plugged %03d/%03d", address->bus, address->device);
  return text;
}

std::string IdentityText(const UsbIdentity &identity) {
  return (identity.isMixer ? identity.productName : "other") + ' ' + Hex(identity.vendor, 4) + ':' +
         Hex(identity.product, 4);
}

// --- set -------------------------------------------------------------------------------------

std::uint8_t ByteArgument(CommandArguments &arguments) {
  return static_cast<std::uint8_t>(arguments.Number(0xFF));
}

std::function<void(MixerState &)> ReadSelector(CommandArguments &arguments) {
  const std::uint32_t channel = arguments.Number(kMostChannels - 1);
  const std::uint8_t position = ByteArgument(arguments);
  return [channel, position](MixerState &state) {
    if (channel >= state.selectors.size()) {
      throw CommandError("the mixer has channels 0 to " +
                         std::to_string(state.selectors.size() - 1) +
                         "; `set N channels COUNT` gives it more");
    }
    state.selectors[channel] = position;
  };
}

std::function<void(MixerState &)> ReadChannels(CommandArguments &arguments) {
  const std::uint32_t count = arguments.Number(kMostChannels);
  if (count == 0) throw CommandError("a mixer has at least one channel");
  return [count](MixerState &state) { state.selectors.resize(count, 0); };
}

std::function<void(MixerState &)> ReadLeadingByte(CommandArguments &arguments) {
  const std::uint8_t value = ByteArgument(arguments);
  return [value](MixerState &state) { state.leadingByte = value; };
}

std::function<void(MixerState &)> ReadSerato(CommandArguments &arguments) {
  const std::uint8_t first = ByteArgument(arguments);
  const std::uint8_t second = arguments.Left() > 0 ? ByteArgument(arguments) : std::uint8_t{0};
  return [first, second](MixerState &state) { state.serato = {first, second}; };
}

std::function<void(MixerState &)> ReadPort(CommandArguments &arguments) {
  const std::uint8_t first = ByteArgument(arguments);
  const std::uint8_t second = ByteArgument(arguments);
  return [first, second](MixerState &state) { state.port = {first, second}; };
}

std::function<void(MixerState &)> ReadFirmware(CommandArguments &arguments) {
  const std::uint32_t value = arguments.Number(0xFFFF);
  return [value](MixerState &state) { state.firmware = static_cast<std::uint16_t>(value); };
}

std::function<void(MixerState &)> ReadCertify(CommandArguments &arguments) {
  const std::uint32_t value = arguments.Number(0xFFFF'FFFF);
  return [value](MixerState &state) { state.certify = value; };
}

constexpr std::array<Setting, 7> kSettings{{
    {"selector", "set N selector CHANNEL VALUE", "input selector of a channel, channels from 0",
     ReadSelector},
    {"channels", "set N channels COUNT", "how many selectors the mixer reports", ReadChannels},
    {"reply-leading-byte", "set N reply-leading-byte VALUE", "the byte in front of the selectors",
     ReadLeadingByte},
    {"serato", "set N serato A [B]", "the two Serato bytes (B: 0)", ReadSerato},
    {"port", "set N port A B", "the two port state bytes", ReadPort},
    {"firmware", "set N firmware VALUE", "firmware version, 16 bits", ReadFirmware},
    {"certify", "set N certify VALUE", "certify level, 32 bits", ReadCertify},
}};

Lines RunSet(Context &context) {
  const int number = context.arguments.Unit();
  const std::string word = context.arguments.Word();
  for (const Setting &setting : kSettings) {
    if (setting.word != word) continue;
    context.arguments.SetUsage(std::string(setting.usage));
    const auto edit = setting.read(context.arguments);
    context.arguments.End();
    context.desk.Change(number, edit);
    return {};
  }
  throw CommandError("a mixer has no setting " + Quoted(word) + "; `help` lists them");
}

// --- units -----------------------------------------------------------------------------------

Lines RunUnits(Context &context) {
  context.arguments.End();
  Lines lines;
  for (const auto &[number, unit] : context.desk.Units()) {
    lines.push_back(std::to_string(number) + "  " + IdentityText(unit.identity) + "  " +
                    AddressText(unit.address) + "  faults " + unit.faults.Text());
  }
  return lines;
}

Lines RunPlug(Context &context) {
  const bool isNamed = context.arguments.Left() > 0;
  const UnitKind kind = isNamed ? ParseUnitKind(context.arguments.Word()) : kMixerModels.front();
  context.arguments.End();
  return {std::to_string(context.desk.Plug(kind))};
}

Lines RunUnplug(Context &context) {
  const int number = context.arguments.Unit();
  context.arguments.End();
  context.desk.Unplug(number);
  return {};
}

Lines RunReplug(Context &context) {
  const int number = context.arguments.Unit();
  context.arguments.End();
  context.desk.Replug(number);
  return {};
}

void AddMixerLines(Lines &lines, const Mixer &mixer) {
  const MixerState &state = mixer.State();
  lines.push_back("selectors " + Hex(state.leadingByte, 2) + HexBytes(state.selectors));
  lines.push_back("serato" + HexBytes(state.serato));
  lines.push_back("port" + HexBytes(state.port));
  lines.push_back("firmware 0x" + Hex(state.firmware, 4));
  lines.push_back("certify 0x" + Hex(state.certify, 8));
  for (const RequestEntry &entry : RequestTable()) {
    if (entry.IsRead()) continue;
    const std::optional<std::uint16_t> value = mixer.LastWritten(*RequestNamed(entry.word));
    lines.push_back("written " + std::string(entry.word) + ' ' +
                    (value ? "0x" + Hex(*value, 4) : "never"));
  }
}

Lines RunGet(Context &context) {
  const int number = context.arguments.Unit();
  context.arguments.End();
  const Unit unit = context.desk.UnitOf(number);
  Lines lines{IdentityText(unit.identity), AddressText(unit.address),
              "faults " + unit.faults.Text()};
  if (unit.mixer) AddMixerLines(lines, *unit.mixer);
  return lines;
}

// --- faults ----------------------------------------------------------------------------------

std::string RequestWords() {
  std::string words;
  for (const RequestEntry &entry : RequestTable()) {
    words += (words.empty() ? "" : ", ") + std::string(entry.word);
  }
  return words;
}

std::optional<RequestId> RequestArgument(CommandArguments &arguments) {
  if (arguments.Left() == 0) return std::nullopt;
  const std::string word = arguments.Word();
  const std::optional<RequestId> request = RequestNamed(word);
  if (!request) {
    throw CommandError("there is no request " + Quoted(word) + "; requests: " + RequestWords());
  }
  return request;
}

void SetRequestFault(Context &context, int number, RequestFaultKind kind) {
  RequestFault fault{kind, 0};
  if (kind == RequestFaultKind::kShort) {
    fault.bytes = static_cast<std::uint16_t>(context.arguments.Number(0xFFFF));
  }
  const std::optional<RequestId> request = RequestArgument(context.arguments);
  context.arguments.End();
  context.desk.SetFault(number, request, fault);
}

Lines RunFault(Context &context) {
  const int number = context.arguments.Unit();
  const std::string word = context.arguments.Word();
  if (const std::optional<RequestFaultKind> kind = RequestFaultNamed(word)) {
    SetRequestFault(context, number, *kind);
  } else if (const std::optional<OpenFault> fault = OpenFaultNamed(word)) {
    context.arguments.End();
    context.desk.SetFault(number, *fault);
  } else {
    throw CommandError("there is no fault " + Quoted(word) +
                       "; faults: stall, short K, no-reply, vanish, refuse, deny, hold");
  }
  return {};
}

Lines RunClear(Context &context) {
  const int number = context.arguments.Unit();
  context.arguments.End();
  context.desk.ClearFaults(number);
  return {};
}

// --- the rest --------------------------------------------------------------------------------

Lines RunLog(Context &context) {
  if (context.arguments.Left() == 0) return context.desk.Log();
  const std::string word = context.arguments.Word();
  context.arguments.End();
  if (word != "clear") throw CommandError(Quoted(word) + " is not known; usage: log [clear]");
  context.desk.ClearLog();
  return {};
}

Lines RunEnvironment(Context &context) {
  context.arguments.End();
  return context.environment;
}

Lines RunHelp(Context &context);

constexpr std::array<Command, 11> kCommands{{
    {"units", "units", "list all units: number, kind and ids, bus/device address, faults",
     RunUnits},
    {"plug", "plug [KIND]", "plug in a new unit and print its number (kinds below)", RunPlug},
    {"unplug", "unplug N", "pull the cable of unit N", RunUnplug},
    {"replug", "replug N", "plug unit N in again; it gets a new device number", RunReplug},
    {"set", "set N SETTING VALUE...", "change what mixer N reports (settings below)", RunSet},
    {"get", "get N", "show all that unit N reports and the value last written by each request",
     RunGet},
    {"fault", "fault N FAULT [REQUEST]", "make requests, or opening the unit, fail (faults below)",
     RunFault},
    {"clear", "clear N", "remove all faults of unit N", RunClear},
    {"log", "log [clear]", "print all requests so far; with clear, forget them", RunLog},
    {"environment", "environment", "print the variables that a further program needs",
     RunEnvironment},
    {"help", "help", "print this text", RunHelp},
}};

std::string HelpLine(std::string_view usage, std::string_view help) {
  std::string line = "  " + std::string(usage);
  line.resize(std::max<std::size_t>(line.size() + 2, 36), ' ');
  return line + std::string(help);
}

Lines RunHelp(Context &context) {
  context.arguments.End();
  return CommandHelp();
}

Lines Run(Context &context) {
  const std::string word = context.arguments.Word();
  for (const Command &command : kCommands) {
    if (command.word != word) continue;
    context.arguments.SetUsage(std::string(command.usage));
    return command.run(context);
  }
  throw CommandError("there is no command " + Quoted(word) + "; `help` lists them");
}

}  // namespace

std::string CommandReply::WireText() const {
  std::string text;
  for (const std::string &line : lines) text += line + '\n';
  return text + (refused ? "error " + error : "ok") + '\n';
}

std::vector<std::string> CommandHelp() {
  Lines lines{"Commands:"};
  for (const Command &command : kCommands) {
    lines.push_back(HelpLine(command.usage, command.help));
  }
  lines.push_back("Settings (numbers are decimal, or hexadecimal after 0x):");
  for (const Setting &setting : kSettings) {
    lines.push_back(HelpLine(setting.usage, setting.help));
  }
  lines.push_back("Kinds of unit:");
  lines.push_back(HelpLine("plug", "a mixer, TRX-SELVA"));
  lines.push_back(HelpLine("plug MODEL", "a mixer of this model: " + ModelNames()));
  lines.push_back(HelpLine("plug VENDOR:PRODUCT",
                           "another USB device with these hexadecimal ids; the "
                           "mixers' maker is " +
                               MakerIdText()));
  lines.push_back("Faults of requests, of all or only of the REQUEST that is named:");
  lines.push_back(HelpLine("fault N stall [REQUEST]", "the request is refused"));
  lines.push_back(HelpLine("fault N short K [REQUEST]", "only K bytes of the reply arrive"));
  lines.push_back(HelpLine("fault N no-reply [REQUEST]", "the request runs into its time-out"));
  lines.push_back(HelpLine("fault N vanish [REQUEST]", "the unit is unplugged during the request"));
  lines.push_back("Faults of opening:");
  lines.push_back(HelpLine("fault N refuse", "nobody can open the unit"));
  lines.push_back(HelpLine("fault N deny", "only root can open the unit, as without a udev rule"));
  lines.push_back(
      HelpLine("fault N hold", "the unit is busy, except for a process with CAP_SYS_ADMIN"));
  lines.push_back("Requests: " + RequestWords());
  return lines;
}

CommandInterpreter::CommandInterpreter(Desk &desk, std::vector<std::string> environment)
    : desk_(desk), environment_(std::move(environment)) {}

CommandReply CommandInterpreter::Execute(std::string_view line) {
  CommandArguments arguments(line);
  arguments.SetUsage("COMMAND [ARGUMENT...], `help` lists the commands");
  Context context{desk_, environment_, arguments};
  try {
    return {Run(context), false, {}};
  } catch (const CommandError &refusal) {
    return {{}, true, refusal.what()};
  } catch (const DeskError &refusal) {
    return {{}, true, refusal.what()};
  }
}

}  // namespace trxsim
