// The control commands, and what becomes of bad ones.

#include <gtest/gtest.h>

#include "Control/CommandArguments.h"
#include "Control/CommandInterpreter.h"
#include "Control/UnitKindText.h"
#include "MakerIds.h"
#include "RecordingFrontEnd.h"

namespace trxsim {
namespace {

using Lines = std::vector<std::string>;

class Commands : public testing::Test {
 protected:
  void SetUp() override { desk_.Plug(); }

  Lines Ask(const std::string &command) {
    const CommandReply reply = interpreter_.Execute(command);
    EXPECT_FALSE(reply.refused) << command << ": " << reply.error;
    return reply.lines;
  }

  std::string Refusal(const std::string &command) {
    const CommandReply reply = interpreter_.Execute(command);
    EXPECT_TRUE(reply.refused) << command;
    EXPECT_TRUE(reply.lines.empty());
    return reply.error;
  }

  RecordingFrontEnd frontEnd_;
  Desk desk_{frontEnd_};
  CommandInterpreter interpreter_{desk_, {"ONE=1", "TWO=2"}};
};

TEST_F(Commands, UnitsListsEveryUnit) {
  desk_.Plug(UsbIds{0x1234, 0xABCD});
  desk_.Unplug(2);
  desk_.SetFault(1, OpenFault::kDeny);
  EXPECT_EQ(Ask("units"),
            (Lines{"1  TRX-SELVA " + VendorId() + ":001f  plugged 001/002  faults deny",
                   "2  other 1234:abcd  unplugged  faults none"}));
}

TEST_F(Commands, PlugAnswersTheNewNumber) {
  EXPECT_EQ(Ask("plug"), Lines{"2"});
  EXPECT_EQ(Ask("plug 1234:abcd"), Lines{"3"});
  EXPECT_TRUE(desk_.UnitOf(2).mixer);
  EXPECT_FALSE(desk_.UnitOf(3).mixer);
  EXPECT_EQ(desk_.UnitOf(3).identity.product, 0xABCD);
}

TEST_F(Commands, PlugTakesAModelInAnyCase) {
  EXPECT_EQ(Ask("plug trx-volt"), Lines{"2"});
  EXPECT_EQ(Ask("units")[1], "2  TRX-VOLT " + VendorId() + ":001f  plugged 001/003  faults none");
  EXPECT_EQ(Ask("get 2")[3], "selectors 00 00 00");
}

TEST_F(Commands, AUnitIsUnpluggedAndReplugged) {
  Ask("unplug 1");
  EXPECT_FALSE(desk_.UnitOf(1).address);
  Ask("replug 1");
  EXPECT_TRUE(desk_.UnitOf(1).address);
}

TEST_F(Commands, SetChangesWhatTheMixerReports) {
  Ask("set 1 selector 3 0x7f");
  Ask("set 1 reply-leading-byte 9");
  Ask("set 1 serato 1 2");
  Ask("set 1 port 3 4");
  Ask("set 1 firmware 0x0123");
  Ask("set 1 certify 4294967295");
  const MixerState state = desk_.UnitOf(1).mixer->State();
  EXPECT_EQ(state.selectors, (std::vector<std::uint8_t>{0, 0, 0, 0x7F}));
  EXPECT_EQ(state.leadingByte, 9);
  EXPECT_EQ(state.serato, (std::array<std::uint8_t, 2>{1, 2}));
  EXPECT_EQ(state.port, (std::array<std::uint8_t, 2>{3, 4}));
  EXPECT_EQ(state.firmware, 0x0123);
  EXPECT_EQ(state.certify, 0xFFFFFFFF);
}

TEST_F(Commands, SetSeratoWithOneByteClearsTheSecond) {
  Ask("set 1 serato 1 2");
  Ask("set 1 serato 3");
  EXPECT_EQ(desk_.UnitOf(1).mixer->State().serato, (std::array<std::uint8_t, 2>{3, 0}));
}

TEST_F(Commands, SetChannelsMakesRoomForMoreSelectors) {
  EXPECT_NE(Refusal("set 1 selector 4 1").find("set N channels COUNT"), std::string::npos);
  Ask("set 1 channels 5");
  Ask("set 1 selector 4 1");
  EXPECT_EQ(desk_.UnitOf(1).mixer->State().selectors, (std::vector<std::uint8_t>{0, 0, 0, 0, 1}));
}

TEST_F(Commands, GetShowsTheWholeState) {
  Ask("set 1 selector 0 6");
  desk_.Transfer(1, {0x40, 3, 0x020A, 0x8002, 0});
  Lines state = Ask("get 1");
  ASSERT_GE(state.size(), 13U);
  state.resize(13);  // mixers may learn more requests
  EXPECT_EQ(state, (Lines{"TRX-SELVA " + VendorId() + ":001f", "plugged 001/002", "faults none",
                          "selectors 00 06 00 00 00", "serato 00 00", "port 00 00",
                          "firmware 0x0100", "certify 0x00000001", "written mixer-output 0x020a",
                          "written usb-output-level never", "written midi-channel never",
                          "written midi-key-mode never", "written mixer-input never"}));
}

TEST_F(Commands, GetOfAnotherDeviceShowsItsIdsAddressAndFaults) {
  Ask("plug 1234:5678");
  EXPECT_EQ(Ask("get 2"), (Lines{"other 1234:5678", "plugged 001/003", "faults none"}));
}

TEST_F(Commands, FaultTakesKindArgumentAndRequest) {
  Ask("fault 1 refuse");
  Ask("fault 1 no-reply");
  Ask("fault 1 short 3 selectors");
  Ask("fault 1 vanish mixer-input");
  Ask("fault 1 stall certify");
  EXPECT_EQ(desk_.UnitOf(1).faults.Text(),
            "refuse, no-reply, short 3 selectors, stall certify, vanish mixer-input");
  Ask("clear 1");
  EXPECT_EQ(desk_.UnitOf(1).faults.Text(), "none");
}

TEST_F(Commands, LogShowsAndForgets) {
  desk_.Transfer(1, {0x40, 3, 0x0300, 0x8003, 0});
  EXPECT_EQ(Ask("log"), desk_.Log());
  EXPECT_EQ(Ask("log").size(), 1u);
  EXPECT_TRUE(Ask("log clear").empty());
  EXPECT_TRUE(Ask("log").empty());
}

TEST_F(Commands, EnvironmentIsAsGiven) { EXPECT_EQ(Ask("environment"), (Lines{"ONE=1", "TWO=2"})); }

TEST_F(Commands, HelpNamesEveryCommandSettingFaultAndRequest) {
  std::string help;
  for (const std::string &line : Ask("help")) help += line + '\n';
  for (const char *word : {"  units ",
                           "  plug [KIND]",
                           "  unplug N",
                           "  replug N",
                           "  set N selector CHANNEL VALUE",
                           "  set N serato A [B]",
                           "  set N port A B",
                           "  set N firmware VALUE",
                           "  set N certify VALUE",
                           "  set N reply-leading-byte VALUE",
                           "  get N",
                           "  fault N FAULT [REQUEST]",
                           "  clear N",
                           "  log [clear]",
                           "  environment",
                           "stall",
                           "short K",
                           "no-reply",
                           "vanish",
                           "refuse",
                           "deny",
                           "hold",
                           "usb-output-level"}) {
    EXPECT_NE(help.find(word), std::string::npos) << word;
  }
}

TEST_F(Commands, BlanksInACommandDoNotMatter) { EXPECT_EQ(Ask("  units\t\r").size(), 1u); }

TEST_F(Commands, RefusalsNameTheMistakeAndTheWayOut) {
  EXPECT_EQ(Refusal("unitz"), "there is no command \"unitz\"; `help` lists them");
  EXPECT_EQ(Refusal("unplug 7"), "there is no unit 7; `units` lists them");
  EXPECT_EQ(Refusal("unplug"), "an argument is missing; usage: unplug N");
  EXPECT_EQ(Refusal("unplug x"), "\"x\" is not a unit number; `units` lists them; usage: unplug N");
  EXPECT_EQ(Refusal("units now"), "\"now\" is one argument too many; usage: units");
  EXPECT_EQ(Refusal("plug TRX"),
            "\"TRX\" is neither a mixer model (TRX-SELVA, TRX-Arden, TRX-VOLT, TRX-HALDEN, "
            "TRX-LUMEN, TRX-MORROW) nor VENDOR:PRODUCT with four hexadecimal digits each");
  EXPECT_EQ(Refusal("replug 1"), "unit 1 is already plugged in");
  EXPECT_EQ(Refusal("set 1 colour 3"), "a mixer has no setting \"colour\"; `help` lists them");
  EXPECT_EQ(Refusal("set 1 serato 256"),
            "\"256\" is not a number from 0 to 255; usage: set N serato A [B]");
  EXPECT_EQ(
      Refusal("fault 1 explode"),
      "there is no fault \"explode\"; faults: stall, short K, no-reply, vanish, refuse, deny, "
      "hold");
  EXPECT_EQ(
      Refusal("fault 1 stall nothing")
          .find(
              "there is no request \"nothing\"; requests: firmware, selectors, serato, port, "
              "certify, mixer-output, usb-output-level, midi-channel, midi-key-mode, mixer-input"),
      0U);
}

TEST_F(Commands, BadCommandsChangeNothing) {
  const Lines before = Ask("get 1");
  for (const char *command : {"",
                              " ",
                              "set",
                              "set 1",
                              "set 1 selector",
                              "set 1 selector 0",
                              "set 1 selector 0 1 2",
                              "set 1 selector 99 1",
                              "set 1 selector -1 1",
                              "set 1 selector 0 0x100",
                              "set 1 firmware 65536",
                              "set 1 certify 4294967296",
                              "set 1 firmware 12x",
                              "set 1 firmware 0x",
                              "set 1 channels 0",
                              "set 1 channels 17",
                              "set 0 serato 1",
                              "set -1 serato 1",
                              "set 99999999999 serato 1",
                              "fault 1",
                              "fault 1 short",
                              "fault 1 short x",
                              "fault 1 short 1 selectors more",
                              "fault 1 refuse selectors",
                              "fault 2 stall",
                              "clear",
                              "clear 2",
                              "get",
                              "get 2",
                              "plug x",
                              "plug 12345:6789",
                              "plug 1234:",
                              "plug :1234",
                              "plug 1234",
                              "plug 123g:0001",
                              "replug 2",
                              "log all",
                              "environment x",
                              "help me",
                              "UNITS"}) {
    EXPECT_FALSE(Refusal(command).empty()) << command;
  }
  EXPECT_EQ(Ask("get 1"), before);
  EXPECT_EQ(Ask("units").size(), 1u);
}

TEST_F(Commands, HostileBytesAreRefusedInPrint) {
  std::string every;
  for (int value = 0; value < 256; ++value) every += static_cast<char>(value);
  const std::string error = Refusal(every);
  for (const char character : error) EXPECT_TRUE(character >= ' ' && character <= '~');
  EXPECT_LT(Refusal(std::string(1'000'000, 'x')).size(), 200u);
  Refusal(std::string(3, '\0'));
}

std::string NamesOf(const std::string &units) {
  RecordingFrontEnd frontEnd;
  Desk desk(frontEnd);
  std::string names;
  for (const UnitKind &kind : ParseUnits(units)) {
    names += desk.UnitOf(desk.Plug(kind)).identity.productName + '|';
  }
  return names;
}

TEST(Units, UnitsAreACountOrAListOfKinds) {
  EXPECT_EQ(NamesOf("0"), "");
  EXPECT_EQ(NamesOf("2"), "TRX-SELVA|TRX-SELVA|");
  EXPECT_EQ(NamesOf("TRX-SELVA,trx-volt,1234:0001"), "TRX-SELVA|TRX-VOLT|Other device|");
  EXPECT_EQ(ParseUnits("100").size(), 100u);
}

TEST(Units, UnitsAreRefusedUnlessEachIsKnownAndAllFit) {
  std::string tooMany = "TRX-SELVA";
  for (int count = 0; count < 100; ++count) tooMany += ",TRX-SELVA";
  for (const std::string &text :
       {std::string(), std::string("-1"), std::string("101"), std::string("99999999999999999999"),
        std::string("2,TRX-VOLT"), std::string("TRX-VOLT,"), std::string("TRX-BOLT"), tooMany}) {
    EXPECT_THROW(ParseUnits(text), CommandError) << text;
  }
}

TEST(CommandReplies, CommandRepliesEndWithOkOrError) {
  EXPECT_EQ((CommandReply{{"a", "b"}, false, {}}.WireText()), "a\nb\nok\n");
  EXPECT_EQ((CommandReply{{}, true, "no"}.WireText()), "error no\n");
}

}  // namespace
}  // namespace trxsim
