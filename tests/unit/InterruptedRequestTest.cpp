// Requests interrupted by signals. The test supplies the kernel's answers and the time, so the
// time-out of each try is known to the millisecond.
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <functional>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/usbdevice_fs.h>
#include <pthread.h>
#include <sys/ioctl.h>
#include <time.h>

#include "VendorRequest.h"

namespace {

// Replaces the kernel.
struct Kernel {
  std::int64_t milliseconds = 1'000'000;     // since the machine was started
  std::function<int(std::uint32_t)> answer;  // gets the time-out of a try; minus the error
  std::vector<usbdevfs_ctrltransfer> tries;  // as they were asked for
};
Kernel kernel;

}  // namespace

// Replace those of the C library in this program.
extern "C" int ioctl(int, unsigned long request, ...) noexcept {
  va_list arguments;
  va_start(arguments, request);
  const auto *const transfer = va_arg(arguments, const usbdevfs_ctrltransfer *);
  va_end(arguments);
  EXPECT_EQ(request, static_cast<unsigned long>(USBDEVFS_CONTROL));
  kernel.tries.push_back(*transfer);
  const int result = kernel.answer(transfer->timeout);
  if (result >= 0) return result;
  errno = -result;
  return -1;
}

extern "C" int clock_gettime(clockid_t, timespec *now) noexcept {
  now->tv_sec = kernel.milliseconds / 1000;
  now->tv_nsec = kernel.milliseconds % 1000 * 1'000'000;
  return 0;
}

namespace orv {
namespace {

using testing::ElementsAre;

constexpr auto kTimedOut = static_cast<PlatformStatus>(0xE0004051);
constexpr auto kStalled = static_cast<PlatformStatus>(0xE000404F);

class InterruptedRequest : public testing::Test {
 protected:
  InterruptedRequest() { kernel = Kernel(); }

  // Makes each try take some milliseconds and end in this way; later tries succeed at once.
  struct Ending {
    std::int64_t milliseconds;
    int result;
  };
  static void Answer(std::vector<Ending> endings) {
    kernel.answer = [endings = std::move(endings)](std::uint32_t) {
      const std::size_t place = kernel.tries.size() - 1;
      if (place >= endings.size()) return 0;
      kernel.milliseconds += endings[place].milliseconds;
      return endings[place].result;
    };
  }

  PlatformStatus Send() { return Write(&unit_, 0x8003, 0x0300); }

  static std::vector<std::uint32_t> TimeOuts() {
    std::vector<std::uint32_t> timeOuts;
    for (const usbdevfs_ctrltransfer &transfer : kernel.tries) timeOuts.push_back(transfer.timeout);
    return timeOuts;
  }

  USBDeviceInterface unit_ = {1000, {}};
};

TEST_F(InterruptedRequest, ARequestThatIsNotInterruptedIsMadeOnceWithFiveSeconds) {
  Answer({});
  EXPECT_EQ(Send(), 0);
  EXPECT_THAT(TimeOuts(), ElementsAre(5000));
}

TEST_F(InterruptedRequest, AnInterruptedRequestIsMadeAgainWithTheTimeThatIsLeft) {
  Answer({{1200, -EINTR}});
  EXPECT_EQ(Send(), 0);
  EXPECT_THAT(TimeOuts(), ElementsAre(5000, 3800));
}

TEST_F(InterruptedRequest, AnInterruptedRequestCountsAllTheTimeFromTheBeginning) {
  Answer({{1200, -EINTR}, {800, -EINTR}, {0, -EINTR}, {2999, -EINTR}});
  EXPECT_EQ(Send(), 0);
  EXPECT_THAT(TimeOuts(), ElementsAre(5000, 3800, 3000, 3000, 1));
}

TEST_F(InterruptedRequest, AnInterruptedRequestIsGivenUpWhenItsTimeIsOver) {
  for (const std::int64_t taken : {5000, 5001, 60000}) {
    kernel = Kernel();
    Answer({{taken, -EINTR}});
    EXPECT_EQ(Send(), kTimedOut);
    EXPECT_THAT(TimeOuts(), ElementsAre(5000));
  }
  kernel = Kernel();
  Answer({{4000, -EINTR}, {1000, -EINTR}});
  EXPECT_EQ(Send(), kTimedOut);
  EXPECT_THAT(TimeOuts(), ElementsAre(5000, 1000));
}

TEST_F(InterruptedRequest, AnInterruptedRequestIsTheSameRequestEachTime) {
  Answer({{10, -EINTR}, {10, -EINTR}});
  std::array<std::uint8_t, 4> buffer = {};
  EXPECT_EQ(GetCertifyLevel(&unit_, buffer.data(), 4), 0);
  ASSERT_EQ(kernel.tries.size(), 3U);
  for (const usbdevfs_ctrltransfer &transfer : kernel.tries) {
    EXPECT_EQ(transfer.bRequestType, 0xC0);
    EXPECT_EQ(transfer.bRequest, 0);
    EXPECT_EQ(transfer.wValue, 0);
    EXPECT_EQ(transfer.wIndex, 0x8007);
    EXPECT_EQ(transfer.wLength, 4);
    EXPECT_EQ(transfer.data, buffer.data());
  }
}

TEST_F(InterruptedRequest, AnInterruptedRequestSaysHowItsLastTryEnded) {
  Answer({{10, -EINTR}, {10, -EPIPE}});
  EXPECT_EQ(Send(), kStalled);
  kernel = Kernel();
  Answer({{10, -EINTR}, {10, 3}});
  std::array<std::uint8_t, 4> buffer = {};
  std::uint16_t length = 4;
  EXPECT_EQ(DeviceRequest(&unit_, 0xC0, 0, 0, 0x8007, buffer.data(), &length), 0);
  EXPECT_EQ(length, 3);
}

TEST_F(InterruptedRequest, FailuresOtherThanAnInterruptionAreFinal) {
  for (const int error : {EPIPE, ETIMEDOUT, ENODEV, ESHUTDOWN, EAGAIN, EIO}) {
    kernel = Kernel();
    Answer({{10, -error}});
    EXPECT_NE(Send(), 0);
    EXPECT_EQ(kernel.tries.size(), 1U) << error;
  }
}

// --- The signals themselves ----------------------------------------------------------------------

int timesHandled = 0;

class SignalsDuringARequest : public InterruptedRequest {
 protected:
  SignalsDuringARequest() {
    timesHandled = 0;
    sigset_t none;
    sigemptyset(&none);
    sigaddset(&none, SIGUSR2);  // this host wants that one held back for reasons of its own
    pthread_sigmask(SIG_SETMASK, &none, &before_);
    struct sigaction action = {};
    action.sa_handler = [](int) { ++timesHandled; };
    sigaction(SIGUSR1, &action, &actionBefore_);
  }
  ~SignalsDuringARequest() override {
    sigaction(SIGUSR1, &actionBefore_, nullptr);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

  static std::vector<int> HeldBack() {
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    std::vector<int> signals;
    for (const int signal : {SIGHUP, SIGINT, SIGUSR1, SIGUSR2, SIGALRM, SIGTERM, SIGCHLD, SIGPROF,
                             SIGRTMIN, SIGRTMAX}) {
      if (sigismember(&mask, signal) == 1) signals.push_back(signal);
    }
    return signals;
  }

 private:
  sigset_t before_;
  struct sigaction actionBefore_;
};

TEST_F(SignalsDuringARequest, SignalsMayInterruptTheFirstTryAndWaitForTheOthers) {
  std::vector<std::vector<int>> heldBack;
  std::vector<int> handled;
  kernel.answer = [&](std::uint32_t) {
    heldBack.push_back(HeldBack());
    raise(SIGUSR1);
    handled.push_back(timesHandled);
    return kernel.tries.size() < 3 ? -EINTR : 0;
  };
  EXPECT_EQ(Send(), 0);
  EXPECT_THAT(heldBack,
              ElementsAre(ElementsAre(SIGUSR2), testing::SizeIs(10), testing::SizeIs(10)));
  EXPECT_THAT(handled, ElementsAre(1, 1, 1));
  EXPECT_EQ(timesHandled, 2) << "behind the request, once for all that waited";
}

TEST_F(SignalsDuringARequest, SignalsAreAsTheHostHadThemBehindIt) {
  for (const std::int64_t taken : {10, 5000}) {
    kernel = Kernel();
    Answer({{taken, -EINTR}});
    Send();
    EXPECT_THAT(HeldBack(), ElementsAre(SIGUSR2)) << taken;
  }
}

}  // namespace
}  // namespace orv
