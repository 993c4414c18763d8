#include "CommandInterpreter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "CommandArguments.h"

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

std::string hex(std::uint32_t value, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*x", digits, value);
  return text;
}

template <typename Bytes>
std::string hexBytes(const Bytes &bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += ' ' + hex(byte, 2);
  return text;
}

std::string addressText(const std::optional<BusAddress> &address) {
  if (!address) return "unplugged";
  char text[48];
  std::snprintf(text, sizeof text, "plugged %03d/%03d", address->bus, address->device);
  return text;
}

std::string identityText(const UsbIdentity &identity) {
  return (identity.isMixer ? "mixer " : "stranger ") + hex(identity.vendor, 4) + ':' +
         hex(identity.product, 4);
}

// --- set -------------------------------------------------------------------------------------

std::uint8_t byteArgument(CommandArguments &arguments) {
  return static_cast<std::uint8_t>(arguments.number(0xFF));
}

std::function<void(MixerState &)> readSelector(CommandArguments &arguments) {
  const std::uint32_t channel = arguments.number(kMostChannels - 1);
  const std::uint8_t position = byteArgument(arguments);
  return [channel, position](MixerState &state) {
    if (channel >= state.selectors.size()) {
      throw CommandError("the mixer has channels 0 to " +
                         std::to_string(state.selectors.size() - 1) +
                         "; `set N channels COUNT` gives it more");
    }
    state.selectors[channel] = position;
  };
}

std::function<void(MixerState &)> readChannels(CommandArguments &arguments) {
  const std::uint32_t count = arguments.number(kMostChannels);
  if (count == 0) throw CommandError("a mixer has at least one channel");
  return [count](MixerState &state) { state.selectors.resize(count, 0); };
}

std::function<void(MixerState &)> readLeadingByte(CommandArguments &arguments) {
  const std::uint8_t value = byteArgument(arguments);
  return [value](MixerState &state) { state.leadingByte = value; };
}

std::function<void(MixerState &)> readSerato(CommandArguments &arguments) {
  const std::uint8_t first = byteArgument(arguments);
  const std::uint8_t second = arguments.left() > 0 ? byteArgument(arguments) : std::uint8_t{0};
  return [first, second](MixerState &state) { state.serato = {first, second}; };
}

std::function<void(MixerState &)> readPort(CommandArguments &arguments) {
  const std::uint8_t first = byteArgument(arguments);
  const std::uint8_t second = byteArgument(arguments);
  return [first, second](MixerState &state) { state.port = {first, second}; };
}

std::function<void(MixerState &)> readFirmware(CommandArguments &arguments) {
  const std::uint32_t value = arguments.number(0xFFFF);
  return [value](MixerState &state) { state.firmware = static_cast<std::uint16_t>(value); };
}

std::function<void(MixerState &)> readCertify(CommandArguments &arguments) {
  const std::uint32_t value = arguments.number(0xFFFF'FFFF);
  return [value](MixerState &state) { state.certify = value; };
}

constexpr std::array<Setting, 7> kSettings{{
    {"selector", "set N selector CHANNEL VALUE", "input selector of a channel, channels from 0",
     readSelector},
    {"channels", "set N channels COUNT", "how many channels the mixer has (4 at first)",
     readChannels},
    {"reply-leading-byte", "set N reply-leading-byte VALUE", "the byte before the selectors",
     readLeadingByte},
    {"serato", "set N serato A [B]", "the two Serato bytes (B: 0)", readSerato},
    {"port", "set N port A B", "the two port state bytes", readPort},
    {"firmware", "set N firmware VALUE", "firmware version, 16 bits", readFirmware},
    {"certify", "set N certify VALUE", "certify level, 32 bits", readCertify},
}};

Lines runSet(Context &context) {
  const int number = context.arguments.unit();
  const std::string word = context.arguments.word();
  for (const Setting &setting : kSettings) {
    if (setting.word != word) continue;
    context.arguments.setUsage(std::string(setting.usage));
    const auto edit = setting.read(context.arguments);
    context.arguments.end();
    context.desk.change(number, edit);
    return {};
  }
  throw CommandError("a mixer has no setting " + quoted(word) + "; `help` lists them");
}

// --- units -----------------------------------------------------------------------------------

Lines runUnits(Context &context) {
  context.arguments.end();
  Lines lines;
  for (const auto &[number, unit] : context.desk.units()) {
    lines.push_back(std::to_string(number) + "  " + identityText(unit.identity) + "  " +
                    addressText(unit.address) + "  faults " + unit.faults.text());
  }
  return lines;
}

std::uint16_t idArgument(const std::string &text, const std::string &whole) {
  const std::optional<std::uint32_t> number = parseNumber(text, 16, 0xFFFF);
  if (number && text.size() == 4) return static_cast<std::uint16_t>(*number);
  throw CommandError(quoted(whole) +
                     " is not VENDOR:PRODUCT with four hexadecimal digits each; for example " +
                     "`plug 1234:0001`");
}

Lines runPlug(Context &context) {
  if (context.arguments.left() == 0) return {std::to_string(context.desk.plugMixer())};
  const std::string ids = context.arguments.word();
  context.arguments.end();
  const std::size_t colon = std::min(ids.find(':'), ids.size());
  const std::string product = colon < ids.size() ? ids.substr(colon + 1) : "";
  return {std::to_string(
      context.desk.plugStranger(idArgument(ids.substr(0, colon), ids), idArgument(product, ids)))};
}

Lines runUnplug(Context &context) {
  const int number = context.arguments.unit();
  context.arguments.end();
  context.desk.unplug(number);
  return {};
}

Lines runReplug(Context &context) {
  const int number = context.arguments.unit();
  context.arguments.end();
  context.desk.replug(number);
  return {};
}

void addMixerLines(Lines &lines, const Mixer &mixer) {
  const MixerState &state = mixer.state();
  lines.push_back("selectors " + hex(state.leadingByte, 2) + hexBytes(state.selectors));
  lines.push_back("serato" + hexBytes(state.serato));
  lines.push_back("port" + hexBytes(state.port));
  lines.push_back("firmware 0x" + hex(state.firmware, 4));
  lines.push_back("certify 0x" + hex(state.certify, 8));
  for (const RequestEntry &entry : requestTable()) {
    if (entry.isRead()) continue;
    const std::optional<std::uint16_t> value = mixer.lastWritten(entry.id);
    lines.push_back("written " + std::string(entry.word) + ' ' +
                    (value ? "0x" + hex(*value, 4) : "never"));
  }
}

Lines runGet(Context &context) {
  const int number = context.arguments.unit();
  context.arguments.end();
  const Unit unit = context.desk.unit(number);
  Lines lines{identityText(unit.identity), addressText(unit.address),
              "faults " + unit.faults.text()};
  if (unit.mixer) addMixerLines(lines, *unit.mixer);
  return lines;
}

// --- faults ----------------------------------------------------------------------------------

std::string requestWords() {
  std::string words;
  for (const RequestEntry &entry : requestTable()) {
    words += (words.empty() ? "" : ", ") + std::string(entry.word);
  }
  return words;
}

std::optional<RequestId> requestArgument(CommandArguments &arguments) {
  if (arguments.left() == 0) return std::nullopt;
  const std::string word = arguments.word();
  const std::optional<RequestId> request = requestNamed(word);
  if (!request) {
    throw CommandError("there is no request " + quoted(word) + "; requests: " + requestWords());
  }
  return request;
}

void setRequestFault(Context &context, int number, RequestFaultKind kind) {
  RequestFault fault{kind, 0};
  if (kind == RequestFaultKind::Short) {
    fault.bytes = static_cast<std::uint16_t>(context.arguments.number(0xFFFF));
  }
  const std::optional<RequestId> request = requestArgument(context.arguments);
  context.arguments.end();
  context.desk.setFault(number, request, fault);
}

Lines runFault(Context &context) {
  const int number = context.arguments.unit();
  const std::string word = context.arguments.word();
  if (const std::optional<RequestFaultKind> kind = requestFaultNamed(word)) {
    setRequestFault(context, number, *kind);
  } else if (const std::optional<OpenFault> fault = openFaultNamed(word)) {
    context.arguments.end();
    context.desk.setFault(number, *fault);
  } else {
    throw CommandError("there is no fault " + quoted(word) +
                       "; faults: stall, short K, no-reply, vanish, refuse, deny, hold");
  }
  return {};
}

Lines runClear(Context &context) {
  const int number = context.arguments.unit();
  context.arguments.end();
  context.desk.clearFaults(number);
  return {};
}

// --- the rest --------------------------------------------------------------------------------

Lines runLog(Context &context) {
  if (context.arguments.left() == 0) return context.desk.log();
  const std::string word = context.arguments.word();
  context.arguments.end();
  if (word != "clear") throw CommandError(quoted(word) + " is not known; usage: log [clear]");
  context.desk.clearLog();
  return {};
}

Lines runEnvironment(Context &context) {
  context.arguments.end();
  return context.environment;
}

Lines runHelp(Context &context);

constexpr std::array<Command, 11> kCommands{{
    {"units", "units", "all units: number, kind and ids, bus/device address, faults", runUnits},
    {"plug", "plug [VVVV:PPPP]",
     "plug in a new mixer, or a stranger with these ids; answers its "
     "number",
     runPlug},
    {"unplug", "unplug N", "take unit N off the bus", runUnplug},
    {"replug", "replug N", "plug unit N in again, under a new device number", runReplug},
    {"set", "set N SETTING VALUE...", "change what mixer N reports (settings below)", runSet},
    {"get", "get N", "all that unit N reports, and the value last written to each setting", runGet},
    {"fault", "fault N KIND [ARG] [REQUEST]", "make requests or opening fail (kinds below)",
     runFault},
    {"clear", "clear N", "take all faults off unit N", runClear},
    {"log", "log [clear]", "all requests so far; with clear: forget them", runLog},
    {"environment", "environment", "the variables that a further process needs", runEnvironment},
    {"help", "help", "this text", runHelp},
}};

std::string helpLine(std::string_view usage, std::string_view help) {
  std::string line = "  " + std::string(usage);
  line.resize(std::max<std::size_t>(line.size() + 2, 36), ' ');
  return line + std::string(help);
}

Lines runHelp(Context &context) {
  context.arguments.end();
  Lines lines{"Commands:"};
  for (const Command &command : kCommands) {
    lines.push_back(helpLine(command.usage, command.help));
  }
  lines.push_back("Settings (numbers are decimal, or hexadecimal after 0x):");
  for (const Setting &setting : kSettings) {
    lines.push_back(helpLine(setting.usage, setting.help));
  }
  lines.push_back("Faults of requests, of every one or of the REQUEST named:");
  lines.push_back(helpLine("fault N stall [REQUEST]", "the request is refused"));
  lines.push_back(helpLine("fault N short K [REQUEST]", "only K bytes of the reply come"));
  lines.push_back(helpLine("fault N no-reply [REQUEST]", "the request runs into its time-out"));
  lines.push_back(helpLine("fault N vanish [REQUEST]", "the unit is unplugged during the request"));
  lines.push_back("Faults of opening:");
  lines.push_back(helpLine("fault N refuse", "nobody can open the unit"));
  lines.push_back(
      helpLine("fault N deny", "no permission, as without a udev rule; root still may"));
  lines.push_back(helpLine("fault N hold", "busy (EBUSY), except for CAP_SYS_ADMIN"));
  lines.push_back("Requests: " + requestWords());
  return lines;
}

Lines run(Context &context) {
  const std::string word = context.arguments.word();
  for (const Command &command : kCommands) {
    if (command.word != word) continue;
    context.arguments.setUsage(std::string(command.usage));
    return command.run(context);
  }
  throw CommandError("there is no command " + quoted(word) + "; `help` lists them");
}

}  // namespace

std::string CommandReply::wireText() const {
  std::string text;
  for (const std::string &line : lines) text += line + '\n';
  return text + (refused ? "error " + error : "ok") + '\n';
}

CommandInterpreter::CommandInterpreter(Desk &desk, std::vector<std::string> environment)
    : desk_(desk), environment_(std::move(environment)) {}

CommandReply CommandInterpreter::execute(std::string_view line) {
  CommandArguments arguments(line);
  arguments.setUsage("COMMAND [ARGUMENT...], `help` lists the commands");
  Context context{desk_, environment_, arguments};
  try {
    return {run(context), false, {}};
  } catch (const CommandError &refusal) {
    return {{}, true, refusal.what()};
  } catch (const DeskError &refusal) {
    return {{}, true, refusal.what()};
  }
}

}  // namespace trxsim
